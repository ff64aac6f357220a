#pragma once

#include <string>

#include "ChoiceCard.h"
#include "NoticeLog.h"
#include "Paragraph.h"
#include "PickerDemo.h"

namespace gallery {

/// What a page shows of a picker.
struct PickerPageDescription {
    std::string name;
    /// What the user picks, and the base unit of the value. Name and purpose are keys of
    /// `Translations`.
    std::string purpose;
    /// Makes the picker as an application would. Every call of its delegate goes to `report`.
    std::function<PickerDemo(const NoticeHandler& report)> makeDemo;
};

/// The page of one picker: a card with the picker, the log of its delegate, and its options.
///
/// They are below each other on a phone. With more room the log is beside the picker, and in a wide
/// window the picker is as high as log and options beside it.
class PickerPage : public gx::UIView {
public:
    static gx::Ref<PickerPage> pageWithDescription(PickerPageDescription description);

    bool initWithFrame(gx::CGRect frame) override;

    const std::string& name() const { return description_.name; }
    /// False where a bar above the page has the title.
    void setShowsTitle(bool shows);
    /// Whether log and options are both beside the picker, if the page is wide enough. Default:
    /// false.
    void setShowsPickerBeside(bool beside);

    const PickerDemo& demo() const { return demo_; }
    const gx::Ref<gx::UIView>& pickerCard() const { return pickerCard_; }
    const gx::Ref<NoticeLog>& log() const { return log_; }
    const gx::Ref<ChoiceCard>& optionsCard() const { return optionsCard_; }
    /// In the order of the demo's options.
    const std::vector<gx::Ref<SegmentedControl>>& optionControls() const { return optionsCard_->controls(); }

    /// Replaces the picker by a new one with the same options and values, for properties that a
    /// picker reads only when it is made. Shows all texts in the current language.
    void renewPicker();
    /// Turns each column by a row, as a user would, so that a picture has something to show.
    /// Columns of units stay as they are.
    void turnForPicture();

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;
    PickerDemo makeDemo();
    void setUp(PickerPageDescription description);
    /// In the current language. The log, which is in the one before, is emptied.
    void showTexts();
    void noteNotice(const DelegateNotice& notice);
    void choose(std::size_t option, std::size_t choice);

    PickerPageDescription description_;
    PickerDemo demo_;
    bool showsTitle_ = true;
    std::string language_; ///< of the texts that are shown
    bool showsPickerBeside_ = false;
    gx::Ref<Paragraph> title_;
    gx::Ref<Paragraph> purpose_;
    gx::Ref<gx::UIView> pickerCard_;
    gx::Ref<NoticeLog> log_;
    gx::Ref<ChoiceCard> optionsCard_;
};

} // namespace gallery
