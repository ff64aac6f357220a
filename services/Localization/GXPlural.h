#pragma once

#include <string_view>

namespace gx {

/// How languages tell apart what they count, as the Unicode Common Locale Data Repository names it.
enum class GXPluralCategory { One, Few, Many, Other };

/// Which form of a word goes with a number in the languages that `GXTranslations` knows; in all others, the rule is the English one. The
/// number is given by its digits as they are shown, those before and those after the decimal separator: in English it is "1 kilometre" but
/// "1.0 kilometres". A sign counts for nothing. What is no number takes the form "other".
///
/// Turkish counts as "other" throughout, since its units stay as they are after a number.
///
/// Whole millions, which some languages count with a word of their own ("un million de kilomètres"), are none here: numbers are read out
/// as the digits that they are shown with.
GXPluralCategory pluralCategoryOfNumber(std::string_view language, std::string_view whole, std::string_view fraction = {});

} // namespace gx
