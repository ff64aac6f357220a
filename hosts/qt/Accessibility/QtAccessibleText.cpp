#include "QtAccessibleText.h"

#include <algorithm>

namespace gx::qt {

QString QtAccessibleText::text(int start, int end) const {
    const QString whole = source_();
    const int size = static_cast<int>(whole.size());
    const int first = std::clamp(start, 0, size);
    // Beyond the end, and −1 for some screen readers, means up to it.
    const int last = end < 0 ? size : std::clamp(end, first, size);
    return whole.mid(first, last - first);
}

void QtAccessibleText::selection(int /*index*/, int* start, int* end) const {
    *start = 0;
    *end = 0;
}

QString QtAccessibleText::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace gx::qt
