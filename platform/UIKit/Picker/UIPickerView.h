#pragma once

#include <vector>

#include "UIKey.h"
#include "UIPickerTitleSearch.h"
#include "UIPickerTurn.h"
#include "UIPickerTyping.h"
#include "UIPickerViewProtocols.h"
#include "UIView.h"

namespace gx {

class UIPickerColumn;

/// A wheel: columns of rows that the user turns with finger, mouse, trackpad or keyboard.
///
/// What is shown. Columns stand side by side, 5 points apart, together centred in the bounds. Rows are
/// virtual: only views of rows in sight exist, so neither a reload nor a frame costs more with more rows.
///
/// Answers it keeps. What the data source and the delegate say of counts and sizes is kept until a reload, a
/// new data source or delegate, new bounds or a request (a selection by the program or the user) makes it
/// stale; the next question or layout asks again, and shows the rows in sight anew, once.
///
/// Selection. For each component the wheel remembers the row last requested, exactly as given, and answers it
/// held to the rows there are at that moment. A moving column reports the row it last stood on or was last
/// asked for, until it has come to rest. The delegate is told of turns by the user alone.
///
/// Keys. A wheel with a column that can be turned takes the focus; so does one that is touched. Left and right choose the column, which the
/// band marks; columns of one row, and those that show nothing, are passed over. Up and down turn by a row, page keys by the rows in sight
/// less one, home and end to the first and the last row. Keys count from the row that the column is on its way to, so none is lost.
/// Characters turn to the row whose title they spell, in any script's digits and whatever the case of letters (`UIPickerTyping`,
/// `UIPickerTitleSearch`); those within a second belong together. A decimal separator, or a colon, that no title here has at that place
/// goes on to the next column, and a digit behind a complete tenth to the column right behind it. The column turns while the user types,
/// but tells of it once, when the text is complete: when no title goes on, a second has passed, or another key, a touch, a screen reader's
/// order or another column comes. A text that no title spells takes the column back to the row that it was on. What follows such a text,
/// or goes on beyond the last column, counts for nothing until a pause. A single character that spells nothing leaves the wheel where it
/// is, and one that is held is typed once.
///
/// Ticks. The window's host hears of each row that passes the band in a turn by the user, of a hundred at most in a frame: faster than that
/// nobody can tell ticks apart.
///
/// Every eye. In a window that reduces motion a column that is let go, tapped, asked or turned by a notch or a key arrives with the next
/// tick, without the way there, and reports as ever. At high contrast rows beside the band fade less, and the band has an outline.
///
/// No turn is lost: a wheel that leaves its window, is hidden, or whose window ends its movements, arrives at once and reports.
///
/// The wheel owns neither its data source nor its delegate. Both may do anything while they are asked.
class UIPickerView : public UIView {
public:
    /// The answer of a delegate that leaves a width or a height to the wheel.
    static constexpr CGFloat automaticDimension = -1;
    /// The height of a row that no delegate gives one. Prescribed by the phone's wheel.
    static constexpr CGFloat defaultRowHeight = 32;
    /// The size of titles that no delegate gives a view or a font, in points. Chosen to fill a row as the pickers' own rows do.
    static constexpr CGFloat titleFontSize = 22;
    /// Between two columns. Prescribed by the phone's wheel.
    static constexpr CGFloat columnGap = 5;
    /// More columns than fit on any screen; the bound keeps a wrong answer from filling the memory.
    static constexpr NSInteger highestComponentCount = 256;

    UIPickerView();
    ~UIPickerView() override;

    WeakRef<UIPickerViewDataSource> dataSource() const { return dataSource_; }
    virtual void setDataSource(WeakRef<UIPickerViewDataSource> dataSource);
    WeakRef<UIPickerViewDelegate> delegate() const { return delegate_; }
    virtual void setDelegate(WeakRef<UIPickerViewDelegate> delegate);

    /// The band behind the row in the middle. Default true.
    bool showsSelectionIndicator() const { return showsBand_; }
    void setShowsSelectionIndicator(bool shows);
    /// Where it is drawn, in this view's coordinates; empty without columns.
    CGRect selectionIndicatorFrame();
    /// Draws one, for a view that spans several wheels with it and hides theirs.
    static void drawSelectionIndicator(UIGraphicsContext& context, CGRect frame);

    // Questions

    virtual NSInteger numberOfComponents();
    /// 0 for a component that does not exist.
    virtual NSInteger numberOfRowsInComponent(NSInteger component);
    /// The zero size for a component that does not exist, or while the bounds are empty.
    virtual CGSize rowSizeForComponent(NSInteger component);
    /// The row last requested, held to the rows there are: 0 in a component without rows or never asked for, −1 for a component that does
    /// not exist.
    virtual NSInteger selectedRowInComponent(NSInteger component);
    /// The view that shows a row now; nothing for a row that is not in sight. Lays the wheel out first if that is due.
    virtual Ref<UIView> viewForRow_forComponent(NSInteger row, NSInteger component);
    /// The row that is nearest to the band now, also during a movement; −1 for a component that does not exist.
    NSInteger rowInBandOfComponent(NSInteger component);
    /// Whether any column is turning, by the user or by an animated request.
    bool isTurning() const;
    /// The column that keys turn: the one chosen last, by a key or a touch, or the first that can be turned; −1 if there is none.
    NSInteger componentOfKeys();

