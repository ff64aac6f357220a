// Spins a real wheel in a window and writes, as CSV, the position of its column in each frame and
// that of the formulas below; docs/motion.md shows the results. The formulas are written out here
// from the laws of motion and do not call the library. The largest deviations go to the standard
// error stream.

#include <algorithm>
#include <iomanip>
#include <iostream>

#include "WheelStage.h"

namespace {

const double drag = -1000 * std::log(0.998); // Of the speed, 0.998 is left after each millisecond.
// Points that a finger moves before the column follows.
constexpr double slop = 6;
constexpr double stiffness = 18;

/// A way in time that is made of pieces; each holds from its time on.
class Course {
public:
    using Piece = std::function<double(double)>;
    void from(double time, Piece piece) { pieces_[time] = std::move(piece); }
    double at(double time) const {
        // Frames and pieces come at whole steps; half a step tells them apart whatever the last
        // digits are.
        const auto next = pieces_.upper_bound(time + 0.5 / WheelStage::stepsPerSecond);
        return next == pieces_.begin() ? std::nan("") : std::prev(next)->second(time);
    }

private:
    std::map<double, Piece> pieces_;
};

/// Cubic: all the way in `duration`, and with no speed left.
Course::Piece ease(double time, double from, double to, double duration) {
    return [=](double now) {
        const double left = std::max(1 - (now - time) / duration, 0.0);
        return to + (from - to) * left * left * left;
    };
}

/// The column under a finger that moves evenly, and rests when its way is done.
Course::Piece finger(double time, double seconds, double points, double from) {
    return [=](double now) {
        const double way = points * std::clamp((now - time) / seconds, 0.0, 1.0);
        return from + std::max(way - slop, 0.0) / WheelStage::rowHeight;
    };
}

/// Slowed by drag and by a constant friction: v' = −drag · v − friction, until the speed is gone
/// after `duration`.
struct Fling {
    double time, from, speed, friction, duration;

    double speedAt(double now) const { return (speed + friction / drag) * std::exp(-drag * (now - time)) - friction / drag; }
    double positionAt(double now) const {
        const double elapsed = std::min(now - time, duration);
        return from + (speed + friction / drag) / drag * (1 - std::exp(-drag * elapsed)) - friction / drag * elapsed;
    }
    Course::Piece piece() const {
        return [*this](double now) { return positionAt(now); };
    }

