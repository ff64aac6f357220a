#pragma once

#include <cstddef>
#include <string_view>

#include "GXAccessibilityTexts.h"
#include "GXPlural.h"

namespace gx {

// What the files of the languages are made of. Each file has one struct with these members:
//
// - `identifier`: such as "de" or "zh-Hans";
// - `ownName`: what its speakers call the language;
// - `decimalSeparator`: what its readers are used to, with the digits 0 to 9;
// - `pluralCategory`: which form of a unit goes with a number;
// - `unitTexts`: the labels beside the wheels, in at most 8 characters, and the comma between two
//   values;
// - `accessibilityNames`, `accessibilityUnits`: what screen readers read out.
//
// Sources:
//
// - `ownName`, `decimalSeparator` and `pluralCategory`: Unicode CLDR 48. Millions, which some
//   languages count with a word of their own ("un million de kilomètres"), are left out: numbers
//   are read out as the digits that are shown.
// - `unitTexts`: CLDR's short unit patterns, or its narrow ones where these are too long for a
//   label. Where both inflect with the number (Polish pounds and miles), the international symbol.
// - `accessibilityUnits`: CLDR's long unit patterns, or the words that runners use instead. Some
//   name one or two without a number (Arabic "ساعتان", Hebrew "שעתיים"). Here every pattern has the
//   number, as CLDR's narrow ones do: what is read out are the digits that are shown, also in "1.0"
//   and after "minus".
// - Everything else is the wording of this project: heart-rate labels, beats per minute, letters of
//   clock layouts, Turkish pace, Chinese names of mass and speed, names of measurements.
//
// The letters of a clock layout are those that the words for hours, minutes and seconds begin with,
// where readers are used to them; elsewhere they know "hh:mm" from forms. So do Arabic and Hebrew
// readers: their own letters would run against the order of the columns.

/// A text and the English one that is its key.
struct GXText {
    std::string_view key;
    std::string_view text;

    constexpr GXText() = default;
    /// Where both are the same.
    constexpr GXText(const char* keyAndText) : key(keyAndText), text(keyAndText) {}
    constexpr GXText(std::string_view aKey, std::string_view aText) : key(aKey), text(aText) {}
};

struct GXAccessibilityNameText {
    GXAccessibilityName key{};
    std::string_view text;
};

/// A pattern for each plural category; those that the language does not use are empty.
struct GXPluralForms {
    std::string_view zero = {};
    std::string_view one = {};
    std::string_view two = {};
    std::string_view few = {};
    std::string_view many = {};
    std::string_view other = {};

    constexpr std::string_view form(GXPluralCategory category) const {
        switch (category) {
        case GXPluralCategory::Zero:
            return zero;
        case GXPluralCategory::One:
            return one;
        case GXPluralCategory::Two:
            return two;
        case GXPluralCategory::Few:
            return few;
        case GXPluralCategory::Many:
            return many;
        case GXPluralCategory::Other:
            break;
        }
        return other;
    }
};

struct GXAccessibilityUnitText {
    GXAccessibilityUnit key{};
    GXPluralForms forms;
};

} // namespace gx
