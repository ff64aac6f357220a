#include "NSLocale.h"

#include <algorithm>
#include <string_view>

namespace gx {

namespace {

// Begin of what scripts/make-locale-table writes, from Unicode CLDR 48.2.0.
// clang-format off

// Locales with a decimal comma, with U+066B, and with a point unlike their language.
constexpr std::string_view commaLocales =
    " af agq ar_DZ ar_LY ar_MA ar_TN ast az bas be bg blo br bs bua ca cs cv da de dsb dua dyo"
    " el en_AT en_BE en_CZ en_DE en_DK en_EE en_ES en_FI en_FR en_GE en_HU en_ID en_IT en_LT"
    " en_LV en_NL en_NO en_PL en_PT en_RO en_SE en_SI en_SK en_UA en_ZA eo es et eu ewo ff fi fo"
    " fr fur fy gl hr hsb ht hu hy ia id ie is it jgo jv ka kab kea kgp kk kkj kl ksf ksh ku ky"
    " lb lij lld lmo ln lo lt lu lv mgh mk ms_BN ms_ID mua nb nds nl nmg nn nnh no nr oc os pl"
    " pms prg pt qu_BO rm rn ro ru rw sah sc scn se seh sg shi sk sl smn sq sr ss su sv sw_CD"
    " szl tg tk tok tr ts tt tzm uk uz ve vec vi vmw wae wo yav yrl zgh ";
constexpr std::string_view arabicLocales =
    " ar_BH ar_DJ ar_EG ar_ER ar_IL ar_IQ ar_JO ar_KM ar_KW ar_LB ar_MR ar_OM ar_PS ar_QA ar_SA"
    " ar_SD ar_SO ar_SS ar_SY ar_TD ar_YE az_Arab bgn ckb fa ks lrc mzn pa_Arab ps sdh ur_IN"
    " uz_Arab ";
constexpr std::string_view pointLocales =
    " de_CH de_LI es_419 es_BR es_BZ es_CU es_DO es_GT es_HN es_MX es_NI es_PA es_PE es_PR es_SV"
    " es_US ff_Adlm it_CH kk_Arab ks_Deva ku_Arab ";

// Scripts from right to left, languages usually written so, and regions with a script in the
// other direction.
constexpr std::string_view rightToLeftScripts =
    " Adlm Arab Armi Avst Chrs Cprt Elym Gara Hatr Hebr Hung Khar Lydi Mand Mani Mend Merc Mero"
    " Narb Nbat Nkoo Orkh Ougr Palm Phli Phlp Phnx Prti Rohg Samr Sarb Sidt Sogd Sogo Syrc Thaa"
    " Yezi ";
constexpr std::string_view rightToLeftLanguages =
    " apc ar bal bgn bqi ckb dv fa he ks lrc mzn nqo ps rhg sd sdh skr syr trw ug ur yi ";
constexpr std::string_view impliedScripts =
    " az_IQ=Arab az_IR=Arab ha_CM=Arab ha_SD=Arab kk_AF=Arab kk_CN=Arab kk_IR=Arab kk_MN=Arab"
    " ku_IQ=Arab ku_IR=Arab ku_LB=Arab ky_CN=Arab ms_CC=Arab pa_PK=Arab sd_IN=Deva tg_PK=Arab"
    " ug_KZ=Cyrl ug_MN=Cyrl uz_AF=Arab ";

// Codes that were replaced.
constexpr std::string_view oldCodes =
    " bh=bho in=id iw=he ji=yi jw=jv mo=ro sh=sr tl=fil tw=ak ";

// clang-format on
// End of what the script writes.

// Of the languages from right to left, those that are not usually written in Arabic script.
constexpr std::string_view languagesOfOtherScripts = " dv he nqo rhg syr yi ";

/// Whether a list of words between blanks has this one.
bool hasWord(std::string_view words, const std::string& word) {
    return !word.empty() && words.find(" " + word + " ") != std::string_view::npos;
}

/// What follows a word and "=" in a list; empty if the word is not there.
std::string_view valueOfWord(std::string_view words, const std::string& word) {
    const std::string start = " " + word + "=";
    const std::size_t at = words.find(start);
    if (at == std::string_view::npos) return {};
    const std::string_view value = words.substr(at + start.size());
    return value.substr(0, value.find(' '));
}

constexpr bool isLetter(char character) { return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z'); }
constexpr char lowerCaseLetter(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }
constexpr char upperCaseLetter(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; }

std::string lowerCased(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), lowerCaseLetter);
    return lower;
}

/// The language as it stands in an identifier.
std::string languageOf(std::string_view identifier) { return std::string(identifier.substr(0, identifier.find_first_of("_-@."))); }

/// An identifier such as "sr_Latn_RS.UTF-8@latin", taken apart and in the usual case.
struct Subtags {
    std::string language;
    std::string script;
    std::string region;

