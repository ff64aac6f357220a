#pragma once

#include <string>

#include "Button.h"
#include "Paragraph.h"

namespace gallery {

/// The head of the entry screen: its title, the buttons for files, and the last message.
///
/// The buttons are beside the title, or below it where there is too little room, or one below the
/// other. After a change of what it shows the superview has to lay it out again, since its height
/// may be another.
class EntryHeader : public gx::UIView {
public:
    /// What a message says of what the user did last.
    enum class MessageKind { Success, Error };

    bool initWithFrame(gx::CGRect frame) override;

    /// Shows its texts in the current language.
    void showTexts();
    /// False where a bar above the screen has the title.
    void setShowsTitle(bool shows);
    void setShowsButtons(bool shows);
    /// Empty for none.
    const std::string& message() const { return message_->text(); }
    void setMessage(const std::string& message, MessageKind kind);

    const gx::Ref<Paragraph>& title() const { return title_; }
    const gx::Ref<Button>& openButton() const { return openButton_; }
    const gx::Ref<Button>& saveButton() const { return saveButton_; }

    /// As wide as offered, and as high as all that it shows; 0 if that is nothing.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;

    gx::Ref<Paragraph> title_;
    gx::Ref<Button> openButton_;
    gx::Ref<Button> saveButton_;
    gx::Ref<Paragraph> message_;
};

} // namespace gallery
