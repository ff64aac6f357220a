// Looks of an application's own.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

/// Bold rows in dark green, with a lighter green in the dark look.
class MeadowStyleSheet : public GXStyleSheet {
public:
    Ref<GXStyleSheetFont> pickerValueFont() const override {
        constexpr CGFloat size = 24;
        const UIColor green = UIColor::colorWithLight_dark(UIColor::colorWithHex(0x14532D), UIColor::colorWithHex(0x86EFAC));
        return GXStyleSheetFont::fontWithFamily_size_weight_color("", size * textScale(), UIFontWeight::Bold, green);
    }
    double pickerRowHeight() const override { return 44 * textScale(); }
};

namespace {

void showNewPicker() {
    const auto picker = create<GXPacePickerView>(CGRectMake(0, 0, 320, 216));
    const Ref<GXStyleSheetFont> font = GXStyleSheet::globalStyleSheet()->pickerValueFont();
    std::cout << "rows of " << picker->pickerView()->rowSizeForComponent(0).height << " points, in a font of " << font->pointSize() << "\n";
}

} // namespace

int main() {
    showNewPicker();
    GXStyleSheet::setGlobalStyleSheet(create<MeadowStyleSheet>()); // Before the pickers are made.
    showNewPicker();
    GXStyleSheet::globalStyleSheet()->setTextScale(1.5); // The user reads large text.
    showNewPicker();
    return 0;
}
