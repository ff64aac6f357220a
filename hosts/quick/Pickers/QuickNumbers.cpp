#include "QuickNumbers.h"

#include <limits>

#include <QByteArray>

namespace gx::quick {

double shortestOfFloat(double value) {
    const auto narrow = static_cast<float>(value);
    if (static_cast<double>(narrow) != value) return value;
    for (int digits = std::numeric_limits<float>::digits10; digits < std::numeric_limits<float>::max_digits10; ++digits) {
        const double shorter = QByteArray::number(value, 'g', digits).toDouble();
        if (static_cast<float>(shorter) == narrow) return shorter;
    }
    return QByteArray::number(value, 'g', std::numeric_limits<float>::max_digits10).toDouble();
}

} // namespace gx::quick
