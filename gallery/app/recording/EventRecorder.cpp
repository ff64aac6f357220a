#include "EventRecorder.h"

#include <algorithm>
#include <cmath>

#include "ElementPath.h"
#include "LineReader.h"
#include <GXUIPickers/NSRunLoop.h>

using namespace gx;

namespace gallery {

using Kind = RecordedEvent::Kind;

EventRecorder::EventRecorder(Ref<UIWindowInput> window, std::function<double()> clock, std::function<void(const std::string&)> write)
    : window_(std::move(window)), clock_(std::move(clock)), write_(std::move(write)) {}

// Each event is written before it is passed on, so that a recording has also the one that ends the
// program.

void EventRecorder::note(const RecordedEvent& event) { write_(event.line()); }

void EventRecorder::note(Kind kind, bool isOn) {
    RecordedEvent event;
    event.kind = kind;
    event.time = clock_();
    event.isOn = isOn;
    note(event);
}

void EventRecorder::noteTouch(Kind kind, std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    RecordedEvent event;
    event.kind = kind;
    event.time = time;
    event.finger = identifier;
    event.point = location;
    note(event);
}

bool EventRecorder::touchBegan_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    noteTouch(Kind::TouchBegan, identifier, location, time);
    return window_->touchBegan_at_time(identifier, location, time);
}

void EventRecorder::touchMoved_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    noteTouch(Kind::TouchMoved, identifier, location, time);
    window_->touchMoved_at_time(identifier, location, time);
}

void EventRecorder::touchEnded_at_time(std::int64_t identifier, CGPoint location, NSTimeInterval time) {
    noteTouch(Kind::TouchEnded, identifier, location, time);
    window_->touchEnded_at_time(identifier, location, time);
}

void EventRecorder::touchCancelled_at_time(std::int64_t identifier, NSTimeInterval time) {
    noteTouch(Kind::TouchCancelled, identifier, {}, time);
    window_->touchCancelled_at_time(identifier, time);
}

bool EventRecorder::scroll(const UIScroll& scroll) {
    RecordedEvent event;
    event.kind = Kind::Scroll;
    event.time = scroll.timestamp;
    event.point = scroll.locationInWindow;
    event.scroll = scroll;
    note(event);
    return window_->scroll(scroll);
}

void EventRecorder::pointerMoved(CGPoint location) {
    noteTouch(Kind::PointerMoved, 0, location, clock_());
    window_->pointerMoved(location);
}

void EventRecorder::pointerLeft() {
    note(Kind::PointerLeft);
    window_->pointerLeft();
}

bool EventRecorder::keyDown(const UIKey& key) {
    RecordedEvent event;
    event.kind = Kind::Key;
    event.time = key.timestamp;
    event.key = key;
    note(event);
    return window_->keyDown(key);
}

void EventRecorder::setReceivesKeys(bool receives) {
    note(Kind::ReceivesKeys, receives);
    window_->setReceivesKeys(receives);
}

void EventRecorder::takeFocusAway() {
    note(Kind::FocusTaken);
    window_->takeFocusAway();
}

void EventRecorder::performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) {
    RecordedEvent event;
    event.kind = Kind::Action;
    event.time = action.timestamp;
    event.action = action;
    // What lies beyond is far beyond the rows too. No number at all is a no-op and has no line.
    event.action.number = std::clamp(action.number, -LineReader::largestNumber, LineReader::largestNumber);
    if (element) event.element = ElementPath::ofElement(*element);
    if (!std::isnan(action.number)) note(event);
    window_->performAction_onElement(action, element);
}

void EventRecorder::finishAnimations() {
    note(Kind::AnimationsFinished);
    window_->finishAnimations();
}

void EventRecorder::setFrame(CGRect frame) {
    RecordedEvent event;
    event.kind = Kind::Size;
    event.time = clock_();
    event.size = frame.size;
    note(event);
    window_->setFrame(frame);
}

void EventRecorder::setUserInterfaceStyle(UIUserInterfaceStyle style) {
    note(Kind::Look, style == UIUserInterfaceStyle::Dark);
    window_->setUserInterfaceStyle(style);
}

void EventRecorder::setAccessibilityContrast(UIAccessibilityContrast contrast) {
    note(Kind::Contrast, contrast == UIAccessibilityContrast::High);
    window_->setAccessibilityContrast(contrast);
}

void EventRecorder::setReducesMotion(bool reduces) {
    note(Kind::Motion, reduces);
    window_->setReducesMotion(reduces);
}

bool EventRecorder::tick(NSTimeInterval time) {
    RecordedEvent event;
    event.kind = Kind::Tick;
    event.time = time;
    note(event);
    return window_->tick(time);
}

void EventRecorder::draw(UIGraphicsContext& context) {
    note(Kind::Draw);
    window_->draw(context);
}

void EventRecorder::runPass() {
    note(Kind::Pass);
    NSRunLoop::mainRunLoop()->runPass();
}

void EventRecorder::noteFile(const UserFiles::Outcome& outcome) {
    RecordedEvent event;
    event.kind = Kind::File;
    event.time = clock_();
    event.file = outcome;
    note(event);
}

void EventRecorder::markPicture() {
    RecordedEvent event;
    event.kind = Kind::Picture;
    event.time = clock_();
    event.name = "mark-" + std::to_string(++pictures_);
    note(event);
}

UserFiles::Done RecordedFiles::recorded(const Done& done) const {
    return [recorder = recorder_, done](const Outcome& outcome) {
        if (const auto present = recorder.lock()) present->noteFile(outcome);
        done(outcome);
    };
}

void RecordedFiles::saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) {
    files_->saveText_name(text, suggestedName, recorded(done));
}

void RecordedFiles::openText(const Done& done) { files_->openText(recorded(done)); }

} // namespace gallery
