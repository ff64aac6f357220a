#pragma once

#include <functional>
#include <memory>

#include "RecordedEvent.h"
#include <GXUIPickers/UIWindowInput.h>

namespace gallery {

/// Stands between a host and its window: writes a line for each event and passes it on.
///
/// It has to get everything that comes from outside: the host's input, the run loop's passes and
/// the outcomes of dialogs.
class EventRecorder : public gx::UIWindowInput {
public:
    /// `clock` is that of the frames. `write` gets each line without its end.
    EventRecorder(gx::Ref<gx::UIWindowInput> window, std::function<double()> clock, std::function<void(const std::string&)> write);

    bool touchBegan_at_time(std::int64_t identifier, gx::CGPoint location, gx::NSTimeInterval time) override;
    void touchMoved_at_time(std::int64_t identifier, gx::CGPoint location, gx::NSTimeInterval time) override;
    void touchEnded_at_time(std::int64_t identifier, gx::CGPoint location, gx::NSTimeInterval time) override;
    void touchCancelled_at_time(std::int64_t identifier, gx::NSTimeInterval time) override;
    bool scroll(const gx::UIScroll& scroll) override;
    void pointerMoved(gx::CGPoint location) override;
    void pointerLeft() override;
    bool keyDown(const gx::UIKey& key) override;
    void setReceivesKeys(bool receives) override;
    void takeFocusAway() override;
    void performAction_onElement(const gx::UIAccessibilityAction& action, const gx::Ref<gx::UIAccessibilityElement>& element) override;
    void finishAnimations() override;
    void setFrame(gx::CGRect frame) override;
    void setUserInterfaceStyle(gx::UIUserInterfaceStyle style) override;
    void setAccessibilityContrast(gx::UIAccessibilityContrast contrast) override;
    void setReducesMotion(bool reduces) override;
    bool tick(gx::NSTimeInterval time) override;
    void draw(gx::UIGraphicsContext& context) override;

    /// A pass of the run loop, in place of `NSRunLoop::runPass`.
    void runPass();
    /// The outcome of a dialog for files, before the application gets it.
    void noteFile(const UserFiles::Outcome& outcome);
    /// Marks the present frame: a replay draws a picture of it.
    void markPicture();

private:
    void note(const RecordedEvent& event);
    void note(RecordedEvent::Kind kind, bool isOn = false);
    void noteTouch(RecordedEvent::Kind kind, std::int64_t identifier, gx::CGPoint location, gx::NSTimeInterval time);

    gx::Ref<gx::UIWindowInput> window_;
    std::function<double()> clock_;
    std::function<void(const std::string&)> write_;
    int pictures_ = 0;
};

/// The user's files, with a line for each outcome.
class RecordedFiles : public UserFiles {
public:
    RecordedFiles(std::shared_ptr<UserFiles> files, const std::shared_ptr<EventRecorder>& recorder)
        : files_(std::move(files)), recorder_(recorder) {}

    void saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) override;
    void openText(const Done& done) override;

private:
    Done recorded(const Done& done) const;

    std::shared_ptr<UserFiles> files_;
    std::weak_ptr<EventRecorder> recorder_;
};

} // namespace gallery
