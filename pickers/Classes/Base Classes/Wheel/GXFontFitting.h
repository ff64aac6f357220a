#pragma once

#include <functional>
#include <vector>

#include "GXMultiValuePickerView.h"

namespace gx {

/// Takes the fonts that were chosen for the values and for the labels; two empty ones stand for
/// those of the style sheet.
using GXFontSetter = std::function<void(const Ref<GXStyleSheetFont>& valueFont, const Ref<GXStyleSheetFont>& labelFont)>;

/// Chooses the largest fonts with which the wheels show all of their texts.
///
/// - The wheels are laid out and get the same fonts, which `setFonts` has to give to all of them.
/// - The style sheet's fonts are tried first, then sizes a point smaller each, with values and
///   labels of one size, so that they have one baseline.
/// - The smallest size stays, whether it fits or not.
void chooseLargestFonts(const std::vector<Ref<GXMultiValuePickerView>>& wheels, const GXFontSetter& setFonts);

/// Whether the wheels show all of their texts, if they have the style sheet's fonts and no others.
/// They are laid out.
bool showAllTextsInStyleSheetFonts(const std::vector<Ref<GXMultiValuePickerView>>& wheels);

} // namespace gx
