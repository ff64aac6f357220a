#include <array>
#include <cmath>
#include <functional>
#include <limits>

#include "FocusableView.h"
#include "RecordingCanvas.h"
#include "TestWindow.h"
#include "UIPickerView.h"
#include "UIScrollView.h"

using namespace gx;

namespace {

/// Notes what subclasses are told.
class NotingScroll : public UIScrollView {
public:
    int moves = 0;
    int drags = 0;
    int presses = 0;
    std::vector<bool> taps;
    std::function<void()> whenPressEnds;

protected:
    void scrollViewDidScroll() override { ++moves; }
    void scrollViewWillBeginDragging() override { ++drags; }
    void pressBegan(CGPoint, NSTimeInterval) override { ++presses; }
    void pressEnded(bool isTap, NSTimeInterval) override {
        taps.push_back(isTap);
        if (whenPressEnds) whenPressEnds();
    }
};

/// 300 by 400 points that show 1000: the highest offset is 600.
struct Scrolling : testing::Test {
    Ref<NotingScroll> scroll = create<NotingScroll>(CGRectMake(0, 0, 300, 400));
    Ref<UIView> content = create<UIView>(CGRectMake(0, 0, 300, 1000));
    TestWindow window{scroll};
    static constexpr CGPoint middle = {150, 200};

    Scrolling() {
        scroll->addSubview(content);
        scroll->setContentSize({300, 1000});
        window.tick(0);
    }
    CGFloat offset() const { return scroll->contentOffset().y; }
    void setOffset(CGFloat y) { scroll->setContentOffset({0, y}); }
};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST_F(Scrolling, the_content_is_drawn_converted_and_hit_where_it_has_moved_to) {
    const auto low = create<UIView>(CGRectMake(10, 500, 50, 50));
    content->addSubview(low);
    setOffset(300);
    EXPECT_EQ(content->frame(), CGRectMake(0, 0, 300, 1000)) << "frames stay";
    EXPECT_EQ(window->convertRect_fromView(low->bounds(), low), CGRectMake(10, 200, 50, 50));
    EXPECT_EQ(window->hitTest({10, 200}), low);
    EXPECT_EQ(window->hitTest({10, 199}), content);
    EXPECT_EQ(low->convertPointFromWindow({12, 203}), CGPointMake(2, 3));
    low->setBackgroundColor(UIColor::blackColor());
    RecordingCanvas canvas;
    scroll->renderInContext(canvas);
    EXPECT_EQ(canvas.calls[1], "clip 0 0 300 400");
    EXPECT_TRUE(canvas.calls[2].starts_with("translate ") && canvas.calls[2].ends_with(" -300")) << canvas.calls[2];
    EXPECT_EQ(canvas.painted()[0], "fill 0 0 50 50 with 0 0 0 1");
}

TEST_F(Scrolling, an_offset_is_held_to_what_there_is) {
    EXPECT_EQ(scroll->highestOffset(), 600);
    setOffset(600);
    EXPECT_EQ(offset(), 600);
    setOffset(601);
    EXPECT_EQ(offset(), 600);
    setOffset(-1);
    EXPECT_EQ(offset(), 0);
    scroll->setContentOffset({70, 50});
    EXPECT_EQ(scroll->contentOffset(), CGPointMake(0, 50)) << "nothing moves sideways";
    scroll->setBounds(CGRectMake(0, 900, 300, 400));
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, less_content_and_more_room_hold_the_offset) {
    setOffset(600);
    scroll->setContentSize({300, 900});
    EXPECT_EQ(offset(), 500);
    scroll->setFrame(CGRectMake(0, 0, 300, 500));
    EXPECT_EQ(offset(), 400);
    scroll->setBounds(CGRectMake(0, 400, 300, 600));
    EXPECT_EQ(offset(), 300);
    scroll->setContentSize({300, -5});
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(scroll->contentSize(), CGSizeMake(300, 0));
}

TEST_F(Scrolling, places_and_sizes_that_are_no_numbers_are_ignored) {
    setOffset(100);
    for (const double bad : {notANumber, infinity, -infinity}) {
        setOffset(bad);
        scroll->setContentOffset_animated({0, bad}, true);
        scroll->setContentSize({300, bad});
        scroll->setContentSize({bad, 300});
        scroll->scrollRectToVisible_animated(CGRectMake(0, bad, 10, 10), false);
        scroll->scrollRectToVisible_animated(CGRectMake(0, 500, 10, bad), false);
        scroll->setBounds(CGRectMake(0, bad, 300, 400));
        EXPECT_TRUE(window.scrollPoints(middle, bad));
        EXPECT_TRUE(window.scrollNotches(middle, bad));
        window.down({150, bad});
        window.down(middle);
        window.move({150, bad});
        window.up({150, bad});
    }
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
    EXPECT_EQ(scroll->contentSize(), CGSizeMake(300, 1000));
}

TEST_F(Scrolling, a_finger_within_the_slop_scrolls_nothing_and_is_a_tap) {
    window.drag(middle, {150, 192}, 1);
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(scroll->drags, 0);
    EXPECT_EQ(scroll->taps, std::vector<bool>{true});
}

TEST_F(Scrolling, a_finger_one_point_beyond_the_slop_scrolls_from_there_and_taps_nothing) {
    window.down(middle);
    window.move({150, 191});
    EXPECT_TRUE(scroll->isDragging());
    EXPECT_EQ(scroll->drags, 1);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
    EXPECT_EQ(offset(), 0) << "without a jump";
    window.move({150, 91});
    EXPECT_EQ(offset(), 100);
    window.run(0.2);
    window.up({150, 91});
    EXPECT_FALSE(scroll->isDragging());
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
    EXPECT_EQ(scroll->taps.size(), 1U);
    EXPECT_EQ(scroll->drags, 1);
    EXPECT_EQ(scroll->moves, 1);
}

TEST_F(Scrolling, beyond_an_end_the_content_follows_less_and_less_and_springs_back) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310}); // 100 points beyond the start, of a view of 400: 400 · (1 − 1 / (0.55 · 100 / 400 + 1)) = 48.35
    EXPECT_NEAR(offset(), -48.3516, 1e-3);
    window.run(0.2);
    window.up({150, 310});
    EXPECT_TRUE(scroll->isDecelerating());
    EXPECT_NEAR(window.runUntilStill(), UIScrollMotion::snapDuration, 0.05);
    EXPECT_EQ(offset(), 0);
    setOffset(600);
    window.down(middle);
    window.move({150, 190});
    window.move({150, 90});
    EXPECT_NEAR(offset(), 648.3516, 1e-3);
    (*window).touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, a_finger_that_comes_back_from_beyond_an_end_finds_the_content_where_it_was) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 350});
    window.move({150, 180});
    EXPECT_NEAR(offset(), 30, 1e-9);
}

