#include "QtFrameView.h"

#include <algorithm>

namespace gx::qt {

void QtFrameView::clear() {
    version = {0, 0};
    subviews = {};
    pieces.clear();
    before.clear();
    for (std::size_t i = 0; i < count; ++i) {
        within[i].view->clear();
        within[i].visible = {};
        within[i].textBytes = 0;
    }
    count = 0;
}

QRect QtFrameView::changedPieces() const {
    QRect changed;
    if (pieces.size() == before.size()) {
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (!(pieces[i] == before[i])) changed |= pieces[i].visible | before[i].visible;
        }
        return changed;
    }
    // What lies between the first and the last difference has changed.
    const auto first = std::mismatch(pieces.begin(), pieces.end(), before.begin(), before.end());
    const auto common = std::min(pieces.end() - first.first, before.end() - first.second);
    const auto last = std::mismatch(pieces.rbegin(), pieces.rbegin() + common, before.rbegin(), before.rbegin() + common);
    for (auto piece = first.first; piece != last.first.base(); ++piece) changed |= piece->visible;
    for (auto piece = first.second; piece != last.second.base(); ++piece) changed |= piece->visible;
    return changed;
}

} // namespace gx::qt
