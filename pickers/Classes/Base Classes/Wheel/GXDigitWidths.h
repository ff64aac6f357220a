#pragma once

#include <string>

#include "UIFont.h"

namespace gx {

/// The width of the widest text that differs from this one in its digits alone: digits need not be
/// equally wide. An empty font is the text engine's own.
CGFloat widthWithAnyDigits(std::string text, const Ref<UIFont>& font);

} // namespace gx
