#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "GXAccessibilityTexts.h"
#include "NSObject.h"

namespace gx {

// How pickers put accessibility texts together, in the words of the shared localiser. Texts that it
// does not have are left out.

/// "Distance, kilometres". A name of the application's own stands in for that of the measurement.
std::optional<std::string> accessibilityLabelText(const std::optional<std::string>& ownName, std::optional<GXAccessibilityName> measurement,
                                                  std::optional<GXAccessibilityName> part);

/// "5.3 kilometres". Nothing without a number.
std::optional<std::string> accessibilityQuantity(const GXAccessibilityNumber& number, GXAccessibilityUnit unit);

/// A whole number of a unit, of which a quantity is made.
struct GXQuantityPart {
    NSInteger number;
    GXAccessibilityUnit unit;
};
/// "1 hour 20 minutes", from the highest unit to the lowest. Parts of 0 are left out; if all are 0,
/// it is 0 of the lowest unit.
std::optional<std::string> accessibilitySum(std::initializer_list<GXQuantityPart> parts);

/// A pattern with a text in it, such as "5 minutes per kilometre". Nothing without a text; the text
/// itself without a pattern.
std::optional<std::string> accessibilityPattern(GXAccessibilityName pattern, const std::optional<std::string>& text);

} // namespace gx
