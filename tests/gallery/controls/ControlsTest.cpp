#include "GalleryTest.h"
#include "NullCanvas.h"

using namespace gallery;
using namespace gx;

namespace {

/// A tall thing to scroll, with a button at its top.
class TallContent : public UIView {
public:
    CGSize sizeThatFits(CGSize available) const override { return {available.width, 1000}; }
};

class ControlsTest : public testing::Test {
protected:
    Ref<ContentScrollView> scroll = create<ContentScrollView>(CGRectMake(0, 0, 300, 400));
    Ref<TallContent> content = create<TallContent>(CGRectZero);
    Ref<Button> button = Button::buttonWithTitle_style("Press", Button::Style::Plain);
    std::unique_ptr<TestWindow> window;
    int taps = 0;

    void SetUp() override {
        button->setFrame(CGRectMake(0, 0, 300, 100));
        button->setAction([this] { ++taps; });
        content->addSubview(button);
        scroll->setContent(content);
        window = std::make_unique<TestWindow>(scroll);
    }
};

} // namespace

TEST_F(ControlsTest, AButtonIsTappedWhereTheFingerCameDown) {
    EXPECT_TRUE(window->down({150, 50}));
    EXPECT_TRUE(button->isHighlighted());
    window->move({150, 58}); // within the slop
    EXPECT_TRUE(button->isHighlighted());
    window->up({150, 58});
    EXPECT_FALSE(button->isHighlighted());
    EXPECT_EQ(taps, 1);
}

TEST_F(ControlsTest, ATouchThatMovesAwayOrIsCancelledTapsNothing) {
    window->down({150, 50});
    window->move({159, 50});
    EXPECT_FALSE(button->isHighlighted());
    window->move({150, 50});
    window->up({150, 50});
    window->down({150, 50});
    window->up({150, 59}); // Some systems report the last move only now.
    window->down({150, 50});
    (*window)->touchCancelled_at_time(1, window->now);
    EXPECT_FALSE(button->isHighlighted());
    EXPECT_EQ(taps, 0);
}

TEST_F(ControlsTest, OnlyTheFirstTouchTaps) {
    window->down({150, 50}, 1);
    EXPECT_TRUE(window->down({160, 50}, 2));
    window->up({160, 50}, 2);
    EXPECT_EQ(taps, 0);
    window->up({150, 50}, 1);
    EXPECT_EQ(taps, 1);
}

TEST_F(ControlsTest, AButtonMayBeDroppedByItsOwnAction) {
    button->setAction([this] {
        ++taps;
        button->removeFromSuperview();
        button = nullptr;
    });
    window->tap({150, 50});
    EXPECT_EQ(taps, 1);
    EXPECT_TRUE(content->subviews().empty());
}

TEST_F(ControlsTest, ADragOnAButtonScrollsAndTapsNothing) {
    window->drag({150, 90}, {150, 10});
    // In steps of 4 points, the finger has passed the slop of 8 with the third: from there the
    // content follows.
    EXPECT_EQ(scroll->offset(), 68);
    EXPECT_EQ(taps, 0);
    EXPECT_EQ((*window)->convertRect_fromView(content->bounds(), content), CGRectMake(0, -68, 300, 1000));
}

TEST_F(ControlsTest, ScrollingEndsAtBothEnds) {
    EXPECT_EQ(scroll->maxOffset(), 600);
    window->drag({150, 390}, {150, -900});
    EXPECT_EQ(scroll->offset(), 600);
    window->drag({150, 10}, {150, 1400});
    EXPECT_EQ(scroll->offset(), 0);
}

TEST_F(ControlsTest, AFlingDeceleratesAndComesToRest) {
    window->fling({150, 390}, {150, 330}, 4);
    const CGFloat released = scroll->offset();
    EXPECT_LT(released, 60);
    const double seconds = window->runUntilStill();
    EXPECT_GT(scroll->offset(), released + 100);
    EXPECT_GT(seconds, 0.5);
    // A finger stops it.
    window->fling({150, 330}, {150, 390}, 4);
    window->tick(0.05);
    window->down({150, 300});
    const CGFloat stopped = scroll->offset();
    window->run(0.5);
    EXPECT_EQ(scroll->offset(), stopped);
}

