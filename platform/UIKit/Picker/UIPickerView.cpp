#include "UIPickerView.h"

#include <algorithm>
#include <cmath>

#include "UIPickerColumnElement.h"
#include "UIPickerMarks.h"
#include "UIPickerSelectionIndicator.h"

namespace gx {

/// What the wheel is made of, and what its parts call.
class UIPickerView::Implementation final : public UIPickerOwner {
public:
    explicit Implementation(UIPickerView& owner) : wheel(owner) {}

    NSInteger queryNumberOfComponents() override {
        const Ref<UIPickerViewDataSource> source = wheel.dataSource_.lock();
        return source ? std::clamp<NSInteger>(source->numberOfComponentsInPickerView(self()), 0, highestComponentCount) : 0;
    }
    NSInteger queryNumberOfRows(NSInteger component) override {
        const Ref<UIPickerViewDataSource> source = wheel.dataSource_.lock();
        return source ? source->pickerView_numberOfRowsInComponent(self(), component) : 0;
    }
    Sizes querySizes(NSInteger component) override {
        const Ref<UIPickerViewDelegate> delegate = wheel.delegate_.lock();
        const CGFloat width = delegate ? delegate->pickerView_widthForComponent(self(), component) : automaticDimension;
        const CGFloat height = delegate ? delegate->pickerView_rowHeightForComponent(self(), component) : automaticDimension;
        const CGFloat givenHeight = given(height).value_or(0);
        return {given(width), givenHeight > 0 ? givenHeight : defaultRowHeight};
    }
    Delegate lockDelegate() override { return wheel.delegate_.lock(); }
    Ref<UIView> viewForRow(const Delegate& delegate, NSInteger row, NSInteger component, const Ref<UIView>& reused) override {
        return of(delegate).pickerView_viewForRow_forComponent_reusingView(self(), row, component, reused);
    }
    Ref<NSAttributedString> attributedTitleForRow(const Delegate& delegate, NSInteger row, NSInteger component) override {
        return of(delegate).pickerView_attributedTitleForRow_forComponent(self(), row, component);
    }
    std::optional<std::string> titleForRow(const Delegate& delegate, NSInteger row, NSInteger component) override {
        return of(delegate).pickerView_titleForRow_forComponent(self(), row, component);
    }
    std::optional<std::string> accessibilityLabel(const Delegate& delegate, NSInteger component) override {
        return of(delegate).pickerView_accessibilityLabelForComponent(self(), component);
    }
    std::optional<std::string> accessibilityValue(const Delegate& delegate, NSInteger row, NSInteger component) override {
        return of(delegate).pickerView_accessibilityValueForRow_forComponent(self(), row, component);
    }
    Ref<UIFont> titleFont() override { return wheel.titleFont(); }
    std::optional<std::string> separatorTextAfter(NSInteger component) override { return wheel.separatorTextAfterComponent(component); }
    NSInteger componentCount() override { return wheel.numberOfComponents(); }
    NSInteger selectedRow(NSInteger component) override { return wheel.selectedRowInComponent(component); }
    NSInteger announcedRow(NSInteger component) override { return wheel.announcedRowInComponent(component); }
    NSInteger rowCount(NSInteger component) override { return wheel.numberOfRowsInComponent(component); }
    Ref<UIView> visibleView(NSInteger row, NSInteger component) override { return wheel.viewForRow_forComponent(row, component); }
    void report(NSInteger row, NSInteger component) override { wheel.turnToRow_inComponent(row, component); }
    bool isLayoutNeeded() const override { return wheel.isLayoutNeeded(); }

    bool isShowable() const {
        const CGSize size = wheel.bounds().size;
        return !CGRectIsEmpty(wheel.bounds()) && std::isfinite(size.width) && std::isfinite(size.height);
    }
    void invalidate() {
        components.invalidate();
        wheel.setNeedsLayout();
    }

