#pragma once

#include <functional>
#include <string>
#include <vector>

#include "GalleryButton.h"
#include "GallerySegments.h"
#include "GallerySettings.h"

namespace gallery {

/// "Settings": what the user chooses for the whole application, each choice with its name above it, and the languages as a list.
class GallerySettingsPage : public gx::UIView {
public:
    /// `changed` is called with all settings whenever the user has chosen another.
    static gx::Ref<GallerySettingsPage> pageWithSettings_changed(const GallerySettings& settings,
                                                                 std::function<void(const GallerySettings&)> changed);

    bool initWithFrame(gx::CGRect frame) override;

    const GallerySettings& settings() const { return settings_; }
    /// Shows other settings, in their language. `changed` is not called.
    void setSettings(const GallerySettings& settings);
    /// Without it where a bar above the page tells the name.
    void setShowsTitle(bool shows);

    /// The choice with this English name: "Units", "Weight", "Text size", "Look", "Contrast", "Decimal separator", "Motion"; empty if there
    /// is none.
    gx::Ref<GallerySegments> control(const std::string& name) const;
    /// The button of a language such as "de"; empty if there is none.
    gx::Ref<GalleryButton> languageButton(const std::string& language) const;

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Choice {
        std::string name;
        gx::Ref<gx::UILabel> title;
        gx::Ref<GallerySegments> control;
    };
    struct Language {
        std::string identifier;
        gx::Ref<GalleryButton> button;
    };
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;
    void makeControls();
    void addChoice(const std::string& name, std::vector<std::string> choices, std::size_t chosen,
                   std::function<void(GallerySettings&, std::size_t)> take);
    void change(const std::function<void(GallerySettings&)>& take);

    GallerySettings settings_;
    std::function<void(const GallerySettings&)> changed_;
    bool showsTitle_ = true;
    gx::Ref<gx::UILabel> title_;
    gx::Ref<gx::UIView> choicesCard_;
    std::vector<Choice> choices_;
    gx::Ref<gx::UILabel> languageTitle_;
    gx::Ref<gx::UIView> languageCard_;
    std::vector<Language> languages_;
};

} // namespace gallery