TEST_F(ControlsTest, TheMouseWheelMovesARowANotchAndTheTrackpadPointByPoint) {
    EXPECT_TRUE(window->scrollNotches({150, 200}, 2));
    EXPECT_EQ(scroll->offset(), 96);
    EXPECT_TRUE(window->scrollPoints({150, 200}, -40.5));
    EXPECT_EQ(scroll->offset(), 55.5);
    EXPECT_TRUE(window->scrollPoints({150, 200}, 5000));
    EXPECT_EQ(scroll->offset(), 600);
    scroll->setFrame(CGRectMake(0, 0, 300, 1000));
    scroll->layoutIfNeeded();
    EXPECT_EQ(scroll->offset(), 0);
    // Nothing is hidden, so the event is not taken.
    EXPECT_FALSE(window->scrollNotches({150, 200}, 2));
}

TEST_F(ControlsTest, SegmentsAreEquallyWideAsLongAsEachHasRoomForItsText) {
    // Ten points for a letter, and seven at either side: 104, 44 and 44.
    const auto segments = SegmentedControl::segmentsWithChoices({"Automatic", "1.5", "1,5"}, 0);
    const auto widths = [&segments](CGFloat width) {
        segments->setFrame(CGRectMake(0, 0, width, 40));
        std::vector<CGFloat> found;
        CGFloat end = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            const CGRect segment = segments->frameOfSegment(i);
            EXPECT_DOUBLE_EQ(segment.origin.x, end);
            EXPECT_EQ(segment.size.height, 40);
            end = CGRectGetMaxX(segment);
            found.push_back(segment.size.width);
        }
        EXPECT_DOUBLE_EQ(end, width);
        EXPECT_EQ(segments->sizeThatFits({width, 0}), CGSizeMake(width, 40));
        return found;
    };
    EXPECT_EQ(widths(312), (std::vector<CGFloat>{104, 104, 104}));
    EXPECT_EQ(widths(309), (std::vector<CGFloat>{143, 83, 83})); // 117 are to spare, 39 for each.
    EXPECT_EQ(widths(192), (std::vector<CGFloat>{104, 44, 44}));
    EXPECT_EQ(widths(177), (std::vector<CGFloat>{99, 39, 39})); // With four points at either side.
    EXPECT_EQ(widths(174), (std::vector<CGFloat>{98, 38, 38}));
    EXPECT_EQ(segments->frameOfSegment(3), CGRectZero);
    EXPECT_EQ(SegmentedControl::segmentsWithChoices({}, 0)->frameOfSegment(0), CGRectZero);
    EXPECT_EQ(SegmentedControl::segmentsWithChoices({}, 0)->sizeThatFits({100, 0}), CGSizeMake(100, 40));
}

TEST_F(ControlsTest, SegmentsThatDoNotFitSideBySideStandBelowEachOther) {
    const auto frames = [](const Ref<SegmentedControl>& segments, CGFloat width) {
        segments->setFrame(CGRectMake(0, 0, width, segments->sizeThatFits({width, 0}).height));
        std::vector<CGRect> found;
        for (std::size_t i = 0; i < segments->choices().size(); ++i) found.push_back(segments->frameOfSegment(i));
        EXPECT_EQ(CGRectGetMaxY(found.back()), segments->bounds().size.height);
        return found;
    };
    const auto separators = SegmentedControl::segmentsWithChoices({"Automatic", "1.5", "1,5"}, 0);
    EXPECT_EQ(frames(separators, 173), (std::vector<CGRect>{{{0, 0}, {173, 40}}, {{0, 40}, {173, 40}}, {{0, 80}, {173, 40}}}));
    // "Auto-" and "matic": two lines of 22 and 7 above and below.
    EXPECT_EQ(frames(separators, 97), (std::vector<CGRect>{{{0, 0}, {97, 58}}, {{0, 58}, {97, 40}}, {{0, 98}, {97, 40}}}));
    // More than three stand in columns of the widest one, 58 points.
    const auto sizes = SegmentedControl::segmentsWithChoices({"80 %", "100 %", "130 %", "200 %", "300 %"}, 0);
    EXPECT_EQ(
        frames(sizes, 174),
        (std::vector<CGRect>{{{0, 0}, {58, 40}}, {{58, 0}, {58, 40}}, {{116, 0}, {58, 40}}, {{0, 40}, {58, 40}}, {{58, 40}, {58, 40}}}));
    // Four columns would fit, but then the second row would have one segment only.
    EXPECT_EQ(frames(sizes, 240)[3], CGRectMake(0, 40, 80, 40));
    // In one column; "80 %" has room, and each of the others two lines.
    EXPECT_EQ(frames(sizes, 57)[4], CGRectMake(0, 40 + 3 * 58, 57, 58));
}

