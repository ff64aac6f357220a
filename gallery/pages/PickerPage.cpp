#include "PickerPage.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXStyleSheet.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat titleGap = 6;
// Five rows of a wheel and the ends of two more. Large rows are fewer.
constexpr CGFloat usualWheelHeight = 216;
// With it the card of the wheel is as high as the log, which may be beside it.
constexpr CGFloat wheelPadding = 14;
// Wider cards look empty. Chosen by eye.
constexpr CGFloat widestContent = 920;
constexpr CGFloat widestContentBesidePicker = 1120;
constexpr double pickersShare = 0.55;
// A phone in landscape has two columns, each nearly as wide as a small phone upright.
constexpr CGFloat twoColumnWidth = 540;

CGFloat heightOfWheelRows(double rows) { return rows * GXStyleSheet::globalStyleSheet()->pickerRowHeight(); }
CGFloat wheelHeight() { return std::max(usualWheelHeight, heightOfWheelRows(Theme::fewestRowsOfWheel)); }

} // namespace

struct PickerPage::Frames {
    CGRect title;
    CGRect purpose;
    CGRect picker;
    CGRect log;
    CGRect options;
    CGFloat height = 0;
};

Ref<PickerPage> PickerPage::pageWithDescription(PickerPageDescription description) {
    auto page = create<PickerPage>(CGRectZero);
    page->setUp(std::move(description));
    return page;
}

void PickerPage::setUp(PickerPageDescription description) {
    description_ = std::move(description);
    demo_ = makeDemo();
    pickerCard_->addSubview(demo_.picker);
    showTexts();
    for (std::size_t i = 0; i < demo_.options.size(); ++i) choose(i, demo_.options[i].chosen);
}

void PickerPage::showTexts() {
    language_ = GXLocalization::sharedLocalization()->translationLanguage();
    title_->setText(Translations::text(description_.name));
    purpose_->setText(Translations::text(description_.purpose));
    log_->showTexts();
    optionsCard_->removeChoices();
    for (std::size_t i = 0; i < demo_.options.size(); ++i) {
        const DemoOption& option = demo_.options[i];
        std::vector<std::string> choices;
        for (const std::string& choice : option.choices) choices.push_back(Translations::text(choice));
        const auto segments = optionsCard_->addChoice(Translations::text(option.title), std::move(choices), option.chosen);
        segments->setAction([weak = WeakRef<PickerPage>(refTo(this)), i](std::size_t choice) {
            if (const Ref<PickerPage> page = weak.lock()) page->choose(i, choice);
        });
    }
    optionsCard_->setHidden(demo_.options.empty());
    setNeedsLayout();
}

bool PickerPage::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Title, Theme::text());
    title_->setAccessibilityRole(UIAccessibilityRole::Heading);
    purpose_ = create<Paragraph>(CGRectZero);
    pickerCard_ = Theme::makeCard();
    log_ = create<NoticeLog>(CGRectZero);
    optionsCard_ = create<ChoiceCard>(CGRectZero);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, purpose_, pickerCard_, log_, optionsCard_}) addSubview(view);
    return true;
}

void PickerPage::setShowsTitle(bool shows) {
    if (shows == showsTitle_) return;
    showsTitle_ = shows;
    title_->setHidden(!shows);
    setNeedsLayout();
}

void PickerPage::setShowsPickerBeside(bool beside) {
    if (beside == showsPickerBeside_) return;
    showsPickerBeside_ = beside;
    setNeedsLayout();
}

PickerDemo PickerPage::makeDemo() {
    return description_.makeDemo([weak = WeakRef<PickerPage>(refTo(this))](const DelegateNotice& notice) {
        if (const Ref<PickerPage> page = weak.lock()) page->noteNotice(notice);
    });
}

void PickerPage::noteNotice(const DelegateNotice& notice) {
    log_->addNotice(notice);
    for (std::size_t i = 0; i < demo_.options.size(); ++i) {
        DemoOption& option = demo_.options[i];
        if (!option.current) continue;
        option.chosen = option.current();
        optionControls()[i]->setChosen(option.chosen);
    }
}

void PickerPage::choose(std::size_t option, std::size_t choice) {
    DemoOption& chosen = demo_.options[option];
    chosen.chosen = choice;
    chosen.choose(choice);
    setNeedsLayout(); // Another unit may need smaller fonts.
}