TEST_F(Scrolling, a_cancelled_touch_stays_where_it_is) {
    window.down(middle);
    window.glide(middle, {150, 100}, 10);
    const CGFloat before = offset();
    EXPECT_EQ(before, 90); // Ten points a step: the first is within the slop no more.
    (*window).touchCancelled_at_time(1, window.now);
    window.runUntilStill();
    EXPECT_EQ(offset(), before);
}

TEST_F(Scrolling, a_fling_runs_as_far_as_its_speed_carries_it) {
    scroll->setContentSize({300, 100000});
    // 20 points a frame are 1200 a second; the drag of 0.998 a millisecond stops them after 1200 / 2.002002 = 599.4.
    window.fling({150, 300}, {150, 200}, 5);
    const CGFloat released = offset();
    EXPECT_EQ(released, 80);
    EXPECT_TRUE(scroll->isDecelerating());
    window.runUntilStill();
    EXPECT_NEAR(offset(), 80 + 599.4, 0.01);
    EXPECT_FALSE(scroll->isDecelerating());
}

TEST_F(Scrolling, a_fling_is_the_same_at_any_frame_rate) {
    // Places after a fifth, half a second and one second, from windows that tick 30, 60 and 120 times a second.
    std::array<std::array<CGFloat, 3>, 3> places{};
    const std::array<int, 3> rates = {30, 60, 120};
    for (std::size_t i = 0; i < rates.size(); ++i) {
        const auto view = create<UIScrollView>(CGRectMake(0, 0, 300, 400));
        view->setContentSize({300, 1400}); // It reaches the end with some speed left.
        TestWindow other(view);
        other.fling({150, 350}, {150, 200}, 5);
        const std::array<int, 3> shares = {5, 2, 1};
        int ticks = 0;
        for (std::size_t k = 0; k < shares.size(); ++k) {
            for (; ticks < rates[i] / shares[k]; ++ticks) other.tick(1.0 / rates[i]);
            places[i][k] = view->contentOffset().y;
        }
        other.runUntilStill();
        EXPECT_GT(places[i][0], 300);
    }
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(places[0][k], places[1][k], 1e-6);
        EXPECT_NEAR(places[0][k], places[2][k], 1e-6);
    }
}

