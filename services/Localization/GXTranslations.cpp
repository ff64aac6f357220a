#include "GXTranslations.h"

#include <algorithm>
#include <cstddef>

namespace gx {

namespace {

// Sources. Unit names: the short unit patterns of the Unicode Common Locale Data Repository (release 48) for each language, or its narrow
// ones where the short ones are words too long for a label; where both inflect with the number (Polish pounds and miles), the
// international symbol. The wording of this project, chosen to fit beside a wheel: the heart-rate labels, beats per minute, the letters of
// the clock layouts, Turkish pace, and the Chinese names of mass and speed. The letters of a clock layout are those that the language's
// words for hours, minutes and seconds begin with where its readers are used to them; elsewhere they know "hh:mm" from forms.
using Entry = GXTranslations::Entry;

constexpr Entry english[] = {
    {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "AVG"},     {"MAX", "MAX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mph"},     {"kcal", "kcal"},
};
constexpr Entry german[] = {
    {"bpm", "S/min"},   {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "Ø"},       {"MAX", "MAX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mi/h"},    {"kcal", "kcal"},
};
constexpr Entry french[] = {
    {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "MOY"},     {"MAX", "MAX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "pi"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mi/h"},    {"kcal", "kcal"},
};
constexpr Entry spanish[] = {
    {"bpm", "lpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "MEDIA"},   {"MAX", "MÁX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mi/h"},    {"kcal", "kcal"},
};
constexpr Entry italian[] = {
    {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "MEDIA"},   {"MAX", "MAX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mi/h"},    {"kcal", "kcal"},
};
constexpr Entry portuguese[] = {
    {"bpm", "bpm"},     {"hh:mm", "hh:mm"},   {"hh:mm:ss", "hh:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "MÉD"},     {"MAX", "MÁX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mph"},     {"kcal", "kcal"},
};
constexpr Entry dutch[] = {
    {"bpm", "sl/min"},  {"hh:mm", "uu:mm"},   {"hh:mm:ss", "uu:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "GEM"},     {"MAX", "MAX"},       {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/u"},
    {"mph", "mi/h"},    {"kcal", "kcal"},
};
constexpr Entry polish[] = {
    {"bpm", "ud./min"}, {"hh:mm", "gg:mm"},   {"hh:mm:ss", "gg:mm:ss"},
    {"mm:ss", "mm:ss"}, {"min/km", "min/km"}, {"min/mi", "min/mi"},
    {"AVG", "ŚR"},      {"MAX", "MAKS"},      {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},         {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},         {"km/h", "km/h"},
    {"mph", "mph"},     {"kcal", "kcal"},
};
constexpr Entry russian[] = {
    {"bpm", "уд/мин"},  {"hh:mm", "чч:мм"},   {"hh:mm:ss", "чч:мм:сс"},
    {"mm:ss", "мм:сс"}, {"min/km", "мин/км"}, {"min/mi", "мин/ми"},
    {"AVG", "СРЕД"},    {"MAX", "МАКС"},      {"kg", "кг"},
    {"lb", "фнт"},      {"st", "стн"},        {"cm", "см"},
    {"ft", "фт"},       {"°C", "°C"},         {"°F", "°F"},
    {"km", "км"},       {"mi", "ми"},         {"km/h", "км/ч"},
    {"mph", "ми/ч"},    {"kcal", "ккал"},
};
constexpr Entry turkish[] = {
    {"bpm", "atım/dk"}, {"hh:mm", "sa:dk"},  {"hh:mm:ss", "sa:dk:sn"},
    {"mm:ss", "dk:sn"}, {"min/km", "dk/km"}, {"min/mi", "dk/mil"},
    {"AVG", "ORT"},     {"MAX", "MAKS"},     {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
    {"ft", "fit"},      {"°C", "°C"},        {"°F", "°F"},
    {"km", "km"},       {"mi", "mil"},       {"km/h", "km/sa"},
    {"mph", "mil/sa"},  {"kcal", "kcal"},
};
constexpr Entry japanese[] = {
    {"bpm", "拍/分"},   {"hh:mm", "時:分"},  {"hh:mm:ss", "時:分:秒"},
    {"mm:ss", "分:秒"}, {"min/km", "分/km"}, {"min/mi", "分/mi"},
    {"AVG", "平均"},    {"MAX", "最大"},     {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},        {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},        {"km/h", "km/h"},
    {"mph", "mph"},     {"kcal", "kcal"},
};
constexpr Entry simplifiedChinese[] = {
    {"bpm", "次/分钟"},      {"hh:mm", "时:分"}, {"hh:mm:ss", "时:分:秒"}, {"mm:ss", "分:秒"},   {"min/km", "分钟/公里"},
    {"min/mi", "分钟/英里"}, {"AVG", "平均"},    {"MAX", "最大"},          {"kg", "公斤"},       {"lb", "磅"},
    {"st", "英石"},          {"cm", "厘米"},     {"ft", "英尺"},           {"°C", "°C"},         {"°F", "°F"},
    {"km", "公里"},          {"mi", "英里"},     {"km/h", "公里/小时"},    {"mph", "英里/小时"}, {"kcal", "千卡"},
};
constexpr Entry korean[] = {
    {"bpm", "bpm"},     {"hh:mm", "시:분"},  {"hh:mm:ss", "시:분:초"},
    {"mm:ss", "분:초"}, {"min/km", "분/km"}, {"min/mi", "분/mi"},
    {"AVG", "평균"},    {"MAX", "최대"},     {"kg", "kg"},
    {"lb", "lb"},       {"st", "st"},        {"cm", "cm"},
    {"ft", "ft"},       {"°C", "°C"},        {"°F", "°F"},
    {"km", "km"},       {"mi", "mi"},        {"km/h", "km/h"},
    {"mph", "mph"},     {"kcal", "kcal"},
};

constexpr GXTranslations languages[] = {
    {"en", english}, {"de", german}, {"fr", french},  {"es", spanish}, {"it", italian},  {"pt", portuguese},
    {"nl", dutch},   {"pl", polish}, {"ru", russian}, {"tr", turkish}, {"ja", japanese}, {"zh-Hans", simplifiedChinese},
    {"ko", korean},
};

constexpr bool everyLanguageHasEveryKey() {
    for (const GXTranslations& translations : languages) {
        if (translations.entries().size() != std::size(english)) return false;
        for (std::size_t i = 0; i < std::size(english); ++i) {
            const Entry& entry = translations.entries()[i];
            if (entry.key != english[i].key || entry.text.empty()) return false;
        }
    }
    return true;
}
static_assert(everyLanguageHasEveryKey(), "the keys of each language, in the order of the English ones");

constexpr char lowerCase(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

/// Cuts the first part off the front of an identifier.
std::string_view takePart(std::string_view& identifier) {
    const std::string_view part = identifier.substr(0, identifier.find_first_of("-_"));
    identifier.remove_prefix(std::min(identifier.size(), part.size() + 1));
    return part;
}

std::size_t commonLeadingParts(std::string_view a, std::string_view b) {
    const auto isSameLetter = [](char one, char other) { return lowerCase(one) == lowerCase(other); };
    std::size_t count = 0;
    while (!a.empty() && !b.empty()) {
        const std::string_view partOfA = takePart(a);
        const std::string_view partOfB = takePart(b);
        if (!std::equal(partOfA.begin(), partOfA.end(), partOfB.begin(), partOfB.end(), isSameLetter)) break;
        ++count;
    }
    return count;
}

} // namespace

std::span<const GXTranslations> GXTranslations::all() { return languages; }

const GXTranslations& GXTranslations::translationsForLanguage(std::string_view identifier) {
    const std::string_view tag = identifier.substr(0, identifier.find_first_of(".@"));
    // Of equals the first one, so English if none has anything in common.
    return *std::max_element(std::begin(languages), std::end(languages), [tag](const GXTranslations& a, const GXTranslations& b) {
        return commonLeadingParts(a.language(), tag) < commonLeadingParts(b.language(), tag);
    });
}

std::optional<std::string_view> GXTranslations::textForKey(std::string_view key) const {
    const auto entry = std::find_if(entries_.begin(), entries_.end(), [key](const Entry& candidate) { return candidate.key == key; });
    if (entry == entries_.end()) return std::nullopt;
    return entry->text;
}

} // namespace gx
