#pragma once

#include <cmath>
#include <functional>
#include <map>
#include <vector>

#include "UIWindow.h"
#include "WheelSource.h"

/// A wheel in a window that plays a script of fingers, notches and requests, once, at a frame rate,
/// and notes where its column stands in each frame. What the script does at the moment of a frame
/// sees the column as that frame found it, and is noted with that frame.
///
/// The wheel is 320 by 216 points with one column of rows 40 high. Times are in seconds from the
/// beginning.
class WheelStage {
public:
    /// The finest step of time: each of 24, 30, 60, 90, 120 and 144 frames a second is a whole
    /// number of them.
    static constexpr long stepsPerSecond = 720;
    static constexpr double rowHeight = 40;

    struct Frame {
        double time = 0;
        double position = 0; ///< in rows; row 3 sits in the middle at 3
    };

    WheelStage(gx::NSInteger rows, gx::NSInteger row) {
        source->rows = {rows};
        window->addSubview(wheel);
        window->tick(clock(0));
        wheel->selectRow_inComponent_animated(row, 0, false);
        window->tick(clock(0));
    }

    /// Times of the script are rounded to steps.
    void at(double time, std::function<void()> action) { script_.emplace(stepOf(time), std::move(action)); }
    void touch(double time) {
        at(time, [this, time] { window->touchBegan_at_time(1, centre, clock(time)); });
    }
    void letGo(double time, double pointsUp = 0) {
        at(time, [this, time, pointsUp] { window->touchEnded_at_time(1, {centre.x, centre.y - pointsUp}, clock(time)); });
    }
    /// A finger comes down and moves up evenly, a place in each step; a negative way goes down. It
    /// does not let go.
    void drag(double time, double seconds, double pointsUp) {
        touch(time);
        const long places = stepOf(seconds);
        for (long i = 1; i <= places; ++i) {
            const double share = static_cast<double>(i) / static_cast<double>(places);
            const double then = time + seconds * share;
            const gx::CGPoint place = {centre.x, centre.y - pointsUp * share};
            at(then, [this, then, place] { window->touchMoved_at_time(1, place, clock(then)); });
        }
    }
    /// As a drag, but let go at full speed.
    void fling(double time, double seconds, double pointsUp) {
        drag(time, seconds, pointsUp);
        letGo(time + seconds, pointsUp);
    }
    void request(double time, gx::NSInteger row) {
        at(time, [this, row] { wheel->selectRow_inComponent_animated(row, 0, true); });
    }
    void notch(double time) {
        at(time, [this, time] { window->scroll({gx::UIScroll::Unit::Notches, 0, 1, clock(time), centre, false}); });
    }

    const std::vector<Frame>& play(int framesPerSecond, double seconds) {
        const long stepsPerFrame = stepsPerSecond / framesPerSecond;
        return playWhere([stepsPerFrame](long step) { return step % stepsPerFrame == 0; }, seconds);
    }
    /// With a frame in each of the steps that are chosen.
    const std::vector<Frame>& playWhere(const std::function<bool(long step)>& isFrame, double seconds) {
        for (long step = 0; step <= stepOf(seconds); ++step) {
            const double time = static_cast<double>(step) / stepsPerSecond;
            const bool shows = isFrame(step);
            if (shows) window->tick(clock(time));
            const auto actions = script_.equal_range(step);
            for (auto entry = actions.first; entry != actions.second; ++entry) entry->second();
            if (!shows) continue;
            window->tick(clock(time));
            frames_.push_back({time, position()});
        }
        return frames_;
    }
    /// As the last frame has placed the row in the selection indicator.
    double position() const {
        const gx::NSInteger row = wheel->rowInSelectionIndicatorOfComponent(0);
        const gx::Ref<gx::UIView> view = wheel->viewForRow_forComponent(row, 0);
        if (!view) return std::nan("");
        const double middle = gx::CGRectGetMidY(wheel->convertRect_fromView(view->bounds(), view));
        return static_cast<double>(row) + (centre.y - middle) / rowHeight;
    }
    /// A window's time need not begin at 0.
    static double clock(double time) { return 1000 + time; }

    gx::Ref<WheelSource> source = gx::create<WheelSource>();
    gx::Ref<gx::UIPickerView> wheel = wheelWithSource(source);
    gx::Ref<gx::UIWindow> window = gx::create<gx::UIWindow>(wheel->frame());

private:
    static constexpr gx::CGPoint centre = {160, 108};
    static long stepOf(double time) { return std::lround(time * stepsPerSecond); }

    // Actions of one step keep the order in which they were written.
    std::multimap<long, std::function<void()>> script_;
    std::vector<Frame> frames_;
};
