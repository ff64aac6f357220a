#include "GXDigitWidths.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "NSAttributedString.h"

namespace gx {

CGFloat widthWithAnyDigits(std::string text, const Ref<UIFont>& font) {
    const auto widthOf = [&font](std::string_view measured) { return sizeWithAttributes(measured, {font, std::nullopt}).width; };
    char widest = '0';
    CGFloat width = 0;
    for (char digit = '0'; digit <= '9'; ++digit) {
        const CGFloat digitWidth = widthOf({&digit, 1});
        if (digitWidth <= width) continue;
        widest = digit;
        width = digitWidth;
    }
    std::replace_if(
        text.begin(), text.end(), [](char letter) { return letter >= '0' && letter <= '9'; }, widest);
    return widthOf(text);
}

} // namespace gx
