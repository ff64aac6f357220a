// What keys do to the rows of a table: which row has the focus, where it goes, and how it is marked.

#include <algorithm>

#include "UIGraphicsContext.h"
#include "UITableView.h"
#include "UIWindow.h"

namespace gx {

namespace {

// The mark of the focus, as on a wheel: the row in the tint, within an outline strong enough to be found at a glance.
constexpr double focusFillAlpha = 0.14;
constexpr CGFloat focusOutline = 2;

} // namespace

// Which row

bool UITableView::canBeTapped(NSIndexPath path) {
    const auto delegate = delegate_.lock();
    return !delegate || delegate->tableView_shouldHighlightRowAtIndexPath(self(), path);
}

/// This row, or else the next one that way that can be tapped.
std::optional<NSIndexPath> UITableView::tappableRow(std::optional<NSIndexPath> path, bool isDownward) {
    for (int passed = 0; path && passed <= highestPassedCount; ++passed) {
        const bool isTappable = canBeTapped(*path);
        if (!rows_.exists(*path)) return std::nullopt; // Who was asked has changed the rows.
        if (isTappable) return path;
        path = isDownward ? rows_.nextRow(*path) : rows_.previousRow(*path);
    }
    return std::nullopt;
}

/// The focused row; as long as there is none, the first one wholly in sight that can be tapped, or else one above it.
std::optional<NSIndexPath> UITableView::rowOfKeys() {
    refreshRows();
    if (focused_ && rows_.exists(*focused_)) return focused_;
    std::optional<NSIndexPath> first = rows_.firstRowBelow(CGRectGetMinY(bounds()));
    if (!first) return std::nullopt;
    const auto next = rows_.nextRow(*first);
    if (next && rows_.spanOfRow(*first).top < CGRectGetMinY(bounds())) first = next;
    const auto below = tappableRow(first, true);
    return below || !rows_.exists(*first) ? below : tappableRow(rows_.previousRow(*first), false);
}

std::optional<NSIndexPath> UITableView::rowAPageFrom(NSIndexPath present, bool isDownward) const {
    const UITableViewRows::Span span = rows_.spanOfRow(present);
    // A row of those in sight stays in sight, so that the eye can follow.
    const CGFloat page = std::max(0.0, bounds().size.height - span.height);
    const auto beside = isDownward ? rows_.nextRow(present) : rows_.previousRow(present);
    const auto reached = rows_.firstRowBelow(std::max(0.0, span.middle() + (isDownward ? page : -page)));
    if (!beside || !reached) return isDownward ? rows_.lastRow() : rows_.firstRow();
    return isDownward ? std::max(*beside, *reached) : std::min(*beside, *reached);
}

/// Where a key sends the focus; nothing if no row that way can be tapped.
std::optional<NSIndexPath> UITableView::rowForKey(UIKey::Code code, NSIndexPath present) {
    const bool isDownward = code == UIKey::Code::Down || code == UIKey::Code::PageDown || code == UIKey::Code::End;
    std::optional<NSIndexPath> aim;
    switch (code) {
    case UIKey::Code::Up:
        return tappableRow(rows_.previousRow(present), false);
    case UIKey::Code::Down:
        return tappableRow(rows_.nextRow(present), true);
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
        aim = rowAPageFrom(present, isDownward);
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

// The keys

bool UITableView::keyPressed(const UIKey& key) {
    const Ref<UITableView> keep = self();
    const UIKey pressed = key; // Who is asked meanwhile may drop the key.
    // What a view in a row hands up was not meant for the rows.
    if (!isFirstResponder() || pressed.isCommand()) return UIScrollView::keyPressed(pressed);
    switch (pressed.code) {
    case UIKey::Code::Up:
    case UIKey::Code::Down:
    case UIKey::Code::PageUp:
    case UIKey::Code::PageDown:
    case UIKey::Code::Home:
    case UIKey::Code::End: {
        const std::optional<NSIndexPath> present = rowOfKeys();
        const std::optional<NSIndexPath> next = present ? rowForKey(pressed.code, *present) : std::nullopt;
        if (!next || next == present) return UIScrollView::keyPressed(pressed); // To what lies beyond the last row that can be tapped.
        focusRow(*next);
        return true;
    }
    case UIKey::Code::Return:
    case UIKey::Code::Space: {
        const std::optional<NSIndexPath> present = rowOfKeys();
        if (!present || !canBeTapped(*present)) return UIScrollView::keyPressed(pressed);
        if (pressed.isRepeat || !rows_.exists(*present)) return true; // A key that is held taps once.
        focusRow(*present);
        tapRow(*present, pressed.timestamp);
        return true;
    }
    default:
        return UIScrollView::keyPressed(pressed);
    }
}

bool UITableView::canBecomeFirstResponder() {
    const Ref<UITableView> keep = self();
    return rowOfKeys().has_value();
}

void UITableView::focusDidChange() {
    const Ref<UITableView> keep = self();
    UIScrollView::focusDidChange();
    if (isFirstResponder()) focused_ = rowOfKeys();
}

void UITableView::focusRow(NSIndexPath path) {
    if (focused_ != path) setNeedsDisplay();
    focused_ = path;
    UIScrollView::revealDescendant(rectToReveal(path));
}

/// With the header above it, which tells what the rows are about.
CGRect UITableView::rectToReveal(NSIndexPath path) const {
    UITableViewRows::Span span = rows_.spanOfRow(path);
    if (path.row == 0) {
        const CGFloat headerHeight = rows_.spanOfHeader(path.section).height;
        span = {span.top - headerHeight, span.height + headerHeight};
    }
    return rectOf(span);
}

void UITableView::revealDescendant(CGRect rect) {
    const Ref<UITableView> keep = self();
    const std::optional<NSIndexPath> row = isFirstResponder() && rect == bounds() ? rowOfKeys() : std::nullopt;
    UIScrollView::revealDescendant(row ? rectToReveal(*row) : rect);
}

/// From what lies in a cell that is about to leave.
void UITableView::takeFocusFrom(const Ref<UITableViewCell>& cell) {
    const Ref<UIWindow> window = this->window();
    const Ref<UIView> first = window ? window->firstResponder() : nullptr;
    if (first && first->isDescendantOfView(cell)) becomeFirstResponder();
}

// Drawing

void UITableView::drawFocus(UIGraphicsContext& context) {
    const Ref<UIWindow> window = this->window();
    if (!window || !window->showsFocus() || !isFirstResponder() || !focused_ || !rows_.exists(*focused_)) return;
    UITableViewRows::Span span = rows_.spanOfRow(*focused_);
    if (change_) {
        span.top += change_->shiftOf(span);
        span.height *= change_->shownShare(*focused_);
    }
    const CGRect mark = rectOf(span);
    const CGFloat side = std::max(0.0, mark.size.height - 2 * focusOutline);
    context.fillRect(mark, tintColor().colorWithAlphaComponent(focusFillAlpha));
    for (const CGFloat y : {CGRectGetMinY(mark), CGRectGetMaxY(mark) - focusOutline}) {
        context.fillRect(CGRectMake(mark.origin.x, y, mark.size.width, focusOutline), tintColor());
    }
    for (const CGFloat x : {CGRectGetMinX(mark), CGRectGetMaxX(mark) - focusOutline}) {
        context.fillRect(CGRectMake(x, mark.origin.y + focusOutline, focusOutline, side), tintColor());
    }
}

} // namespace gx
