// Type-to-select: how a text goes on from column to column, and callbacks during a search.

#include <limits>

#include "FocusableView.h"
#include "PickerKeysTest.h"

TEST_F(UIPickerViewKeysTimes, PaddedTitlesAreFoundWithAndWithoutTheirZero) {
    window.type("05");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}}));
    window.press(Code::Right);
    window.type("7");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {7, 1}}));
}

TEST_F(UIPickerViewKeysTimes, AColonGoesOnToTheNextColumn) {
    EXPECT_TRUE(window.type("4:30"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {30, 1}}));
}

TEST_F(UIPickerViewKeysTimes, ASpaceBehindANumberGoesOnToTheNextColumn) {
    EXPECT_TRUE(window.type("4 30"));
    EXPECT_FALSE(window.typeCharacter(" ")) << "no column follows, so it is passed up";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {30, 1}}));
    window.press(Code::Left);
    EXPECT_TRUE(window.typeCharacter("12 34")) << "as one key";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {30, 1}, {12, 0}, {34, 1}}));
}

TEST_F(UIPickerViewKeysTimes, TheSpaceKeyGoesOnToTheNextColumnWhileANumberIsTyped) {
    EXPECT_FALSE(window.press(Code::Space)) << "nothing is typed";
    window.type("4");
    EXPECT_FALSE(window.press(Code::Space, UIKey::Control)) << "a command";
    EXPECT_EQ(wheel->componentOfKeys(), 0);
    window.run(1.5);
    window.type("5");
    EXPECT_TRUE(window.press(Code::Space));
    window.type("30");
    EXPECT_FALSE(window.press(Code::Space)) << "no column follows";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}, {30, 1}}));
    window.press(Code::Left);
    window.type("7");
    window.run(1.5);
    EXPECT_FALSE(window.press(Code::Space)) << "after a pause";
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(UIPickerViewKeys, ASpaceBehindANumberThatDoesNotExistIsPassedUp) {
    source->title = [](NSInteger row, NSInteger) { return std::to_string(row + 50); };
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_TRUE(window.typeCharacter("6"));
    EXPECT_FALSE(window.typeCharacter(" "));
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(UIPickerViewKeys, ASpaceOfATitleStaysInItsColumn) {
    source->rows = {3, 10};
    source->title = [](NSInteger row, NSInteger component) {
        return component == 0 ? std::vector<std::string>{"5 km", "5 mi", "6 km"}[static_cast<std::size_t>(row)] : std::to_string(row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_TRUE(window.type("5 m"));
    window.run(2);
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST_F(UIPickerViewKeysThreeColumns, ADecimalSeparatorGoesOnToTheNextColumnThatShowsSomething) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        return (component == 2 ? "," : "") + std::to_string(row);
    };
    wheel->reloadAllComponents();
    window.tick(0);
    for (const char* text : {"5,7", "6.8"}) {
        window.press(Code::Left);
        EXPECT_TRUE(window.type(text));
        window.runUntilStill();
    }
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {7, 2}, {6, 0}, {8, 2}}));
}

TEST_F(UIPickerViewKeys, ASeparatorWithinATitleStaysInItsColumn) {
    source->title = [](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::to_string(row);
        return std::to_string(row / 2) + (row % 2 == 0 ? ",0" : ",5");
    };
    wheel->reloadAllComponents();
    window.tick(0);
    EXPECT_TRUE(window.type("36,5"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{73, 0}}));
    window.run(1);
    EXPECT_TRUE(window.type("4.5.7")) << "the second one goes on";
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{73, 0}, {9, 0}, {7, 1}}));
}

TEST_F(UIPickerViewKeysThreeColumns, AColumnArrivesBeforeTitlesOfTheNextAreQueried) {
    // On row 0 of the first column, the last one has but the digits from 7 on.
    source->rows = {100, 1, 3};
    source->title = [this](NSInteger row, NSInteger component) -> std::optional<std::string> {
        if (component == 1) return std::nullopt;
        const bool isShort = component == 2 && source->rows[2] == 3;
        return std::to_string(isShort ? row + 7 : row);
    };
    source->whenTold = [this](NSInteger row, NSInteger component) {
        if (component != 0) return;
        source->rows[2] = row == 0 ? 3 : 10;
        wheel->reloadAllComponents();
    };
    wheel->reloadAllComponents();
    window.tick(0);
    window.typeCharacter("5");
    window.typeCharacter(".");
    window.typeCharacter("2");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 0}, {2, 2}}));
}

TEST_F(UIPickerViewKeys, NegativeNumbersAreTypedWithAnyMinus) {
    source->title = [](NSInteger row, NSInteger) { return std::to_string(row - 20); };
    wheel->reloadAllComponents();
    stand(50);
    for (const char* minus : {"-", "\u2212"}) {
        EXPECT_TRUE(window.typeCharacter(minus));
        EXPECT_TRUE(window.typeCharacter("4"));
        window.run(2);
    }
    EXPECT_EQ(source->notices, (Notices{{16, 0}})) << "the second time it stands there already";
}

TEST_F(UIPickerViewKeys, LettersFindTheTitleThatBeginsWithThem) {
    source->rows = {3};
    source->title = [](NSInteger row, NSInteger) { return row == 0 ? "kg" : row == 1 ? "lb" : "st"; };
    wheel->reloadAllComponents();
    window.tick(0);
    window.type("S");
    window.run(2);
    window.type("lB");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{2, 0}, {1, 0}}));
}

