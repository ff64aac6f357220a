#pragma once

#include <memory>
#include <optional>
#include <string>

#include "GXExport.h"
#include "NSAttributedString.h"
#include "UIView.h"

namespace gx {

class UIPickerView;

/// Says how many components a wheel has and how many rows each of them.
///
/// The wheel caches the results; see `UIPickerView` for when it queries again. All operations may
/// call back.
class GX_EXPORT UIPickerViewDataSource {
public:
    virtual ~UIPickerViewDataSource() = default;

    /// A negative count means 0. Beyond `UIPickerView::highestComponentCount` components are left
    /// out.
    virtual NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) = 0;
    /// A negative count means 0.
    virtual NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) = 0;
};

/// Says what a wheel's rows look like, and is called when the user has selected a row.
///
/// A view goes before an attributed title, and that before a plain one. All operations may call
/// back.
class GX_EXPORT UIPickerViewDelegate {
public:
    virtual ~UIPickerViewDelegate() = default;

    /// In points. Default: an equal share of the wheel.
    virtual CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// In points. Default: 32. A height that is not above 0 means the default.
    virtual CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// Default: no title.
    virtual std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& /*pickerView*/, NSInteger /*row*/,
                                                                           NSInteger /*component*/) {
        return std::nullopt;
    }
    /// Default: nothing.
    virtual Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>& /*pickerView*/,
                                                                                  NSInteger /*row*/, NSInteger /*component*/) {
        return nullptr;
    }
    /// `view` is one that this delegate gave before for the same component and that may be used
    /// again, or nothing. Default: nothing.
    virtual Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& /*pickerView*/, NSInteger /*row*/,
                                                                       NSInteger /*component*/, const Ref<UIView>& /*view*/) {
        return nullptr;
    }
    /// Called once after each gesture of the user, when the column has come to rest on a row, also
    /// on the one it left.
    ///
    /// Never called for a request by the program. Default: does nothing.
    virtual void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& /*pickerView*/, NSInteger /*row*/, NSInteger /*component*/) {}

    /// What a screen reader calls the column. Default: nothing, which means the wheel's own label.
    virtual std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& /*pickerView*/,
                                                                                 NSInteger /*component*/) {
        return std::nullopt;
    }
    /// The accessibility text of a row that is selected. Default: nothing, which means the row's
    /// title or, for a row with a view, the labels in that.
    virtual std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& /*pickerView*/,
                                                                                        NSInteger /*row*/, NSInteger /*component*/) {
        return std::nullopt;
    }
};

