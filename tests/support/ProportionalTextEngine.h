#pragma once

#include "UITextEngine.h"

/// Widths that grow with the font, as those of real fonts do: 0.6 of its size for a character, 0.4
/// for a "1". Lines are 1.2 times the size high.
class ProportionalTextEngine : public gx::UITextEngine {
public:
    gx::CGSize sizeOfText_font(std::string_view text, const gx::UIFont& font) override {
        gx::CGFloat ems = 0;
        for (const char letter : text) ems += letter == '1' ? 0.4 : 0.6;
        return {ems * font.pointSize(), 1.2 * font.pointSize()};
    }
};
