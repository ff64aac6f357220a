#pragma once

#include <array>

#include "GXBasePickerView.h"
#include "GXExport.h"

namespace gx {

/// What shows two pickers in one view: the base of the composites.
///
/// It has no wheel and no numbers of its own. It places the two inner pickers, and hands its
/// delegate and its unit system down to them.
///
/// Side by side, the product prescribes their frames. A text scale above 1 may need more room than
/// these leave. Then the pickers are stacked: one above the other, each as wide as the view and
/// half as high.
/// - They are stacked if the style sheet's text scale is above 1, its fonts do not fit side by
///   side, and the view is at least `fewestStackedRows` rows high for each picker.
/// - So the height that an application gives decides. `smallestHeightForWidth` says which one shows
///   both well.
/// - It is decided again with each frame, reload of data, unit system and `sizeFontsToFit`. Custom
///   fonts of the inner pickers do not count.
class GX_EXPORT GXCompositePickerView : public GXBasePickerView {
public:
    /// Of each wheel. In a lower one, the selected row would be cut while it leaves.
    static constexpr double fewestStackedRows = 2.25;

    /// Whether the inner pickers are one above the other.
    bool isStacked() const { return isStacked_; }

    /// Places the inner pickers by the new bounds.
    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;
    /// Also hands the delegate, or nothing, to the inner pickers.
    void setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) override;
    using GXBasePickerView::setDelegate;
    /// Also sets the flag of the inner pickers.
    void setIsMetric(bool isMetric) override;
    void reloadData() override;
    void sizeFontsToFit() override;
    CGFloat smallestHeightForWidth(CGFloat width) override;

protected:
    /// From the left, or from the top.
    enum class Place { First, Second };
    /// Nothing for one that is absent.
    virtual Ref<GXBasePickerView> innerPicker(Place place) const = 0;
    /// The prescribed frame, in a view with these bounds.
    virtual CGRect frameSideBySide(Place place, CGRect bounds) const = 0;
    /// Called when they are stacked, or are not any more.
    virtual void stackingDidChange() {}

    /// Does nothing, so that there is neither a wheel nor a range.
    void initGXBasePickerView() override;
    std::vector<Ref<GXBasePickerView>> innerPickers() const override;
    /// Decides again whether they are stacked. To be called after the texts may need other room.
    void updateStacking();

private:
    static constexpr std::array places = {Place::First, Place::Second};

    CGFloat rowHeightOfWheels() const;
    bool mayStack() const;
    bool fitsSideBySide(CGRect bounds) const;
    CGRect frameStacked(Place place) const;
    void placeInnerPickers();

    bool isStacked_ = false;
};

} // namespace gx
