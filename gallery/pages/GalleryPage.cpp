#include "GalleryPage.h"

#include <algorithm>
#include <cmath>

#include "GalleryTheme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat titleHeight = 40;
// Five rows of a wheel and the ends of two more. Of large rows at least three have to be whole.
constexpr CGFloat usualWheelHeight = 216;
constexpr double fewestRowsOfWheel = 3;
// With it the card of the wheel is as high as the log, beside which it may stand.
constexpr CGFloat wheelPadding = 14;
// Wider than this, cards look empty.
constexpr CGFloat widestContent = 920;
// A phone that lies on its side has two columns, each nearly as wide as a small phone that stands.
constexpr CGFloat twoColumnWidth = 540;
constexpr CGFloat optionTitleHeight = 24;
constexpr CGFloat optionGap = 14;

CGFloat wheelHeight() { return std::max(usualWheelHeight, fewestRowsOfWheel * GXStyleSheet::globalStyleSheet()->pickerRowHeight()); }

} // namespace

struct GalleryPage::Frames {
    CGRect title;
    CGRect purpose;
    CGRect picker;
    CGRect log;
    CGRect options;
    CGFloat height = 0;
};

Ref<GalleryPage> GalleryPage::pageWithDescription(GalleryPageDescription description) {
    auto page = create<GalleryPage>(CGRectZero);
    page->setUp(std::move(description));
    return page;
}

void GalleryPage::setUp(GalleryPageDescription description) {
    description_ = std::move(description);
    title_->setText(Translations::text(description_.name));
    purpose_->setText(description_.purpose);
    exhibit_ = makeExhibit();
    pickerCard_->addSubview(exhibit_.picker);
    for (std::size_t i = 0; i < exhibit_.options.size(); ++i) {
        const GalleryOption& option = exhibit_.options[i];
        const auto title = create<UILabel>(CGRectZero);
        title->setText(option.title);
        title->setFont(GalleryTheme::strongCaptionFont());
        title->setTextColor(GalleryTheme::secondaryText());
        optionTitles_.push_back(title);
        optionsCard_->addSubview(title);

        const auto segments = GallerySegments::segmentsWithChoices(option.choices, option.chosen);
        segments->setAccessibilityLabel(option.title);
        segments->setAction([weak = WeakRef<GalleryPage>(refTo(this)), i](std::size_t choice) {
            if (const Ref<GalleryPage> page = weak.lock()) page->choose(i, choice);
        });
        optionControls_.push_back(segments);
        optionsCard_->addSubview(segments);
        choose(i, option.chosen);
    }
    optionsCard_->setHidden(exhibit_.options.empty());
}

bool GalleryPage::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = create<UILabel>(CGRectZero);
    title_->setFont(GalleryTheme::titleFont());
    title_->setTextColor(GalleryTheme::text());
    purpose_ = create<GalleryText>(CGRectZero);
    pickerCard_ = GalleryTheme::makeCard();
    log_ = create<GalleryLog>(CGRectZero);
    optionsCard_ = GalleryTheme::makeCard();
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, purpose_, pickerCard_, log_, optionsCard_}) addSubview(view);
    return true;
}

void GalleryPage::setShowsTitle(bool shows) {
    if (shows == showsTitle_) return;
    showsTitle_ = shows;
    title_->setHidden(!shows);
    setNeedsLayout();
}

GalleryExhibit GalleryPage::makeExhibit() {
    return description_.makeExhibit([weak = WeakRef<GalleryPage>(refTo(this))](const GalleryNotice& notice) {
        if (const Ref<GalleryPage> page = weak.lock()) page->noteNotice(notice);
    });
}

void GalleryPage::noteNotice(const GalleryNotice& notice) {
    log_->addNotice(notice);
    for (std::size_t i = 0; i < exhibit_.options.size(); ++i) {
        GalleryOption& option = exhibit_.options[i];
        if (!option.current) continue;
        option.chosen = option.current();
        optionControls_[i]->setChosen(option.chosen);
    }
}

void GalleryPage::choose(std::size_t option, std::size_t choice) {
    GalleryOption& chosen = exhibit_.options[option];
    chosen.chosen = choice;
    chosen.choose(choice);
    setNeedsLayout(); // Another unit may need smaller fonts.
}