/// A wheel: columns of rows that the user spins with finger, mouse, trackpad or keyboard.
///
/// Layout. Columns stand side by side, 5 points apart, together centred in the bounds. Only visible
/// rows have views, so neither a reload nor a frame costs more with more rows.
///
/// Caching. Counts and sizes are cached until they are invalidated: by a reload, a new data source
/// or delegate, new bounds, or a request (by the program, or a gesture of the user). The next query
/// or layout asks again, and binds visible rows again, once.
///
/// Selection.
/// - For each component the wheel keeps the row last requested, exactly as given, and returns it
///   clamped to the rows there are now.
/// - A moving column reports the row it was last on or was last requested to show, until it has
///   come to rest.
/// - The delegate is called for gestures of the user alone.
///
/// Keys. A wheel with a column that can be spun takes the focus, also when touched.
/// - Left and Right choose the column, which is marked in the selection indicator. Columns of one
///   row, and those that show nothing, are passed over.
/// - Up and Down move by a row, page keys by the visible rows less one, Home and End to the first
///   and last row. They count from the row that the column is on its way to, so none is lost.
/// - Characters spin to the row whose title they spell, in any script's digits, and on to the next
///   column: "12:05", "3.5", "5'9", "120/80".
/// - To the next column lead the decimal separator, the colon and, behind a number, a space and the
///   first character of the separator that is shown there. A text that no title spells, such as
///   "12x", takes the column back.
/// - A typed text is reported once, when it is complete: nothing can follow, a second has passed,
///   or other input comes.
///
/// The pointer. The column below it that can be spun is marked faintly in the selection indicator
/// and, once the mouse wheel or a drag has spun it, like that of the keys until the pointer leaves.
///
/// Feedback. The window gets `UIFeedback::SelectionChanged` for each row that passes the selection
/// indicator in a gesture of the user, for a hundred at most in a frame: faster than that they
/// cannot be told apart.
///
/// Accessibility. In a window that reduces motion a column that would move by itself arrives in the
/// next frame, and reports as ever. At high contrast rows beside the selection indicator fade less,
/// and it has an outline.
///
/// No gesture is lost: a wheel that leaves its window, is hidden, or whose window ends its
/// movements, arrives at once and reports.
///
/// The wheel owns neither its data source nor its delegate. Both may do anything while they are
/// called.
class GX_EXPORT UIPickerView : public UIView {
public:
    /// What a delegate returns that leaves a width or a height to the wheel.
    static constexpr CGFloat automaticDimension = -1;
    /// The height of a row that no delegate gives one. Prescribed by the phone's wheel.
    static constexpr CGFloat defaultRowHeight = 32;
    /// Between two columns. Prescribed by the phone's wheel.
    static constexpr CGFloat columnGap = 5;
    /// In points. Chosen to fill a row as the pickers' own rows do.
    static constexpr CGFloat titleFontSize = 22;
    /// Chosen: more columns than fit on any screen. The bound keeps a wrong count from filling the
    /// memory.
    static constexpr NSInteger highestComponentCount = 256;

    UIPickerView();
    ~UIPickerView() override;

    /// Held weakly; empty for none. A new one, also an equal one, invalidates what is cached.
    WeakRef<UIPickerViewDataSource> dataSource() const { return dataSource_; }
    virtual void setDataSource(WeakRef<UIPickerViewDataSource> dataSource);
    /// Held weakly; empty for none. A new one, also an equal one, invalidates what is cached.
    WeakRef<UIPickerViewDelegate> delegate() const { return delegate_; }
    virtual void setDelegate(WeakRef<UIPickerViewDelegate> delegate);

    /// Whether the rounded bar behind the row in the middle is drawn. Default true.
    bool showsSelectionIndicator() const { return showsSelectionIndicator_; }
    void setShowsSelectionIndicator(bool shows) {
        if (shows == showsSelectionIndicator_) return;
        showsSelectionIndicator_ = shows;
        setNeedsDisplay();
    }
    /// Where it is drawn, in this view's coordinates; empty without columns.
    CGRect selectionIndicatorFrame();
    /// Draws one, for a view that spans several wheels with it and hides theirs.
    static void drawSelectionIndicator(UIGraphicsContext& context, CGRect frame);

    // Queries

    /// As cached, 0 to `highestComponentCount`; 0 without a data source.
    virtual NSInteger numberOfComponents();
    /// 0 for a component that does not exist.
    virtual NSInteger numberOfRowsInComponent(NSInteger component);
    /// The zero size for a component that does not exist, or while the bounds are empty.
    virtual CGSize rowSizeForComponent(NSInteger component);
    /// The row last requested, clamped to the rows there are.
    ///
    /// 0 in a component without rows or without a request, −1 for a component that does not exist.
    virtual NSInteger selectedRowInComponent(NSInteger component);
    /// The view that shows a row now; nothing for a row that is not visible. Lays the wheel out
    /// first if that is needed.
    virtual Ref<UIView> viewForRow_forComponent(NSInteger row, NSInteger component);
    /// The row that is nearest to the selection indicator now, also during a movement; −1 for a
    /// component that does not exist.
    NSInteger rowInSelectionIndicatorOfComponent(NSInteger component);
    /// The row that a screen reader says of a component: the one that a key or an action sends the
    /// column to, at once, and otherwise the selected one. So a delegate that puts the rows of
    /// several columns into one accessibility text uses this row of the others.
    NSInteger announcedRowInComponent(NSInteger component);
    /// Whether any column is moving or held, by the user or by an animated request.
    bool isTurning() const;
    /// The column that keys move: the one chosen last, by a key or a touch, or the first that can
    /// be spun; −1 if there is none.
    NSInteger componentOfKeys();

