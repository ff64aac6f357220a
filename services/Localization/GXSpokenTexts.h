#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "GXPlural.h"

namespace gx {

/// The names that screen readers speak, and the patterns in which they put what they speak together. In a pattern, "{0}" and "{1}" stand
/// for what it takes.
enum class GXSpokenName {
    // What is measured.
    Distance,
    Duration,
    Pace,
    Speed,
    AverageHeartRate,
    MaximumHeartRate,
    BeatsPerMinute,
    Calories,
    Weight,
    Height,
    Temperature,
    Icon,
    // What a column stands for.
    Kilometres,
    Miles,
    Tenths,
    Hundredths,
    Hours,
    Minutes,
    Seconds,
    KilometresPerHour,
    MilesPerHour,
    Kilograms,
    Pounds,
    Stones,
    Centimetres,
    Feet,
    Inches,
    Unit,
    Average,
    Maximum,
    // What is shown as "-".
    NoValue,
    // Patterns: of a measurement and its part; of two quantities that are one; of a number below 0; of a duration.
    NameAndPart,
    Sum,
    Minus,
    PerKilometre,
    PerMile
};
inline constexpr std::size_t GXSpokenNameCount = 36;

/// The units that quantities are spoken in.
enum class GXSpokenUnit {
    Kilometre,
    Mile,
    Hour,
    Minute,
    Second,
    KilometrePerHour,
    MilePerHour,
    BeatPerMinute,
    Kilocalorie,
    Kilogram,
    Pound,
    Stone,
    Centimetre,
    Foot,
    Inch,
    DegreeCelsius,
    DegreeFahrenheit
};
inline constexpr std::size_t GXSpokenUnitCount = 17;

/// A number as it is shown.
struct GXSpokenNumber {
    std::string whole;     ///< with a "-" for one below 0
    std::string separator; ///< between both, as the wheel shows it
    std::string fraction;  ///< empty for a whole number
};

/// What screen readers speak in one language, as constant data: `GXLocalization` is what to ask. Every language has every name, and every
/// unit in all the forms that its numbers take; the compiler checks that.
class GXSpokenTexts {
public:
    /// A pattern for each plural category; those that the language does not use are empty.
    struct Forms {
        std::string_view one;
        std::string_view few;
        std::string_view many;
        std::string_view other;

        constexpr std::string_view form(GXPluralCategory category) const {
            switch (category) {
            case GXPluralCategory::One:
                return one;
            case GXPluralCategory::Few:
                return few;
            case GXPluralCategory::Many:
                return many;
            default:
                return other;
            }
        }
    };
    struct Name {
        GXSpokenName key{};
        std::string_view text;
    };
    struct Unit {
        GXSpokenUnit key{};
        Forms forms;
    };

    constexpr GXSpokenTexts(std::string_view language, std::span<const Name> names, std::span<const Unit> units)
        : language_(language), names_(names), units_(units) {}

    /// One for each language that `GXTranslations` knows, in the same order.
    static std::span<const GXSpokenTexts* const> all();
    /// Those of a language of that list; else the English ones.
    static const GXSpokenTexts& textsForLanguage(std::string_view language);

    constexpr std::string_view language() const { return language_; }
    constexpr std::span<const Name> names() const { return names_; }
    constexpr std::span<const Unit> units() const { return units_; }

    /// Empty for a value that is none of the enumeration.
    std::string_view textForName(GXSpokenName name) const;
    std::string_view patternForUnit(GXSpokenUnit unit, GXPluralCategory category) const;
    /// "5.3 kilometres".
    std::string quantity(const GXSpokenNumber& number, GXSpokenUnit unit) const;

private:
    std::string_view language_;
    std::span<const Name> names_;
    std::span<const Unit> units_;
};

/// The pattern with "{0}" and "{1}" replaced, of which the former stands first.
std::string filledPattern(std::string_view pattern, std::string_view first, std::string_view second = {});

} // namespace gx
