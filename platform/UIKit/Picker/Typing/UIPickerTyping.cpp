#include "UIPickerTyping.h"

#include <cmath>

#include "NSLocale.h"

namespace gx {

namespace {

/// Takes the next code point off a text; nothing for bytes that are none.
std::optional<char32_t> takeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0x80) return lead;
    const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (more == 0 || lead >= 0xF8 || text.size() < more) return std::nullopt;
    char32_t point = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80) return std::nullopt;
        point = (point << 6U) | (byte & 0x3FU);
    }
    text.remove_prefix(more);
    return point;
}

void appendCodePoint(char32_t point, std::string& text) {
    const unsigned more = point < 0x80 ? 0 : point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    constexpr char32_t leads[] = {0, 0xC0, 0xE0, 0xF0};
    text.push_back(static_cast<char>(leads[more] | point >> (6 * more)));
    for (unsigned i = more; i-- > 0;) text.push_back(static_cast<char>(0x80U | (point >> (6 * i) & 0x3FU)));
}

/// The zeros of scripts whose ten digits follow each other, as in Unicode's category Nd.
constexpr char32_t zeros[] = {
    U'0',   0x0660, 0x06F0, 0x07C0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0BE6, 0x0C66, 0x0CE6, 0x0D66,
    0x0DE6, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x1090, 0x17E0, 0x1810, 0x1946, 0x19D0, 0x1A80, 0x1A90, 0x1B50,
    0x1BB0, 0x1C40, 0x1C50, 0xA620, 0xA8D0, 0xA900, 0xA9D0, 0xA9F0, 0xAA50, 0xABF0, 0xFF10,
};

bool isBlankPoint(char32_t point) { return point == U' ' || (point >= U'\t' && point <= U'\r') || point == 0xA0 || point == 0x202F; }

/// Marks that say in which direction a text runs, and show nothing.
bool isDirectionMark(char32_t point) {
    return point == 0x061C || point == 0x200E || point == 0x200F || (point >= 0x202A && point <= 0x202E) ||
           (point >= 0x2066 && point <= 0x2069);
}

bool isMinus(char32_t point) { return point == 0x2212 || (point >= 0x2010 && point <= 0x2013) || point == 0xFE63 || point == 0xFF0D; }

// A comma and a dot, those of wide type, and the Arabic separator.
bool isSeparator(char32_t point) { return point == U',' || point == U'.' || point == 0xFF0C || point == 0xFF0E || point == 0x066B; }

/// Small letters of the Latin, Greek and Cyrillic alphabets, as far as each lies at one distance
/// from its capital.
char32_t lowerCase(char32_t point) {
    const bool isCapital = (point >= U'A' && point <= U'Z') || (point >= 0xC0 && point <= 0xDE && point != 0xD7) ||
                           (point >= 0x391 && point <= 0x3A9) || (point >= 0x410 && point <= 0x42F);
    if (isCapital) return point + 32;
    return point >= 0x400 && point <= 0x40F ? point + 80 : point;
}

char32_t readable(char32_t point) {
    for (const char32_t zero : zeros) {
        if (point >= zero && point < zero + 10) return U'0' + (point - zero);
    }
    if (isMinus(point)) return U'-';
    return isSeparator(point) ? U'.' : lowerCase(point);
}

} // namespace

std::string UIPickerTyping::readableForm(std::string_view text) {
    std::string form;
    std::size_t end = 0; // Behind the last character that is no blank.
    while (!text.empty()) {
        const std::optional<char32_t> point = takeCodePoint(text);
        if (!point || isDirectionMark(*point) || (form.empty() && isBlankPoint(*point))) continue;
        appendCodePoint(readable(*point), form);
        if (!isBlankPoint(*point)) end = form.size();
    }
    form.resize(end);
    return form;
}

std::string UIPickerTyping::takeCharacter(std::string_view& form) {
    const std::string_view all = form;
    takeCodePoint(form);
    return std::string(all.substr(0, all.size() - form.size()));
}

bool UIPickerTyping::isBlank(std::string_view text) {
    if (text.empty()) return false;
    while (!text.empty()) {
        const std::optional<char32_t> point = takeCodePoint(text);
        if (!point || !isBlankPoint(*point)) return false;
    }
    return true;
}

bool UIPickerTyping::endsColumn(std::string_view character) {
    if (character == "." || character == ":") return true;
    const std::optional<std::string> separator = NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator);
    return separator && readableForm(*separator) == character;
}

void UIPickerTyping::goOnToComponent_atTime(NSInteger component, Part part, NSTimeInterval time) {
    clear();
    component_ = component;
    part_ = part;
    latest_ = time;
}

void UIPickerTyping::beginInComponent_onRow(NSInteger component, NSInteger row) {
    component_ = component;
    rowBefore_ = row;
}

void UIPickerTyping::setText_atTime(std::string text, bool isWaiting, NSTimeInterval time) {
    text_ = std::move(text);
    isWaiting_ = isWaiting;
    latest_ = time;
}

void UIPickerTyping::ignoreFromTime(NSTimeInterval time) {
    clear();
    isIgnoring_ = true;
    latest_ = time;
}

bool UIPickerTyping::isOverAt(NSTimeInterval time) const { return !(std::fabs(time - latest_) < longestPause); }

void UIPickerTyping::clear() {
    component_.reset();
    rowBefore_.reset();
    text_.clear();
    part_ = Part::Whole;
    isWaiting_ = false;
    isIgnoring_ = false;
}

} // namespace gx