TEST_F(Scrolling, a_fling_against_an_end_swings_over_once_and_rests_exactly_there) {
    window.fling({150, 300}, {150, 200}, 2); // 3000 points a second run 1500, far beyond 600.
    CGFloat furthest = 0;
    while (window.tick(TestWindow::frame)) furthest = std::max(furthest, offset());
    EXPECT_GT(furthest, 605);
    EXPECT_LT(furthest, 700);
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, a_finger_stops_what_moves_and_is_no_tap) {
    window.fling({150, 300}, {150, 200}, 5);
    window.run(0.1);
    scroll->taps.clear();
    scroll->presses = 0;
    const CGFloat before = offset();
    window.down(middle);
    window.run(0.5);
    EXPECT_EQ(offset(), before);
    window.up(middle);
    window.runUntilStill();
    EXPECT_EQ(offset(), before);
    EXPECT_EQ(scroll->presses, 0);
    EXPECT_TRUE(scroll->taps.empty());
}

TEST_F(Scrolling, a_finger_that_stops_a_swing_beyond_the_end_lets_it_spring_back) {
    window.fling({150, 300}, {150, 200}, 2);
    while (offset() <= 600) window.tick(TestWindow::frame);
    window.down(middle);
    const CGFloat beyond = offset();
    window.run(0.3);
    EXPECT_EQ(offset(), beyond);
    window.up(middle);
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, a_second_finger_is_ignored) {
    window.down(middle, 1);
    window.down(middle, 2);
    window.move({150, 100}, 2);
    window.up({150, 100}, 2);
    EXPECT_EQ(offset(), 0);
    window.move({150, 190}, 1);
    window.move({150, 140}, 1);
    EXPECT_EQ(offset(), 50);
}

TEST_F(Scrolling, content_that_fits_stays_where_it_is) {
    scroll->setContentSize({300, 400});
    EXPECT_EQ(scroll->highestOffset(), 0);
    window.fling({150, 300}, {150, 100}, 4);
    EXPECT_EQ(offset(), 0);
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(window.scrollNotches(middle, 1)) << "and the mouse wheel is someone else's";
    scroll->setContentSize({300, 401});
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_EQ(offset(), 1);
}

TEST_F(Scrolling, notches_and_points_stop_at_the_ends_and_are_taken_there_too) {
    EXPECT_TRUE(window.scrollNotches(middle, 2));
    EXPECT_EQ(offset(), 96);
    EXPECT_TRUE(window.scrollPoints(middle, -95.5));
    EXPECT_EQ(offset(), 0.5);
    EXPECT_TRUE(window.scrollPoints(middle, -1));
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(window.scrollNotches(middle, -1));
    EXPECT_TRUE(window.scrollNotches(middle, 1000));
    EXPECT_EQ(offset(), 600);
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_TRUE(window.scrollPoints(middle, 0, true));
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, what_goes_sideways_is_left_to_others) {
    const auto scrollBy = [this](CGFloat x, CGFloat y, UIScroll::Unit unit = UIScroll::Unit::Points) {
        return window->scroll({unit, x, y, window.now, middle, false});
    };
    EXPECT_FALSE(scrollBy(1, 0));
    EXPECT_FALSE(scrollBy(1, 0, UIScroll::Unit::Notches));
    EXPECT_FALSE(scrollBy(-10.5, 10));
    EXPECT_EQ(offset(), 0);
    EXPECT_TRUE(scrollBy(-10, 10));
    EXPECT_EQ(offset(), 10);
}

