// What the wheel's motion promises at any frame rate: one curve, no jumps, an end exactly on a row.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "WheelStage.h"

using namespace gx;

namespace {

constexpr int frameRates[] = {24, 30, 60, 90, 120, 144};

struct Script {
    const char* name;
    NSInteger row; // Of 1000.
    void (*write)(WheelStage& stage);
    NSInteger landing;
    double fastest; // Rows a second that the column ever runs.
};

/// 180 points in 0.15 s are 1200 a second, or 30 rows. When it is let go, at 0.25 s, the column has
/// followed 174 points, 4.35 rows, and runs 30 / 2.002 = 14.98 rows: from row 500 to 519.33, and so
/// to 519. At 0.5 s it stands at 510.347 and still makes 18.42 rows a second.
void flingOf30Rows(WheelStage& stage) { stage.fling(0.1, 0.15, 180); }

/// What happens without a finger happens at sixths of a second, where all of these frame rates have
/// a frame.
const Script scripts[] = {
    {"drag", 500,
     [](WheelStage& stage) {
         stage.drag(0.1, 0.6, 180);
         stage.letGo(1, 180);
     },
     504, 7.5},
    // One that lasts as long as it may starts a little faster, to arrive.
    {"fling", 500, flingOf30Rows, 519, 31},
    {"flings in succession", 500,
     [](WheelStage& stage) {
         flingOf30Rows(stage);
         stage.fling(0.5, 0.1, 120); // 510.347 + 114 / 40 + (30 + 18.42) / 2.002 = 537.38
     },
     537, 50},
    {"stop", 500,
     [](WheelStage& stage) {
         flingOf30Rows(stage);
         stage.touch(0.5);
         stage.letGo(0.8);
     },
     510, 31},
    {"bounce", 985, [](WheelStage& stage) { stage.fling(0.1, 0.1, 240); }, 999, 60},
    {"bounce at the first row", 14, [](WheelStage& stage) { stage.fling(0.1, 0.1, -240); }, 0, 60},
    // 3 · 12 / 0.3
    {"request", 500, [](WheelStage& stage) { stage.request(1.0 / 6, 512); }, 512, 120},
    {"notches", 500,
     [](WheelStage& stage) {
         stage.notch(1.0 / 6);
         stage.notch(1.0 / 3);
         stage.notch(1.0 / 3);
     },
     503, 43}, // 3 · 2 / 0.14
};
constexpr double longest = 4; // Seconds until each of them rests.

std::vector<WheelStage::Frame> play(const Script& script, int framesPerSecond) {
    WheelStage stage(1000, script.row);
    script.write(stage);
    return stage.play(framesPerSecond, longest);
}

/// Where a wheel of 100000 rows lands that stood on row 500, all from a fling of 30 rows a second
/// on.
double landingAfterFling(void (*write)(WheelStage&)) {
    WheelStage stage(100000, 500);
    flingOf30Rows(stage);
    write(stage);
    return stage.play(60, 6).back().position;
}

} // namespace

TEST(UIPickerViewMotion, ThePositionAtATimeIsTheSameAtEveryFrameRate) {
    for (const Script& script : scripts) {
        const auto reference = play(script, frameRates[0]);
        for (const int rate : frameRates) {
            const auto frames = play(script, rate);
            ASSERT_EQ(frames.size(), static_cast<std::size_t>(longest * rate) + 1);
            for (std::size_t sixth = 0; sixth <= static_cast<std::size_t>(longest * 6); ++sixth) {
                const WheelStage::Frame& expected = reference[sixth * 4]; // 24 / 6
                const WheelStage::Frame& frame = frames[sixth * static_cast<std::size_t>(rate) / 6];
                ASSERT_EQ(frame.time, expected.time);
                EXPECT_NEAR(frame.position, expected.position, 1e-9) << script.name << " at " << rate << " / s after " << frame.time;
            }
        }
    }
}