    UIPickerView& wheel;
    UIPickerComponents components{*this, columnGap, defaultRowHeight};
    UIPickerRows rows{*this, components};
    UIPickerController controller{wheel, *this, components, rows};
    UIPickerMarks marks{wheel, components};
    UIPickerColumnElement::Wheel parts{wheel, *this, components, rows, controller};

private:
    Ref<UIPickerView> self() { return refTo(&wheel); }
    /// A length that a delegate may give; nothing if it leaves it to the wheel.
    static std::optional<CGFloat> given(CGFloat dimension) {
        if (dimension == automaticDimension || std::isnan(dimension)) return std::nullopt;
        return std::clamp(dimension, 0.0, 1e6); // Wider than any screen: sums of widths stay exact.
    }
    static UIPickerViewDelegate& of(const Delegate& delegate) { return *static_cast<UIPickerViewDelegate*>(delegate.get()); }
};

UIPickerView::UIPickerView() : implementation_(std::make_unique<Implementation>(*this)) {}
UIPickerView::~UIPickerView() = default;

void UIPickerView::setDataSource(WeakRef<UIPickerViewDataSource> dataSource) {
    dataSource_ = std::move(dataSource);
    implementation_->invalidate();
}

void UIPickerView::setDelegate(WeakRef<UIPickerViewDelegate> delegate) {
    const Ref<UIPickerView> keep = self();
    delegate_ = std::move(delegate);
    // Views that one delegate has made mean nothing to another.
    implementation_->components.removeAllRows();
    implementation_->invalidate();
}

void UIPickerView::setFrame(CGRect frame) {
    const CGSize before = bounds().size;
    UIView::setFrame(frame);
    if (bounds().size != before) implementation_->invalidate();
}

void UIPickerView::setBounds(CGRect newBounds) {
    const CGRect before = bounds();
    UIView::setBounds(newBounds);
    if (bounds() != before) implementation_->invalidate(); // Columns are placed by the origin, too.
}

void UIPickerView::exchangeComponents(NSInteger one, NSInteger other) {
    if (one < 0 || other < 0 || one >= highestComponentCount || other >= highestComponentCount) return;
    if (implementation_->components.exchange(one, other)) setNeedsDisplay();
}

// Queries

NSInteger UIPickerView::numberOfComponents() {
    const Ref<UIPickerView> keep = self();
    return implementation_->components.refreshCount();
}

NSInteger UIPickerView::numberOfRowsInComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    return implementation_->components.refreshRows(component);
}

CGSize UIPickerView::rowSizeForComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    UIPickerComponents& components = implementation_->components;
    if (!implementation_->isShowable() || !components.exists(component)) return {};
    for (NSInteger i = 0; i < components.count(); ++i) components.refreshSizes(i);
    if (!components.exists(component)) return {};
    return {components.width(component, bounds().size.width), components.at(component).rowHeight};
}

NSInteger UIPickerView::selectedRowInComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    UIPickerComponents& components = implementation_->components;
    return components.exists(component) ? components.requestedRow(component) : -1;
}

Ref<UIView> UIPickerView::viewForRow_forComponent(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (implementation_->isShowable()) layoutIfNeeded();
    if (!implementation_->components.exists(component)) return nullptr;
    const Ref<UIPickerColumn> column = implementation_->components.at(component).column;
    return column ? column->viewForRow(row) : nullptr;
}

NSInteger UIPickerView::rowInSelectionIndicatorOfComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    UIPickerComponents& components = implementation_->components;
    if (!components.exists(component)) return -1;
    const UIPickerColumnAxis& axis = components.at(component).axis;
    return axis.isActive() ? components.clampedRow(component, axis.nearestRow()) : selectedRowInComponent(component);
}

NSInteger UIPickerView::announcedRowInComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    const std::optional<NSInteger> stepped = implementation_->components.steppedRow(component);
    return stepped ? *stepped : selectedRowInComponent(component);
}

bool UIPickerView::isTurning() const { return implementation_->components.isActive(); }

NSInteger UIPickerView::componentOfKeys() {
    const Ref<UIPickerView> keep = self();
    return implementation_->controller.componentOfKeys();
}

// Requests

void UIPickerView::reloadAllComponents() { implementation_->invalidate(); }

void UIPickerView::reloadComponent(NSInteger component) {
    const Ref<UIPickerView> keep = self();
    if (implementation_->components.exists(component)) implementation_->invalidate();
}

void UIPickerView::selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) {
    const Ref<UIPickerView> keep = self();
    if (implementation_->controller.requestRow(row, component, animated)) implementation_->invalidate();
}

void UIPickerView::turnToRow_inComponent(NSInteger row, NSInteger component) {
    const Ref<UIPickerView> keep = self();
    UIPickerComponents& components = implementation_->components;
    const NSInteger present = components.clampedRow(component, row);
    if (!components.exists(component)) return;
    components.at(component).requested = present;
    components.at(component).axis.restOnRow(present);
    implementation_->invalidate();
    if (const auto delegate = delegate_.lock()) delegate->pickerView_didSelectRow_inComponent(keep, present, component);
}

