#include "SettingsScreen.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXLocalization.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat titleHeight = 48;
constexpr CGFloat choiceTitleHeight = 26;
constexpr CGFloat choiceGap = 14;
constexpr CGFloat widestContent = 640;
constexpr CGFloat padding = Theme::cardPadding;
// Names of languages are short: from here on two stand side by side.
constexpr CGFloat twoColumns = 280;

constexpr std::array<double, 5> textScales = {0.8, 1, 1.3, 2, 3};

template <class Values, class Value>
std::size_t indexIn(const Values& values, const Value& value) {
    const auto found = std::find(values.begin(), values.end(), value);
    return found == values.end() ? values.size() : static_cast<std::size_t>(found - values.begin());
}

const std::array<std::optional<UIUserInterfaceStyle>, 3>& styles() {
    static const std::array<std::optional<UIUserInterfaceStyle>, 3> all = {std::nullopt, UIUserInterfaceStyle::Light,
                                                                           UIUserInterfaceStyle::Dark};
    return all;
}

const std::array<std::optional<std::string>, 3>& separators() {
    static const std::array<std::optional<std::string>, 3> all = {std::nullopt, ".", ","};
    return all;
}

} // namespace

struct SettingsScreen::Frames {
    CGRect title;
    CGRect choices;
    CGRect languageTitle;
    CGRect languages;
    CGFloat height = 0;
};

Ref<SettingsScreen> SettingsScreen::pageWithSettings_changed(const Settings& settings, std::function<void(const Settings&)> changed) {
    auto page = create<SettingsScreen>(CGRectZero);
    page->settings_ = settings;
    page->changed_ = std::move(changed);
    page->makeControls();
    return page;
}

bool SettingsScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = create<UILabel>(CGRectZero);
    title_->setFont(Theme::titleFont());
    title_->setTextColor(Theme::text());
    choicesCard_ = Theme::makeCard();
    languageTitle_ = create<UILabel>(CGRectZero);
    languageTitle_->setFont(Theme::headingFont());
    languageTitle_->setTextColor(Theme::text());
    languageCard_ = Theme::makeCard();
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, choicesCard_, languageTitle_, languageCard_})
        addSubview(view);
    return true;
}

void SettingsScreen::setSettings(const Settings& settings) {
    if (settings == settings_) return;
    settings_ = settings;
    makeControls();
}

void SettingsScreen::change(const std::function<void(Settings&)>& take) {
    const Ref<SettingsScreen> keep = refTo(this);
    Settings changed = settings_;
    take(changed);
    if (changed == settings_) return;
    const bool isOtherLanguage = changed.language != settings_.language;
    settings_ = changed;
    const auto tell = changed_;
    if (tell) tell(changed);
    if (!isOtherLanguage) return;
    const Ref<Button> button = languageButton(changed.language);
    const bool hadFocus = button && button->isFirstResponder();
    makeControls(); // All names, by now in the new language.
    if (hadFocus) languageButton(changed.language)->becomeFirstResponder();
}

void SettingsScreen::makeControls() {
    for (const Choice& choice : choices_) {
        choice.title->removeFromSuperview();
        choice.control->removeFromSuperview();
    }
    choices_.clear();
    for (const Language& language : languages_) language.button->removeFromSuperview();
    languages_.clear();

    const auto text = [](const char* english) { return Translations::text(english); };
    title_->setText(text("Settings"));
    languageTitle_->setText(text("Language"));
    addChoice("Units", {text("Metric"), text("Imperial")}, settings_.isMetric ? 0 : 1,
              [](Settings& settings, std::size_t choice) { settings.isMetric = choice == 0; });
    addChoice("Weight", {text("Kilograms"), text("Pounds"), text("Stones")}, static_cast<std::size_t>(settings_.weightUnit),
              [](Settings& settings, std::size_t choice) { settings.weightUnit = static_cast<GXWeightUnit>(choice); });
    addChoice("Text size", {"80 %", "100 %", "130 %", "200 %", "300 %"}, indexIn(textScales, settings_.textScale),
              [](Settings& settings, std::size_t choice) { settings.textScale = textScales.at(choice); });
    addChoice("Look", {text("System"), text("Light"), text("Dark")}, indexIn(styles(), settings_.style),
              [](Settings& settings, std::size_t choice) { settings.style = styles().at(choice); });
    addChoice("Contrast", {text("Normal"), text("High")}, settings_.contrast == UIAccessibilityContrast::High ? 1 : 0,
              [](Settings& settings, std::size_t choice) {
                  settings.contrast = choice == 1 ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal;
              });
    addChoice("Decimal separator", {text("Automatic"), "1.5", "1,5"}, indexIn(separators(), settings_.decimalSeparator),
              [](Settings& settings, std::size_t choice) { settings.decimalSeparator = separators().at(choice); });
    addChoice("Motion", {text("Full"), text("Reduced")}, settings_.reducesMotion ? 1 : 0,
              [](Settings& settings, std::size_t choice) { settings.reducesMotion = choice == 1; });

    for (const std::string& identifier : GXLocalization::availableLanguages()) {
        const auto button = Button::buttonWithTitle_style(GXLocalization::nameOfLanguage(identifier), Button::Style::Row);
        button->setChosen(identifier == settings_.language);
        button->setAction([weak = WeakRef<SettingsScreen>(refTo(this)), identifier] {
            if (const auto page = weak.lock()) page->change([&](Settings& settings) { settings.language = identifier; });
        });
        languages_.push_back({identifier, button});
        languageCard_->addSubview(button);
    }
    setNeedsLayout();
}

