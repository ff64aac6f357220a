#include "QuickHost.h"

#include <memory>

#include <QGuiApplication>
#include <QPointer>

#include <GXUIPickers/QtHost.h>
#include <GXUIPickers/UITextEngine.h>

#include "QtTextEngine.h"

namespace gx::quick {

void installHost() {
    static QPointer<QCoreApplication> host;
    if (host == qGuiApp) return;
    host = qGuiApp;
    const Ref<UITextEngine> engine = UITextEngine::shared();
    if (engine == qt::QtTextEngine::shared()) return;
    qt::installQtHost(*qGuiApp);
    if (!std::dynamic_pointer_cast<UIFixedWidthTextEngine>(engine)) UITextEngine::setShared(engine);
}

} // namespace gx::quick
