#include "NSLocale.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gx {

namespace {

// Languages that write a decimal comma, and those written from right to left. Source: the number symbols and
// character orders of the Unicode Common Locale Data Repository for each language.
constexpr std::array<std::string_view, 44> commaLanguages = {
    "af", "az", "be", "bg", "bs", "ca", "cs", "da", "de", "el", "es", "et", "eu", "fi", "fo", "fr", "gl", "hr", "hu", "hy", "id", "is",
    "it", "ka", "kk", "lt", "lv", "mk", "nb", "nl", "nn", "no", "pl", "pt", "ro", "ru", "sk", "sl", "sq", "sr", "sv", "tr", "uk", "vi"};
constexpr std::array<std::string_view, 5> rightToLeftLanguages = {"ar", "fa", "he", "ur", "yi"};
// Regions that write a point although the language writes a comma elsewhere, or the other way round.
constexpr std::array<std::string_view, 15> pointRegions = {"de_CH", "de_LI", "es_419", "es_CU", "es_DO", "es_GT", "es_HN", "es_MX",
                                                           "es_NI", "es_PA", "es_PE",  "es_PR", "es_SV", "es_US", "it_CH"};
constexpr std::array<std::string_view, 1> commaRegions = {"en_ZA"};

std::string languageOf(std::string_view identifier) { return std::string(identifier.substr(0, identifier.find_first_of("_-@."))); }

/// Language and region in the form "de_CH", or the language alone.
std::string regionOf(std::string_view identifier) {
    std::string key(identifier.substr(0, identifier.find_first_of("@.")));
    std::replace(key.begin(), key.end(), '-', '_');
    return key;
}

template <std::size_t count>
bool contains(const std::array<std::string_view, count>& list, std::string_view entry) {
    return std::find(list.begin(), list.end(), entry) != list.end();
}

Ref<NSLocale>& sharedLocale() {
    static Ref<NSLocale> locale = create<NSLocale>();
    return locale;
}

} // namespace

const Ref<NSLocale>& NSLocale::currentLocale() { return sharedLocale(); }

void NSLocale::setCurrentLocale(Ref<NSLocale> locale) { sharedLocale() = locale ? std::move(locale) : create<NSLocale>(); }

bool NSLocale::initWithLocaleIdentifier(const std::string& identifier) {
    if (!NSObject::init()) return false;
    const std::string language = languageOf(identifier);
    const std::string region = regionOf(identifier);
    const bool isComma = (contains(commaLanguages, language) && !contains(pointRegions, region)) || contains(commaRegions, region);
    identifier_ = identifier;
    decimalSeparator_.assign(1, isComma ? ',' : '.');
    direction_ = contains(rightToLeftLanguages, language) ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight;
    return true;
}

Ref<NSLocale> NSLocale::localeWithIdentifier(const std::string& identifier) { return create<NSLocale>(identifier); }

std::optional<std::string> NSLocale::objectForKey(NSLocaleKey key) const {
    switch (key) {
    case NSLocaleKey::Identifier:
        return identifier_;
    case NSLocaleKey::LanguageCode:
        return languageOf(identifier_);
    case NSLocaleKey::DecimalSeparator:
        return decimalSeparator_;
    }
    return std::nullopt;
}

void NSLocale::setDecimalSeparator(std::string separator) { decimalSeparator_ = std::move(separator); }

} // namespace gx
