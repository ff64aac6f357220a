#include "UITableViewKeyFocus.h"

#include <algorithm>

namespace gx {

void UITableViewKeyFocus::clampToRows() {
    if (row_) row_ = rows_.clampedRow(*row_);
}

void UITableViewKeyFocus::applyChange(const UITableViewChange& change) {
    if (row_) row_ = rows_.clampedRow(change.placeAfter(*row_));
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowBeside(NSIndexPath path, Direction direction) const {
    return direction == Direction::Down ? rows_.nextRow(path) : rows_.previousRow(path);
}

std::optional<NSIndexPath> UITableViewKeyFocus::endOfRows(Direction direction) const {
    return direction == Direction::Down ? rows_.lastRow() : rows_.firstRow();
}

/// This row, or else the next one that way that can be tapped.
std::optional<NSIndexPath> UITableViewKeyFocus::tappableRow(std::optional<NSIndexPath> path, Direction direction) {
    for (int skipped = 0; path && skipped <= highestSkippedCount_; ++skipped) {
        const bool isTappable = client_.canTapRow(*path);
        if (!rows_.exists(*path)) return std::nullopt; // The callback has changed the rows.
        if (isTappable) return path;
        path = rowBeside(*path, direction);
    }
    return std::nullopt;
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowOrFirstBelow(CGFloat top) {
    if (row_ && rows_.exists(*row_)) return row_;
    std::optional<NSIndexPath> first = rows_.firstRowBelow(top);
    if (!first) return std::nullopt;
    const auto next = rows_.nextRow(*first);
    if (next && rows_.spanOfRow(*first).top < top) first = next;
    const auto below = tappableRow(first, Direction::Down);
    return below || !rows_.exists(*first) ? below : tappableRow(rows_.previousRow(*first), Direction::Up);
}

std::optional<NSIndexPath> UITableViewKeyFocus::rowAPageFrom(NSIndexPath present, Direction direction, CGFloat visibleHeight) const {
    const bool isDownward = direction == Direction::Down;
    const UITableViewRows::Span span = rows_.spanOfRow(present);
    // One of the visible rows stays visible, so that the eye can follow.
    const CGFloat page = std::max(0.0, visibleHeight - span.height);
    const auto beside = rowBeside(present, direction);
    const auto reached = rows_.firstRowBelow(std::max(0.0, span.middle() + (isDownward ? page : -page)));
    if (!beside || !reached) return endOfRows(direction);
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
    const Direction direction = isDownward ? Direction::Down : Direction::Up;
    std::optional<NSIndexPath> aim;
    switch (code) {
    case UIKey::Code::Up:
    case UIKey::Code::Down:
        return tappableRow(rowBeside(present, direction), direction);
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
        aim = rowAPageFrom(present, direction, visibleHeight);
        break;
    default:
        aim = endOfRows(direction);
        break;
    }
    if (const auto found = tappableRow(aim, direction)) return found;
    // None there or beyond: the furthest before it.
    if (!aim || !rows_.exists(*aim)) return std::nullopt;
    const Direction back = opposite(direction);
    const auto found = tappableRow(rowBeside(*aim, back), back);
    if (!found || (isDownward ? !(present < *found) : !(*found < present))) return std::nullopt;
    return found;
}

} // namespace gx
