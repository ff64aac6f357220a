// Type-to-select without a wheel: what it calls, and in which order.

#include "UIPickerTypeSelect.h"

#include <gtest/gtest.h>

using namespace gx;
using Calls = std::vector<std::string>;

namespace {

/// Two columns of rows 0 to 99, titled by their numbers.
class RecordingWheel final : public UIPickerTypeSelect::Wheel {
public:
    Calls calls;
    NSInteger chosen = 0;
    bool isHeldByFinger = false;
    std::optional<std::string> separator;

    Calls takeCalls() { return std::move(calls); }

    NSInteger componentOfKeys() override { return chosen; }
    NSInteger componentAfter(NSInteger component) override { return component == 0 ? 1 : -1; }
    void chooseComponent(NSInteger component) override {
        chosen = component;
        calls.push_back("choose " + std::to_string(component));
    }
    bool canSpin(NSInteger) override { return true; }
    bool isHeld(NSInteger) override { return isHeldByFinger; }
    NSInteger rowCount(NSInteger) override { return 100; }
    std::optional<std::string> titleOfRow(NSInteger row, NSInteger) override { return std::to_string(row); }
    std::optional<std::string> separatorTextAfter(NSInteger component) override { return component == 0 ? separator : std::nullopt; }
    NSInteger landingRow(NSInteger) override { return 50; }
    void spinToRow(NSInteger row, NSInteger component) override {
        calls.push_back("spin " + std::to_string(row) + " in " + std::to_string(component));
    }
    void startMoving() override { calls.push_back("start"); }
    void finishOthers(NSInteger component) override { calls.push_back("finish all but " + std::to_string(component)); }
    void reportLandings() override { calls.push_back("report"); }
};

struct UIPickerTypeSelectTest : testing::Test {
    RecordingWheel wheel;
    UIPickerTypeSelect typeSelect{wheel};
};

} // namespace

TEST_F(UIPickerTypeSelectTest, SpinsWithEachCharacterAndReportsOnceComplete) {
    typeSelect.typeCharacter("1", 10);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 1 in 0", "start"}));
    EXPECT_EQ(typeSelect.waitingComponent(), 0) << "12 may follow";
    typeSelect.typeCharacter("2", 10.5);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 12 in 0", "start"}));
    EXPECT_EQ(typeSelect.waitingComponent(), std::nullopt) << "no title goes on";
}

TEST_F(UIPickerTypeSelectTest, ACompletedTextIsReportedOnce) {
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    typeSelect.complete();
    EXPECT_EQ(wheel.takeCalls(), Calls{"report"});
    typeSelect.complete();
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}

TEST_F(UIPickerTypeSelectTest, AForgottenTextLeavesTheReportToOthers) {
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    typeSelect.forget();
    EXPECT_EQ(typeSelect.waitingComponent(), std::nullopt);
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}

TEST_F(UIPickerTypeSelectTest, ASeparatorCompletesTheColumnAndChoosesTheNext) {
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    typeSelect.typeCharacter(":", 10.1);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"report", "choose 1"}));
    typeSelect.typeCharacter("5", 10.2);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 1", "spin 5 in 1", "start"}));
}

TEST_F(UIPickerTypeSelectTest, TheFirstCharacterOfTheSeparatorShownThereChoosesTheNextColumn) {
    wheel.separator = " / of";
    typeSelect.typeCharacter("1", 10);
    typeSelect.typeCharacter("2", 10.1);
    wheel.takeCalls();
    typeSelect.typeCharacter("/", 10.2);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"choose 1"})) << "12 is complete, and needs no report of its own";
    typeSelect.typeCharacter("5", 10.3);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 1", "spin 5 in 1", "start"}));
    typeSelect.typeCharacter("/", 10.4);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 1", "spin 50 in 1", "report", "start"})) << "none is shown behind this one";
}

TEST_F(UIPickerTypeSelectTest, ASeparatorShownThereLeadsOnFromATextAlone) {
    wheel.separator = "-";
    typeSelect.typeCharacter("-", 10);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "start"})) << "it may begin a negative number";
    wheel.separator = "2";
    typeSelect.typeCharacter("1", 10);
    typeSelect.typeCharacter("2", 10.1);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 1 in 0", "start", "finish all but 0", "spin 12 in 0", "start"}))
        << "a digit belongs to the number";
}

TEST_F(UIPickerTypeSelectTest, ABlankBehindATextChoosesTheNextColumn) {
    EXPECT_FALSE(typeSelect.typeBlank(10)) << "nothing is typed yet";
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    EXPECT_TRUE(typeSelect.typeBlank(10.5));
    EXPECT_EQ(wheel.takeCalls(), (Calls{"report", "choose 1"}));
    EXPECT_FALSE(typeSelect.typeBlank(10.6)) << "nor in the next column";
    typeSelect.typeCharacter("5", 10.7);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 1", "spin 5 in 1", "start"}));
    EXPECT_FALSE(typeSelect.typeBlank(10.8)) << "no column follows";
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}

TEST_F(UIPickerTypeSelectTest, ABlankAfterAPauseOrBelowAFingerIsNotUsed) {
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    EXPECT_FALSE(typeSelect.typeBlank(11.1));
    wheel.isHeldByFinger = true;
    EXPECT_FALSE(typeSelect.typeBlank(10.5));
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}

TEST_F(UIPickerTypeSelectTest, ATextThatNoTitleSpellsGoesBackAndIsIgnoredUntilAPause) {
    typeSelect.typeCharacter("1", 10);
    wheel.takeCalls();
    typeSelect.typeCharacter("k", 10.1);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 50 in 0", "report", "start"}));
    typeSelect.typeCharacter("2", 10.2);
    EXPECT_EQ(wheel.takeCalls(), Calls{});
    typeSelect.typeCharacter("3", 11.3);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 3 in 0", "start"}));
}

TEST_F(UIPickerTypeSelectTest, AFirstCharacterThatNoTitleBeginsWithIsLeftOut) {
    typeSelect.typeCharacter("é", 10);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "start"}));
    typeSelect.typeCharacter("1", 10.1);
    EXPECT_EQ(wheel.takeCalls(), (Calls{"finish all but 0", "spin 1 in 0", "start"}));
}

TEST_F(UIPickerTypeSelectTest, AColumnUnderAFingerIgnoresCharacters) {
    wheel.isHeldByFinger = true;
    typeSelect.typeCharacter("1", 10);
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}

TEST_F(UIPickerTypeSelectTest, WithoutAColumnCharactersAreIgnored) {
    wheel.chosen = -1;
    typeSelect.typeCharacter("1", 10);
    EXPECT_EQ(wheel.takeCalls(), Calls{});
}
