#include "UITableViewKeyFocus.h"

#include <algorithm>

namespace gx {

void UITableViewKeyFocus::clampToRows() {
    if (row_) row_ = rows_.clampedRow(*row_);
}

void UITableViewKeyFocus::applyChange(const UITableViewChange& change) {
    if (row_) row_ = rows_.clampedRow(change.placeAfter(*row_));
}

/// This row, or else the next one that way that can be tapped.
std::optional<NSIndexPath> UITableViewKeyFocus::tappableRow(std::optional<NSIndexPath> path, bool isDownward) {
    for (int skipped = 0; path && skipped <= highestSkippedCount_; ++skipped) {
        const bool isTappable = client_.canTapRow(*path);
        if (!rows_.exists(*path)) return std::nullopt; // The callback has changed the rows.
        if (isTappable) return path;
        path = isDownward ? rows_.nextRow(*path) : rows_.previousRow(*path);
    }
    return std::nullopt;
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowOrFirstBelow(CGFloat top) {
    if (row_ && rows_.exists(*row_)) return row_;
    std::optional<NSIndexPath> first = rows_.firstRowBelow(top);
    if (!first) return std::nullopt;
    const auto next = rows_.nextRow(*first);
    if (next && rows_.spanOfRow(*first).top < top) first = next;
    const auto below = tappableRow(first, true);
    return below || !rows_.exists(*first) ? below : tappableRow(rows_.previousRow(*first), false);
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowAPageFrom(NSIndexPath present, bool isDownward, CGFloat visibleHeight) const {
    const UITableViewRows::Span span = rows_.spanOfRow(present);
    // One of the visible rows stays visible, so that the eye can follow.
    const CGFloat page = std::max(0.0, visibleHeight - span.height);
    const auto beside = isDownward ? rows_.nextRow(present) : rows_.previousRow(present);
    const auto reached = rows_.firstRowBelow(std::max(0.0, span.middle() + (isDownward ? page : -page)));
    if (!beside || !reached) return isDownward ? rows_.lastRow() : rows_.firstRow();
    return isDownward ? std::max(*beside, *reached) : std::min(*beside, *reached);
}

bool UITableViewKeyFocus::isMove(UIKey::Code code) {
    switch (code) {
    case UIKey::Code::Up:
    case UIKey::Code::Down:
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
    case UIKey::Code::Home:
    case UIKey::Code::End:
        return true;
    default:
        return false;
    }
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowForKey(UIKey::Code code, NSIndexPath present, CGFloat visibleHeight) {
    const bool isDownward = code == UIKey::Code::Down || code == UIKey::Code::PageDown || code == UIKey::Code::End;
    std::optional<NSIndexPath> aim;
    switch (code) {
    case UIKey::Code::Up:
        return tappableRow(rows_.previousRow(present), false);
    case UIKey::Code::Down:
        return tappableRow(rows_.nextRow(present), true);
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
        aim = rowAPageFrom(present, isDownward, visibleHeight);
        break;
    default:
        aim = isDownward ? rows_.lastRow() : rows_.firstRow();
        break;
    }
    if (const auto found = tappableRow(aim, isDownward)) return found;
    // None there or beyond: the furthest before it.
    if (!aim || !rows_.exists(*aim)) return std::nullopt;
    const auto found = tappableRow(isDownward ? rows_.previousRow(*aim) : rows_.nextRow(*aim), !isDownward);
    if (!found || (isDownward ? !(present < *found) : !(*found < present))) return std::nullopt;
    return found;
}

} // namespace gx