TEST_F(Scrolling, under_a_finger_the_mouse_wheel_moves_nothing) {
    window.down(middle);
    EXPECT_TRUE(window.scrollNotches(middle, 1));
    EXPECT_EQ(offset(), 0);
}

TEST_F(Scrolling, the_outer_of_two_scrolls_where_the_inner_has_nothing_to_scroll) {
    const auto inner = create<UIScrollView>(CGRectMake(0, 0, 300, 400));
    content->addSubview(inner);
    window.scrollNotches(middle, 1);
    EXPECT_EQ(offset(), 48);
    inner->setContentSize({300, 500});
    window.scrollNotches(middle, 1);
    EXPECT_EQ(offset(), 48);
    EXPECT_EQ(inner->contentOffset().y, 48);
}

TEST_F(Scrolling, an_animated_request_takes_its_time_and_arrives_exactly) {
    scroll->setContentOffset_animated({0, 333}, true);
    EXPECT_EQ(offset(), 0);
    window.tick(TestWindow::frame); // Its clock starts with the first frame.
    window.run(0.15);
    EXPECT_NEAR(offset(), 333 * 0.875, 1e-6); // Half the time leaves an eighth of the way.
    EXPECT_FALSE(scroll->isDecelerating());
    window.runUntilStill();
    EXPECT_EQ(offset(), 333);
}

TEST_F(Scrolling, without_a_window_requests_and_strokes_arrive_at_once) {
    scroll->setContentOffset_animated({0, 500}, true);
    window.tick(0);
    scroll->removeFromSuperview();
    EXPECT_EQ(offset(), 500) << "what was on its way";
    scroll->setContentOffset_animated({0, 200}, true);
    EXPECT_EQ(offset(), 200);
}

TEST_F(Scrolling, a_view_that_leaves_its_window_forgets_the_finger) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    EXPECT_LT(offset(), 0);
    scroll->removeFromSuperview();
    EXPECT_EQ(offset(), 0);
    EXPECT_FALSE(scroll->isDragging());
    window->addSubview(scroll);
    window.down(middle, 2);
    window.move({150, 190}, 2);
    window.move({150, 150}, 2);
    EXPECT_EQ(offset(), 40);
}

TEST_F(Scrolling, a_request_ends_the_drag_that_it_meets) {
    window.down(middle);
    window.move({150, 190});
    window.move({150, 100});
    setOffset(300);
    EXPECT_FALSE(scroll->isDragging());
    window.move({150, 50});
    EXPECT_EQ(offset(), 300);
}

TEST_F(Scrolling, a_request_for_the_present_place_leaves_the_finger_alone_and_stops_a_glide) {
    scroll->setContentSize({300, 100000});
    window.down(middle);
    window.move({150, 190});
    window.move({150, 100});
    setOffset(90);
    EXPECT_TRUE(scroll->isDragging());
    window.move({150, 50});
    EXPECT_EQ(offset(), 140);
    window.run(0.2);
    window.up({150, 50});

    scroll->taps.clear();
    window.down(middle);
    scroll->setContentOffset_animated({0, 140}, true);
    window.up(middle);
    EXPECT_EQ(scroll->taps, std::vector<bool>{true}) << "so does a tap";

    window.fling({150, 300}, {150, 200}, 5);
    window.run(0.1);
    const CGFloat present = offset();
    scroll->setContentOffset_animated({0, present}, true);
    window.tick(TestWindow::frame);
    EXPECT_FALSE(window.tick(TestWindow::frame)) << "there is no way to go";
    EXPECT_EQ(offset(), present);
}

TEST_F(Scrolling, a_rectangle_is_shown_with_the_shortest_way) {
    const auto show = [this](CGFloat y, CGFloat height) {
        scroll->scrollRectToVisible_animated(CGRectMake(0, y, 10, height), false);
        return offset();
    };
    EXPECT_EQ(show(0, 400), 0);
    EXPECT_EQ(show(1, 400), 1);
    EXPECT_EQ(show(500, 50), 150);
    EXPECT_EQ(show(150, 50), 150);
    EXPECT_EQ(show(149, 50), 149);
    EXPECT_EQ(show(200, 401), 200) << "the top of what is higher than the view";
    EXPECT_EQ(show(50, 500), 50);
    EXPECT_EQ(show(990, 50), 600);
}

