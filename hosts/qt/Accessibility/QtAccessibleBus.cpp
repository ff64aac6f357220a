#include "QtAccessibleBus.h"

#if defined(GX_QT_ACCESSIBILITY_BUS) && QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
#define GX_QT_REPORTS_EXPANDED
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#endif

namespace gx::qt {

void reportExpandedOnBus([[maybe_unused]] QAccessibleInterface& element) {
#ifdef GX_QT_REPORTS_EXPANDED
    // Qt's own connection, by the name and with the paths that it uses.
    const QDBusConnection bus(QStringLiteral("a11y"));
    if (!bus.isConnected()) return;
    const QString path = QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(&element));
    QDBusMessage signal = QDBusMessage::createSignal(path, QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("StateChanged"));
    const int isExpanded = element.state().expanded ? 1 : 0;
    signal << QStringLiteral("expanded") << isExpanded << 0 << QVariant::fromValue(QDBusVariant(QVariant(0))) << QVariantMap();
    bus.send(signal);
#endif
}

} // namespace gx::qt