TEST_F(UIPickerViewKeys, TheDelegateMayChangeEverythingWhileItsTitlesAreRead) {
    bool isAsked = false;
    source->title = [&](NSInteger row, NSInteger) {
        if (isAsked && source->rows.size() == 2) {
            source->rows = {};
            wheel->reloadAllComponents();
            EXPECT_EQ(wheel->numberOfComponents(), 0);
        }
        return std::to_string(row);
    };
    isAsked = true;
    EXPECT_TRUE(window.typeCharacter("4"));
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewKeys, CharactersAfterTheOneThatTookTheColumnsAwaySpellNothing) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tick(0);
    source->title = [this](NSInteger row, NSInteger) {
        source->rows = {};
        wheel->reloadAllComponents();
        return std::to_string(row);
    };
    window.typeCharacter("42");
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerViewKeys, ACharacterWhoseNeighboursTakeItsColumnAwaySpellsNothing) {
    for (const std::vector<NSInteger>& left : {std::vector<NSInteger>{}, std::vector<NSInteger>{0, 100}}) {
        source->rows = {100, 100};
        source->whenTold = nullptr;
        wheel->reloadAllComponents();
        stand(0);
        stand(0, 1);
        source->notices.clear();
        EXPECT_TRUE(window.scrollNotches({202, 108}, 1)); // The second column turns …
        source->whenTold = [&](NSInteger, NSInteger) {
            source->rows = left; // … and its report takes away the one that is typed into.
            wheel->reloadAllComponents();
        };
        EXPECT_TRUE(window.typeCharacter("7"));
        window.runUntilStill();
        EXPECT_EQ(source->notices, (Notices{{1, 1}}));
    }
}

TEST_F(UIPickerViewKeys, WithoutADelegateThereAreNoTitlesToSpell) {
    auto other = create<WheelSource>();
    wheel->setDelegate(other);
    window.tick(0);
    other = nullptr;
    EXPECT_TRUE(window.typeCharacter("7"));
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(UIPickerViewKeys, TheReportOfANumberMayDropTheWheel) {
    const WeakRef<UIPickerView> weak = wheel;
    source->whenTold = [&](NSInteger, NSInteger) {
        wheel->removeFromSuperview();
        wheel = nullptr;
    };
    window.type("4");
    window.run(0.5);
    EXPECT_FALSE(window.press(Code::Escape));
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    EXPECT_TRUE(weak.expired());
}

TEST_F(UIPickerViewKeys, AttributedTitlesAreSpelledBeforePlainOnes) {
    /// Row 4 says 8 to the eye, and 4 as its plain title.
    class DoubledTitles : public WheelSource {
    public:
        Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override {
            return NSAttributedString::attributedStringWithString_attributes(std::to_string(2 * row), {});
        }
    };
    const auto doubled = create<DoubledTitles>();
    wheel->setDelegate(doubled);
    window.tick(0);
    window.type("8");
    window.runUntilStill();
    EXPECT_EQ(doubled->notices, (Notices{{4, 0}}));
}

TEST_F(UIPickerViewKeys, ASeparatorTypedInTheLastColumnLeavesTheKeysThere) {
    window.press(Code::Right);
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.type("5.");
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 1}}));
}

TEST_F(UIPickerViewKeysTimes, CharactersBeyondTheLastColumnAreIgnored) {
    window.type("12:20:05");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {20, 1}})) << "and not 05 minutes";
    window.run(1);
    window.type("07");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {20, 1}, {7, 1}})) << "after a pause it is another number";
}

TEST_F(UIPickerViewKeysTimes, CharactersBehindAnUnfinishedNumberOfTheLastColumnAreIgnored) {
    window.type("12:2:05:30");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {2, 1}}));
    window.type(":30"); // The pause counts from the last character.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {2, 1}}));
}

TEST_F(UIPickerViewKeysTimes, AnotherKeyAndAFingerEndTypingBeyondTheLastColumn) {
    window.type("12:20:");
    window.press(Code::Right);
    window.type("30"); // Before the column has come to 20.
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {30, 1}}));
    window.type("40:");
    window.tap({202, 148}); // The row below.
    window.type("50");
    window.runUntilStill();
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{50, 1}));
}

TEST_F(UIPickerViewKeys, ATitleMayBeginWithASeparatorAlsoInTheLastColumn) {
    source->rows = {100, 10};
    source->title = [](NSInteger row, NSInteger component) { return (component == 1 ? "." : "") + std::to_string(row); };
    wheel->reloadAllComponents();
    window.tick(0);
    window.press(Code::Right);
    window.type(".5");
    window.run(0.5);
    window.type(".");
    window.run(2);
    EXPECT_EQ(source->notices, (Notices{{5, 1}, {0, 1}})) << "no title is .5., so it is taken back";
    window.type(".7");
    window.run(2);
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{7, 1}));
}

TEST_F(UIPickerViewKeys, ASeparatorWithoutANumberGoesToTheNextColumn) {
    window.press(Code::Right);
    window.type(".5");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{5, 1}}));
}

TEST_F(UIPickerViewKeys, AKeyWithoutATimeHasTheLatestTime) {
    EXPECT_TRUE(window->keyDown({UIKey::Code::Down, {}, 0, false, std::numeric_limits<double>::quiet_NaN()}));
    window.runUntilStill();
    EXPECT_EQ(source->notices.size(), 1U);
}
