#pragma once

#include <functional>
#include <memory>

#include "Recording.h"
#include <GXUIPickers/UIWindow.h>

namespace gallery {

/// Plays a recording to the same rows, values and pictures, as fast as it can: time is the
/// recorded one.
///
/// The run loop is its own meanwhile: passes run where they were recorded. One player at a time.
class EventPlayer {
public:
    /// Returns nothing if the recording's page does not exist here.
    static std::unique_ptr<EventPlayer> playerOfStart(const RecordingStart& start);
    ~EventPlayer();
    EventPlayer(const EventPlayer&) = delete;
    EventPlayer& operator=(const EventPlayer&) = delete;

    const gx::Ref<MainScreen>& screen() const { return screen_; }
    const gx::Ref<gx::UIWindow>& window() const { return window_; }

    void play(const RecordedEvent& event);
    /// Everything; `picture` is called at each mark.
    void play(const Recording& recording, const std::function<void(const std::string& name)>& picture);

private:
    class Files;

    EventPlayer(const RecordingStart& start, gx::Ref<MainScreen> screen);
    void playInput(const RecordedEvent& event);
    void playSetting(const RecordedEvent& event);

    gx::Ref<MainScreen> screen_;
    gx::Ref<gx::UIWindow> window_;
    std::shared_ptr<Files> files_;
};

/// What a screen shows, as JSON: its page, everything that a screen reader finds on it, and the
/// values of the workout.
std::string valuesOfScreen(const MainScreen& screen);

} // namespace gallery
