#include "QtFrame.h"

#include <algorithm>

namespace gx::qt {

bool operator==(const QtPiece& some, const QtPiece& other) {
    return some.image.cacheKey() == other.image.cacheKey() && some.area == other.area && some.clip == other.clip &&
           some.alpha == other.alpha && some.color == other.color && some.radiusX == other.radiusX && some.radiusY == other.radiusY;
}

void QtFrame::begin(const QTransform& device) {
    pieces_.clear();
    transform_ = device;
    isComplete_ = true;
}

QRect QtFrame::areaChangedSince(const QtFrame& before) const {
    // Pieces come in the order of the views: what lies between the first and the last difference
    // is the view that has changed.
    const std::vector<QtPiece>& old = before.pieces_;
    const auto first = std::mismatch(pieces_.begin(), pieces_.end(), old.begin(), old.end());
    const auto common = std::min(pieces_.end() - first.first, old.end() - first.second);
    const auto last = std::mismatch(pieces_.rbegin(), pieces_.rbegin() + common, old.rbegin(), old.rbegin() + common);
    QRect changed;
    if (pieces_.size() == old.size()) {
        auto other = first.second;
        for (auto piece = first.first; piece != last.first.base(); ++piece, ++other) {
            if (!(*piece == *other)) changed |= piece->visibleArea() | other->visibleArea();
        }
    } else {
        for (auto piece = first.first; piece != last.first.base(); ++piece) changed |= piece->visibleArea();
        for (auto piece = first.second; piece != last.second.base(); ++piece) changed |= piece->visibleArea();
    }
    for (bool hasGrown = !changed.isEmpty(); hasGrown;) {
        hasGrown = false;
        for (const QtPiece& piece : pieces_) {
            if (!piece.isScaled() || !piece.visibleArea().intersects(changed) || changed.contains(piece.visibleArea())) continue;
            changed |= piece.visibleArea();
            hasGrown = true;
        }
    }
    return changed;
}

} // namespace gx::qt