TEST(UIPickerViewMotion, EveryMovementEndsExactlyOnItsRowAtEveryFrameRate) {
    for (const Script& script : scripts) {
        for (const int rate : frameRates) {
            WheelStage stage(1000, script.row);
            script.write(stage);
            EXPECT_EQ(stage.play(rate, longest).back().position, static_cast<double>(script.landing)) << script.name << " at " << rate;
            EXPECT_FALSE(stage.wheel->isTurning());
            EXPECT_EQ(stage.wheel->selectedRowInComponent(0), script.landing);
        }
    }
}

TEST(UIPickerViewMotion, NoFrameShowsMoreWayThanTheSpeedAllows) {
    for (const Script& script : scripts) {
        for (const int rate : frameRates) {
            const auto frames = play(script, rate);
            for (std::size_t i = 1; i < frames.size(); ++i) {
                const double way = std::fabs(frames[i].position - frames[i - 1].position);
                // A bounce sits down from less than a hundredth of a row.
                EXPECT_LE(way, script.fastest / rate + 0.01) << script.name << " at " << rate << " / s after " << frames[i].time;
            }
        }
    }
}

TEST(UIPickerViewMotion, ACaughtColumnStopsWhereTheLastFrameShowedIt) {
    // Caught during a fling, over the last row, and during a request; with a frame, just before one
    // and just after.
    struct Grab {
        const Script* script;
        double time;
    };
    for (const Grab grab : {Grab{&scripts[1], 0.5}, Grab{&scripts[4], 0.4}, Grab{&scripts[6], 0.25}}) {
        for (const int rate : frameRates) {
            for (const double late : {-1.0, 0.0, 1.0, 2.0}) {
                const double time = grab.time + late / WheelStage::stepsPerSecond;
                WheelStage stage(1000, grab.script->row);
                grab.script->write(stage);
                stage.touch(time);
                const auto& frames = stage.play(rate, 1);
                const auto after =
                    std::find_if(frames.begin(), frames.end(), [time](const auto& frame) { return frame.time > time + 1e-9; });
                const double shown = (after - 1)->position;
                EXPECT_NE(shown, (after - 2)->position) << "it moved until then";
                for (auto frame = after; frame != frames.end(); ++frame) {
                    EXPECT_EQ(frame->position, shown) << grab.script->name << " at " << rate << " / s after " << frame->time;
                }
            }
        }
    }
}

TEST(UIPickerViewMotion, AColumnCaughtBeyondItsEndFollowsTheFingerFromThere) {
    WheelStage stage(1000, 985);
    scripts[4].write(stage);
    stage.drag(0.4, 0.2, 7); // One point further than the slop.
    const auto frames = stage.play(120, 0.6);
    const double caught = frames[48].position;
    EXPECT_GT(caught, 999.8);
    EXPECT_GT(frames.back().position, caught);
    EXPECT_LT(frames.back().position, caught + 1.0 / 40);
}

TEST(UIPickerViewMotion, FlingsInSuccessionAddUp) {
    // Alone the second one would run from 510.347 by 114 points and 14.98 rows to 528.18; with the
    // first one's 18.42 rows a second to 537.38.
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.1, 120); }), 537);
}

TEST(UIPickerViewMotion, AFingerThatHoldsAFlingForMoreThanAQuarterSecondStopsIt) {
    // 300 points in a quarter of a second: from 510.347 by 294 points to 541.88, or alone to
    // 532.68.
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.25, 300); }), 542);
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) {
                  stage.drag(0.5, 0.25, 300);
                  stage.letGo(0.75 + 1.0 / WheelStage::stepsPerSecond, 300);
              }),
              533);
}

TEST(UIPickerViewMotion, AFlingTheOtherWayTakesNothingFromTheOneItCatches) {
    // 510.347 − 2.85 − 14.98 = 492.51
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.1, -120); }), 493);
}

