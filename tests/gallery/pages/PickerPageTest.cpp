#include "PickerPage.h"

#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXWeightPickerView.h"
#include "GalleryTest.h"
#include "UITextEngine.h"

using namespace gallery;
using namespace gx;

using Lines = std::vector<std::string>;

class PickerPageTest : public GalleryTest {
protected:
    template <class Picker>
    Ref<Picker> picker() {
        return std::dynamic_pointer_cast<Picker>(screen->page()->demo().picker);
    }
    void choose(std::size_t option, std::size_t choice) { tapSegment(screen->page()->optionControls()[option], choice); }
};

TEST_F(PickerPageTest, ADragOnTheWheelLogsTheValueInWordsAndAsReported) {
    show("Distance");
    EXPECT_EQ(log(), Lines{});
    turn(0, 2);
    EXPECT_EQ(log(), Lines{"7.3 km | 7300.0 m (component 0)"});
    turn(2, -3);
    EXPECT_EQ(log(), (Lines{"7.0 km | 7000.0 m (component 0)", "7.3 km | 7300.0 m (component 0)"}));
}

TEST_F(PickerPageTest, TheLogKeepsTheSixNewestLines) {
    show("Beats per minute");
    for (int i = 0; i < 7; ++i) turn(0, -1);
    EXPECT_EQ(log(), (Lines{"90 bpm | 90 bpm (component 0)", "100 bpm | 100 bpm (component 0)", "110 bpm | 110 bpm (component 0)",
                            "120 bpm | 120 bpm (component 0)", "130 bpm | 130 bpm (component 0)", "140 bpm | 140 bpm (component 0)"}));
}

TEST_F(PickerPageTest, DistanceFollowsUnitSystemAndDecimals) {
    show("Distance");
    EXPECT_TRUE(picker<GXDistancePickerView>()->isMetric());
    choose(0, 1);
    EXPECT_FALSE(picker<GXDistancePickerView>()->isMetric());
    choose(1, 1);
    EXPECT_EQ(picker<GXDistancePickerView>()->numberOfFractionUnits(), 2);
    // Options are set by the application, so the delegate is not called.
    EXPECT_EQ(log(), Lines{});
    // 5300 m are 3.29 mi; one row further, 4.29 mi are 6904.09 m.
    turn(0, 1);
    ASSERT_EQ(log().size(), 1U);
    EXPECT_EQ(log()[0].substr(0, 18), "4.29 mi | 6904.085");
}

TEST_F(PickerPageTest, DurationFollowsLayoutRangeAndSteps) {
    show("Duration");
    const auto duration = picker<GXDurationPickerView>();
    EXPECT_EQ(duration->type(), GXDurationTypeHoursMinutes);
    turn(0, 1);
    EXPECT_EQ(log()[0], "2:20 h | 8400000.0 ms (component 0)");
    choose(0, 1);
    turn(4, 2);
    EXPECT_EQ(log()[0], "2:20:10 | 8410000.0 ms (component 0)");
    choose(3, 2); // minutes in fifteens
    EXPECT_EQ(duration->minutesStepSize(), 15);
    turn(2, 1);
    EXPECT_EQ(log()[0], "2:30:10 | 9010000.0 ms (component 0)");
    choose(1, 1); // from half an hour, below four hours
    EXPECT_EQ(duration->minValue().integerValue(), 1800000);
    EXPECT_EQ(duration->maxValue().integerValue(), 14400000);
    turn(0, 1);
    EXPECT_EQ(log()[0], "3:30:10 | 12610000.0 ms (component 0)");
    // Minutes and seconds hold less than an hour, so the value is clamped to the new range.
    choose(0, 2);
    EXPECT_EQ(duration->maxValue().integerValue(), 1200000);
    EXPECT_EQ(duration->currentValue().integerValue(), 1200000);
}

TEST_F(PickerPageTest, PaceIsReportedAsASpeed) {
    show("Pace");
    turn(2, 1); // 5:20 per kilometre are 1000 m in 320 s
    EXPECT_EQ(log(), Lines{"5:20 min/km | 3.125 m/s (component 0)"});
    choose(1, 2);
    EXPECT_EQ(picker<GXPacePickerView>()->secondsStepSize(), 15);
    choose(0, 1);
    EXPECT_EQ(unitBesideWheel(picker<GXBasePickerView>()), "min/mi");
}

TEST_F(PickerPageTest, HeartRateReportsTheMaximumFirstAndThenTheAverage) {
    show("Heart rate");
    turn(0, 1);
    EXPECT_EQ(log(), (Lines{"AVG 121 | 121 bpm (component 0)", "MAX 160 | 160 bpm (component 1)"}));
    choose(1, 2);
    EXPECT_EQ(picker<GXHeartRatePickerView>()->minimumGapBetweenAvgAndMax().integerValue(), 20);
    EXPECT_TRUE(picker<GXHeartRatePickerView>()->shouldShowNullValue());
    choose(0, 1);
    EXPECT_FALSE(picker<GXHeartRatePickerView>()->shouldShowNullValue());
}

