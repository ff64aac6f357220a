#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "GXExport.h"
#include "UIColor.h"
#include "UIFont.h"

namespace gx {

/// How text is drawn. For absent attributes a view uses its own.
struct NSTextAttributes {
    Ref<UIFont> font;                       ///< empty for the view's own
    std::optional<UIColor> foregroundColor; ///< nothing for the view's own
};

/// One run of text with the attributes it is drawn with. Immutable.
class GX_EXPORT NSAttributedString : public NSObject {
public:
    /// A run of this text. Never empty, and neither argument is checked.
    static Ref<NSAttributedString> attributedStringWithString_attributes(std::string string, NSTextAttributes attributes);

    /// The text, in UTF-8.
    const std::string& string() const { return string_; }
    /// As given.
    const NSTextAttributes& attributes() const { return attributes_; }

private:
    std::string string_;
    NSTextAttributes attributes_;
};

/// The size of one line of text in the font of the attributes, or in the system font if they name
/// none.
GX_EXPORT CGSize sizeWithAttributes(std::string_view text, const NSTextAttributes& attributes);

} // namespace gx
