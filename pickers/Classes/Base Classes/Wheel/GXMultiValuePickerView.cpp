#include "GXMultiValuePickerView.h"

#include "GXDigitWidths.h"
#include "GXStyleSheet.h"
#include "NSArithmetic.h"
#include "NSLocale.h"

namespace gx {

namespace {

/// Between a description label and the widest title next to it. Prescribed by the product.
constexpr CGFloat labelGap = 10;

GXMultiValuePickerView::Factory& sharedFactory() {
    static GXMultiValuePickerView::Factory factory;
    return factory;
}

/// Drawn on the component that follows, if there is one.
///
/// It keeps the size that its text had when it was set, so it draws from the middle of its bounds,
/// and whole: a font that came later may need less room or more.
class SeparatorLabel : public UILabel {
public:
    void setWheel_component(WeakRef<UIPickerView> wheel, NSUInteger component) {
        wheel_ = std::move(wheel);
        component_ = component;
    }
    void drawRect(UIGraphicsContext& context, CGRect rect) override {
        const Ref<UIPickerView> wheel = wheel_.lock();
        const NSInteger last = wheel && superview() == wheel ? wheel->numberOfComponents() - 1 : 0;
        if (last <= 0 || component_ >= static_cast<NSUInteger>(last)) return;
        UILabel::drawRect(context, CGRectMake(CGRectGetMidX(rect) - 0.5 * textWidth_, rect.origin.y, textWidth_, rect.size.height));
    }

protected:
    void textDidChange() override {
        UILabel::textDidChange();
        textWidth_ = sizeThatFits({}).width;
    }

private:
    WeakRef<UIPickerView> wheel_;
    NSUInteger component_ = 0;
    CGFloat textWidth_ = 0;
};

template <class Label>
Ref<Label> createLabel(const Ref<GXStyleSheetFont>& font) {
    auto label = create<Label>(CGRectNull);
    label->setBackgroundColor(UIColor::clearColor());
    setStyleSheetFont(label, font);
    return label;
}

CGSize sizeOfText(const std::optional<std::string>& text, const Ref<GXStyleSheetFont>& font) {
    if (!text) return {};
    return sizeWithAttributes(*text, {font ? font->font() : nullptr, std::nullopt});
}

} // namespace

void GXMultiValuePickerView::setFactory(Factory factory) { sharedFactory() = std::move(factory); }

Ref<GXMultiValuePickerView> GXMultiValuePickerView::wheelWithFrame(CGRect frame) {
    const Factory factory = sharedFactory(); // It may be replaced while it runs.
    const Ref<GXMultiValuePickerView> wheel = factory ? factory(frame) : nullptr;
    return wheel ? wheel : create<GXMultiValuePickerView>(frame);
}

bool GXMultiValuePickerView::initWithFrame(CGRect frame) {
    if (!UIPickerView::initWithFrame(frame)) return false;
    initGXMultiValuePickerView();
    return true;
}

bool GXMultiValuePickerView::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIPickerView::initWithCoder(coder)) return false;
    initGXMultiValuePickerView();
    return true;
}

void GXMultiValuePickerView::initGXMultiValuePickerView() {
    const Ref<UIView> keep = refTo<UIView>(this);
    setShowsSelectionIndicator(true);
    leftDescLabel_ = createLabel<UILabel>(labelFont());
    addSubview(leftDescLabel_);
    rightDescLabel_ = createLabel<UILabel>(labelFont());
    addSubview(rightDescLabel_);
}

// Fonts: computed at every use, since the application may change the style sheet at any time.

Ref<GXStyleSheetFont> GXMultiValuePickerView::labelFont() const {
    return customLabelFont_ ? customLabelFont_ : GXStyleSheet::globalStyleSheet()->pickerLabelFont();
}

Ref<GXStyleSheetFont> GXMultiValuePickerView::valueFont() const {
    return customValueFont_ ? customValueFont_ : GXStyleSheet::globalStyleSheet()->pickerValueFont();
}

void GXMultiValuePickerView::setCustomLabelFont(Ref<GXStyleSheetFont> font) {
    const Ref<UIView> keep = refTo<UIView>(this);
    customLabelFont_ = std::move(font);
    setStyleSheetFont(leftDescLabel_, labelFont());
    setStyleSheetFont(rightDescLabel_, labelFont());
}

