// Type-to-select: which row characters spell in one column, and when it is reported.

#include <limits>

#include "FocusableView.h"
#include "PickerKeysTest.h"

TEST_F(UIPickerViewKeys, ATypedNumberIsShownAtOnceAndReportedWhenItIsComplete) {
    window.type("4");
    EXPECT_TRUE(wheel->isTurning());
    window.run(0.9);
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 4);
    EXPECT_EQ(source->notices, Notices{}) << "more digits may come";
    window.type("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(UIPickerViewKeys, ASecondWithoutAnotherCharacterCompletesANumber) {
    window.type("4"); // and a frame
    window.run(0.98);
    EXPECT_EQ(source->notices, Notices{});
    window.run(0.01);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    window.type("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {2, 0}})) << "another number";
}

TEST_F(UIPickerViewKeys, ANumberThatNoTitleGoesOnIsCompleteAtOnce) {
    window.type("99");
    const double time = window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    EXPECT_LT(time, 0.4);
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(UIPickerViewKeys, ANumberThatIsSelectedAlreadyIsNotReported) {
    stand(42);
    window.type("77");
    window.run(2);
    source->notices.clear();
    window.type("77");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{77, 0}})) << "by way of row 7";
    window.press(Code::Home);
    window.runUntilStill();
    source->notices.clear();
    window.type("0");
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewKeys, AnotherKeyCompletesANumber) {
    for (const Code code : {Code::Return, Code::Escape, Code::Right, Code::Tab}) {
        source->notices.clear();
        stand(0);
        wheel->becomeFirstResponder();
        window.press(Code::Left);
        window.type("4");
        window.run(0.5);
        EXPECT_EQ(source->notices, Notices{});
        window.press(code);
        EXPECT_EQ(source->notices, (Notices{{4, 0}}));
        window.run(1.5);
        EXPECT_EQ(source->notices.size(), 1U);
    }
}

TEST_F(UIPickerViewKeys, AStepAfterANumberStartsFromIt) {
    window.type("4");
    window.press(Code::Down); // still on the way
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}}));
}

TEST_F(UIPickerViewKeys, ATouchCompletesANumber) {
    window.type("4");
    window.run(0.5);
    window.tap({202, 108}); // the other column
    window.tick(TestWindow::frame);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(UIPickerViewKeys, LosingTheFocusCompletesANumber) {
    window.type("4");
    window.run(0.5);
    wheel->resignFirstResponder();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(UIPickerViewKeys, ARequestForAnotherRowTakesATypedNumberBack) {
    window.type("4");
    window.run(0.5);
    wheel->selectRow_inComponent_animated(30, 0, false);
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->selectedRowInComponent(0), 30);
}

TEST_F(UIPickerViewKeys, ACharacterThatSpellsNothingLeavesTheWheel) {
    stand(50);
    EXPECT_TRUE(window.type("x"));
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 50);
}

TEST_F(UIPickerViewKeys, BlanksAloneSpellNothingAndArePassedUp) {
    struct Taker : UIView {
        bool keyPressed(const UIKey&) override { return true; }
    };
    EXPECT_FALSE(window.typeCharacter(" "));
    const auto taker = create<Taker>(wheel->frame());
    window->addSubview(taker);
    taker->addSubview(wheel);
    wheel->becomeFirstResponder();
    EXPECT_TRUE(window.typeCharacter(" ")) << "who is above has taken it";
    EXPECT_TRUE(window.typeCharacter(" 7"));
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 0) << "it is on its way";
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 7);
}

TEST_F(UIPickerViewKeys, ANumberForOneColumnLeavesAnotherToTheFingerOnIt) {
    window.down({202, 108});
    window.glide({202, 108}, {202, 62}, 10); // 46 points less the slop: one row.
    window.press(Code::Left);
    window.typeCharacter("7");
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U) << "of the number, once it is complete";
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(1), 1) << "still where the finger has it";
    window.run(0.2);
    window.up({202, 62});
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 7);
    EXPECT_EQ(wheel->selectedRowInComponent(1), 1);
}

TEST_F(UIPickerViewKeys, ANumberThatDoesNotExistGoesBackToTheRowBefore) {
    stand(50);
    for (const char* text : {"300", "4x2", "9999"}) {
        source->notices.clear();
        window.type(text);
        window.run(0.5);
        EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 50) << text;
        for (const WheelSource::Notice& notice : source->notices) EXPECT_EQ(notice, (WheelSource::Notice{50, 0})) << text;
        window.run(1);
    }
    window.type("7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 0})) << "after a pause another one begins";
}

TEST_F(UIPickerViewKeys, ADigitTooManyTakesBackAReportedNumber) {
    stand(50);
    window.type("99");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    window.type("5");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {50, 0}}));
}

TEST_F(UIPickerViewKeysThreeColumns, BehindASeparatorADigitTooManyIsIgnored) {
    source->title = [](NSInteger row, NSInteger component) {
        // Between them stands a separator.
        return component == 1 ? std::nullopt : std::optional(std::to_string(row));
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("42.195");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}, {1, 2}}));
    EXPECT_EQ(wheel->componentOfKeys(), 2);
}

TEST_F(UIPickerViewKeys, AColumnBehindAFractionTakesOnlyDigitsThatItHas) {
    source->rows = {100, 1, 10, 3};
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return component == 3 ? std::string(1, static_cast<char>('a' + row)) : std::to_string(row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("4.27");
    window.run(2);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {2, 2}})) << "7 is no letter";
    EXPECT_EQ(wheel->componentOfKeys(), 2);
    window.type("3b");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{2, 2})) << "nor is 3b a digit, without a separator before it";
}

TEST_F(UIPickerViewKeys, AMarkThatEndsATitleGoesOnOnlyToTitlesOfTheNextColumn) {
    source->rows = {5, 10};
    source->title = [](NSInteger row, NSInteger component) { return std::to_string(row) + (component == 0 ? "'" : "in"); };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("3'x");
    window.run(2);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0) << "3'x is not there";
    window.type("3'7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 1}));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 3);
}

TEST_F(UIPickerViewKeysThreeColumns, AFractionBehindANumberThatDoesNotExistIsIgnored) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return std::to_string(component == 0 ? row + 30 : row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("3.5");
    window.run(2);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(UIPickerViewKeys, ACharacterThatIsHeldIsTypedOnce) {
    window.typeCharacter("4");
    for (int i = 0; i < 9; ++i) {
        window.tick(1.0 / 30);
        EXPECT_TRUE(window->keyDown({Code::Character, "4", 0, true, window.now}));
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(UIPickerViewKeys, SeveralCharactersMayComeWithOneKey) {
    EXPECT_TRUE(window.typeCharacter("42"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(UIPickerViewKeys, DigitsOfAnyScriptAreRead) {
    window.typeCharacter("٤");
    window.typeCharacter("٢");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}
