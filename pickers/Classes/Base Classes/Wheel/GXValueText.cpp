#include "GXValueText.h"

namespace gx {

namespace {

/// Blanks before a title keep it apart from the column before; in a text one of them is enough.
std::string withOneLeadingBlank(const std::string& title) {
    const std::size_t start = title.find_first_not_of(' ');
    return start == std::string::npos || start < 2 ? title : title.substr(start - 1);
}

} // namespace

std::string textOfSelectedRows(const Ref<GXMultiValuePickerView>& wheel, GXMultiValuePickerViewDelegate& titles) {
    if (!wheel) return {};
    std::string text;
    const NSInteger count = wheel->numberOfComponents();
    for (NSInteger component = 0; component < count; ++component) {
        const NSInteger row = wheel->selectedRowInComponent(component);
        text += withOneLeadingBlank(titles.pickerView_titleForRow_forComponent(wheel, row, component).value_or(std::string()));
        const Ref<UILabel> separator = wheel->separatorAfterComponent(static_cast<NSUInteger>(component));
        // A separator after the last column is not shown.
        if (separator && component + 1 < count) text += separator->text().value_or(std::string());
    }
    return text;
}

std::string withoutLeadingZero(const std::string& time) {
    const bool isFilledUp = time.size() > 1 && time[0] == '0' && time[1] != ':';
    return isFilledUp ? time.substr(1) : time;
}

std::string joinedBySpace(const std::string& first, const std::string& second) {
    if (first.empty() || second.empty()) return first + second;
    return first + " " + second;
}

} // namespace gx
