#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "GXMultiValuePickerViewDelegate.h"
#include "GXStyleSheetFont.h"
#include "UILabel.h"
#include "UIPickerView.h"

namespace gx {

/// The wheel of every picker: a `UIPickerView` with a description label on either side (a unit such as "bpm")
/// and separator labels between its columns (such as ":").
///
/// The labels follow the titles: the left one ends where the widest title of the first column begins, the
/// right one starts where the widest title of the last column ends. They are placed anew with every layout,
/// reload and change of text; without a data source and a delegate they stay where they are.
///
/// Where the current locale reads from right to left, the columns keep their order, as numbers do, but the labels change sides: the
/// right one, the unit that is read after the number, stands at the left of the columns, as far from the titles there as the left one
/// otherwise, and the left one at their right.
class GXMultiValuePickerView : public UIPickerView {
public:
    /// Makes the wheel of a picker, filling the given frame.
    using Factory = std::function<Ref<GXMultiValuePickerView>(CGRect)>;
    /// Lets an application put its own subclass under every picker made from now on, also those inside
    /// composites. An empty factory, and one that answers nothing, stands for the plain wheel.
    static void setFactory(Factory factory);
    static Ref<GXMultiValuePickerView> wheelWithFrame(CGRect frame);

    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    const std::optional<std::string>& leftLabelText() const { return leftLabelText_; }
    virtual void setLeftLabelText(std::optional<std::string> text);
    const std::optional<std::string>& rightLabelText() const { return rightLabelText_; }
    virtual void setRightLabelText(std::optional<std::string> text);
    const Ref<UILabel>& leftDescLabel() const { return leftDescLabel_; }
    const Ref<UILabel>& rightDescLabel() const { return rightDescLabel_; }

    /// Whether the labels change sides where one reads from right to left. Default true; false for labels that name the columns beside
    /// which they stand, which do not change sides either. Takes effect with the next layout or reload.
    bool labelsFollowReading() const { return labelsFollowReading_; }
    void setLabelsFollowReading(bool follow);

    /// Go before the style sheet's fonts. A new label font places the labels with the next layout or reload, a
    /// new value font the separators; row labels are the data source's.
    const Ref<GXStyleSheetFont>& customLabelFont() const { return customLabelFont_; }
    virtual void setCustomLabelFont(Ref<GXStyleSheetFont> font);
    const Ref<GXStyleSheetFont>& customValueFont() const { return customValueFont_; }
    virtual void setCustomValueFont(Ref<GXStyleSheetFont> font);

    /// Shows a text after a component, centred on the column that follows: pickers give it a column of its own,
    /// whose rows have no titles. After the last component it is not shown. Ignored, and not remembered, while the data source or the
    /// delegate is absent.
    virtual void setSeparatorText_afterComponent(std::optional<std::string> text, NSUInteger component);
    /// Nothing if none was set.
    Ref<UILabel> separatorAfterComponent(NSUInteger component) const;

    /// Place both labels and all separators, or one of them. Nothing happens without a data source and a delegate.
    virtual void reloadLabelFrames();
    virtual void setupLeftLabelFrame();
    virtual void setupRightLabelFrame();
    virtual void updateSeparatorFrames();

    void setDelegate(WeakRef<UIPickerViewDelegate> delegate) override;
    void setDataSource(WeakRef<UIPickerViewDataSource> dataSource) override;
    void reloadAllComponents() override;
    void layoutSubviews() override;

private:
    void initGXMultiValuePickerView();
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
    bool areSidesChanged() const;
    void placeLeftOfColumns(const Sources& sources, const Ref<UILabel>& label);
    void placeRightOfColumns(const Sources& sources, const Ref<UILabel>& label);
    CGRect rowRectOfComponent(NSInteger component);
    CGFloat widestTitleWidth(const Sources& sources, NSInteger component);

    std::map<NSUInteger, Ref<UILabel>> separators_;
    Ref<UILabel> leftDescLabel_;
    Ref<UILabel> rightDescLabel_;
    std::optional<std::string> leftLabelText_;
    std::optional<std::string> rightLabelText_;
    bool labelsFollowReading_ = true;
    Ref<GXStyleSheetFont> customLabelFont_;
    Ref<GXStyleSheetFont> customValueFont_;
};

} // namespace gx