    /// The fling over `way` rows that lasts so long: friction is what takes the speed's rest, and
    /// speed what the way needs.
    static Fling lasting(double duration, double time, double from, double way) {
        const double rest = std::exp(-drag * duration);
        const double frictionOfSpeed = drag * rest / (1 - rest);
        const double speed = way * drag / (1 - frictionOfSpeed * duration);
        return {time, from, speed, speed * frictionOfSpeed, duration};
    }
    /// From a finger's speed: to the row nearest to where drag alone would end, beginning with that
    /// speed if the fling is over no later than drag alone comes down to a quarter of a row a
    /// second, else lasting as long as that.
    static Fling of(double fingerSpeed, double time, double from) {
        const double way = std::round(from + fingerSpeed / drag) - from;
        double low = 0.22;
        double high = std::log(fingerSpeed / 0.25) / drag;
        for (int i = 0; i < 60; ++i) {
            const double middle = (low + high) / 2;
            (lasting(middle, time, from, way).speed > fingerSpeed ? low : high) = middle;
        }
        return lasting(high, time, from, way);
    }
};

/// By drag to the end at `end`, and over it on a critically damped spring.
Course::Piece bounce(double time, double from, double speed, double end) {
    const double impactSpeed = speed - drag * (end - from);
    const double impact = time + std::log(speed / impactSpeed) / drag;
    return [=](double now) {
        if (now < impact) return from + speed / drag * (1 - std::exp(-drag * (now - time)));
        const double since = now - impact;
        return since < 0.5 ? end + impactSpeed * since * std::exp(-stiffness * since) : end;
    };
}

struct Scenario {
    const char* name;
    double seconds;
    gx::NSInteger rows, row;
    std::function<void(WheelStage& stage, Course& course)> prepare;
};

/// A finger's 180 points in 0.15 s are 30 rows a second; the column has followed 174 of them when
/// it lets go.
Fling strongFling(WheelStage& stage, Course& course, double row) {
    stage.fling(0.1, 0.15, 180);
    course.from(0, finger(0.1, 0.15, 180, row));
    const Fling fling = Fling::of(30, 0.25, row + 4.35);
    course.from(0.25, fling.piece());
    return fling;
}

const Scenario scenarios[] = {
    {"drag", 1.4, 1000, 500,
     [](WheelStage& stage, Course& course) {
         stage.drag(0.1, 0.6, 180);
         stage.letGo(1, 180);
         course.from(0, finger(0.1, 0.6, 180, 500));
         course.from(1, ease(1, 504.35, 504, 0.22));
     }},
    {"fling", 2.6, 1000, 500, [](WheelStage& stage, Course& course) { strongFling(stage, course, 500); }},
    {"succession", 3.6, 1000, 500,
     [](WheelStage& stage, Course& course) {
         const Fling first = strongFling(stage, course, 500);
         stage.fling(0.5, 0.1, 120);
         const double caught = first.positionAt(0.5);
         course.from(0.5, finger(0.5, 0.1, 120, caught));
         course.from(0.6, Fling::of(30 + first.speedAt(0.5), 0.6, caught + 114 / WheelStage::rowHeight).piece());
     }},
    {"stop", 1.4, 1000, 500,
     [](WheelStage& stage, Course& course) {
         const Fling fling = strongFling(stage, course, 500);
         stage.touch(0.5);
         stage.letGo(0.8);
         const double caught = fling.positionAt(0.5);
         course.from(0.5, [caught](double) { return caught; });
         course.from(0.8, ease(0.8, caught, std::round(caught), 0.22));
     }},
    {"bounce", 1.2, 1000, 985,
     [](WheelStage& stage, Course& course) {
         stage.fling(0.1, 0.1, 240); // 60 rows a second
         course.from(0, finger(0.1, 0.1, 240, 985));
         course.from(0.2, bounce(0.2, 985 + 234 / WheelStage::rowHeight, 60, 999));
     }},
    {"request", 0.6, 1000, 500,
     [](WheelStage& stage, Course& course) {
         stage.request(0.1, 512);
         course.from(0, [](double) { return 500; });
         course.from(0.1, ease(0.1, 500, 512, 0.3));
     }},
    {"notches", 0.7, 1000, 500,
     [](WheelStage& stage, Course& course) {
         course.from(0, [](double) { return 500; });
         for (int i = 0; i < 5; ++i) {
             const double time = 0.1 + i / 15.0;
             stage.notch(time);
             course.from(time, ease(time, course.at(time), 501 + i, 0.14));
         }
     }},
};

} // namespace

int main() {
    std::cout << "scenario,frames per second,time,position,closed form\n" << std::fixed << std::setprecision(9);
    std::cerr << "largest deviations in rows at 30, 60 and 120 frames a second\n" << std::scientific << std::setprecision(1);
    for (const Scenario& scenario : scenarios) {
        std::cerr << std::left << std::setw(12) << scenario.name << std::right;
        for (const int framesPerSecond : {30, 60, 120}) {
            WheelStage stage(scenario.rows, scenario.row);
            Course course;
            scenario.prepare(stage, course);
            double largest = 0;
            for (const WheelStage::Frame& frame : stage.play(framesPerSecond, scenario.seconds)) {
                const double expected = course.at(frame.time);
                std::cout << scenario.name << ',' << framesPerSecond << ',' << frame.time << ',' << frame.position << ',' << expected
                          << '\n';
                // Also a position that cannot be told is a deviation.
                const double deviation = std::fabs(frame.position - expected);
                if (!(deviation <= largest)) largest = deviation;
            }
            std::cerr << std::setw(10) << largest;
        }
        std::cerr << '\n';
    }
    return 0;
}