void GXMultiValuePickerView::setCustomValueFont(Ref<GXStyleSheetFont> font) { customValueFont_ = std::move(font); }

// Texts

void GXMultiValuePickerView::setLeftLabelText(std::optional<std::string> text) {
    const Ref<UIView> keep = refTo<UIView>(this);
    leftLabelText_ = std::move(text);
    leftDescLabel_->setText(leftLabelText_);
    if (!areLabelsPlacedByLayout()) setupLeftLabelFrame();
}

void GXMultiValuePickerView::setRightLabelText(std::optional<std::string> text) {
    const Ref<UIView> keep = refTo<UIView>(this);
    rightLabelText_ = std::move(text);
    rightDescLabel_->setText(rightLabelText_);
    if (!areLabelsPlacedByLayout()) setupRightLabelFrame();
}

void GXMultiValuePickerView::setLabelsFollowReading(bool follow) {
    if (follow == labelsFollowReading_) return;
    labelsFollowReading_ = follow;
    setNeedsLayout();
}

void GXMultiValuePickerView::setSeparatorText_afterComponent(std::optional<std::string> text, NSUInteger component) {
    const Ref<UIView> keep = refTo<UIView>(this);
    if (!sources()) return;
    Ref<UILabel> label = separatorAfterComponent(component);
    if (!label) {
        const auto created = createLabel<SeparatorLabel>(valueFont());
        created->setWheel_component(refTo<UIPickerView>(this), component);
        // The style sheet's getter of the font may have set one meanwhile.
        label = separatorAfterComponent(component);
        if (!label) {
            label = created;
            separators_.push_back({component, label});
            addSubview(label);
        }
    }
    label->setText(std::move(text));
    label->sizeToFit();
    if (!areLabelsPlacedByLayout()) updateSeparatorFrames();
}

Ref<UILabel> GXMultiValuePickerView::separatorAfterComponent(NSUInteger component) const {
    for (const Separator& separator : separators_) {
        if (separator.component == component) return separator.label;
    }
    return nullptr;
}

std::optional<std::string> GXMultiValuePickerView::separatorTextAfterComponent(NSInteger component) {
    const Ref<UILabel> label = separatorAfterComponent(static_cast<NSUInteger>(component));
    return label ? label->text() : std::nullopt;
}

// Occasions to place the labels

void GXMultiValuePickerView::setDelegate(WeakRef<UIPickerViewDelegate> delegate) {
    const Ref<UIView> keep = refTo<UIView>(this);
    UIPickerView::setDelegate(std::move(delegate));
    if (areLabelsPlacedByLayout()) return;
    setupLeftLabelFrame();
    setupRightLabelFrame();
}

void GXMultiValuePickerView::setDataSource(WeakRef<UIPickerViewDataSource> dataSource) {
    const Ref<UIView> keep = refTo<UIView>(this);
    UIPickerView::setDataSource(std::move(dataSource));
    if (areLabelsPlacedByLayout()) return;
    setupLeftLabelFrame();
    setupRightLabelFrame();
}

void GXMultiValuePickerView::reloadAllComponents() {
    const Ref<UIView> keep = refTo<UIView>(this);
    UIPickerView::reloadAllComponents();
    if (!areLabelsPlacedByLayout()) reloadLabelFrames();
}

void GXMultiValuePickerView::layoutSubviews() {
    const Ref<UIView> keep = refTo<UIView>(this);
    UIPickerView::layoutSubviews();
    reloadLabelFrames();
}

/// Placing a label needs the rows laid out. Where a layout is needed, it places all labels itself,
/// and doing it once more would only measure every text twice.
bool GXMultiValuePickerView::areLabelsPlacedByLayout() {
    if (!sources() || !isLayoutNeeded() || isLayingOut()) return false;
    layoutIfNeeded();
    return true;
}

void GXMultiValuePickerView::reloadLabelFrames() {
    const Ref<UIView> keep = refTo<UIView>(this);
    if (!sources()) return;
    setupRightLabelFrame();
    setupLeftLabelFrame();
    updateSeparatorFrames();
}

// Places

GXMultiValuePickerView::Sources GXMultiValuePickerView::sources() const { return {dataSource().lock(), delegate().lock()}; }