TEST_F(ControlsTest, ControlsAreMirroredWhereLocalesAreReadFromTheRight) {
    const auto segments = SegmentedControl::segmentsWithChoices({"Automatic", "1.5", "1,5"}, 0);
    segments->setFrame(CGRectMake(0, 200, 309, 40));
    const auto heading = Button::buttonWithTitle_style("Pace", Button::Style::Heading);
    heading->setFrame(CGRectMake(0, 0, 100, 40));
    const auto lay = [&](const char* locale) {
        NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(locale));
        heading->setNeedsLayout();
        heading->layoutIfNeeded();
    };
    // The arrow is one letter of 10 points, with 4 beside it.
    lay("en");
    EXPECT_EQ(heading->subviews()[0]->frame(), CGRectMake(0, 0, 86, 40));
    EXPECT_EQ(heading->subviews()[1]->frame(), CGRectMake(90, 0, 10, 40));
    EXPECT_EQ(segments->frameOfSegment(0), CGRectMake(0, 0, 143, 40));
    lay("he");
    EXPECT_EQ(heading->subviews()[0]->frame(), CGRectMake(14, 0, 86, 40));
    EXPECT_EQ(heading->subviews()[1]->frame(), CGRectMake(0, 0, 10, 40));
    EXPECT_EQ(std::dynamic_pointer_cast<Paragraph>(heading->subviews()[1])->text(), "\u2039");
    EXPECT_EQ(segments->frameOfSegment(0), CGRectMake(166, 0, 143, 40));
    EXPECT_EQ(segments->frameOfSegment(2), CGRectMake(0, 0, 83, 40));

    content->addSubview(segments);
    segments->becomeFirstResponder();
    window->press(UIKey::Code::Left);
    EXPECT_EQ(segments->chosen(), 1U) << "the next one is at the left";
    window->press(UIKey::Code::Right);
    EXPECT_EQ(segments->chosen(), 0U);
    window->tap({5, 220});
    EXPECT_EQ(segments->chosen(), 2U);
    NSLocale::setCurrentLocale(nullptr);
}

TEST_F(ControlsTest, AButtonIsAsHighAsTheLinesOfItsTitle) {
    const auto plain = Button::buttonWithTitle_style("Add a workout", Button::Style::Plain);
    // Thirteen letters, and 12 points at either side.
    EXPECT_EQ(plain->sizeThatFits({}), CGSizeMake(154, 40));
    EXPECT_EQ(plain->sizeThatFits({200, 0}), CGSizeMake(154, 40));
    EXPECT_EQ(plain->sizeThatFits({153, 0}), CGSizeMake(153, 52)); // "workout" in a second line.
    EXPECT_EQ(plain->sizeThatFits({94, 0}), CGSizeMake(94, 52));
    EXPECT_EQ(plain->sizeThatFits({93, 0}), CGSizeMake(93, 74)); // "Add a", "wor-", "kout"
    EXPECT_EQ(Button::buttonWithTitle_style("", Button::Style::Row)->sizeThatFits({}), CGSizeMake(40, 40));
}

TEST_F(ControlsTest, SegmentsCallTheActionForAnotherChoiceOnly) {
    const auto segments = SegmentedControl::segmentsWithChoices({"a", "b", "c"}, 1);
    segments->setFrame(CGRectMake(0, 200, 300, 40));
    std::vector<std::size_t> told;
    segments->setAction([&told](std::size_t choice) { told.push_back(choice); });
    content->addSubview(segments);
    window->tap({299, 220});
    window->tap({200, 220}); // The third begins here.
    window->tap({199, 220});
    window->tap({0, 200});
    EXPECT_EQ(told, (std::vector<std::size_t>{2, 1, 0}));
    EXPECT_EQ(segments->chosen(), 0U);
    segments->setChosen(3);
    EXPECT_EQ(segments->chosen(), 0U);
    segments->setChosen(2);
    EXPECT_EQ(segments->chosen(), 2U);
    EXPECT_EQ(told.size(), 3U);
}

class WheelAndScrollTest : public GalleryTest {};

TEST_F(WheelAndScrollTest, DragsSpinTheWheelTheyBeginOnAndScrollThePageBesideIt) {
    show("Beats per minute", 320, 400);
    const auto wheel = screen->page()->demo().wheel;
    ASSERT_GT(screen->scroll()->maxOffset(), 200);
    turn(0, 1);
    const CGFloat before = screen->scroll()->offset();
    window->scrollNotches(middleOf(wheel), 1);
    settle();
    EXPECT_EQ(screen->page()->log()->notices().size(), 2U);
    EXPECT_EQ(screen->scroll()->offset(), before);
    screen->scroll()->setOffset(0);
    (*window)->layoutIfNeeded();
    const CGPoint purpose = {160, 100};
    window->drag(purpose, {160, 60});
    EXPECT_GT(screen->scroll()->offset(), 20);
    EXPECT_EQ(screen->page()->log()->notices().size(), 2U);
}

