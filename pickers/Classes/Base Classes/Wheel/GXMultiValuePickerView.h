#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "GXExport.h"
#include "GXHeldWeakly.h"
#include "GXMultiValuePickerViewDelegate.h"
#include "GXStyleSheetFont.h"
#include "UILabel.h"
#include "UIPickerView.h"

namespace gx {

/// The wheel of every picker but the height picker: a `UIPickerView` with a description label on
/// either side (a unit such as "bpm") and separator labels between its components (such as ":").
///
/// The labels follow the titles: the left one ends where the widest title of the first component
/// begins, the right one starts where the widest title of the last component ends. Every layout,
/// reload and change of text places them, in the fonts of that moment; without a data source and a
/// delegate they stay where they are.
///
/// Where the current locale reads from right to left, the components keep their order, as numbers
/// do, but the labels change sides: the right one, a unit that is read after the number, lies left
/// of the components, as far from the titles there as the left one otherwise, and the left one
/// right of them.
class GX_EXPORT GXMultiValuePickerView : public UIPickerView {
public:
    /// Makes the wheel of a picker, filling the given frame.
    using Factory = std::function<Ref<GXMultiValuePickerView>(CGRect)>;
    /// Lets an application put its own subclass under every picker made from now on, also those
    /// inside composites. An empty factory, and one that returns nothing, stands for the plain
    /// wheel.
    static void setFactory(Factory factory);
    /// A wheel of the factory, or a plain one. Never empty.
    static Ref<GXMultiValuePickerView> wheelWithFrame(CGRect frame);

    /// Makes both labels, which are empty and lie nowhere until there are texts.
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    /// The description left of the components; nothing shows none. Default nothing.
    const std::optional<std::string>& leftLabelText() const { return leftLabelText_; }
    virtual void setLeftLabelText(std::optional<std::string> text);
    /// The description right of the components, usually a unit. Default nothing.
    const std::optional<std::string>& rightLabelText() const { return rightLabelText_; }
    virtual void setRightLabelText(std::optional<std::string> text);
    /// The label with the left text, for reading. Never empty once the wheel is made.
    const Ref<UILabel>& leftDescLabel() const { return leftDescLabel_; }
    /// The label with the right text, for reading. Never empty once the wheel is made.
    const Ref<UILabel>& rightDescLabel() const { return rightDescLabel_; }

    /// Whether the labels change sides where one reads from right to left. Default true; false for
    /// labels that name the components beside which they lie, since those keep their order. Takes
    /// effect with the next layout or reload.
    bool labelsFollowReading() const { return labelsFollowReading_; }
    void setLabelsFollowReading(bool follow);

    /// Go before the style sheet's fonts. A new label font places the labels with the next layout
    /// or reload, a new value font the separators; row labels are the delegate's.
    const Ref<GXStyleSheetFont>& customLabelFont() const { return customLabelFont_; }
    virtual void setCustomLabelFont(Ref<GXStyleSheetFont> font);
    /// As the label font, for separators.
    const Ref<GXStyleSheetFont>& customValueFont() const { return customValueFont_; }
    virtual void setCustomValueFont(Ref<GXStyleSheetFont> font);

    /// Shows a text after a component, centred on the component that follows: pickers give it a
    /// component of its own, whose rows have no titles. After the last component it is not shown.
    /// Ignored, and not remembered, while the data source or the delegate is absent.
    virtual void setSeparatorText_afterComponent(std::optional<std::string> text, NSUInteger component);
    /// Nothing if none was set.
    ///
    /// Typing its text's first character behind a number goes on to the next column.
    Ref<UILabel> separatorAfterComponent(NSUInteger component) const;

    /// Place both labels and all separators, or one of them. Nothing happens without a data source
    /// and a delegate.
    virtual void reloadLabelFrames();
    /// Places the left label.
    virtual void setupLeftLabelFrame();
    /// Places the right label.
    virtual void setupRightLabelFrame();
    /// Places the separators, each on the component behind it.
    virtual void updateSeparatorFrames();

    /// Held weakly. It gives titles and widths; a plain `UIPickerViewDelegate` does not compile.
    template <std::derived_from<GXMultiValuePickerViewDelegate> Delegate>
    void setDelegate(const Ref<Delegate>& delegate) {
        setDelegate(WeakRef<UIPickerViewDelegate>(delegate));
    }
    template <std::derived_from<GXMultiValuePickerViewDelegate> Delegate>
    void setDelegate(const WeakRef<Delegate>& delegate) {
        setDelegate(WeakRef<UIPickerViewDelegate>(delegate));
    }
    /// A delegate that nothing else holds would be gone at once: debug builds stop here.
    template <std::derived_from<GXMultiValuePickerViewDelegate> Delegate>
    void setDelegate(Ref<Delegate>&& delegate) {
        setDelegate(heldWeakly<UIPickerViewDelegate>(delegate));
    }
    /// No delegate.
    void setDelegate(std::nullptr_t) { setDelegate(WeakRef<UIPickerViewDelegate>()); }
    /// Held weakly. Also places the labels.
    void setDataSource(WeakRef<UIPickerViewDataSource> dataSource) override;
    /// Also places the labels.
    void reloadAllComponents() override;
    void layoutSubviews() override;

protected:
    /// Makes the labels.
    virtual void initGXMultiValuePickerView();
    /// What every way to set a delegate ends in, that of a plain wheel included: a subclass may
    /// override it.
    void setDelegate(WeakRef<UIPickerViewDelegate> delegate) override;
    /// The text of that separator's label.
    std::optional<std::string> separatorTextAfterComponent(NSInteger component) override;

private:
    Ref<GXStyleSheetFont> labelFont() const;
    Ref<GXStyleSheetFont> valueFont() const;

    /// Both, or neither: what the labels are placed by.
    struct Sources {
        Ref<UIPickerViewDataSource> dataSource;
        Ref<UIPickerViewDelegate> delegate;
        explicit operator bool() const { return dataSource && delegate; }
    };
    Sources sources() const;
    bool areLabelsPlacedByLayout();
    bool areLabelsMirrored() const;
    CGSize sizeInCurrentFont(const Ref<UILabel>& label) const;
    void placeLeftOfComponents(const Sources& sources, const Ref<UILabel>& label);
    void placeRightOfComponents(const Sources& sources, const Ref<UILabel>& label);
    CGRect rowRectOfComponent(NSInteger component);
    CGFloat widestTitleWidth(const Sources& sources, NSInteger component);

    struct Separator {
        NSUInteger component;
        Ref<UILabel> label;
    };
    std::vector<Separator> separators_;
    Ref<UILabel> leftDescLabel_;
    Ref<UILabel> rightDescLabel_;
    std::optional<std::string> leftLabelText_;
    std::optional<std::string> rightLabelText_;
    bool labelsFollowReading_ = true;
    Ref<GXStyleSheetFont> customLabelFont_;
    Ref<GXStyleSheetFont> customValueFont_;
};

} // namespace gx
