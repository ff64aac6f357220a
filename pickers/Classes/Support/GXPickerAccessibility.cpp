#include "GXPickerAccessibility.h"

#include "GXLocalization.h"

namespace gx {

namespace {

std::optional<std::string> localizedName(std::optional<GXAccessibilityName> name) {
    if (!name) return std::nullopt;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    return localization->accessibilityTextForName(*name);
}

/// Both in a pattern. Without one of them it is the other; without a pattern the first.
std::optional<std::string> together(GXAccessibilityName pattern, const std::optional<std::string>& first,
                                    const std::optional<std::string>& second) {
    if (!first || !second) return first ? first : second;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    const std::optional<std::string> text = localization->accessibilityTextForPattern(pattern, *first, *second);
    return text ? text : first;
}

} // namespace

std::optional<std::string> accessibilityLabelText(const std::optional<std::string>& ownName, std::optional<GXAccessibilityName> measurement,
                                                  std::optional<GXAccessibilityName> part) {
    return together(GXAccessibilityName::NameAndPart, ownName ? ownName : localizedName(measurement), localizedName(part));
}

std::optional<std::string> accessibilityQuantity(const GXAccessibilityNumber& number, GXAccessibilityUnit unit) {
    if (number.whole.empty()) return std::nullopt;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    return localization->accessibilityTextForNumber_unit(number, unit);
}

std::optional<std::string> accessibilitySum(std::initializer_list<GXQuantityPart> parts) {
    std::optional<std::string> sum;
    std::size_t left = parts.size();
    for (const GXQuantityPart& part : parts) {
        --left;
        const bool isOnlyPart = !sum && left == 0;
        if (part.number == 0 && !isOnlyPart) continue;
        sum = together(GXAccessibilityName::Sum, sum, accessibilityQuantity({std::to_string(part.number), {}, {}}, part.unit));
    }
    return sum;
}

std::optional<std::string> accessibilityPattern(GXAccessibilityName pattern, const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    const std::optional<std::string> whole = localization->accessibilityTextForPattern(pattern, *text);
    return whole ? whole : text;
}

} // namespace gx