// Keys

TEST_F(ControlsTest, ReturnAndSpaceTapTheButtonWithTheFocus) {
    EXPECT_FALSE(window->press(UIKey::Code::Return));
    EXPECT_TRUE(window->press(UIKey::Code::Tab));
    EXPECT_TRUE(button->isFirstResponder());
    EXPECT_TRUE(window->press(UIKey::Code::Return));
    EXPECT_TRUE(window->press(UIKey::Code::Space));
    EXPECT_EQ(taps, 2);
    EXPECT_TRUE(window->press(UIKey::Code::Return, 0, true));
    EXPECT_EQ(taps, 2) << "a key that is held taps once";
    EXPECT_FALSE(window->press(UIKey::Code::Return, UIKey::Control));
    EXPECT_FALSE(window->press(UIKey::Code::Left));
    EXPECT_EQ(taps, 2);
}

TEST_F(ControlsTest, TheFocusIsOutlinedWhileKeysAreUsed) {
    const auto fills = [this] {
        NullCanvas canvas;
        (*window)->draw(canvas);
        return canvas.fills;
    };
    const int plain = fills();
    button->becomeFirstResponder();
    EXPECT_EQ(fills(), plain);
    window->press(UIKey::Code::Space);
    EXPECT_GT(fills(), plain + 4) << "four sides and their corners";
    window->tap({150, 300}); // beside it
    EXPECT_EQ(fills(), plain);
}

TEST_F(ControlsTest, AButtonMayBeDroppedByAKey) {
    button->setAction([this] {
        ++taps;
        button->removeFromSuperview();
        button = nullptr;
    });
    window->press(UIKey::Code::Tab);
    EXPECT_TRUE(window->press(UIKey::Code::Return));
    EXPECT_EQ(taps, 1);
    EXPECT_EQ((*window)->firstResponder(), nullptr);
}

TEST_F(ControlsTest, KeysThatAButtonDoesNotHandleScroll) {
    window->press(UIKey::Code::Tab);
    EXPECT_TRUE(window->press(UIKey::Code::PageDown)); // 400 points but for a notch of 48
    window->runUntilStill();
    EXPECT_EQ(scroll->offset(), 352);
    window->press(UIKey::Code::Up);
    window->press(UIKey::Code::Up); // counted from where the first one goes
    window->runUntilStill();
    EXPECT_EQ(scroll->offset(), 256);
    window->press(UIKey::Code::End);
    window->runUntilStill();
    EXPECT_EQ(scroll->offset(), 600);
    window->press(UIKey::Code::PageUp);
    window->runUntilStill();
    EXPECT_EQ(scroll->offset(), 248);
    window->press(UIKey::Code::Home);
    window->runUntilStill();
    EXPECT_EQ(scroll->offset(), 0);
    EXPECT_FALSE(window->press(UIKey::Code::Down, UIKey::Control));
    scroll->setFrame(CGRectMake(0, 0, 300, 1000));
    scroll->layoutIfNeeded();
    EXPECT_FALSE(window->press(UIKey::Code::Down)) << "all is in sight";
}

TEST_F(ControlsTest, LeftAndRightChooseAmongSegmentsAndCallTheAction) {
    const auto segments = SegmentedControl::segmentsWithChoices({"a", "b", "c"}, 1);
    std::vector<std::size_t> told;
    segments->setAction([&told](std::size_t chosen) { told.push_back(chosen); });
    segments->setFrame(CGRectMake(0, 200, 300, 40));
    content->addSubview(segments);
    segments->becomeFirstResponder();
    EXPECT_TRUE(window->press(UIKey::Code::Right));
    EXPECT_TRUE(window->press(UIKey::Code::Right)) << "at the end it stays";
    EXPECT_TRUE(window->press(UIKey::Code::Left));
    EXPECT_TRUE(window->press(UIKey::Code::Left));
    EXPECT_TRUE(window->press(UIKey::Code::Left));
    EXPECT_EQ(told, (std::vector<std::size_t>{2, 1, 0}));
    EXPECT_TRUE(window->press(UIKey::Code::Return)) << "it is chosen already";
    EXPECT_EQ(segments->chosen(), 0U);
    EXPECT_EQ(told.size(), 3U);
    EXPECT_FALSE(window->press(UIKey::Code::Right, UIKey::Alternate));
}
