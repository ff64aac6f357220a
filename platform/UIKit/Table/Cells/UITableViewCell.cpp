#include "UITableViewCell.h"

#include <algorithm>

#include "NSLocale.h"
#include "UIGraphicsContext.h"
#include "UILabel.h"

namespace gx {

namespace {

/// Lays the cell out again when its text changes: the widths of name and value depend on both.
class UITableViewCellLabel : public UILabel {
protected:
    void textDidChange() override {
        UILabel::textDidChange();
        const Ref<UIView> contentView = superview();
        if (const Ref<UIView> cell = contentView ? contentView->superview() : nullptr) cell->setNeedsLayout();
    }
};

} // namespace

bool UITableViewCell::initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    style_ = style;
    reuseIdentifier_ = reuseIdentifier;
    if (!UIView::initWithFrame({{0, 0}, defaultSize})) return false;
    makeContentView();
    return true;
}

bool UITableViewCell::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    makeContentView();
    return true;
}

bool UITableViewCell::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    if (coder) {
        if (coder->decodeIntegerForKey("style") == UITableViewCellStyleValue1) style_ = UITableViewCellStyleValue1;
        reuseIdentifier_ = coder->decodeStringForKey("reuseIdentifier");
    }
    makeContentView();
    return true;
}

void UITableViewCell::makeContentView() {
    contentView_ = create<UIView>(bounds());
    addSubview(contentView_);
}

const Ref<UILabel>& UITableViewCell::textLabel() {
    if (!textLabel_ && contentView_) {
        textLabel_ = create<UITableViewCellLabel>();
        textLabel_->setTextAlignment(NSTextAlignmentNatural);
        contentView_->addSubview(textLabel_);
        setNeedsLayout();
    }
    return textLabel_;
}

const Ref<UILabel>& UITableViewCell::detailTextLabel() {
    if (!detailTextLabel_ && contentView_ && style_ == UITableViewCellStyleValue1) {
        detailTextLabel_ = create<UITableViewCellLabel>();
        detailTextLabel_->setTextAlignment(NSTextAlignmentRight);
        detailTextLabel_->setTextColor(UIColor::secondaryLabelColor());
        contentView_->addSubview(detailTextLabel_);
        setNeedsLayout();
    }
    return detailTextLabel_;
}

void UITableViewCell::setHighlighted(bool highlighted) {
    if (highlighted == isHighlighted_) return;
    isHighlighted_ = highlighted;
    setNeedsDisplay();
}

void UITableViewCell::setSelected(bool selected) {
    if (selected == isSelected_) return;
    isSelected_ = selected;
    setNeedsDisplay();
}

void UITableViewCell::prepareForReuse() {
    setHighlighted(false);
    setSelected(false);
}

void UITableViewCell::setFrame(CGRect frame) {
    UIView::setFrame(frame);
    fillWithContentView();
}

void UITableViewCell::setBounds(CGRect newBounds) {
    UIView::setBounds(newBounds);
    fillWithContentView();
}

void UITableViewCell::fillWithContentView() {
    if (contentView_) contentView_->setFrame(bounds());
}

void UITableViewCell::layoutSubviews() {
    UIView::layoutSubviews();
    const CGRect room = contentView_ ? contentView_->bounds() : CGRect{};
    const CGFloat width = std::max(0.0, room.size.width - 2 * labelInset);
    // From right to left, the name is at the right, and the value at the left.
    const auto place = [&room](CGFloat x, CGFloat labelWidth) {
        const CGFloat left = NSLocale::currentLocale()->isRightToLeft() ? room.size.width - x - labelWidth : x;
        return CGRectMake(left, 0, labelWidth, room.size.height);
    };
    // The value is what a row is read for: if both are too long, the name is truncated first.
    CGFloat detailWidth = 0;
    if (detailTextLabel_ && detailTextLabel_->showsSomething()) {
        detailWidth = std::min(width, detailTextLabel_->sizeThatFits(room.size).width);
        detailTextLabel_->setFrame(place(labelInset + width - detailWidth, detailWidth));
    }
    const CGFloat gap = detailWidth > 0 ? labelInset / 2 : 0;
    if (textLabel_) textLabel_->setFrame(place(labelInset, std::max(0.0, width - detailWidth - gap)));
}

void UITableViewCell::drawRect(UIGraphicsContext& context, CGRect rect) {
    UIView::drawRect(context, rect);
    if (isHighlighted_ || isSelected_) context.fillRect(bounds(), UIColor::tertiarySystemFillColor());
}

// Accessibility

namespace {

bool canBeOperated(const Ref<UIAccessibilityElement>& element) {
    return element->role() == UIAccessibilityRole::Button || element->role() == UIAccessibilityRole::Adjustable;
}

} // namespace

std::optional<std::string> UITableViewCell::accessibilityLabel() const {
    if (std::optional<std::string> label = UIView::accessibilityLabel()) return label;
    UIAccessibilityElements texts;
    for (const Ref<UIAccessibilityElement>& element : accessibilityElementsOfSubviews(contentView_)) {
        if (!canBeOperated(element)) texts.push_back(element);
    }
    return joinedAccessibilityLabels(texts);
}

UIAccessibilityElements UITableViewCell::accessibilityElements() {
    UIAccessibilityElements elements = wholeAccessibilityElement(refTo<UIView>(this), UIAccessibilityRole::Button);
    for (const Ref<UIAccessibilityElement>& element : UIView::accessibilityElements()) {
        if (canBeOperated(element)) elements.push_back(element);
    }
    return elements;
}

} // namespace gx