    // Requests

    /// Invalidates all counts, sizes and rows. Selected rows stay as requested.
    virtual void reloadAllComponents();
    /// Ignored for a component that does not exist.
    virtual void reloadComponent(NSInteger component);
    /// Requests a row, which need not exist (yet).
    ///
    /// - A request for the row that the column reports leaves a movement alone. Any other one ends
    ///   it.
    /// - Without a window animation has no clock, and the row is shown at once.
    /// - The delegate is not called. Ignored for a component that does not exist.
    virtual void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated);
    /// What every gesture of the user ends in: requests the row, shows it and calls the delegate.
    ///
    /// The row is clamped to the rows there are, and is 0 without any (where no user can spin, but
    /// a program may call this). Ignored for a component that does not exist.
    virtual void turnToRow_inComponent(NSInteger row, NSInteger component);

    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;
    void layoutSubviews() override;
    void didMoveToWindow() override;
    /// Ends every movement at once, the user's gestures on the rows they were heading for, and
    /// reports those.
    void finishAnimations() override;
    void drawRect(UIGraphicsContext& context, CGRect rect) override;
    bool touchBegan(const UITouch& touch) override;
    void touchMoved(const UITouch& touch) override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    bool scrolled(const UIScroll& scroll) override;
    /// A column that can be spun is marked.
    std::optional<UIPointerStyle> hoverMoved(CGPoint locationInWindow) override;
    void hoverEnded() override;
    bool canBecomeFirstResponder() override;
    bool keyPressed(const UIKey& key) override;
    void focusDidChange() override;
    bool advanceToTime(NSTimeInterval time) override;
    /// One for each column that the user can spin. Labels beside columns belong to the columns'
    /// accessibility texts.
    ///
    /// An element follows a column that changes places (`exchangeComponents`).
    UIAccessibilityElements accessibilityElements() override;

protected:
    /// For a wheel whose columns change places, before it reloads: what is shown as one of the two
    /// will be shown as the other.
    ///
    /// The keys' choice and accessibility elements go along; rows and movements stay, and nothing
    /// is reported. Either may be a component that does not exist yet, or not any more. Ignored for
    /// one that cannot exist.
    void exchangeComponents(NSInteger one, NSInteger other);
    /// The font of rows with titles, attributed ones without a font of their own included. Read
    /// whenever a row is bound. Here 22 points, medium.
    virtual Ref<UIFont> titleFont() {
        static const Ref<UIFont> font = UIFont::systemFontOfSize_weight(titleFontSize, UIFontWeight::Medium);
        return font;
    }

    /// The separator that is shown behind a component, such as the "/" of 120/80, whose first
    /// character leads on to the next column when it is typed. Here nothing.
    virtual std::optional<std::string> separatorTextAfterComponent(NSInteger /*component*/) { return std::nullopt; }

private:
    class Implementation;

    Ref<UIPickerView> self() { return refTo(this); }

    WeakRef<UIPickerViewDataSource> dataSource_;
    WeakRef<UIPickerViewDelegate> delegate_;
    bool showsSelectionIndicator_ = true;
    std::unique_ptr<Implementation> implementation_;
};

inline CGFloat UIPickerViewDelegate::pickerView_widthForComponent(const Ref<UIPickerView>& /*pickerView*/, NSInteger /*component*/) {
    return UIPickerView::automaticDimension;
}
inline CGFloat UIPickerViewDelegate::pickerView_rowHeightForComponent(const Ref<UIPickerView>& /*pickerView*/, NSInteger /*component*/) {
    return UIPickerView::automaticDimension;
}

} // namespace gx