TEST_F(Scrolling, a_bar_tells_where_the_content_stands) {
    RecordingCanvas canvas;
    scroll->renderInContext(canvas);
    // 160 of the 400 points are the share that is shown; the bar runs from 4 to 396.
    ASSERT_EQ(canvas.painted().size(), 1U);
    EXPECT_TRUE(canvas.painted()[0].starts_with("fill 292 4 4 160 ")) << canvas.painted()[0];
    setOffset(600);
    canvas.calls.clear();
    scroll->renderInContext(canvas);
    EXPECT_TRUE(canvas.painted()[0].starts_with("fill 292 836 4 160 ")) << canvas.painted()[0]; // 600 + 396 − 160
    scroll->setContentSize({300, 400});
    canvas.calls.clear();
    scroll->renderInContext(canvas);
    EXPECT_TRUE(canvas.painted().empty());
}

TEST_F(Scrolling, less_content_ends_a_movement_beyond_it) {
    scroll->setContentOffset_animated({0, 600}, true);
    window.tick(TestWindow::frame);
    window.run(0.15);
    scroll->setContentSize({300, 500});
    EXPECT_EQ(offset(), 100);
    window.runUntilStill();
    EXPECT_EQ(offset(), 100);
}

TEST_F(Scrolling, what_the_focus_goes_to_comes_into_sight) {
    const auto low = create<UIView>(CGRectMake(10, 500, 50, 50));
    content->addSubview(low);
    low->revealDescendant(low->bounds());
    window.runUntilStill();
    EXPECT_EQ(offset(), 150); // Its lower edge at the lower edge.
    low->revealDescendant(low->bounds());
    EXPECT_FALSE(window.tick(0));
    EXPECT_EQ(offset(), 150);
}

TEST(UIScrollView, clips_its_content_also_when_it_comes_from_an_interface) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 30, 40), "frame");
    const auto scroll = create<UIScrollView>(coder);
    EXPECT_EQ(scroll->frame(), CGRectMake(1, 2, 30, 40));
    EXPECT_TRUE(scroll->clipsToBounds());
}

TEST_F(Scrolling, content_that_shrinks_below_a_finger_gives_way_as_beyond_an_end) {
    window.down({150, 300});
    window.glide({150, 300}, {150, 190}, 11);
    const CGFloat pulled = offset();
    ASSERT_GT(pulled, 90);
    scroll->setContentSize({300, 450}); // The highest offset is 50 now.
    EXPECT_GT(offset(), 50) << "the finger still pulls";
    EXPECT_LT(offset(), pulled) << "but not as far";
    window.up({150, 190});
    window.runUntilStill();
    EXPECT_EQ(offset(), 50);
}

TEST_F(Scrolling, a_finger_whose_view_goes_is_forgotten) {
    const auto label = create<UIView>(CGRectMake(0, 0, 300, 300));
    content->addSubview(label);
    window.down(middle, 1);
    window.glide(middle, {150, 100}, 10, 1);
    EXPECT_TRUE(scroll->isDragging());
    label->removeFromSuperview();
    EXPECT_FALSE(scroll->isDragging());
    const CGFloat before = offset();
    window.down(middle, 2);
    window.glide(middle, {150, 100}, 10, 2);
    EXPECT_GT(offset(), before);
    window.up({150, 100}, 1); // Nobody's any more.
    EXPECT_TRUE(scroll->isDragging());
}

TEST_F(Scrolling, who_is_around_it_shows_the_place_where_a_revealed_view_will_be) {
    // 300 by 200 points that show this one, 400 high, at the end of 800.
    const auto outer = create<UIScrollView>(CGRectMake(0, 0, 300, 200));
    const auto low = create<UIView>(CGRectMake(10, 900, 50, 50));
    content->addSubview(low);
    scroll->removeFromSuperview();
    scroll->setFrame(CGRectMake(0, 400, 300, 400));
    outer->addSubview(scroll);
    outer->setContentSize({300, 800});
    TestWindow around(outer);
    low->revealDescendant(low->bounds());
    around.runUntilStill();
    EXPECT_EQ(offset(), 550);                 // Its lower edge, 950, at the lower edge.
    EXPECT_EQ(outer->contentOffset().y, 600); // Which lies at 800.
    EXPECT_EQ(CGRectGetMaxY(around->convertRect_fromView(low->bounds(), low)), 200);
}

