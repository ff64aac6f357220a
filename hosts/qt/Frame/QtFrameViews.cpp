#include "QtFrameViews.h"

namespace gx::qt {

namespace {

QtFrameViews::Extent moved(QtFrameViews::Extent extent, QtFrameViews::Extent from, QtFrameViews::Extent to) {
    return {extent.pieces - from.pieces + to.pieces, extent.textBytes - from.textBytes + to.textBytes};
}

} // namespace

void QtFrameViews::begin(const QtFrameViews* before) {
    before_ = before;
    views_.clear();
    // All of the frame before lies within one that is not drawn.
    open_.assign(1, {0, 0, before ? before->views_.size() : 0});
}

const QtFrameViews::View* QtFrameViews::beginView(const UIDrawingVersion& version, const QtDrawingState& state, Extent now) {
    Open& above = open_.back();
    Open entry = {views_.size(), 0, 0};
    if (above.next < above.end) {
        const std::size_t place = above.next;
        const View& known = before_->views_[place];
        above.next = known.next;
        if (known.version.tree == version.tree && known.state == state) {
            takeOver(place, now);
            return &known;
        }
        // A view that was invalidated itself has all below it draw.
        if (known.version.view == version.view) {
            entry.next = place + 1;
            entry.end = known.next;
        }
    }
    views_.push_back({version, state, now, now, 0});
    open_.push_back(entry);
    return nullptr;
}

void QtFrameViews::endView(Extent now) {
    if (isClosed()) return; // No view has begun.
    View& view = views_[open_.back().view];
    view.end = now;
    view.next = views_.size();
    open_.pop_back();
}

void QtFrameViews::takeOver(std::size_t view, Extent now) {
    const View& known = before_->views_[view];
    for (std::size_t i = view; i < known.next; ++i) {
        View taken = before_->views_[i];
        taken.begin = moved(taken.begin, known.begin, now);
        taken.end = moved(taken.end, known.begin, now);
        taken.next = views_.size() + taken.next - i;
        views_.push_back(taken);
    }
}

} // namespace gx::qt
