#pragma once

#include <functional>
#include <string>
#include <vector>

#include "GXMultiValuePickerView.h"
#include "GXStyleSheet.h"
#include "UILabel.h"

namespace scenarios {

/// The data source and delegate of a wheel of an application's own columns.
class ScenarioWheel : public gx::NSObject, public gx::UIPickerViewDataSource, public gx::GXMultiValuePickerViewDelegate {
public:
    struct Column {
        gx::NSInteger rows = 0;
        /// Without titles, rows show their numbers.
        std::vector<std::string> titles;
        std::string label;
    };

    std::vector<Column> columns;
    std::function<void()> didSelect;

    gx::NSInteger numberOfComponentsInPickerView(const gx::Ref<gx::UIPickerView>&) override {
        return static_cast<gx::NSInteger>(columns.size());
    }
    gx::NSInteger pickerView_numberOfRowsInComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger component) override {
        return columns.at(static_cast<std::size_t>(component)).rows;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger row,
                                                                   gx::NSInteger component) override {
        const Column& column = columns.at(static_cast<std::size_t>(component));
        return column.titles.empty() ? std::to_string(row) : column.titles.at(static_cast<std::size_t>(row));
    }
    gx::CGFloat pickerView_widthForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override {
        return gx::UIPickerView::automaticDimension;
    }
    gx::CGFloat pickerView_rowHeightForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override {
        return gx::GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    }
    gx::Ref<gx::UIView> pickerView_viewForRow_forComponent_reusingView(const gx::Ref<gx::UIPickerView>& pickerView, gx::NSInteger row,
                                                                       gx::NSInteger component, const gx::Ref<gx::UIView>&) override {
        const auto label = gx::create<gx::UILabel>(gx::CGRectZero);
        label->setText(pickerView_titleForRow_forComponent(pickerView, row, component));
        return label;
    }
    void pickerView_didSelectRow_inComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger, gx::NSInteger) override { didSelect(); }
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const gx::Ref<gx::UIPickerView>&,
                                                                         gx::NSInteger component) override {
        return columns.at(static_cast<std::size_t>(component)).label;
    }
};

} // namespace scenarios
