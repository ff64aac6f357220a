#pragma once

#include <string>

#include "GXMultiValuePickerView.h"

namespace gx {

/// How pickers write their present value as one text, such as "5.3 km".

/// The titles of the selected rows with the wheel's separators between them, such as "00:27:30".
///
/// The caller holds the wheel and `titles`, which gives the titles: an application's may replace
/// both. Of the leading blanks of a title one stays. A column without a title adds nothing, and an
/// absent wheel has no text.
std::string textOfSelectedRows(const Ref<GXMultiValuePickerView>& wheel, GXMultiValuePickerViewDelegate& titles);

/// A time without the zero that fills its first number up to two digits: "0:27:30" for "00:27:30".
std::string withoutLeadingZero(const std::string& time);

/// Both texts with a space between them; the other one alone if one is empty.
std::string joinedBySpace(const std::string& first, const std::string& second);

} // namespace gx
