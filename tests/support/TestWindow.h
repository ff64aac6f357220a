#pragma once

#include <gtest/gtest.h>

#include <string>

#include "UIHost.h"
#include "UIWindow.h"

/// A window with a clock that tests turn by hand, and fingers to go with it.
class TestWindow {
public:
    explicit TestWindow(const gx::Ref<gx::UIView>& content) : window_(gx::create<gx::UIWindow>(content->frame())) {
        window_->addSubview(content);
        window_->tick(now);
    }

    gx::UIWindow& operator*() const { return *window_; }
    gx::UIWindow* operator->() const { return window_.get(); }
    const gx::Ref<gx::UIWindow>& ref() const { return window_; }

    double now = 1000;
    static constexpr double frame = 1.0 / 60;

    /// Ticks at sixty frames a second until `seconds` have passed.
    void run(double seconds) {
        const double end = now + seconds;
        while (now + frame < end) tick(frame);
        tick(end - now);
    }
    bool tick(double seconds) {
        now += seconds;
        return window_->tick(now);
    }
    /// Ticks until nothing moves; returns the seconds it took. Fails after a minute.
    double runUntilStill() {
        const double start = now;
        while (tick(frame)) {
            if (now - start > 60) {
                ADD_FAILURE() << "still moving after a minute";
                break;
            }
        }
        return now - start;
    }

    bool down(gx::CGPoint point, int finger = 1) { return window_->touchBegan_at_time(finger, point, now); }
    void move(gx::CGPoint point, int finger = 1) { window_->touchMoved_at_time(finger, point, now); }
    void up(gx::CGPoint point, int finger = 1) { window_->touchEnded_at_time(finger, point, now); }
    void tap(gx::CGPoint point) {
        down(point);
        tick(0.05);
        up(point);
    }
    /// Moves evenly, a frame a step, without coming down or letting go.
    void glide(gx::CGPoint from, gx::CGPoint to, int steps, int finger = 1) {
        for (int i = 1; i <= steps; ++i) {
            tick(frame);
            const double share = static_cast<double>(i) / steps;
            move({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share}, finger);
        }
    }
    /// Down, an even way, a rest long enough to have no speed, up.
    void drag(gx::CGPoint from, gx::CGPoint to, int steps = 20) {
        down(from);
        glide(from, to, steps);
        run(0.2);
        up(to);
    }
    /// As a drag, but let go at full speed.
    void fling(gx::CGPoint from, gx::CGPoint to, int steps) {
        down(from);
        glide(from, to, steps);
        up(to);
    }
    bool scrollNotches(gx::CGPoint point, double notches) {
        return window_->scroll({gx::UIScroll::Unit::Notches, 0, notches, now, point, false});
    }
    bool scrollPoints(gx::CGPoint point, double points, bool isFinished = false) {
        return window_->scroll({gx::UIScroll::Unit::Points, 0, points, now, point, isFinished});
    }
    bool press(gx::UIKey::Code code, unsigned modifiers = 0, bool isRepeat = false) {
        return window_->keyDown({code, {}, modifiers, isRepeat, now});
    }
    /// One key for each character of an ASCII text, a frame apart. Returns whether all were used.
    bool type(const std::string& text) {
        bool areUsed = true;
        for (const char character : text) {
            areUsed &= typeCharacter(std::string(1, character));
            tick(frame);
        }
        return areUsed;
    }
    bool typeCharacter(const std::string& character) { return window_->keyDown({gx::UIKey::Code::Character, character, 0, false, now}); }

private:
    gx::Ref<gx::UIWindow> window_;
};
