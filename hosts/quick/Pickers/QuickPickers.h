#pragma once

#include <GXUIPickers/GXExport.h>

namespace gx::quick {

/// Has `import GXUIPickers` work in an application that links `gx::quick`, without an import path.
///
/// Call it once, before the first document is loaded. Without the call a linker may leave the
/// library out, since nothing else of it is used:
///
///     int main(int argc, char** argv) {
///         QGuiApplication application(argc, argv);
///         gx::quick::registerPickers();
///         QQmlApplicationEngine engine(QUrl("qrc:/Main.qml"));
///         return application.exec();
///     }
///
/// An application that does not link the library needs nothing but the module in its import path.
GX_EXPORT void registerPickers();

} // namespace gx::quick