// Layout and drawing

void UIPickerView::layoutSubviews() {
    const Ref<UIPickerView> keep = self();
    UIView::layoutSubviews();
    if (implementation_->isShowable()) implementation_->controller.layout();
}

void UIPickerView::drawRect(UIGraphicsContext& context, CGRect rect) {
    UIView::drawRect(context, rect);
    if (implementation_->components.count() == 0) return;
    const CGRect indicator = selectionIndicatorFrame();
    if (showsSelectionIndicator_) drawSelectionIndicator(context, indicator);
    implementation_->marks.draw(context, indicator);
}

CGRect UIPickerView::selectionIndicatorFrame() {
    if (implementation_->components.count() == 0) return {};
    const CGRect area = bounds();
    const CGFloat height = implementation_->components.highestRow();
    constexpr CGFloat inset = UIPickerSelectionIndicator::inset;
    return CGRectMake(area.origin.x + inset, CGRectGetMidY(area) - 0.5 * height, area.size.width - 2 * inset, height);
}

void UIPickerView::drawSelectionIndicator(UIGraphicsContext& context, CGRect frame) { UIPickerSelectionIndicator::draw(context, frame); }

// Events

bool UIPickerView::touchBegan(const UITouch& touch) {
    const Ref<UIPickerView> keep = self();
    const std::optional<bool> isTaken = implementation_->controller.touchBegan(touch);
    return isTaken ? *isTaken : UIView::touchBegan(touch);
}

void UIPickerView::touchMoved(const UITouch& touch) {
    const Ref<UIPickerView> keep = self();
    if (!implementation_->controller.touchMoved(touch)) UIView::touchMoved(touch);
}

void UIPickerView::touchEnded(const UITouch& touch) {
    const Ref<UIPickerView> keep = self();
    if (!implementation_->controller.touchEnded(touch)) UIView::touchEnded(touch);
}

void UIPickerView::touchCancelled(const UITouch& touch) {
    const Ref<UIPickerView> keep = self();
    if (!implementation_->controller.touchCancelled(touch)) UIView::touchCancelled(touch);
}

bool UIPickerView::scrolled(const UIScroll& scroll) {
    const Ref<UIPickerView> keep = self();
    const std::optional<bool> isTaken = implementation_->controller.scrolled(scroll);
    return isTaken ? *isTaken : UIView::scrolled(scroll);
}

std::optional<UIPointerStyle> UIPickerView::hoverMoved(CGPoint location) {
    return implementation_->marks.hoverMoved(convertPointFromWindow(location));
}

void UIPickerView::hoverEnded() { implementation_->marks.hoverEnded(); }

bool UIPickerView::keyPressed(const UIKey& key) {
    const Ref<UIPickerView> keep = self();
    const UIKey pressed = key; // NOLINT(performance-unnecessary-copy-initialization): it may go
    return implementation_->controller.keyPressed(pressed) || UIView::keyPressed(pressed);
}

bool UIPickerView::canBecomeFirstResponder() {
    const Ref<UIPickerView> keep = self();
    layoutIfNeeded();
    return implementation_->components.componentBeside(-1, 1) >= 0;
}

void UIPickerView::focusDidChange() {
    const Ref<UIPickerView> keep = self();
    UIView::focusDidChange();
    if (!isFirstResponder()) implementation_->controller.completeTyping();
}

UIAccessibilityElements UIPickerView::accessibilityElements() {
    const Ref<UIPickerView> keep = self();
    const Ref<UIPickerColumnElement::Wheel> parts(keep, &implementation_->parts);
    return UIPickerColumnElement::elementsOf(keep, parts);
}

// Time

bool UIPickerView::advanceToTime(NSTimeInterval time) {
    const Ref<UIPickerView> keep = self();
    return implementation_->controller.advanceToTime(time);
}

void UIPickerView::finishAnimations() {
    const Ref<UIPickerView> keep = self();
    if (isTurning()) implementation_->controller.finish();
}

void UIPickerView::didMoveToWindow() {
    UIView::didMoveToWindow();
    if (!window()) finishAnimations(); // Without a window no time passes: what moves arrives.
}

} // namespace gx