void SettingsScreen::addChoice(const std::string& name, std::vector<std::string> choices, std::size_t chosen,
                               std::function<void(Settings&, std::size_t)> take) {
    const auto title = create<UILabel>(CGRectZero);
    title->setText(Translations::text(name));
    title->setFont(Theme::strongCaptionFont());
    title->setTextColor(Theme::secondaryText());
    const auto control = SegmentedControl::segmentsWithChoices(std::move(choices), chosen);
    control->setAccessibilityLabel(title->text());
    control->setAction([weak = WeakRef<SettingsScreen>(refTo(this)), take = std::move(take)](std::size_t choice) {
        if (const auto page = weak.lock()) page->change([&](Settings& settings) { take(settings, choice); });
    });
    choices_.push_back({name, title, control});
    choicesCard_->addSubview(title);
    choicesCard_->addSubview(control);
}

Ref<SegmentedControl> SettingsScreen::control(const std::string& name) const {
    const auto found = std::find_if(choices_.begin(), choices_.end(), [&](const Choice& choice) { return choice.name == name; });
    return found == choices_.end() ? nullptr : found->control;
}

Ref<Button> SettingsScreen::languageButton(const std::string& language) const {
    const auto found =
        std::find_if(languages_.begin(), languages_.end(), [&](const Language& entry) { return entry.identifier == language; });
    return found == languages_.end() ? nullptr : found->button;
}

void SettingsScreen::setShowsTitle(bool shows) {
    if (shows == showsTitle_) return;
    showsTitle_ = shows;
    title_->setHidden(!shows);
    setNeedsLayout();
}

// Layout

SettingsScreen::Frames SettingsScreen::framesForWidth(CGFloat width) const {
    const CGFloat margin = Theme::marginForWidth(width);
    const CGFloat content = std::clamp(width - 2 * margin, 0.0, widestContent);
    Frames frames;
    CGFloat y = showsTitle_ ? margin : 12;
    if (showsTitle_) {
        frames.title = CGRectMake(margin, y, content, titleHeight);
        y += titleHeight;
    }
    const auto choiceHeight = choiceTitleHeight + Theme::controlHeight + choiceGap;
    frames.choices = CGRectMake(margin, y, content, 2 * padding + static_cast<CGFloat>(choices_.size()) * choiceHeight - choiceGap);
    y = CGRectGetMaxY(frames.choices) + Theme::gap;
    frames.languageTitle = CGRectMake(margin, y, content, Theme::controlHeight);
    y += Theme::controlHeight;
    const std::size_t columns = content >= twoColumns ? 2 : 1;
    const std::size_t rows = (languages_.size() + columns - 1) / columns;
    frames.languages = CGRectMake(margin, y, content, padding + static_cast<CGFloat>(rows) * Theme::controlHeight);
    frames.height = CGRectGetMaxY(frames.languages) + margin;
    return frames;
}

CGSize SettingsScreen::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void SettingsScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const Frames frames = framesForWidth(bounds().size.width);
    title_->setFrame(frames.title);
    choicesCard_->setFrame(frames.choices);
    languageTitle_->setFrame(frames.languageTitle);
    languageCard_->setFrame(frames.languages);

    const CGFloat width = std::max(0.0, frames.choices.size.width - 2 * padding);
    CGFloat y = padding;
    for (const Choice& choice : choices_) {
        choice.title->setFrame(CGRectMake(padding, y, width, 20));
        y += choiceTitleHeight;
        choice.control->setFrame(CGRectMake(padding, y, width, Theme::controlHeight));
        y += Theme::controlHeight + choiceGap;
    }
    const std::size_t columns = frames.languages.size.width >= twoColumns ? 2 : 1;
    const CGFloat inset = padding / 2;
    const CGFloat column = (frames.languages.size.width - 2 * inset) / static_cast<CGFloat>(columns);
    for (std::size_t i = 0; i < languages_.size(); ++i) {
        const CGFloat x = inset + static_cast<CGFloat>(i % columns) * column;
        const std::size_t rowIndex = i / columns;
        const CGFloat top = inset + static_cast<CGFloat>(rowIndex) * Theme::controlHeight;
        languages_[i].button->setFrame(CGRectMake(x, top, column, Theme::controlHeight));
    }
}

} // namespace gallery
