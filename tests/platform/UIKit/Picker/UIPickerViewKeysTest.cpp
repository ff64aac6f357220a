// Wheels moved by the keyboard, through the window, and what is reported.

#include <limits>

#include "FocusableView.h"
#include "PickerKeysTest.h"
#include "RecordingCanvas.h"

using Calls = std::vector<std::string>;

// Arrows, pages and ends

TEST_F(UIPickerViewKeys, AnArrowMovesByOneRowAndReportsOnceAtRest) {
    stand(50);
    EXPECT_TRUE(window.press(Code::Down));
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{51, 0}}));
    EXPECT_TRUE(window.press(Code::Up));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{51, 0}, {50, 0}}));
}

TEST_F(UIPickerViewKeys, QuickPressesAddUpAndReportOnce) {
    for (int i = 0; i < 7; ++i) {
        window.press(Code::Down);
        window.tick(0.02);
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{7, 0}}));
}

TEST_F(UIPickerViewKeys, AHeldKeyGoesOnAndReportsWhenItIsReleased) {
    window.press(Code::Down);
    for (int i = 0; i < 60; ++i) {
        window.tick(1.0 / 30);
        window.press(Code::Down, 0, true);
    }
    EXPECT_EQ(source->notices, Notices{});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{61, 0}}));
}

TEST_F(UIPickerViewKeys, PagesAreTheVisibleRowsLessOne) {
    stand(50);
    // Of rows of 40, five show all of themselves on a wheel of 216.
    EXPECT_TRUE(window.press(Code::PageDown));
    window.runUntilStill();
    EXPECT_TRUE(window.press(Code::PageUp));
    EXPECT_TRUE(window.press(Code::PageUp));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{54, 0}, {46, 0}}));
}

TEST_F(UIPickerViewKeys, APageIsAtLeastOneRow) {
    source->height = 150;
    wheel->reloadAllComponents();
    window.tick(0);
    window.press(Code::PageDown);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(UIPickerViewKeys, HomeAndEndGoToTheEnds) {
    stand(50);
    EXPECT_TRUE(window.press(Code::End));
    window.runUntilStill();
    EXPECT_TRUE(window.press(Code::Home));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {0, 0}}));
}

TEST_F(UIPickerViewKeys, AtAnEndKeysAreHandledButMoveNothing) {
    for (const Code code : {Code::Up, Code::PageUp, Code::Home}) EXPECT_TRUE(window.press(code));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(UIPickerViewKeys, WithoutAWindowAKeyMovesAtOnce) {
    wheel->removeFromSuperview();
    UIKey key;
    key.code = Code::Down;
    EXPECT_TRUE(wheel->keyPressed(key));
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    key.code = Code::Character;
    key.characters = "4";
    EXPECT_TRUE(wheel->keyPressed(key));
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {4, 0}})) << "there is no clock that could complete it";
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(UIPickerViewKeys, KeysForAColumnThatAFingerHoldsAreIgnored) {
    stand(50);
    window.down({117, 108});
    for (const Code code : {Code::Down, Code::PageDown, Code::End}) EXPECT_TRUE(window.press(code));
    EXPECT_TRUE(window.type("7"));
    window.up({117, 108});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 50);
}

TEST_F(UIPickerViewKeys, CommandsAndUnknownKeysArePassedUp) {
    for (const unsigned held : {UIKey::Control, UIKey::Alternate, UIKey::Command}) {
        EXPECT_FALSE(window.press(Code::Down, held));
        EXPECT_FALSE(window->keyDown({Code::Character, "4", held, false, window.now}));
    }
    for (const Code code : {Code::Space, Code::Return, Code::Escape, Code::None}) EXPECT_FALSE(window.press(code));
    EXPECT_TRUE(window.press(Code::Down, UIKey::Shift));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(UIPickerViewKeys, KeysGiveFeedbackForEachRow) {
    struct Host : UIWindowHost {
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback) override { ++ticks; }
        int ticks = 0;
    } host;
    window->setHost(&host);
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1);
    window.type("42");
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1 + 41) << "1 to 4 and on to 42, each row on the way once";
    window->setHost(nullptr);
}

TEST_F(UIPickerViewKeys, AHostMayRemoveTheWheelDuringFeedback) {
    struct Host : UIWindowHost {
        explicit Host(Ref<UIPickerView> wheel) : wheel_(std::move(wheel)) {}
        void windowNeedsFrame() override {}
        void giveFeedback(UIFeedback) override {
            ++ticks;
            wheel_->removeFromSuperview();
        }
        int ticks = 0;

    private:
        Ref<UIPickerView> wheel_;
    } host(wheel);
    window->setHost(&host);
    window.press(Code::End); // Several rows pass in a frame.
    window.runUntilStill();
    EXPECT_EQ(host.ticks, 1);
    EXPECT_EQ(source->notices, (Notices{{99, 0}})) << "without a window it arrives";
    window->setHost(nullptr);
}