void PickerPage::renewPicker() {
    const PickerDemo before = std::move(demo_);
    demo_ = makeDemo();
    for (std::size_t i = 0; i < demo_.options.size(); ++i) choose(i, before.options[i].chosen);
    demo_.setValues(before.values());
    before.picker->removeFromSuperview();
    pickerCard_->addSubview(demo_.picker);
    if (language_ != GXLocalization::sharedLocalization()->translationLanguage()) showTexts();
    setNeedsLayout();
}

void PickerPage::turnForPicture() {
    layoutIfNeeded();
    const Ref<UIPickerView> wheel = demo_.wheel;
    for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
        // No unit has more than three names; a separator has one row.
        if (wheel->numberOfRowsInComponent(component) <= 3) continue;
        wheel->turnToRow_inComponent(wheel->selectedRowInComponent(component) + 1, component);
    }
}

// Layout

PickerPage::Frames PickerPage::framesForWidth(CGFloat width) const {
    const CGFloat margin = Theme::marginForWidth(width);
    const CGFloat room = std::max(0.0, width - 2 * margin);
    const bool hasTwoColumns = room >= Theme::grown(twoColumnWidth);
    const bool isPickerBeside = hasTwoColumns && showsPickerBeside_;
    const CGFloat content = std::min(room, Theme::grown(isPickerBeside ? widestContentBesidePicker : widestContent));
    const CGFloat column = std::floor((isPickerBeside ? pickersShare : 0.5) * (content - Theme::gap));

    Frames frames;
    CGFloat y = showsTitle_ ? margin : Theme::gapBelowBar;
    if (showsTitle_) {
        frames.title = CGRectMake(margin, y, content, std::ceil(title_->sizeThatFits({content, 0}).height));
        y = CGRectGetMaxY(frames.title) + titleGap;
    }
    frames.purpose = CGRectMake(margin, y, content, std::ceil(purpose_->sizeThatFits({content, 0}).height));
    y = CGRectGetMaxY(frames.purpose) + Theme::gap;
    // The log is visible while the wheel spins: beside it, or right below.
    const CGFloat pickerWidth = hasTwoColumns ? column : content;
    const CGFloat logWidth = hasTwoColumns ? content - Theme::gap - column : content;
    const CGFloat logHeight = log_->sizeThatFits({logWidth, 0}).height;
    const CGFloat optionsWidth = isPickerBeside ? logWidth : pickerWidth;
    const CGFloat optionsHeight = optionControls().empty() ? 0 : optionsCard_->sizeThatFits({optionsWidth, 0}).height;
    const CGFloat besidePicker = logHeight + (optionsHeight > 0 ? Theme::gap + optionsHeight : 0);
    const CGFloat wheel = isPickerBeside ? std::clamp(besidePicker - 2 * wheelPadding, wheelHeight(),
                                                      std::max(wheelHeight(), heightOfWheelRows(Theme::mostRowsOfWheel)))
                                         : wheelHeight();
    frames.picker = CGRectMake(margin, y, pickerWidth, std::floor(wheel) + 2 * wheelPadding);
    const CGFloat below = CGRectGetMaxY(frames.picker) + Theme::gap;
    const CGFloat besideX = margin + pickerWidth + Theme::gap;
    frames.log = CGRectMake(hasTwoColumns ? besideX : margin, hasTwoColumns ? y : below, logWidth, logHeight);
    const CGFloat belowLog = CGRectGetMaxY(frames.log) + Theme::gap;
    frames.options =
        CGRectMake(isPickerBeside ? besideX : margin, hasTwoColumns && !isPickerBeside ? below : belowLog, optionsWidth, optionsHeight);
    y = std::max(CGRectGetMaxY(frames.picker), CGRectGetMaxY(frames.log));
    if (optionsHeight > 0) y = std::max(y, CGRectGetMaxY(frames.options));
    frames.height = y + margin;
    return frames;
}

CGSize PickerPage::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void PickerPage::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = bounds().size.width;
    const Frames frames = framesForWidth(width);
    title_->setFrame(ReadingDirection::frame(frames.title, width));
    purpose_->setFrame(ReadingDirection::frame(frames.purpose, width));
    pickerCard_->setFrame(ReadingDirection::frame(frames.picker, width));
    log_->setFrame(ReadingDirection::frame(frames.log, width));
    optionsCard_->setFrame(ReadingDirection::frame(frames.options, width));
    demo_.picker->setFrame(CGRectMake(0, wheelPadding, frames.picker.size.width, frames.picker.size.height - 2 * wheelPadding));
    if (demo_.textPicker) demo_.textPicker->sizeFontsToFit();
}

} // namespace gallery
