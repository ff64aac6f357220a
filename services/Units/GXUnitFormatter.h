#pragma once

#include <optional>
#include <string>

#include "NSNumber.h"

namespace gx {

/// What the formatters of quantities share: they know the name of the unit that a quantity is shown in, for a unit system that can be
/// switched at any time. Make one with `create<GXDistanceFormatter>(style, isMetric, usingUnit)`.
class GXUnitFormatter : public NSObject {
public:
    /// Style 0, imperial, with unit.
    bool init() override;
    /// `style` 0 and 1, and any other, abbreviate the unit: beside a wheel there is no room for a word. `usingUnit` asks for the unit in
    /// texts that also hold the number; it is kept for subclasses that write such texts, and `unit` answers whatever it says.
    virtual bool initWithStyle_isMetric_usingUnit(NSInteger style, bool isMetric, bool usingUnit);

    NSInteger style() const { return style_; }
    bool usingUnit() const { return usingUnit_; }

    /// Exactly what was last given to `setMetric` or the initialiser: pickers branch on it.
    bool metric() const { return isMetric_; }
    virtual void setMetric(bool isMetric);

    /// The abbreviated name of the unit that `quantity` is shown in, in the language that the shared localiser speaks at this moment, or
    /// nothing if that has nothing to say. Abbreviations are the same for every amount, so an empty handle is as good as a number.
    virtual std::optional<std::string> unit(const NSNumber& quantity) const = 0;

protected:
    /// What the shared localiser answers.
    static std::optional<std::string> localizedUnit(const std::string& key, const std::string& comment);

private:
    NSInteger style_ = 0;
    bool isMetric_ = false;
    bool usingUnit_ = true;
};

/// How `create` makes a formatter: `(style, isMetric, usingUnit)`.
inline bool initialise(GXUnitFormatter& formatter, NSInteger style, bool isMetric, bool usingUnit) {
    return formatter.initWithStyle_isMetric_usingUnit(style, isMetric, usingUnit);
}

} // namespace gx
