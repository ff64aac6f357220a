#include "UITableViewPress.h"

#include "UIScrollMotion.h"

namespace gx {

void UITableViewPress::begin(NSIndexPath row, NSTimeInterval highlightTime) {
    row_ = row;
    highlightTime_ = highlightTime;
}

void UITableViewPress::end() {
    row_.reset();
    highlightTime_.reset();
}

void UITableViewPress::cancel() {
    end();
    removeHighlight();
}

void UITableViewPress::highlight(NSIndexPath row) {
    removeHighlight();
    const Ref<UITableViewCell> cell = visible_.cellOfRow(row);
    if (!cell) return;
    highlighted_ = cell;
    cell->setHighlighted(true);
}

void UITableViewPress::highlight_until(NSIndexPath row, NSTimeInterval time) {
    highlight(row);
    removalTime_ = time;
}

void UITableViewPress::removeHighlight() {
    removalTime_.reset();
    if (const Ref<UITableViewCell> cell = std::move(highlighted_)) cell->setHighlighted(false);
}

void UITableViewPress::removeHighlightFromCell(const Ref<UITableViewCell>& cell) {
    if (highlighted_ == cell) removeHighlight();
}

void UITableViewPress::applyChange(const UITableViewChange& change) {
    if (row_) row_ = change.pathAfter(*row_);
    if (!row_) highlightTime_.reset();
    if (hoveredRow_) hoveredRow_ = change.pathAfter(*hoveredRow_);
}

void UITableViewPress::advanceToTime(NSTimeInterval time) {
    const auto hasCome = [time](const std::optional<NSTimeInterval>& moment) {
        return moment && time >= UIScrollMotion::startSeenAt(*moment, time);
    };
    if (hasCome(highlightTime_)) {
        highlightTime_.reset();
        if (row_) highlight(*row_);
    }
    if (hasCome(removalTime_)) removeHighlight();
}

} // namespace gx
