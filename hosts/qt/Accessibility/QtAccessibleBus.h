#pragma once

#include <QAccessible>

namespace gx::qt {

/// Reports a state to screen readers on Linux that Qt leaves out there: it knows expanded and
/// collapsed, but says nothing when they change (seen with Qt 6.4). Without it, opening a row is
/// silent.
///
/// A no-op without the accessibility bus, on other systems, and for later versions of Qt.
void reportExpandedOnBus(QAccessibleInterface& element);

} // namespace gx::qt
