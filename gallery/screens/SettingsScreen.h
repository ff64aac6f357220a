#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Button.h"
#include "ChoiceCard.h"
#include "Settings.h"

namespace gallery {

/// "Settings": what the user can choose for the whole application, and the languages as a list.
class SettingsScreen : public gx::UIView {
public:
    /// `changed` is called with all settings after each choice of the user.
    static gx::Ref<SettingsScreen> pageWithSettings_changed(const Settings& settings, std::function<void(const Settings&)> changed);

    bool initWithFrame(gx::CGRect frame) override;

    const Settings& settings() const { return settings_; }
    /// Shows other settings, in their language. `changed` is not called.
    void setSettings(const Settings& settings);
    /// False where a bar above the page has the title.
    void setShowsTitle(bool shows);

    /// The choice with an English name such as "Units" or "Text size"; empty if there is none.
    gx::Ref<SegmentedControl> control(const std::string& name) const;
    /// The button of a language such as "de"; empty if there is none.
    gx::Ref<Button> languageButton(const std::string& language) const;

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Language {
        std::string identifier;
        gx::Ref<Button> button;
    };
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;
    void offerTextScale();
    void makeControls();
    void makeChoices();
    void makeLanguageButtons();
    void addChoice(const std::string& name, std::vector<std::string> choices, std::size_t chosen,
                   std::function<void(Settings&, std::size_t)> take);
    void change(const std::function<void(Settings&)>& take);

    Settings settings_;
    std::function<void(const Settings&)> changed_;
    bool showsTitle_ = true;
    std::vector<double> textScales_; // Those to choose from.
    gx::Ref<Paragraph> title_;
    gx::Ref<ChoiceCard> choicesCard_;
    std::vector<std::string> choiceNames_; // English, one for each choice.
    gx::Ref<Paragraph> languageTitle_;
    gx::Ref<gx::UIView> languageCard_;
    std::vector<Language> languages_;
};

} // namespace gallery
