#include "QuickPickers.h"

// Written by Qt's build tools. The library runs it by itself when it is loaded.
extern void qml_register_types_GXUIPickers();

namespace gx::quick {

void registerPickers() {
    // Functions are never const.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    [[maybe_unused]] static void (*volatile const registration)() = &qml_register_types_GXUIPickers;
}

} // namespace gx::quick
