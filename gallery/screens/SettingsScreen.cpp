#include "SettingsScreen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXLocalization.h>

using namespace gx;

namespace gallery {

namespace {

// Wider cards look empty. All chosen by eye, for scale 1.
constexpr CGFloat widestColumn = 640;
// From here on the languages are beside the other choices.
constexpr CGFloat twoCards = 760;
constexpr CGFloat inset = Theme::cardPadding / 2;
// Names of languages are short: from here on two of them are side by side.
constexpr CGFloat twoLanguages = 280;

constexpr std::array<double, 5> textScaleSteps = {0.8, 1, 1.3, 2, 3};

std::string percent(double scale) { return std::to_string(std::lround(100 * scale)) + " %"; }

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
    std::vector<CGRect> buttons; ///< of the languages, in their card
    CGFloat height = 0;
};

Ref<SettingsScreen> SettingsScreen::pageWithSettings_changed(const Settings& settings, std::function<void(const Settings&)> changed) {
    auto page = create<SettingsScreen>(CGRectZero);
    page->settings_ = settings;
    page->changed_ = std::move(changed);
    page->offerTextScale();
    page->makeControls();
    return page;
}

bool SettingsScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    title_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Title, Theme::text());
    choicesCard_ = create<ChoiceCard>(CGRectZero);
    languageTitle_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Heading, Theme::text());
    languageCard_ = Theme::makeCard();
    title_->setAccessibilityRole(UIAccessibilityRole::Heading);
    languageCard_->setAccessibilityRole(UIAccessibilityRole::RadioGroup);
    languageTitle_->setAccessibilityRole(UIAccessibilityRole::Heading);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, choicesCard_, languageTitle_, languageCard_})
        addSubview(view);
    return true;
}

void SettingsScreen::setSettings(const Settings& settings) {
    if (settings == settings_) return;
    settings_ = settings;
    offerTextScale();
    makeControls();
}

/// A scale between the steps, such as that of the command line, becomes a choice of its own. It
/// stays one, so that the user can go back to it.
void SettingsScreen::offerTextScale() {
    if (indexIn(textScales_, settings_.textScale) < textScales_.size()) return;
    textScales_.assign(textScaleSteps.begin(), textScaleSteps.end());
    if (indexIn(textScales_, settings_.textScale) < textScales_.size()) return;
    textScales_.insert(std::upper_bound(textScales_.begin(), textScales_.end(), settings_.textScale), settings_.textScale);
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
    const std::string language = Translations::text("Language");
    title_->setText(Translations::text("Settings"));
    languageTitle_->setText(language);
    languageCard_->setAccessibilityLabel(language);
    makeChoices();
    makeLanguageButtons();
    setNeedsLayout();
}

void SettingsScreen::makeChoices() {
    choicesCard_->removeChoices();
    choiceNames_.clear();
    const auto text = [](const char* english) { return Translations::text(english); };
    addChoice("Units", {text("Metric"), text("Imperial")}, settings_.isMetric ? 0 : 1,
              [](Settings& settings, std::size_t choice) { settings.isMetric = choice == 0; });
    addChoice("Weight", {text("Kilograms"), text("Pounds"), text("Stones")}, static_cast<std::size_t>(settings_.weightUnit),
              [](Settings& settings, std::size_t choice) { settings.weightUnit = static_cast<GXWeightUnit>(choice); });
    std::vector<std::string> sizes;
    for (const double scale : textScales_) sizes.push_back(percent(scale));
    addChoice("Text size", std::move(sizes), indexIn(textScales_, settings_.textScale),
              [scales = textScales_](Settings& settings, std::size_t choice) { settings.textScale = scales.at(choice); });
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
    if (settings_.clicks) {
        addChoice("Wheel clicks", {text("Off"), text("On")}, *settings_.clicks ? 1 : 0,
                  [](Settings& settings, std::size_t choice) { settings.clicks = choice == 1; });
    }
}