TEST_F(Scrolling, keys_that_nothing_inside_has_used_scroll) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    content->addSubview(field);
    ASSERT_TRUE(field->becomeFirstResponder());
    const auto offsetAfter = [this](UIKey::Code code) {
        EXPECT_TRUE(window.press(code));
        window.runUntilStill();
        return offset();
    };
    EXPECT_EQ(offsetAfter(UIKey::Code::Down), 48);
    EXPECT_EQ(offsetAfter(UIKey::Code::PageDown), 400); // 400 less a notch further.
    EXPECT_EQ(offsetAfter(UIKey::Code::Up), 352);
    EXPECT_EQ(offsetAfter(UIKey::Code::PageUp), 0);
    EXPECT_EQ(offsetAfter(UIKey::Code::End), 600);
    EXPECT_EQ(offsetAfter(UIKey::Code::Down), 600);
    EXPECT_EQ(offsetAfter(UIKey::Code::Home), 0);
    EXPECT_FALSE(window.press(UIKey::Code::Right));
    EXPECT_FALSE(window.press(UIKey::Code::Down, UIKey::Control));
    EXPECT_EQ(offset(), 0);
}

TEST_F(Scrolling, hidden_while_it_glides_it_arrives_and_is_still_when_it_comes_back) {
    scroll->setContentSize({300, 100000});
    window.fling({150, 300}, {150, 200}, 5); // From 80 on, 599.4 further.
    window.run(0.1);
    scroll->setHidden(true);
    EXPECT_FALSE(scroll->isDecelerating());
    EXPECT_NEAR(offset(), 679.4, 0.01);
    const CGFloat arrived = offset();
    scroll->setHidden(false);
    window.runUntilStill();
    EXPECT_EQ(offset(), arrived);
}

TEST_F(Scrolling, what_springs_back_is_there_at_once_when_a_view_above_is_hidden) {
    const auto page = create<UIView>(CGRectMake(0, 0, 300, 400));
    window->addSubview(page);
    page->addSubview(scroll);
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    window.up({150, 310});
    ASSERT_LT(offset(), 0);
    page->setHidden(true);
    EXPECT_EQ(offset(), 0);
}

TEST_F(Scrolling, in_a_window_that_settles_a_request_arrives) {
    scroll->setContentOffset_animated({0, 333}, true);
    window.tick(TestWindow::frame);
    window->finishAnimations();
    EXPECT_EQ(offset(), 333);
    window.tick(TestWindow::frame);
    EXPECT_FALSE(window.tick(TestWindow::frame));
}

TEST_F(Scrolling, hidden_under_a_finger_it_forgets_the_finger_at_the_nearest_end) {
    window.down(middle);
    window.move({150, 210});
    window.move({150, 310});
    scroll->setHidden(true);
    EXPECT_FALSE(scroll->isDragging());
    EXPECT_EQ(offset(), 0);
    scroll->setHidden(false);
    window.move({150, 100});
    window.up({150, 100});
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
    window.down(middle, 2);
    window.move({150, 190}, 2);
    window.move({150, 150}, 2);
    EXPECT_EQ(offset(), 40) << "the next one scrolls";
}

TEST_F(Scrolling, a_stroke_told_by_another_clock_glides_from_the_next_frame_on) {
    scroll->setContentSize({300, 100000});
    for (int i = 0; i <= 5; ++i) {
        const CGPoint place = {150, 300.0 - 20 * i};
        const double time = 1e9 + i / 64.0; // 1280 points a second: they run 1280 / 2.002002 = 639.4.
        if (i == 0) window->touchBegan_at_time(1, place, time);
        if (i > 0) window->touchMoved_at_time(1, place, time);
        if (i == 5) window->touchEnded_at_time(1, place, time);
    }
    EXPECT_EQ(offset(), 80);
    window.tick(TestWindow::frame);
    EXPECT_EQ(offset(), 80);
    window.run(0.1);
    EXPECT_GT(offset(), 180);
    EXPECT_LT(offset(), 210);
    window.runUntilStill();
    EXPECT_NEAR(offset(), 80 + 639.4, 0.05);
}

