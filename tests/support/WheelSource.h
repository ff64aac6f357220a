#pragma once

#include <functional>
#include <string>
#include <vector>

#include "UIPickerView.h"

/// A data source and delegate for a bare wheel: columns with a number of rows each, titled by their
/// numbers. It counts what it is asked and notes what it is told.
class WheelSource : public gx::NSObject, public gx::UIPickerViewDataSource, public gx::UIPickerViewDelegate {
public:
    struct Notice {
        gx::NSInteger row;
        gx::NSInteger component;
        friend bool operator==(const Notice&, const Notice&) = default;
    };

    std::vector<gx::NSInteger> rows = {100};
    gx::CGFloat width = 80;
    gx::CGFloat height = 40;
    /// What the data source returns; −1 for the size of `rows`.
    gx::NSInteger componentAnswer = -1;
    std::function<std::optional<std::string>(gx::NSInteger row, gx::NSInteger component)> title;
    std::function<void(gx::NSInteger row, gx::NSInteger component)> whenTold;

    std::vector<Notice> notices;
    int componentQuestions = 0;
    int rowQuestions = 0;
    int widthQuestions = 0;
    int heightQuestions = 0;
    int titleQuestions = 0;
    int questions() const { return componentQuestions + rowQuestions + widthQuestions + heightQuestions + titleQuestions; }
    void forget() { componentQuestions = rowQuestions = widthQuestions = heightQuestions = titleQuestions = 0; }

    gx::NSInteger numberOfComponentsInPickerView(const gx::Ref<gx::UIPickerView>&) override {
        ++componentQuestions;
        return componentAnswer == -1 ? static_cast<gx::NSInteger>(rows.size()) : componentAnswer;
    }
    gx::NSInteger pickerView_numberOfRowsInComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger component) override {
        ++rowQuestions;
        const auto index = static_cast<std::size_t>(component);
        return index < rows.size() ? rows[index] : 1;
    }
    gx::CGFloat pickerView_widthForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override {
        ++widthQuestions;
        return width;
    }
    gx::CGFloat pickerView_rowHeightForComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger) override {
        ++heightQuestions;
        return height;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger row,
                                                                   gx::NSInteger component) override {
        ++titleQuestions;
        return title ? title(row, component) : std::to_string(row);
    }
    void pickerView_didSelectRow_inComponent(const gx::Ref<gx::UIPickerView>&, gx::NSInteger row, gx::NSInteger component) override {
        notices.push_back({row, component});
        if (whenTold) whenTold(row, component);
    }
};

/// A wheel of 320 by 216 points with this source.
inline gx::Ref<gx::UIPickerView> wheelWithSource(const gx::Ref<WheelSource>& source) {
    auto wheel = gx::create<gx::UIPickerView>(gx::CGRectMake(0, 0, 320, 216));
    wheel->setDelegate(source);
    wheel->setDataSource(source);
    return wheel;
}
