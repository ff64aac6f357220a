#pragma once

#include <string>

#include "GXMultiValuePickerView.h"

namespace gx {

// How pickers write their current value as one text, such as "5.3 km".

/// The titles of the selected rows with the wheel's separators between them, such as "00:27:30".
///
/// The caller holds the wheel and `titles`, which gives the titles: an application's may replace
/// both. Of the leading blanks of a title one stays. A column without a title adds nothing, and an
/// absent wheel has no text.
std::string textOfSelectedRows(const Ref<GXMultiValuePickerView>& wheel, GXMultiValuePickerViewDelegate& titles);

/// A time without the zero that fills its first number up to two digits: "0:27:30" for "00:27:30".
std::string withoutLeadingZero(const std::string& time);

/// A number and its unit with a space between them; the other one alone if one is empty.
///
/// Where texts are read from the right, a negative number is isolated, so that its minus stays on
/// the left of its digits.
std::string joinedBySpace(const std::string& first, const std::string& second);

/// Two values with a comma between them; the other one alone if one is empty.
///
/// Where texts are read from the right, the second is isolated, so that "18 °C" keeps its order
/// behind a word in Hebrew.
std::string joinedByComma(const std::string& first, const std::string& second);

/// The shared localiser's text for a unit; empty if it has none.
std::string localizedText(const std::string& key);

} // namespace gx