TEST_F(PickerPageTest, AUnitChosenOnTheWheelShowsOnTheOptionToo) {
    show("Weight");
    choose(1, 1);
    EXPECT_TRUE(picker<GXWeightPickerView>()->weightUnitSelectable());
    turn(3, 1);
    EXPECT_EQ(picker<GXWeightPickerView>()->weightUnit(), GXWeightUnitPound);
    EXPECT_EQ(screen->page()->optionControls()[0]->chosen(), 1U);
    EXPECT_EQ(log(), Lines{"159.8 lb | 72.5 kg (component 0)"}); // 72.5 / 0.45359237 = 159.835…

    show("Height");
    turn(1, 1);
    EXPECT_FALSE(picker<GXHeightPickerView>()->isMetric());
    EXPECT_EQ(screen->page()->optionControls()[0]->chosen(), 1U);
    EXPECT_EQ(log().size(), 1U);
    EXPECT_EQ(log()[0].substr(0, 12), "5′ 9″ | "); // 176 cm are 69.29 inches.
}

TEST_F(PickerPageTest, NumbersAndUnitsAreTheUsers) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de"));
    GXLocalization::sharedLocalization()->setLanguage("de");
    show("Speed");
    turn(2, 1); // 12.6 km/h are 3.5 m/s
    EXPECT_EQ(log(), Lines{"12,6 km/h | 3.5 m/s (Komponente 0)"});
    show("Beats per minute");
    turn(0, 1);
    EXPECT_EQ(log(), Lines{"170 S/min | 170 bpm (Komponente 0)"});
}

TEST_F(PickerPageTest, TurningForAPictureLeavesUnitsAlone) {
    show("Weight");
    choose(1, 1);
    screen->page()->turnForPicture();
    EXPECT_EQ(picker<GXWeightPickerView>()->weightUnit(), GXWeightUnitKilogram);
    EXPECT_EQ(log(), (Lines{"73.6 kg | 73.6 kg (component 0)", "73.5 kg | 73.5 kg (component 0)"}));
}

namespace {
/// Letters of average width, in proportion to the size of the font.
class GrowingTextEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
        return {0.6 * font.pointSize() * static_cast<CGFloat>(text.size()), 1.2 * font.pointSize()};
    }
};
} // namespace

TEST_F(PickerPageTest, LongLabelsGetSmallerFontsAndStayWithinTheSelectionIndicator) {
    UITextEngine::setShared(create<GrowingTextEngine>());
    show("Duration", 320, 900);
    const auto duration = picker<GXDurationPickerView>();
    EXPECT_FALSE(duration->customValueFont()); // "hh:mm" has room in the style sheet's size of 22.
    choose(0, 1);
    // The wheel is 288 wide and its last column begins at 174, as long as the columns are 50 wide.
    // Two digits and "hh:mm:ss" are ten letters, which from 10 points behind have to end before
    // 274: 6 points a point of size, so 15.
    ASSERT_TRUE(duration->customValueFont());
    EXPECT_EQ(duration->customValueFont()->pointSize(), 15);
    EXPECT_EQ(duration->customLabelFont()->pointSize(), 15);
    EXPECT_LE(CGRectGetMaxX(duration->pickerView()->rightDescLabel()->frame()), 274);
    choose(0, 0);
    EXPECT_FALSE(duration->customValueFont());

    show("Heart rate", 320, 900);
    const auto rates = picker<GXHeartRatePickerView>();
    EXPECT_FALSE(rates->customValueFont());
    rates->pickerView()->setLeftLabelText("average");
    screen->page()->setNeedsLayout();
    settle();
    ASSERT_TRUE(rates->customLabelFont());
    EXPECT_GE(CGRectGetMinX(rates->pickerView()->leftDescLabel()->frame()), 14);
}

TEST_F(PickerPageTest, AllPagesSurviveEveryChoiceOfEveryOptionAndEverySpin) {
    open(390, 844);
    for (std::size_t i = MainScreen::firstPickerPage; i < screen->pageNames().size(); ++i) {
        screen->showPage(i);
        settle();
        const auto page = screen->page();
        for (std::size_t option = 0; option < page->optionControls().size(); ++option) {
            for (std::size_t choice = 0; choice < page->optionControls()[option]->choices().size(); ++choice) {
                SCOPED_TRACE(page->name() + ", option " + std::to_string(option) + ", choice " + std::to_string(choice));
                choose(option, choice);
                EXPECT_EQ(page->optionControls()[option]->chosen(), choice);
                EXPECT_EQ(page->demo().options[option].chosen, choice);
                page->turnForPicture();
                settle();
                ASSERT_FALSE(page->log()->notices().empty());
                EXPECT_FALSE(page->log()->notices().front().words.empty());
            }
        }
    }
}
