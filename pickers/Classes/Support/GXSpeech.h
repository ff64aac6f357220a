#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "GXSpokenTexts.h"
#include "NSObject.h"

namespace gx {

/// How pickers put together what a screen reader says, in the words of the shared localiser. What that leaves out is left out here.

/// "Distance, kilometres". A name of the application's own stands in for that of the measurement.
std::optional<std::string> spokenLabel(const std::optional<std::string>& ownName, std::optional<GXSpokenName> measurement,
                                       std::optional<GXSpokenName> part);

/// "5.3 kilometres". Nothing without a number.
std::optional<std::string> spokenQuantity(const GXSpokenNumber& number, GXSpokenUnit unit);

/// A whole number of a unit, of which a quantity is made.
struct GXSpokenPart {
    NSInteger number;
    GXSpokenUnit unit;
};
/// "1 hour 20 minutes", from the highest unit to the lowest. A part of 0 is not worth a word; if all are 0, it is 0 of the lowest unit.
std::optional<std::string> spokenSum(std::initializer_list<GXSpokenPart> parts);

/// A pattern with a text in it, such as "5 minutes per kilometre". Nothing without a text; the text itself without a pattern.
std::optional<std::string> spokenPattern(GXSpokenName pattern, const std::optional<std::string>& text);

} // namespace gx
