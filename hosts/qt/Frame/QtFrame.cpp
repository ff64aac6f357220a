#include "QtFrame.h"

#include <algorithm>
#include <utility>

#include <GXUIPickers/UITextEngine.h>

namespace gx::qt {

void QtFrame::begin(const QTransform& device) {
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    const std::uint64_t textGeneration = UITextEngine::generation();
    const bool mayKeep = isComplete_ && isWhole_ && device == transform_ && locale == locale_ && textGeneration == textGeneration_;
    locale_ = locale;
    textGeneration_ = textGeneration;
    transform_ = device;
    isComplete_ = true;
    isWhole_ = false;
    changed_ = {};
    root_.before.clear();
    root_.before.swap(root_.pieces);
    open_.clear();
    open_.push_back({&root_, mayKeep});
}

void QtFrame::end() {
    isWhole_ = open_.size() == 1;
    while (open_.size() > 1) endView(open_.back().textBytes);
    close(open_.front());
}

void QtFrame::add(QtPiece piece) {
    Open& open = open_.back();
    piece.visible = piece.visibleArea();
    piece.viewsBelow = open.next;
    open.visible |= piece.visible;
    open.view->pieces.push_back(std::move(piece));
}

bool QtFrame::beginView(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t& textBytes) {
    Open& above = open_.back();
    std::vector<QtFrameView::Within>& within = above.view->within;
    if (above.next == within.size()) within.emplace_back();
    const QtFrameView::Within& known = within[above.next++];
    QtFrameView& view = *known.view;
    if (above.mayKeep && view.version.tree == version.tree && view.state == state) {
        textBytes += known.textBytes;
        above.visible |= known.visible;
        return true;
    }
    // A view that was invalidated itself has all below it draw.
    const bool mayKeep = above.mayKeep && view.version.view == version.view;
    open_.push_back({&view, mayKeep, textBytes, view.version.tree, view.subviews});
    view.subviews = {};
    view.version = version;
    view.state = state;
    view.before.swap(view.pieces);
    return false;
}

void QtFrame::endView(std::size_t textBytes) {
    if (open_.size() == 1) return; // No view has begun.
    const Open ended = open_.back();
    close(ended);
    open_.pop_back();
    Open& above = open_.back();
    QtFrameView::Within& place = above.view->within[above.next - 1];
    place.visible = ended.visible;
    place.textBytes = textBytes - ended.textBytes;
    above.visible |= ended.visible;
}

void QtFrame::close(const Open& ended) {
    QtFrameView& view = *ended.view;
    changed_ |= view.changedPieces();
    view.before.clear();
    for (std::size_t i = ended.next; i < view.count; ++i) {
        QtFrameView::Within& gone = view.within[i];
        changed_ |= gone.visible;
        gone.view->clear();
        gone.visible = {};
        gone.textBytes = 0;
    }
    view.count = ended.next;
}

std::uint64_t QtFrame::beginSubviews(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t count) {
    const Open& open = open_.back();
    const QtFrameView::Subviews& before = open.subviewsBefore;
    const bool isSame = open.mayKeep && open.view->version.view == version.view && before.first == open.next && before.count == count &&
                        before.state == state;
    open.view->subviews = {open.next, count, state};
    return isSame ? open.treeBefore : 0;
}

void QtFrame::repeatSubviews(std::size_t count, std::size_t& textBytes) {
    Open& open = open_.back();
    const std::size_t end = std::min(open.next + count, open.view->count);
    for (; open.next < end; ++open.next) textBytes += open.view->within[open.next].textBytes;
    if (open_.size() == 1) return;
    // What they cover lies within what the view has covered before.
    const Open& above = open_[open_.size() - 2];
    open.visible |= above.view->within[above.next - 1].visible;
}

QRect QtFrame::changedArea() const {
    QRect changed = changed_;
    for (bool hasGrown = !changed.isEmpty(); hasGrown;) {
        hasGrown = false;
        forEachPieceIn(QRect(changed), [&](const QtPiece& piece) {
            if (!piece.isScaled() || changed.contains(piece.visible)) return;
            changed |= piece.visible;
            hasGrown = true;
        });
    }
    return changed;
}

} // namespace gx::qt