// Columns

TEST_F(UIPickerViewKeys, LeftAndRightChooseTheColumn) {
    EXPECT_EQ(wheel->componentOfKeys(), 0);
    EXPECT_TRUE(window.press(Code::Right));
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    EXPECT_TRUE(window.press(Code::Right)) << "of use also beyond the last one";
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.press(Code::Down);
    EXPECT_TRUE(window.press(Code::Left));
    EXPECT_TRUE(window.press(Code::Left));
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {1, 1}}));
}

TEST_F(UIPickerViewKeysThreeColumns, ColumnsOfOneRowArePassedOver) {
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 2);
    window.press(Code::Left);
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(UIPickerViewKeysThreeColumns, ColumnsThatShowNothingArePassedOver) {
    source->rows = {100, 100, 10};
    source->title = [](NSInteger row, NSInteger component) { return component == 1 ? std::nullopt : std::optional(std::to_string(row)); };
    wheel->reloadAllComponents();
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 2);
}

TEST_F(UIPickerViewKeys, ATouchChoosesItsColumn) {
    window.tap({202, 108});
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.press(Code::Down);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{1, 1}}));
}

TEST_F(UIPickerViewKeys, AChosenColumnThatIsRemovedIsReplacedByTheFirst) {
    window.press(Code::Right);
    source->rows = {100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->componentOfKeys(), 0);
    source->rows = {1};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->componentOfKeys(), -1);
    EXPECT_FALSE(window.press(Code::Down));
}

// The focus

TEST_F(UIPickerViewKeys, AWheelThatCannotBeSpunTakesNoFocus) {
    wheel->resignFirstResponder();
    source->rows = {1, 1};
    wheel->reloadAllComponents();
    EXPECT_FALSE(wheel->becomeFirstResponder());
    source->rows = {1, 2};
    wheel->reloadAllComponents();
    EXPECT_TRUE(wheel->becomeFirstResponder());
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    const auto unseen = create<UIPickerView>(CGRectZero);
    unseen->setDataSource(source);
    EXPECT_EQ(unseen->numberOfRowsInComponent(1), 2);
    EXPECT_FALSE(unseen->canBecomeFirstResponder()) << "nor does one that has no room for columns";
}

TEST_F(UIPickerViewKeys, ATouchGivesTheFocusWithoutAMark) {
    wheel->resignFirstResponder();
    window.tap({117, 108});
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_FALSE(window->showsFocus());
    window.press(Code::Down);
    EXPECT_TRUE(window->showsFocus());
    window.tap({117, 108});
    EXPECT_FALSE(window->showsFocus());
}

TEST_F(UIPickerViewKeys, TheChosenColumnIsMarkedInTheSelectionIndicatorOnceAKeyIsUsed) {
    wheel->setTintColor(UIColor::colorWithHex(0xFF0000));
    const auto marks = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        std::vector<std::string> found;
        for (const std::string& call : canvas.painted()) {
            if (call.find("with 1 0 0") != std::string::npos) found.push_back(call);
        }
        return found;
    };
    EXPECT_EQ(marks(), Calls{});
    window.press(Code::Right);
    // The second column lies from 162.5 to 242.5, the selection indicator from 88 to 128.
    EXPECT_EQ(marks(), (Calls{"fill 162.5 88 80 40 with 1 0 0 0.14 rounded 8", "fill 170.5 88 64 2 with 1 0 0 1 rounded 1",
                              "fill 170.5 126 64 2 with 1 0 0 1 rounded 1"}));
    window->setReceivesKeys(false);
    EXPECT_EQ(marks(), Calls{});
    window->setReceivesKeys(true);
    source->width = 16;
    wheel->reloadAllComponents();
    window.tick(0);
    // The second column lies from 162.5 to 178.5: its corners leave no room for bars.
    EXPECT_EQ(marks(), (Calls{"fill 162.5 88 16 40 with 1 0 0 0.14 rounded 8"}));
    source->rows = {0, 0};
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_EQ(marks(), Calls{}) << "no column is left to turn";
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_NE(marks(), Calls{});
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    window->addSubview(field);
    field->becomeFirstResponder();
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(marks(), Calls{}) << "the keys go elsewhere";
}

TEST_F(UIPickerViewKeys, AHostWithoutFeedbackSpinsWheelsAllTheSame) {
    struct QuietHost : UIWindowHost {
        void windowNeedsFrame() override {}
    } host;
    window->setHost(&host);
    window.press(Code::Down);
    window.runUntilStill();
    window->setHost(nullptr);
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}
