#include "UITableView.h"

#include <algorithm>
#include <utility>

#include "UIKey.h"
#include "UITableViewContent.h"

namespace gx {

/// The content, and its way to the data source and the delegate.
class UITableView::Implementation final : public UITableViewContent::Client {
public:
    explicit Implementation(UITableView& table) : content(table, *this, highestPassedCount), table_(table) {}

    UITableViewContent content;
    /// A height that may be left to the table.
    static CGFloat heightOr(CGFloat automatic, CGFloat height) {
        return height == automaticDimension ? automatic : UITableViewRows::clampedHeight(height);
    }

    NSInteger sectionCount() override {
        const auto source = table_.dataSource_.lock();
        return source ? source->numberOfSectionsInTableView(table_.self()) : 0;
    }
    NSInteger rowCountOfSection(NSInteger section) override {
        const auto source = table_.dataSource_.lock();
        return source ? source->tableView_numberOfRowsInSection(table_.self(), section) : 0;
    }
    std::optional<std::string> titleOfSection(NSInteger section) override {
        const auto source = table_.dataSource_.lock();
        return source ? source->tableView_titleForHeaderInSection(table_.self(), section) : std::nullopt;
    }
    bool hasHeightsOfItsOwn() const override { return !table_.delegate_.expired(); }
    CGFloat heightOfRow(NSIndexPath path) override {
        const auto delegate = table_.delegate_.lock();
        return delegate ? heightOr(table_.rowHeight_, delegate->tableView_heightForRowAtIndexPath(table_.self(), path)) : table_.rowHeight_;
    }
    CGFloat usualRowHeight() const override { return table_.rowHeight_; }
    CGFloat heightOfHeader(NSInteger section) override {
        const auto delegate = table_.delegate_.lock();
        const CGFloat usual = table_.sectionHeaderHeight_;
        return delegate ? heightOr(usual, delegate->tableView_heightForHeaderInSection(table_.self(), section)) : usual;
    }
    Ref<UIView> headerView(NSInteger section) override {
        const auto delegate = table_.delegate_.lock();
        return delegate ? delegate->tableView_viewForHeaderInSection(table_.self(), section) : nullptr;
    }
    Ref<UIFont> headerFont() const override { return table_.sectionHeaderFont_; }
    Ref<UITableViewCell> cellForRow(NSIndexPath path) override {
        const auto source = table_.dataSource_.lock();
        return source ? source->tableView_cellForRowAtIndexPath(table_.self(), path) : nullptr;
    }
    void didEndDisplayingCell(const Ref<UITableViewCell>& cell, NSIndexPath path) override {
        if (const auto delegate = table_.delegate_.lock())
            delegate->tableView_didEndDisplayingCell_forRowAtIndexPath(table_.self(), cell, path);
    }
    bool canTapRow(NSIndexPath path) override {
        const auto delegate = table_.delegate_.lock();
        return !delegate || delegate->tableView_shouldHighlightRowAtIndexPath(table_.self(), path);
    }
    void tapRow(NSIndexPath path, NSTimeInterval time) override {
        content.highlightTap_until(path, time + tapDuration);
        if (const auto delegate = table_.delegate_.lock()) delegate->tableView_didSelectRowAtIndexPath(table_.self(), path);
    }
    bool isPartOfRowAbove(NSIndexPath path) override {
        const auto source = table_.dataSource_.lock();
        return source && source->tableView_isRowPartOfRowAbove(table_.self(), path);
    }

private:
    UITableView& table_;
};

UITableView::UITableView() : implementation_(std::make_unique<Implementation>(*this)) {}
UITableView::~UITableView() = default;
UITableViewContent& UITableView::content() const { return implementation_->content; }
UITableViewContent& UITableView::refreshedContent() {
    content().refresh();
    return content();
}

// Properties

void UITableView::setHeight(CGFloat& height, CGFloat automatic, CGFloat wanted) {
    const CGFloat clamped = Implementation::heightOr(automatic, wanted);
    if (clamped != std::exchange(height, clamped)) reloadData();
}
void UITableView::setRowHeight(CGFloat height) { setHeight(rowHeight_, defaultRowHeight, height); }
void UITableView::setSectionHeaderHeight(CGFloat height) { setHeight(sectionHeaderHeight_, defaultSectionHeaderHeight, height); }

// Cells

void UITableView::registerClass_forCellReuseIdentifier(CellFactory factory, const std::string& identifier) {
    const Ref<UITableView> keep = self();
    content().visible().setFactory(std::move(factory), identifier);
}

Ref<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier) {
    const Ref<UITableView> keep = self();
    return content().visible().dequeue(identifier, content().isQuerying());
}