TEST(UIPickerViewMotion, AFingerTooSlowToFlingByARowGuidesTheColumnAlone) {
    // 81 points a second run 1.01 rows, 79 run 0.99: 510.347 by 10.2 points and by 2.025 + 18.42
    // rows a second to 520.82, or by 9.8 points and 0.99 rows to 511.58.
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.2, 16.2); }), 521);
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.2, 15.8); }), 512);
}

TEST(UIPickerViewMotion, AFlingAddsNothingOfARequestsSpeed) {
    WheelStage stage(1000, 500);
    stage.request(1.0 / 6, 512);
    // Caught at 512 − 12 · (4 / 9)³ = 510.947, and alone from there to 528.78.
    stage.fling(1.0 / 3, 0.1, 120);
    EXPECT_EQ(stage.play(60, longest).back().position, 529);
}

TEST(UIPickerViewMotion, FlingsAddUpTo250RowsASecond) {
    // Six flings of 100 rows a second, each 0.05 s long and caught 0.1 s after it was let go.
    WheelStage stage(100000, 500);
    for (int i = 0; i < 6; ++i) stage.fling(0.1 + 0.15 * i, 0.05, 200);
    const auto& frames = stage.play(120, 6);
    double fastest = 0;
    for (std::size_t i = 1; i < frames.size(); ++i) fastest = std::max(fastest, (frames[i].position - frames[i - 1].position) * 120);
    EXPECT_GT(fastest, 245);
    EXPECT_LE(fastest, 251);
    EXPECT_FALSE(stage.wheel->isTurning());
}

TEST(UIPickerViewMotion, AFingerThatIsFasterAloneKeepsItsSpeed) {
    // 800 points in 0.05 s are 400 rows a second: from 510.347 by 794 points and 199.80 rows to
    // 730.00, and no further.
    EXPECT_EQ(landingAfterFling([](WheelStage& stage) { stage.fling(0.5, 0.05, 800); }), 730);
}

TEST(UIPickerViewMotion, AFlingAgainstAnEndSwingsOverOnceAccordingToItsSpeed) {
    // 60 rows a second, 8.15 rows before the end: 43.68 are left there, which swing over by 43.68 /
    // (18 · e) = 0.8928 rows.
    const auto frames = play(scripts[4], 144);
    const auto turn = std::max_element(frames.begin(), frames.end(), [](const auto& a, const auto& b) { return a.position < b.position; });
    EXPECT_LE(turn->position, 999.8928);
    EXPECT_GT(turn->position, 999.88);
    for (auto frame = frames.begin() + 1; frame != frames.end(); ++frame) {
        const double way = frame->position - (frame - 1)->position;
        EXPECT_GE(frame > turn ? -way : way, 0) << "swings twice, after " << frame->time;
    }
    EXPECT_EQ(frames.back().position, 999);
}

TEST(UIPickerViewMotion, EvenTheWildestFlingSwingsOverAnEndByLittleMoreThanTwoRows) {
    // A million points a second; the finger itself takes the column half of the way. At most 100 /
    // (18 · e) = 2.0437 rows.
    for (const double way : {1.0, -1.0}) {
        WheelStage stage(10001, 5000);
        stage.fling(0.1, 0.1, way * 100000);
        double furthest = 0; // From the middle row.
        for (const WheelStage::Frame& frame : stage.play(144, 4)) furthest = std::max(furthest, way * (frame.position - 5000));
        EXPECT_LE(furthest, 5002.0437);
        EXPECT_GT(furthest, 5002);
        EXPECT_EQ(stage.position(), 5000 + way * 5000);
    }
}

