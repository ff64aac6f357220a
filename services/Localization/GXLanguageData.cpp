#include "GXLanguageData.h"

#include <algorithm>
#include <cstddef>

namespace gx {

namespace {

/// Takes a text apart, line by line.
class LineReader {
public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    /// Empty beyond the end, too.
    std::string_view next() {
        const std::size_t end = rest_.find('\n');
        hasFailed_ = hasFailed_ || end == std::string_view::npos;
        const std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(rest_.size(), line.size() + 1));
        return line;
    }
    /// Whether every line was there, and no other.
    bool isComplete() const { return !hasFailed_ && rest_.empty(); }

private:
    std::string_view rest_;
    bool hasFailed_ = false;
};

bool isPluralTable(std::string_view text) {
    const auto isCategory = [](char digit) { return digit >= '0' && digit < '0' + GXPluralCategoryCount; };
    return text.size() == GXPluralTable::size && std::all_of(text.begin(), text.end(), isCategory);
}

std::string pluralTableOf(const GXLanguage& language) {
    std::string table(GXPluralTable::size, '0');
    for (int integer = 0; integer < GXPluralTable::integerCount; ++integer) {
        for (const GXPluralOperands& operands :
             {GXPluralOperands{integer, false, true}, GXPluralOperands{integer, true, true}, GXPluralOperands{integer, true, false}}) {
            const auto category = static_cast<int>(language.pluralCategoryOfOperands(operands));
            table[GXPluralTable::indexOf(operands)] = static_cast<char>('0' + category);
        }
    }
    return table;
}

} // namespace

std::string GXLanguageData::textOfLanguage(const GXLanguage& language) {
    std::string text;
    const auto add = [&text](std::string_view line) { text.append(line).push_back('\n'); };
    for (const std::string_view line : {language.identifier(), language.ownName(), language.decimalSeparator()}) add(line);
    add(pluralTableOf(language));
    for (const GXText& unit : language.unitTexts()) add(unit.text);
    for (std::size_t i = 0; i < GXAccessibilityNameCount; ++i) add(language.textForName(static_cast<GXAccessibilityName>(i)));
    for (std::size_t i = 0; i < GXAccessibilityUnitCount; ++i) {
        for (int category = 0; category < GXPluralCategoryCount; ++category)
            add(language.patternForUnit(static_cast<GXAccessibilityUnit>(i), static_cast<GXPluralCategory>(category)));
    }
    return text;
}

std::unique_ptr<GXLanguageData> GXLanguageData::dataFromText(std::string text) {
    std::unique_ptr<GXLanguageData> data(new GXLanguageData(std::move(text)));
    return data->read() ? std::move(data) : nullptr;
}

bool GXLanguageData::read() {
    LineReader lines(text_);
    GXLanguage::Parts parts;
    parts.identifier = lines.next();
    parts.ownName = lines.next();
    parts.decimalSeparator = lines.next();
    parts.pluralTable = lines.next();
    for (std::size_t i = 0; i < unitTexts_.size(); ++i) unitTexts_[i] = {GXEnglish::unitTexts[i].key, lines.next()};
    for (std::size_t i = 0; i < names_.size(); ++i) names_[i] = {static_cast<GXAccessibilityName>(i), lines.next()};
    for (std::size_t i = 0; i < units_.size(); ++i) {
        units_[i].key = static_cast<GXAccessibilityUnit>(i);
        GXPluralForms& forms = units_[i].forms;
        // In the order of `GXPluralCategory`.
        for (std::string_view* form : {&forms.zero, &forms.one, &forms.two, &forms.few, &forms.many, &forms.other}) *form = lines.next();
    }
    parts.unitTexts = unitTexts_;
    parts.names = names_;
    parts.units = units_;
    if (!lines.isComplete() || parts.identifier.empty() || !isPluralTable(parts.pluralTable)) return false;
    language_ = GXLanguage(parts);
    return true;
}

} // namespace gx
