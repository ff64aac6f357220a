#pragma once

#include <string>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// How bold a text is.
enum class UIFontWeight { Regular, Medium, Semibold, Bold };

/// A font: family, size in points and weight. Immutable, so it can be shared and compared.
class GX_EXPORT UIFont : public NSObject {
public:
    /// The size of text without a font of its own. The phone's platform prescribes it.
    static constexpr CGFloat labelFontSize = 17;

    /// The host's own interface family. A size that is not above 0, or no number, becomes
    /// `labelFontSize`.
    static Ref<UIFont> systemFontOfSize_weight(CGFloat size, UIFontWeight weight = UIFontWeight::Regular);
    /// A font of a family that the host has; hosts use another one for a family they lack. Sizes as
    /// above.
    static Ref<UIFont> fontWithName_size_weight(std::string family, CGFloat size, UIFontWeight weight);

    /// Empty for the host's own interface family.
    const std::string& familyName() const { return family_; }
    /// In points, above 0.
    CGFloat pointSize() const { return size_; }
    /// How bold it is.
    UIFontWeight weight() const { return weight_; }

    /// Whether family, size and weight are equal.
    bool isEqualToFont(const UIFont& other) const;

private:
    std::string family_;
    CGFloat size_ = labelFontSize;
    UIFontWeight weight_ = UIFontWeight::Regular;
};

} // namespace gx
