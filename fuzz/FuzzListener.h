#pragma once

#include <array>

#include "FuzzWorld.h"
#include "GXBasePickerView.h"
#include "GXHeightPickerViewDelegate.h"
#include "UITableView.h"

/// Gives wheels and tables any counts, sizes and views, and reacts whenever it is notified or
/// asked.
class FuzzListener : public gx::NSObject,
                     public gx::GXBasePickerViewDelegate,
                     public gx::GXHeightPickerViewDelegate,
                     public gx::UIPickerViewDataSource,
                     public gx::UIPickerViewDelegate,
                     public gx::UITableViewDataSource,
                     public gx::UITableViewDelegate {
public:
    /// The views to show in cells and rows.
    using Views = std::array<gx::Ref<gx::UIView>, 3>;

    /// Neither is owned; without a world it returns the same each time.
    void setWorld(FuzzWorld* world, const Views* views) {
        world_ = world;
        views_ = views;
    }
    void changeAnswers(FuzzBytes& bytes);

    void pickerView_didChangeCurrentValue_forComponent(const gx::Ref<gx::GXBasePickerView>&, const gx::NSNumber&, gx::NSInteger) override;
    void heightPickerView_didSelectHeightInCm_metric(const gx::Ref<gx::GXHeightPickerView>&, gx::CGFloat, bool) override;

    gx::NSInteger numberOfComponentsInPickerView(const gx::Ref<gx::UIPickerView>&) override;
    gx::NSInteger pickerView_numberOfRowsInComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override;
    gx::CGFloat pickerView_widthForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override;
    gx::CGFloat pickerView_rowHeightForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger row,
                                                                   gx::NSInteger) override;
    gx::Ref<gx::NSAttributedString> pickerView_attributedTitleForRow_forComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger row,
                                                                                  gx::NSInteger) override;
    gx::Ref<gx::UIView> pickerView_viewForRow_forComponent_reusingView(const gx::Ref<gx::UIPickerView>&, gx::NSInteger, gx::NSInteger,
                                                                       const gx::Ref<gx::UIView>& view) override;
    void pickerView_didSelectRow_inComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger, gx::NSInteger) override;
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override;
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger,
                                                                                gx::NSInteger) override;

    gx::NSInteger tableView_numberOfRowsInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger) override;
    gx::Ref<gx::UITableViewCell> tableView_cellForRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override;
    gx::CGFloat tableView_heightForRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath) override;
    void tableView_didSelectRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath) override;
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const gx::Ref<gx::UITableView>&, const gx::Ref<gx::UITableViewCell>&,
                                                          gx::NSIndexPath) override;

private:
    /// Reacts one time in `odds`, and returns whether the world is still there.
    bool react(unsigned odds) const;
    gx::Ref<gx::UIView> someView() const;

    FuzzWorld* world_ = nullptr;
    const Views* views_ = nullptr;
    gx::NSInteger rows_ = 10;
    gx::CGFloat width_ = 80;
    gx::CGFloat height_ = 32;
};
