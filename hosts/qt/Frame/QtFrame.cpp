#include "QtFrame.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <GXUIPickers/UITextEngine.h>

namespace gx::qt {

bool operator==(const QtPiece& some, const QtPiece& other) {
    return some.image.cacheKey() == other.image.cacheKey() && some.area == other.area && some.clip == other.clip &&
           some.alpha == other.alpha && some.color == other.color && some.radiusX == other.radiusX && some.radiusY == other.radiusY;
}

void QtFrame::begin(const QTransform& device, QtFrame* before) {
    pieces_.clear();
    taken_.clear();
    transform_ = device;
    isComplete_ = true;
    locale_ = NSLocale::currentLocale();
    textGeneration_ = UITextEngine::generation();
    before_ = before != nullptr && canTakeOver(*before) ? before : nullptr;
    views_.begin(before_ != nullptr ? &before_->views_ : nullptr);
}

bool QtFrame::canTakeOver(const QtFrame& before) const {
    return before.isComplete_ && before.views_.isClosed() && before.transform_ == transform_ && before.locale_ == locale_ &&
           before.textGeneration_ == textGeneration_;
}

bool QtFrame::beginView(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t& textBytes) {
    const QtFrameViews::View* const known = views_.beginView(version, state, {pieces_.size(), textBytes});
    if (known == nullptr) return false;
    textBytes += known->end.textBytes - known->begin.textBytes;
    const Range from = {known->begin.pieces, known->end.pieces};
    const std::size_t begin = pieces_.size();
    for (std::size_t i = from.begin; i < from.end; ++i) pieces_.push_back(std::move(before_->pieces_[i]));
    const bool continues = !taken_.empty() && taken_.back().here.end == begin && taken_.back().before.end == from.begin;
    if (!continues) taken_.push_back({{begin, begin}, {from.begin, from.begin}});
    taken_.back().here.end = pieces_.size();
    taken_.back().before.end = from.end;
    return true;
}

void QtFrame::add(QtPiece piece) {
    piece.visible = piece.visibleArea();
    pieces_.push_back(std::move(piece));
}

QRect QtFrame::difference(Range here, const QtFrame& before, Range there) const {
    const auto at = [](const QtFrame& frame, std::size_t place) { return frame.pieces_.begin() + static_cast<std::ptrdiff_t>(place); };
    const auto begin = at(*this, here.begin);
    const auto end = at(*this, here.end);
    const auto oldBegin = at(before, there.begin);
    const auto oldEnd = at(before, there.end);
    // Pieces come in the order of the views: what lies between the first and the last difference
    // is the view that has changed.
    const auto first = std::mismatch(begin, end, oldBegin, oldEnd);
    const auto common = std::min(end - first.first, oldEnd - first.second);
    const auto reversed = [](auto place) { return std::make_reverse_iterator(place); };
    const auto last = std::mismatch(reversed(end), reversed(end) + common, reversed(oldEnd), reversed(oldEnd) + common);
    QRect changed;
    if (end - begin == oldEnd - oldBegin) {
        auto other = first.second;
        for (auto piece = first.first; piece != last.first.base(); ++piece, ++other) {
            if (!(*piece == *other)) changed |= piece->visible | other->visible;
        }
    } else {
        for (auto piece = first.first; piece != last.first.base(); ++piece) changed |= piece->visible;
        for (auto piece = first.second; piece != last.second.base(); ++piece) changed |= piece->visible;
    }
    return changed;
}

QRect QtFrame::areaChangedSince(const QtFrame& before) const {
    QRect changed;
    Range here;
    Range there;
    for (const Taken& taken : taken_) {
        here.end = taken.here.begin;
        there.end = taken.before.begin;
        changed |= difference(here, before, there);
        here.begin = taken.here.end;
        there.begin = taken.before.end;
    }
    changed |= difference({here.begin, pieces_.size()}, before, {there.begin, before.pieces_.size()});
    for (bool hasGrown = !changed.isEmpty(); hasGrown;) {
        hasGrown = false;
        for (const QtPiece& piece : pieces_) {
            if (!piece.visible.intersects(changed) || changed.contains(piece.visible) || !piece.isScaled()) continue;
            changed |= piece.visible;
            hasGrown = true;
        }
    }
    return changed;
}

} // namespace gx::qt
