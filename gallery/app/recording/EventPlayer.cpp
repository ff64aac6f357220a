#include "EventPlayer.h"

#include <nlohmann/json.hpp>

#include "ElementPath.h"
#include "WorkoutFile.h"
#include <GXUIPickers/NSRunLoop.h>

using namespace gx;

namespace gallery {

using Kind = RecordedEvent::Kind;

/// Dialogs that end where they did in the recording.
class EventPlayer::Files : public UserFiles {
public:
    void saveText_name(const std::string&, const std::string&, const Done& done) override { done_ = done; }
    void openText(const Done& done) override { done_ = done; }
    void finish(const Outcome& outcome) {
        if (const Done done = std::exchange(done_, nullptr)) done(outcome);
    }

private:
    Done done_;
};

std::unique_ptr<EventPlayer> EventPlayer::playerOfStart(const RecordingStart& start) {
    Ref<MainScreen> screen = start.makeScreen();
    if (!screen) return nullptr;
    return std::unique_ptr<EventPlayer>(new EventPlayer(start, std::move(screen)));
}

EventPlayer::EventPlayer(const RecordingStart& start, Ref<MainScreen> screen)
    : screen_(std::move(screen)), window_(create<UIWindow>(CGRect{{}, start.size})), files_(std::make_shared<Files>()) {
    NSRunLoop::mainRunLoop()->setWakeHandler(nullptr);
    window_->setUserInterfaceStyle(start.isDark ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
    window_->addSubview(screen_);
    screen_->setFrame(window_->bounds());
    screen_->entry()->setFiles(files_);
}

EventPlayer::~EventPlayer() { screen_->entry()->setFiles(nullptr); }

void EventPlayer::play(const Recording& recording, const std::function<void(const std::string& name)>& picture) {
    for (const RecordedEvent& event : recording.events) {
        play(event);
        if (event.kind == Kind::Picture && picture) picture(event.name);
    }
}

void EventPlayer::play(const RecordedEvent& event) {
    switch (event.kind) {
    case Kind::Tick:
        window_->tick(event.time);
        break;
    case Kind::Draw:
        window_->layoutIfNeeded(); // All that drawing does to the views.
        break;
    case Kind::Pass:
        NSRunLoop::mainRunLoop()->runPass();
        break;
    case Kind::File:
        files_->finish(event.file);
        break;
    case Kind::Picture:
        break;
    default:
        playSetting(event);
        playInput(event);
        break;
    }
}

void EventPlayer::playSetting(const RecordedEvent& event) {
    switch (event.kind) {
    case Kind::Size:
        window_->setFrame({{}, event.size});
        screen_->setFrame(window_->bounds());
        break;
    case Kind::Look:
        window_->setUserInterfaceStyle(event.isOn ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
        break;
    case Kind::Contrast:
        window_->setAccessibilityContrast(event.isOn ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal);
        break;
    case Kind::Motion:
        window_->setReducesMotion(event.isOn);
        break;
    case Kind::ReceivesKeys:
        window_->setReceivesKeys(event.isOn);
        break;
    case Kind::FocusTaken:
        window_->takeFocusAway();
        break;
    case Kind::AnimationsFinished:
        window_->finishAnimations();
        break;
    default:
        break;
    }
}

void EventPlayer::playInput(const RecordedEvent& event) {
    switch (event.kind) {
    case Kind::TouchBegan:
        window_->touchBegan_at_time(event.finger, event.point, event.time);
        break;
    case Kind::TouchMoved:
        window_->touchMoved_at_time(event.finger, event.point, event.time);
        break;
    case Kind::TouchEnded:
        window_->touchEnded_at_time(event.finger, event.point, event.time);
        break;
    case Kind::TouchCancelled:
        window_->touchCancelled_at_time(event.finger, event.time);
        break;
    case Kind::Scroll: {
        UIScroll scroll = event.scroll;
        scroll.timestamp = event.time;
        scroll.locationInWindow = event.point;
        window_->scroll(scroll);
        break;
    }
    case Kind::PointerMoved:
        window_->pointerMoved(event.point);
        break;
    case Kind::PointerLeft:
        window_->pointerLeft();
        break;
    case Kind::Action: {
        UIAccessibilityAction action = event.action;
        action.timestamp = event.time;
        window_->performAction_onElement(action, ElementPath::elementAt(*window_, event.element));
        break;
    }
    case Kind::Key: {
        UIKey key = event.key;
        key.timestamp = event.time;
        window_->keyDown(key);
        break;
    }
    default:
        break;
    }
}

std::string valuesOfScreen(const MainScreen& screen) {
    using Json = nlohmann::ordered_json;
    const auto textOrNull = [](const std::optional<std::string>& text) { return text ? Json(*text) : Json(nullptr); };
    Json elements = Json::array();
    const Ref<UIWindow> window = screen.window();
    for (const Ref<UIAccessibilityElement>& element : window ? window->accessibilityElements() : UIAccessibilityElements()) {
        Json found = {{"label", textOrNull(element->label())}};
        if (element->value()) found["value"] = textOrNull(element->value());
        if (const auto index = element->index()) {
            found["index"] = *index;
            found["count"] = element->count();
        }
        elements.push_back(std::move(found));
    }
    const Json workout = Json::parse(WorkoutFile::textOfWorkout(screen.entry()->workout()), nullptr, /*allow_exceptions=*/false);
    const Json whole = {{"page", screen.pageNames()[screen.pageIndex()]}, {"elements", elements}, {"workout", workout["workout"]}};
    return whole.dump(2, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace) + "\n";
}

} // namespace gallery
