#include "GXValueText.h"

#include "GXLocalization.h"
#include "NSLocale.h"

namespace gx {

namespace {

/// Blanks before a title keep it apart from the column before; in a text one of them is enough.
std::string withOneLeadingBlank(const std::string& title) {
    const std::size_t start = title.find_first_not_of(' ');
    return start == std::string::npos || start < 2 ? title : title.substr(start - 1);
}

// Characters without ink that set the direction of what is between them.
// NOLINTBEGIN(misc-misleading-bidirectional): each use closes what it opens.
constexpr const char* leftToRightIsolate = "\u2066";
constexpr const char* firstStrongIsolate = "\u2068";
constexpr const char* endOfIsolate = "\u2069";
// NOLINTEND(misc-misleading-bidirectional)

bool isRightToLeft() { return NSLocale::currentLocale()->isRightToLeft(); }

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
    const bool isMinusMisplaced = first.front() == '-' && isRightToLeft();
    return (isMinusMisplaced ? leftToRightIsolate + first + endOfIsolate : first) + " " + second;
}

std::string joinedByComma(const std::string& first, const std::string& second) {
    if (first.empty() || second.empty()) return first + second;
    // The first value stays as it is, since a text takes its direction from its letters outside of
    // isolates.
    return first + localizedText(", ") + (isRightToLeft() ? firstStrongIsolate + second + endOfIsolate : second);
}

std::string localizedText(const std::string& key) {
    return GXLocalization::sharedLocalization()->localizedStringWithKey_comment(key, key).value_or(std::string());
}

} // namespace gx