void GalleryPage::renewPicker() {
    title_->setText(Translations::text(description_.name)); // The language may be another one.
    const GalleryExhibit before = std::move(exhibit_);
    exhibit_ = makeExhibit();
    for (std::size_t i = 0; i < exhibit_.options.size(); ++i) choose(i, before.options[i].chosen);
    exhibit_.setValues(before.values());
    before.picker->removeFromSuperview();
    pickerCard_->addSubview(exhibit_.picker);
    setNeedsLayout();
}

void GalleryPage::turnForPicture() {
    layoutIfNeeded();
    const Ref<UIPickerView> wheel = exhibit_.wheel;
    for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
        // No unit has more than three names; a separator has one row.
        if (wheel->numberOfRowsInComponent(component) <= 3) continue;
        wheel->turnToRow_inComponent(wheel->selectedRowInComponent(component) + 1, component);
    }
}

// Layout

CGFloat GalleryPage::optionsHeight() const {
    const auto count = static_cast<CGFloat>(optionControls_.size());
    return 2 * GalleryTheme::cardPadding + count * (optionTitleHeight + GalleryTheme::controlHeight + optionGap) - optionGap;
}

GalleryPage::Frames GalleryPage::framesForWidth(CGFloat width) const {
    const CGFloat margin = GalleryTheme::marginForWidth(width);
    const CGFloat content = std::clamp(width - 2 * margin, 0.0, widestContent);
    const bool hasTwoColumns = content >= twoColumnWidth;
    const CGFloat column = hasTwoColumns ? std::floor(0.5 * (content - GalleryTheme::gap)) : content;

    Frames frames;
    CGFloat y = showsTitle_ ? margin : 12;
    if (showsTitle_) {
        frames.title = CGRectMake(margin, y, content, titleHeight);
        y += titleHeight;
    }
    frames.purpose = CGRectMake(margin, y, content, purpose_->sizeThatFits({content, 0}).height);
    y = CGRectGetMaxY(frames.purpose) + GalleryTheme::gap;
    frames.picker = CGRectMake(margin, y, column, wheelHeight() + 2 * wheelPadding);
    // What the delegate is told stands where it is seen while the wheel turns: beside it, or right below.
    const CGFloat below = CGRectGetMaxY(frames.picker) + GalleryTheme::gap;
    const CGFloat logX = hasTwoColumns ? margin + column + GalleryTheme::gap : margin;
    frames.log = CGRectMake(logX, hasTwoColumns ? y : below, column, log_->sizeThatFits({column, 0}).height);
    const CGFloat optionsY = hasTwoColumns ? below : CGRectGetMaxY(frames.log) + GalleryTheme::gap;
    frames.options = CGRectMake(margin, optionsY, column, optionControls_.empty() ? 0 : optionsHeight());
    y = std::max(CGRectGetMaxY(frames.log), optionControls_.empty() ? 0 : CGRectGetMaxY(frames.options));
    frames.height = y + margin;
    return frames;
}

CGSize GalleryPage::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void GalleryPage::layoutSubviews() {
    UIView::layoutSubviews();
    const Frames frames = framesForWidth(bounds().size.width);
    title_->setFrame(frames.title);
    purpose_->setFrame(frames.purpose);
    pickerCard_->setFrame(frames.picker);
    log_->setFrame(frames.log);
    optionsCard_->setFrame(frames.options);
    exhibit_.picker->setFrame(CGRectMake(0, wheelPadding, frames.picker.size.width, wheelHeight()));
    fitFonts(exhibit_.textPicker);

    const CGFloat padding = GalleryTheme::cardPadding;
    const CGFloat width = std::max(0.0, frames.options.size.width - 2 * padding);
    CGFloat y = padding;
    for (std::size_t i = 0; i < optionControls_.size(); ++i) {
        optionTitles_[i]->setFrame(CGRectMake(padding, y, width, 20));
        y += optionTitleHeight;
        optionControls_[i]->setFrame(CGRectMake(padding, y, width, GalleryTheme::controlHeight));
        y += GalleryTheme::controlHeight + optionGap;
    }
}

} // namespace gallery