// Queries

NSInteger UITableView::numberOfSections() {
    const Ref<UITableView> keep = self();
    return refreshedContent().rows().sectionCount();
}
NSInteger UITableView::numberOfRowsInSection(NSInteger section) {
    const Ref<UITableView> keep = self();
    return refreshedContent().rows().rowCount(section);
}
CGRect UITableView::rectForRowAtIndexPath(NSIndexPath path) {
    const Ref<UITableView> keep = self();
    return refreshedContent().rows().exists(path) ? content().rectOfRow(path) : CGRectZero;
}

std::optional<NSIndexPath> UITableView::indexPathForRowAtPoint(CGPoint point) {
    const Ref<UITableView> keep = self();
    const UITableViewRows& rows = refreshedContent().rows();
    return point.x >= 0 && point.x < bounds().size.width ? rows.rowAt(point.y) : std::nullopt;
}

Ref<UITableViewCell> UITableView::cellForRowAtIndexPath(NSIndexPath path) {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    return content().visible().cellOfRow(path);
}

std::optional<NSIndexPath> UITableView::indexPathForCell(const Ref<UITableViewCell>& cell) {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    return content().visible().rowOfCell(cell);
}

std::vector<NSIndexPath> UITableView::indexPathsForVisibleRows() {
    const Ref<UITableView> keep = self();
    layoutIfNeeded();
    return content().pathsInBounds();
}

std::optional<NSIndexPath> UITableView::indexPathForFocusedRow() {
    const Ref<UITableView> keep = self();
    return refreshedContent().focus().row();
}

// Changes

void UITableView::reloadData() { content().invalidate(); }
void UITableView::reloadRowsAtIndexPaths(const std::vector<NSIndexPath>& paths) { content().reloadRows(paths); }

void UITableView::insertRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated) {
    content().applyChange(UITableViewChange::Kind::Insertion, paths, animated);
}
void UITableView::deleteRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated) {
    content().applyChange(UITableViewChange::Kind::Removal, paths, animated);
}

void UITableView::scrollToRowAtIndexPath_animated(NSIndexPath path, bool animated) {
    const Ref<UITableView> keep = self();
    if (refreshedContent().rows().exists(path)) scrollRectToVisible_animated(content().rectOfRow(path), animated);
}

// Layout

std::vector<Ref<UIView>> UITableView::subviewsInReadingOrder() const {
    std::vector<Ref<UIView>> views = subviews();
    std::stable_sort(views.begin(), views.end(),
                     [](const auto& a, const auto& b) { return CGRectGetMinY(a->frame()) < CGRectGetMinY(b->frame()); });
    return views;
}

void UITableView::layoutSubviews() {
    UIScrollView::layoutSubviews();
    if (content().layOut(highestVisibleCount) && !hasFinger()) content().visible().dropLeaving();
}

// Fingers

void UITableView::pressBegan(CGPoint point, NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::pressBegan(point, time);
    content().press().cancel();
    if (const auto path = indexPathForRowAtPoint(point)) content().pressRow(*path, time + highlightDelay);
}

void UITableView::pressEnded(bool isTap, NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::pressEnded(isTap, time);
    UITableViewPress& press = content().press();
    if (isTap && press.row()) {
        content().focus().setRow(press.row());
        becomeFirstResponder(); // The view that loses the focus may change the rows.
    }
    const std::optional<NSIndexPath> path = press.row();
    if (!isTap || !path) return press.cancel();
    press.end();
    implementation_->tapRow(*path, time);
}