TEST(UIPickerViewMotion, IrregularFramesShowTheSameCurve) {
    for (const Script& script : scripts) {
        const auto reference = play(script, 144);
        WheelStage stage(1000, script.row);
        script.write(stage);
        // At each sixth of a second, and between them at gaps of 1, 7 and 14 steps.
        const auto isFrame = [](long step) { return step % 120 == 0 || step * step % 37 < 4; };
        std::size_t compared = 0;
        for (const WheelStage::Frame& frame : stage.playWhere(isFrame, longest)) {
            const long step = std::lround(frame.time * WheelStage::stepsPerSecond);
            if (step % 5 != 0) continue; // 144 frames a second are 5 steps apart.
            ++compared;
            EXPECT_NEAR(frame.position, reference[static_cast<std::size_t>(step / 5)].position, 1e-9) << script.name << " " << frame.time;
        }
        EXPECT_GT(compared, 50U);
        EXPECT_EQ(stage.position(), static_cast<double>(script.landing));
    }
}

TEST(UIPickerViewMotion, TimeThatRunsBackwardRunsBackOnTheCurveAndNotBeforeItsStart) {
    WheelStage stage(1000, 500);
    flingOf30Rows(stage);
    const auto frames = stage.play(60, 1);
    const auto positionAt = [&](double time) {
        stage.window->tick(time);
        return stage.position();
    };
    EXPECT_NEAR(positionAt(WheelStage::clock(0.5)), frames[30].position, 1e-9);
    EXPECT_NEAR(positionAt(WheelStage::clock(0.2)), 504.35, 1e-9);
    EXPECT_NEAR(positionAt(WheelStage::clock(-0.5)), 504.35, 1e-9);
    EXPECT_NEAR(positionAt(std::numeric_limits<double>::quiet_NaN()), 504.35, 1e-9);
    EXPECT_NEAR(positionAt(WheelStage::clock(0.5)), frames[30].position, 1e-9);
    EXPECT_EQ(positionAt(1e9), 519);
    EXPECT_EQ(stage.source->notices.size(), 1U);
}

TEST(UIPickerViewMotion, AClockThatStartsAgainRunsAMovementAgainFromItsStart) {
    for (const double begin : {-1e6, 0.0, 990.0}) {
        WheelStage stage(1000, 500);
        flingOf30Rows(stage);
        const auto frames = stage.play(60, 1);
        const auto positionAt = [&](double time) {
            stage.window->tick(begin + time);
            return stage.position();
        };
        EXPECT_NEAR(positionAt(0), 504.35, 1e-9) << begin;
        // The finger had let go after a quarter of a second.
        EXPECT_NEAR(positionAt(0.5 - 0.25), frames[30].position, 1e-6) << begin;
        EXPECT_EQ(positionAt(9), 519) << begin;
        EXPECT_EQ(stage.source->notices.size(), 1U) << begin;
    }
}

TEST(UIPickerViewMotion, OneFrameAtAWildTimeDelaysNoMovement) {
    WheelStage stage(1000, 500);
    stage.notch(0);
    stage.play(60, 0);
    for (const double wild : {1e300, -1e300}) {
        stage.window->tick(wild);
        stage.window->tick(WheelStage::clock(1));
        stage.window->tick(WheelStage::clock(1.2));
        EXPECT_FALSE(stage.wheel->isTurning()) << wild;
        stage.window->scroll({UIScroll::Unit::Notches, 0, 1, WheelStage::clock(2), {160, 108}, false});
    }
    EXPECT_EQ(stage.source->notices.size(), 2U);
}

TEST(UIPickerViewMotion, AFlingCaughtBeforeItBeganHasNoSpeedToAdd) {
    WheelStage stage(1000, 500);
    flingOf30Rows(stage);
    stage.play(60, 0.5);
    // The finger's clock runs a second behind: 75 points in 1/16 s, 1200 a second, from 510.347 on,
    // alone to 527.06.
    stage.window->touchBegan_at_time(1, {160, 108}, WheelStage::clock(-0.5));
    stage.window->touchMoved_at_time(1, {160, 33}, WheelStage::clock(-0.4375));
    stage.window->touchEnded_at_time(1, {160, 33}, WheelStage::clock(-0.4375));
    stage.window->tick(WheelStage::clock(9));
    EXPECT_EQ(stage.position(), 527);
}
