#pragma once

#include <string>

#include "GalleryExhibit.h"
#include "GalleryLog.h"
#include "GallerySegments.h"
#include "GalleryText.h"

namespace gallery {

/// What there is to say of a picker; `GalleryPage` makes a view of it.
struct GalleryPageDescription {
    std::string name;
    /// In one line: what one picks, and in which unit the value is kept.
    std::string purpose;
    /// Makes the picker as an application would. Whatever the picker tells its delegate goes to `report`.
    std::function<GalleryExhibit(const GalleryReport& report)> makeExhibit;
};

/// The page of one picker: a card with the picker, what its delegate was told, and its options as controls.
class GalleryPage : public gx::UIView {
public:
    static gx::Ref<GalleryPage> pageWithDescription(GalleryPageDescription description);

    bool initWithFrame(gx::CGRect frame) override;

    const std::string& name() const { return description_.name; }
    /// Without it where a bar above the page tells the name.
    void setShowsTitle(bool shows);

    const GalleryExhibit& exhibit() const { return exhibit_; }
    const gx::Ref<gx::UIView>& pickerCard() const { return pickerCard_; }
    const gx::Ref<GalleryLog>& log() const { return log_; }
    const gx::Ref<gx::UIView>& optionsCard() const { return optionsCard_; }
    /// In the order of the exhibit's options.
    const std::vector<gx::Ref<GallerySegments>>& optionControls() const { return optionControls_; }

    /// Replaces the picker by a new one with the same options and values: for what a picker reads only when it is made.
    void renewPicker();
    /// Turns each column by a row, as a user would, so that a picture has something to show. Columns of units stay.
    void turnForPicture();

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;
    gx::CGFloat optionsHeight() const;
    GalleryExhibit makeExhibit();
    void setUp(GalleryPageDescription description);
    void noteNotice(const GalleryNotice& notice);
    void choose(std::size_t option, std::size_t choice);

    GalleryPageDescription description_;
    GalleryExhibit exhibit_;
    bool showsTitle_ = true;
    gx::Ref<gx::UILabel> title_;
    gx::Ref<GalleryText> purpose_;
    gx::Ref<gx::UIView> pickerCard_;
    gx::Ref<GalleryLog> log_;
    gx::Ref<gx::UIView> optionsCard_;
    std::vector<gx::Ref<gx::UILabel>> optionTitles_;
    std::vector<gx::Ref<GallerySegments>> optionControls_;
};

} // namespace gallery