void UITableView::touchEnded(const UITouch& touch) {
    const Ref<UITableView> keep = self();
    UIScrollView::touchEnded(touch);
    if (content().visible().hasLeaving()) setNeedsLayout();
}

void UITableView::touchCancelled(const UITouch& touch) {
    const Ref<UITableView> keep = self();
    UIScrollView::touchCancelled(touch);
    if (content().visible().hasLeaving()) setNeedsLayout();
}

void UITableView::scrollViewDidScroll() {
    UIScrollView::scrollViewDidScroll();
    setNeedsLayout();
}

// The pointer

std::optional<UIPointerStyle> UITableView::hoverMoved(CGPoint location) {
    const Ref<UITableView> keep = self();
    const bool isOverRow = content().hoverRow(indexPathForRowAtPoint(convertPointFromWindow(location)));
    return isOverRow ? std::optional(UIPointerStyle::Press) : UIScrollView::hoverMoved(location);
}

void UITableView::hoverEnded() { content().hoverRow(std::nullopt); }

// Keys

bool UITableView::keyPressed(const UIKey& key) {
    const Ref<UITableView> keep = self();
    // A callback may destroy the key. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const UIKey pressed = key; // Keys of views inside a row are not meant for the rows.
    if (!isFirstResponder() || pressed.isCommand()) return UIScrollView::keyPressed(pressed);
    if (UITableViewKeyFocus::isMove(pressed.code) && content().moveFocus(pressed.code)) return true;
    if (pressed.code != UIKey::Code::Return && pressed.code != UIKey::Code::Space) return UIScrollView::keyPressed(pressed);
    const std::optional<NSIndexPath> present = content().focusedRow();
    if (!present || !implementation_->canTapRow(*present)) return UIScrollView::keyPressed(pressed);
    if (pressed.isRepeat || !content().rows().exists(*present)) return true; // Taps once.
    content().focusRow(*present);
    implementation_->tapRow(*present, pressed.timestamp);
    return true;
}

bool UITableView::canBecomeFirstResponder() {
    const Ref<UITableView> keep = self();
    return content().focusedRow().has_value();
}

void UITableView::focusDidChange() {
    const Ref<UITableView> keep = self();
    UIScrollView::focusDidChange();
    if (isFirstResponder()) content().focus().setRow(content().focusedRow());
}

void UITableView::revealDescendant(CGRect rect) {
    const Ref<UITableView> keep = self();
    const std::optional<NSIndexPath> row = isFirstResponder() && rect == bounds() ? content().focusedRow() : std::nullopt;
    UIScrollView::revealDescendant(row ? content().rectOfRowAndHeader(*row) : rect);
}

// Accessibility

UIAccessibilityElements UITableView::accessibilityElements() { return UITableViewElement::elementsOf(self(), {self(), &content()}); }

Ref<UIAccessibilityElement> UITableView::focusedAccessibilityElement() {
    return UITableViewElement::focusedOf(self(), {self(), &content()});
}

// Time and drawing

bool UITableView::isMoving() const { return UIScrollView::isMoving() || content().isChanging() || content().press().isWaiting(); }

bool UITableView::advanceToTime(NSTimeInterval time) {
    const Ref<UITableView> keep = self();
    UIScrollView::advanceToTime(time);
    content().advanceToTime(time);
    return isMoving();
}

void UITableView::finishAnimations() {
    const Ref<UITableView> keep = self();
    UIScrollView::finishAnimations();
    content().press().cancel();
    content().finishChange();
}

void UITableView::drawScrolledViews(UIGraphicsContext& context) {
    const UITableViewDrawing& drawing = content().drawing();
    if (content().isChanging()) {
        drawing.drawChange(context, [](UIView& view, UIGraphicsContext& canvas) { drawView(view, canvas); });
    } else {
        UIScrollView::drawScrolledViews(context);
    }
    if (separatorColor_) drawing.drawSeparators(context, *separatorColor_, separatorHeight);
    content().drawMarks(context);
}

} // namespace gx