TEST(UIScrollView, who_hears_of_scrolling_may_drop_the_view_while_it_takes_new_bounds) {
    struct Hearing : UIScrollView {
        std::function<void()> whenScrolled;
        bool* isGone = nullptr;
        ~Hearing() override { *isGone = true; }
        void scrollViewDidScroll() override {
            if (const auto told = std::exchange(whenScrolled, nullptr)) told();
        }
    };
    bool isGone = false;
    auto view = create<Hearing>(CGRectMake(0, 0, 300, 200));
    view->isGone = &isGone;
    view->setContentSize({300, 1000});
    view->setContentOffset({0, 800});
    view->whenScrolled = [&view] { view = nullptr; };
    view->setBounds(CGRectMake(0, 100, 300, 400)); // Of which 600 are the end, so that it scrolls twice.
    EXPECT_TRUE(isGone);
}

TEST_F(Scrolling, a_finger_that_stops_a_swing_before_the_start_pulls_on_from_there) {
    setOffset(100);
    window.fling({150, 200}, {150, 300}, 2);
    while (offset() >= 0) window.tick(TestWindow::frame);
    const CGFloat beyond = offset();
    window.down(middle);
    window.move({150, 209}); // Beyond the slop: it pulls from here.
    window.move({150, 210});
    EXPECT_LT(offset(), beyond);
    EXPECT_GT(offset(), beyond - 1) << "by less than the finger, and without a jump";
    window.run(0.2);
    window.up({150, 210});
    window.runUntilStill();
    EXPECT_EQ(offset(), 0);
}

TEST_F(Scrolling, more_content_lets_a_movement_go_on) {
    scroll->setContentOffset_animated({0, 600}, true);
    window.tick(TestWindow::frame);
    window.run(0.15);
    scroll->setContentSize({300, 2000});
    EXPECT_NEAR(offset(), 600 * 0.875, 1e-6) << "half the time leaves an eighth of the way";
    window.runUntilStill();
    EXPECT_EQ(offset(), 600);
}

TEST_F(Scrolling, who_hears_that_a_press_has_become_a_drag_may_end_it) {
    scroll->whenPressEnds = [this] { setOffset(300); };
    window.down(middle);
    window.move({150, 150});
    EXPECT_FALSE(scroll->isDragging());
    EXPECT_EQ(scroll->drags, 0);
    window.move({150, 50});
    window.up({150, 50});
    EXPECT_EQ(offset(), 300);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false}) << "told once";
}

TEST_F(Scrolling, also_where_the_movement_is_told_only_with_the_release) {
    scroll->whenPressEnds = [this] { setOffset(300); };
    window.down(middle);
    window.up({150, 100});
    EXPECT_EQ(offset(), 300);
    EXPECT_EQ(scroll->drags, 0);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
}

TEST_F(Scrolling, under_a_finger_keys_are_of_use_but_move_nothing) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    content->addSubview(field);
    field->becomeFirstResponder();
    window.down(middle);
    EXPECT_TRUE(window.press(UIKey::Code::Down));
    EXPECT_EQ(offset(), 0);
    window.up(middle);
    EXPECT_TRUE(window.press(UIKey::Code::Down));
    window.runUntilStill();
    EXPECT_EQ(offset(), 48);
}

TEST_F(Scrolling, a_finger_that_comes_down_anew_has_ended_its_press_without_a_tap) {
    // As from a view that hands touches up by itself; a window would have cancelled the first one.
    EXPECT_TRUE(scroll->touchBegan({1, window.now, middle}));
    EXPECT_TRUE(scroll->touchBegan({1, window.now, middle}));
    EXPECT_TRUE(scroll->touchBegan({1, window.now, {150, notANumber}}));
    EXPECT_TRUE(scroll->touchBegan({2, window.now, middle})) << "a second finger is nobody else's";
    EXPECT_EQ(scroll->presses, 2);
    EXPECT_EQ(scroll->taps, std::vector<bool>{false});
}
