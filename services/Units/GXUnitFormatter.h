#pragma once

#include <optional>
#include <string>

#include "GXExport.h"
#include "NSNumber.h"

namespace gx {

/// The base of the formatters, which know the name of the unit that a quantity is shown in.
///
/// The unit system can be switched at any time. Make a formatter with
/// `create<GXDistanceFormatter>(style, isMetric, usingUnit)`.
class GX_EXPORT GXUnitFormatter : public NSObject {
public:
    /// Style 0, imperial, with unit.
    bool init() override;
    /// Every `style` abbreviates the unit: beside a wheel there is no room for a word.
    ///
    /// `usingUnit` is for subclasses that write texts with the number, and says whether these
    /// include the unit; it changes nothing in `unit`.
    virtual bool initWithStyle_isMetric_usingUnit(NSInteger style, bool isMetric, bool usingUnit);

    /// As given to the initialiser; changes nothing here.
    NSInteger style() const { return style_; }
    /// As given to the initialiser, for subclasses that write numbers.
    bool usingUnit() const { return usingUnit_; }

    /// As last given to `setMetric` or the initialiser. Pickers branch on it.
    bool metric() const { return isMetric_; }
    virtual void setMetric(bool isMetric);

    /// The abbreviated name of the unit that `quantity` is shown in.
    ///
    /// In the present language of the shared localiser; nothing if that has no text. Abbreviations
    /// are the same for every amount, so `quantity` may be empty.
    virtual std::optional<std::string> unit(const NSNumber& quantity) const = 0;

protected:
    /// The text of the shared localiser.
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
