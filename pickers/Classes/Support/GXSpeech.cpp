#include "GXSpeech.h"

#include "GXLocalization.h"

namespace gx {

namespace {

std::optional<std::string> spokenName(std::optional<GXSpokenName> name) {
    if (!name) return std::nullopt;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    return localization->spokenTextForName(*name);
}

/// Both in a pattern; the one that there is without the other, or without the pattern.
std::optional<std::string> together(GXSpokenName pattern, const std::optional<std::string>& first,
                                    const std::optional<std::string>& second) {
    if (!first || !second) return first ? first : second;
    const std::optional<std::string> text = spokenName(pattern);
    return text ? filledPattern(*text, *first, *second) : *first;
}

} // namespace

std::optional<std::string> spokenLabel(const std::optional<std::string>& ownName, std::optional<GXSpokenName> measurement,
                                       std::optional<GXSpokenName> part) {
    return together(GXSpokenName::NameAndPart, ownName ? ownName : spokenName(measurement), spokenName(part));
}

std::optional<std::string> spokenQuantity(const GXSpokenNumber& number, GXSpokenUnit unit) {
    if (number.whole.empty()) return std::nullopt;
    const Ref<GXLocalization> localization = GXLocalization::sharedLocalization();
    return localization->spokenQuantity(number, unit);
}

std::optional<std::string> spokenSum(std::initializer_list<GXSpokenPart> parts) {
    std::optional<std::string> sum;
    std::size_t left = parts.size();
    for (const GXSpokenPart& part : parts) {
        --left;
        const bool isAllThereIs = !sum && left == 0;
        if (part.number == 0 && !isAllThereIs) continue;
        sum = together(GXSpokenName::Sum, sum, spokenQuantity({std::to_string(part.number), {}, {}}, part.unit));
    }
    return sum;
}

std::optional<std::string> spokenPattern(GXSpokenName pattern, const std::optional<std::string>& text) {
    const std::optional<std::string> around = spokenName(pattern);
    return text && around ? filledPattern(*around, *text) : text;
}

} // namespace gx
