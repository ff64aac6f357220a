#include "QtPlainBrush.h"

#include <QLinearGradient>

namespace gx::qt {

QBrush plainBrush(const QColor& color) {
    QLinearGradient downward(0, 0, 0, 1);
    downward.setColorAt(0, color);
    downward.setColorAt(1, color);
    return downward;
}

} // namespace gx::qt