CGRect GXMultiValuePickerView::rowRectOfComponent(NSInteger component) {
    Ref<UIView> view = viewForRow_forComponent(selectedRowInComponent(component), component);
    // While the column spins, the row it reports may be far out of sight. Every row in sight has
    // the same left and right edge, so the label stays where it is.
    if (!view) view = viewForRow_forComponent(rowInSelectionIndicatorOfComponent(component), component);
    return convertRect_fromView(view ? view->bounds() : CGRectZero, view);
}

CGFloat GXMultiValuePickerView::widestTitleWidth(const Sources& sources, NSInteger component) {
    const Ref<UIPickerView> wheel = refTo<UIPickerView>(this);
    const NSInteger rows = sources.dataSource->pickerView_numberOfRowsInComponent(wheel, component);
    // The last title is taken to be the widest: the numbers of a component grow.
    const auto title = sources.delegate->pickerView_titleForRow_forComponent(wheel, wrappingSubtract<NSInteger>(rows, 1), component);
    // Where a unit stands before the number, it is beside the first digit of any row.
    const Ref<GXStyleSheetFont> font = valueFont();
    if (areLabelsMirrored() && title && font) return widthWithAnyDigits(*title, font->font());
    return sizeOfText(title, font).width;
}

bool GXMultiValuePickerView::areLabelsMirrored() const { return labelsFollowReading_ && NSLocale::currentLocale()->isRightToLeft(); }

void GXMultiValuePickerView::setupLeftLabelFrame() {
    const Ref<UIView> keep = refTo<UIView>(this);
    const Sources sources = this->sources();
    if (!sources) return;
    if (areLabelsMirrored()) {
        placeRightOfComponents(sources, leftDescLabel_);
    } else {
        placeLeftOfComponents(sources, leftDescLabel_);
    }
}

void GXMultiValuePickerView::setupRightLabelFrame() {
    const Ref<UIView> keep = refTo<UIView>(this);
    const Sources sources = this->sources();
    if (!sources) return;
    if (areLabelsMirrored()) {
        placeLeftOfComponents(sources, rightDescLabel_);
    } else {
        placeRightOfComponents(sources, rightDescLabel_);
    }
}

/// The label takes the font, so that it draws as it measures.
CGSize GXMultiValuePickerView::sizeInCurrentFont(const Ref<UILabel>& label) const {
    const Ref<GXStyleSheetFont> font = labelFont();
    setStyleSheetFont(label, font);
    return sizeOfText(label->text(), font);
}

void GXMultiValuePickerView::placeLeftOfComponents(const Sources& sources, const Ref<UILabel>& label) {
    const CGRect row = rowRectOfComponent(0);
    const CGFloat title = widestTitleWidth(sources, 0);
    const CGSize size = sizeInCurrentFont(label);
    label->setFrame({{CGRectGetMaxX(row) - title - labelGap - size.width, CGRectGetMidY(bounds()) - 0.5 * size.height}, size});
}

void GXMultiValuePickerView::placeRightOfComponents(const Sources& sources, const Ref<UILabel>& label) {
    const NSInteger count = numberOfComponents();
    const NSInteger last = count - 1;
    const CGRect row = rowRectOfComponent(last);
    const CGFloat title = widestTitleWidth(sources, last);
    const CGFloat width = sources.delegate->pickerView_widthForComponent(refTo<UIPickerView>(this), last);
    const CGSize size = sizeInCurrentFont(label);
    // A single column is centred and its titles are right-aligned; the last of several is
    // left-aligned.
    const CGFloat x = count == 1 ? CGRectGetMidX(bounds()) + 0.5 * width + labelGap : CGRectGetMinX(row) + title + labelGap;
    label->setFrame({{x, CGRectGetMidY(bounds()) - 0.5 * size.height}, size});
}

void GXMultiValuePickerView::updateSeparatorFrames() {
    const Ref<UIView> keep = refTo<UIView>(this);
    for (NSInteger i = 0; i < numberOfComponents() - 1; ++i) {
        const Ref<UILabel> label = separatorAfterComponent(static_cast<NSUInteger>(i));
        if (!label) continue;
        setStyleSheetFont(label, valueFont());
        label->setCenter({CGRectGetMidX(rowRectOfComponent(i + 1)), CGRectGetMidY(bounds())});
    }
}

} // namespace gx