    explicit Subtags(std::string_view identifier) {
        std::string_view tag = identifier.substr(0, identifier.find_first_of(".@"));
        bool isLanguage = true;
        while (!tag.empty()) {
            const std::string_view part = tag.substr(0, tag.find_first_of("_-"));
            tag.remove_prefix(std::min(tag.size(), part.size() + 1));
            if (isLanguage) {
                language = lowerCased(part);
            } else if (part.size() == 1) {
                break; // What follows are extensions, as in "de-u-co-phonebk".
            } else if (part.size() == 4 && script.empty() && region.empty() && isLetter(part[0])) {
                setScript(part);
            } else if (region.empty() && (part.size() == 2 || (part.size() == 3 && !isLetter(part[0])))) {
                region = part;
                std::transform(region.begin(), region.end(), region.begin(), upperCaseLetter);
            }
            isLanguage = false;
        }
        if (const std::string_view code = valueOfWord(oldCodes, language); !code.empty()) language = code;
        const std::size_t modifier = identifier.find('@');
        if (modifier != std::string_view::npos && script.empty()) setScriptOfModifier(lowerCased(identifier.substr(modifier + 1)));
        if (script.empty()) script = scriptOfRegion();
    }

    void setScript(std::string_view part) {
        script = lowerCased(part);
        script[0] = upperCaseLetter(script[0]);
    }

    /// Systems with a C library name a script so, as in "uz_UZ@cyrillic".
    void setScriptOfModifier(std::string_view modifier) {
        if (modifier == "latin") script = "Latn";
        if (modifier == "cyrillic") script = "Cyrl";
        if (modifier == "devanagari") script = "Deva";
    }

    /// Sindhi is written from right to left, but in India from left to right.
    std::string_view scriptOfRegion() const { return valueOfWord(impliedScripts, language + "_" + region); }

    std::string decimalSeparator() const {
        const std::string ownRegion = scriptOfRegion().empty() ? region : "";
        for (const std::string& key :
             {language + "_" + script + "_" + region, language + "_" + script, language + "_" + ownRegion, language}) {
            if (hasWord(commaLocales, key)) return ",";
            if (hasWord(arabicLocales, key)) return "\u066B";
            if (hasWord(pointLocales, key)) return ".";
        }
        return ".";
    }

    bool isInArabicScript() const {
        if (!script.empty()) return script == "Arab";
        return hasWord(rightToLeftLanguages, language) && !hasWord(languagesOfOtherScripts, language);
    }

    std::string listSeparator() const {
        if (language == "ja") return "、";
        if (language == "zh") return "，";
        return isInArabicScript() ? "، " : ", ";
    }

    bool isRightToLeft() const { return script.empty() ? hasWord(rightToLeftLanguages, language) : hasWord(rightToLeftScripts, script); }
};

Ref<NSLocale>& sharedLocale() {
    static Ref<NSLocale> locale = create<NSLocale>();
    return locale;
}

} // namespace

Ref<NSLocale> NSLocale::currentLocale() { return sharedLocale(); }

void NSLocale::setCurrentLocale(Ref<NSLocale> locale) { sharedLocale() = locale ? std::move(locale) : create<NSLocale>(); }

bool NSLocale::initWithLocaleIdentifier(const std::string& identifier) {
    if (!NSObject::init()) return false;
    const Subtags subtags(identifier);
    identifier_ = identifier;
    decimalSeparator_ = subtags.decimalSeparator();
    listSeparator_ = subtags.listSeparator();
    direction_ = subtags.isRightToLeft() ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight;
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