void SettingsScreen::makeLanguageButtons() {
    for (const Language& language : languages_) language.button->removeFromSuperview();
    languages_.clear();
    for (const std::string& identifier : GXLocalization::availableLanguages()) {
        const auto button = Button::buttonWithTitle_style(GXLocalization::nameOfLanguage(identifier), Button::Style::Row);
        button->setChosen(identifier == settings_.language);
        button->setAction([weak = WeakRef<SettingsScreen>(refTo(this)), identifier] {
            if (const auto page = weak.lock()) page->change([&](Settings& settings) { settings.language = identifier; });
        });
        languages_.push_back({identifier, button});
        languageCard_->addSubview(button);
    }
}

void SettingsScreen::addChoice(const std::string& name, std::vector<std::string> choices, std::size_t chosen,
                               std::function<void(Settings&, std::size_t)> take) {
    const auto control = choicesCard_->addChoice(Translations::text(name), std::move(choices), chosen);
    choiceNames_.push_back(name);
    control->setAction([weak = WeakRef<SettingsScreen>(refTo(this)), take = std::move(take)](std::size_t choice) {
        if (const auto page = weak.lock()) page->change([&](Settings& settings) { take(settings, choice); });
    });
}

Ref<SegmentedControl> SettingsScreen::control(const std::string& name) const {
    const std::size_t index = indexIn(choiceNames_, name);
    return index < choiceNames_.size() ? choicesCard_->controls()[index] : nullptr;
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
    const CGFloat room = std::max(0.0, width - 2 * margin);
    const bool hasTwoCards = room >= Theme::grown(twoCards);
    const CGFloat content = std::min(hasTwoCards ? std::floor(0.5 * (room - Theme::gap)) : room, Theme::grown(widestColumn));
    const auto heightOf = [content](const UIView& view) { return std::ceil(view.sizeThatFits({content, 0}).height); };
    Frames frames;
    const CGFloat heading = std::max(Theme::controlHeight(), heightOf(*languageTitle_));
    CGFloat y = showsTitle_ ? margin : Theme::gapBelowBar;
    if (showsTitle_) {
        frames.title = CGRectMake(margin, y, content, heightOf(*title_));
        y = CGRectGetMaxY(frames.title) + Theme::gap;
    } else if (hasTwoCards) {
        y += heading;
    }
    frames.choices = CGRectMake(margin, y, content, heightOf(*choicesCard_));
    // The languages are below the choices, or beside them: then the heading is beside the title.
    const CGFloat x = hasTwoCards ? CGRectGetMaxX(frames.choices) + Theme::gap : margin;
    if (!hasTwoCards) y = CGRectGetMaxY(frames.choices) + Theme::gap + heading;
    frames.languageTitle = CGRectMake(x, y - heading, content, heading);

    const std::size_t columns = content >= Theme::scaled(twoLanguages) ? 2 : 1;
    const CGFloat column = std::max(0.0, content - 2 * inset) / static_cast<CGFloat>(columns);
    CGFloat rowY = inset;
    for (std::size_t first = 0; first < languages_.size(); first += columns) {
        const std::size_t end = std::min(languages_.size(), first + columns);
        CGFloat height = 0;
        for (std::size_t i = first; i < end; ++i) height = std::max(height, languages_[i].button->sizeThatFits({column, 0}).height);
        for (std::size_t i = first; i < end; ++i) {
            const std::size_t place = i - first;
            frames.buttons.push_back(CGRectMake(inset + static_cast<CGFloat>(place) * column, rowY, column, height));
        }
        rowY += height;
    }
    frames.languages = CGRectMake(x, y, content, rowY + inset);
    frames.height = std::max(CGRectGetMaxY(frames.choices), CGRectGetMaxY(frames.languages)) + margin;
    return frames;
}

CGSize SettingsScreen::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void SettingsScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGFloat width = bounds().size.width;
    const Frames frames = framesForWidth(width);
    title_->setFrame(ReadingDirection::frame(frames.title, width));
    choicesCard_->setFrame(ReadingDirection::frame(frames.choices, width));
    languageTitle_->setFrame(ReadingDirection::frame(frames.languageTitle, width));
    languageCard_->setFrame(ReadingDirection::frame(frames.languages, width));
    for (std::size_t i = 0; i < languages_.size(); ++i)
        languages_[i].button->setFrame(ReadingDirection::frame(frames.buttons[i], frames.languages.size.width));
}

} // namespace gallery