    // Orders

    virtual void reloadAllComponents();
    /// Ignored for a component that does not exist.
    virtual void reloadComponent(NSInteger component);
    /// Requests a row, which need not exist (yet). A request for the row that the column reports leaves a
    /// movement alone, any other one ends it. Without a window, animation has no clock and the row is shown at once. The delegate is not
    /// told. Ignored for a component that does not exist.
    virtual void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated);
    /// What every turn by the user ends in: stands on the row, requests it and tells the delegate. The row is held to the rows there are,
    /// and is 0 without any (where no user can turn, but a program may say so). Ignored for a component that does not exist.
    virtual void turnToRow_inComponent(NSInteger row, NSInteger component);

    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;
    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;
    void layoutSubviews() override;
    void didMoveToWindow() override;
    /// Ends every movement at once, the user's turns on the rows they were heading for, and reports those.
    void finishAnimations() override;
    void drawRect(UIGraphicsContext& context, CGRect rect) override;
    bool touchBegan(const UITouch& touch) override;
    void touchMoved(const UITouch& touch) override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    bool scrolled(const UIScroll& scroll) override;
    bool canBecomeFirstResponder() override;
    bool keyPressed(const UIKey& key) override;
    void focusDidChange() override;
    bool advanceToTime(NSTimeInterval time) override;
    /// One for each column that the user can turn, and nothing else in the wheel: labels beside its columns belong to what a column says.
    /// An element follows a column that changes places (`exchangeComponents`).
    UIAccessibilityElements accessibilityElements() override;

protected:
    /// For a wheel whose columns change places, before it reloads: what is shown as one of the two will be shown as the other. The choice
    /// of the keys and the elements of screen readers go along; rows and movements stay, and nothing is reported. Either may be a component
    /// that does not exist yet, or not any more; ignored for one that cannot exist.
    void exchangeComponents(NSInteger one, NSInteger other);

private:
    struct Component;
    class ColumnElement;

    Ref<UIPickerView> self() { return refTo(this); }
    bool exists(NSInteger component);
    Component& at(NSInteger component);

    void noteStale();
    void refreshComponents();
    void makeComponents(NSInteger count);
    NSInteger refreshedRows(NSInteger component);
    void refreshSizes(NSInteger component);
    bool hasRow(NSInteger row, NSInteger component);
    NSInteger heldRow(NSInteger component, NSInteger row);
    std::optional<std::string> titleOfRow(NSInteger row, NSInteger component);
    CGFloat widthOfComponent(NSInteger component) const;

    bool isShowable() const;
    void placeColumns();
    void showRows(NSInteger component, bool anew);
    void showRow(NSInteger component, NSInteger row);
    void scrollColumn(NSInteger component);

    NSInteger componentAt(CGPoint point) const;
    NSInteger componentOfTouch(std::int64_t identifier) const;
    bool canTurn(NSInteger component);
    bool canBeChosen(NSInteger component);
    NSInteger componentBeside(NSInteger component, NSInteger direction);
    NSInteger componentThatShowsAfter(NSInteger component);
    void choose(NSInteger component);
    void turnByKey(UIKey::Code code, NSInteger component);
    void typeCharacter(char32_t character, NSTimeInterval time);
    bool typeSeparator(char32_t separator, NSInteger component, NSTimeInterval time);
    void typeText(char32_t character, NSInteger component, NSTimeInterval time);
    bool typeBehindComplete(char32_t character, NSInteger component, NSTimeInterval time);
    UIPickerTitleSearch::Result rowsSpelled(const std::u32string& text, NSInteger component);
    void completeTyping();
    void arriveExcept(NSInteger component);
    void drawFocus(UIGraphicsContext& context, CGRect band);
    NSInteger adjustableComponent(NSInteger part);
    std::optional<std::string> spokenRow(NSInteger row, NSInteger component);
    bool isMoving() const;
    bool arrivesAtOnce() const;
    NSInteger advanceColumn(NSInteger component, NSTimeInterval time);
    void letGo(Component& component);
    void startMoving();
    void tellTicks(NSInteger rows);
    void reportLandings();

    WeakRef<UIPickerViewDataSource> dataSource_;
    WeakRef<UIPickerViewDelegate> delegate_;
    // Only grows, so that a component that comes back stands where it was asked to; `count_` of them exist.
    std::vector<std::unique_ptr<Component>> components_;
    NSInteger count_ = 0;
    bool isCountKnown_ = false;
    bool isCountAsked_ = false;
    bool areRowsDue_ = true;
    bool showsBand_ = true;
    UIPickerTyping typing_;
    NSInteger chosen_ = -1; // The column that keys turn, as far as it can be turned; −1 for the first.
};

} // namespace gx
