#pragma once

namespace gx {

/// How the pointer of a mouse looks over a view, which says so what can be done there.
enum class UIPointerStyle {
    Default,
    Press,   ///< a press does something: a pointing hand
    Turn,    ///< can be taken and moved: an open hand
    Turning, ///< is held by the pointer: a closed hand
    Disabled ///< could be pressed or moved at other times
};

} // namespace gx
