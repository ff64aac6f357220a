// Where one reads from right to left: numbers keep their columns, and the labels beside them change
// sides.

#include "GXDistancePickerView.h"
#include "GXHeartRatePickerView.h"
#include "NSLocale.h"
#include "PickerTest.h"
#include "UITextEngine.h"

using namespace gx;

namespace {

/// Pickers of 320 by 216 points; every letter is 10 wide and 20 high.
struct RightToLeft : testing::Test {
    RightToLeft() { NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar")); }
    ~RightToLeft() override { NSLocale::setCurrentLocale(nullptr); }

    template <class Picker>
    static Ref<Picker> picker() {
        auto made = create<Picker>(CGRectMake(0, 0, 320, 216));
        made->layoutIfNeeded();
        return made;
    }
    static CGRect frameOfColumn(const Ref<GXMultiValuePickerView>& wheel, NSInteger component) {
        const Ref<UIView> row = wheel->viewForRow_forComponent(wheel->selectedRowInComponent(component), component);
        EXPECT_TRUE(row);
        return row ? wheel->convertRect_fromView(row->bounds(), row) : CGRectNull;
    }
};

} // namespace

TEST_F(RightToLeft, TheUnitOfABasePickerStandsLeftOfItsTitlesAtTheSameDistance) {
    const auto base = picker<GXBasePickerView>();
    const auto& wheel = base->pickerView();
    wheel->setRightLabelText("bpm");
    wheel->setLeftLabelText("rate");
    // The column is 50 wide, from 135 to 185, and its widest title, "99", begins at 165: 10 before
    // that the unit of 30 ends.
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(125, 98, 30, 20));
    // The other label begins 10 after the titles' end.
    EXPECT_EQ(wheel->leftDescLabel()->frame(), CGRectMake(195, 98, 40, 20));
}

TEST_F(RightToLeft, AUnitIsAsFarFromTheWidestDigits) {
    /// The digits 0 to 8 are four points wider than all others.
    class UnequalDigits : public UITextEngine {
        CGSize sizeOfText_font(std::string_view text, const UIFont&) override {
            CGFloat width = 0;
            for (const char letter : text) width += letter >= '0' && letter <= '8' ? 14 : 10;
            return {width, 20};
        }
    };
    UITextEngine::setShared(create<UnequalDigits>());
    const auto base = picker<GXBasePickerView>();
    const auto& wheel = base->pickerView();
    wheel->setRightLabelText("bpm");
    // The last title is "99", of 20 points, but "80" needs 28: it begins at 157.
    EXPECT_EQ(wheel->rightDescLabel()->frame(), CGRectMake(117, 98, 30, 20));
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("en"));
    wheel->setLeftLabelText("bpm");
    EXPECT_EQ(wheel->leftDescLabel()->frame(), CGRectMake(125, 98, 30, 20)) << "where one reads from the left it is the last title's";
    UITextEngine::setShared(nullptr);
}

TEST_F(RightToLeft, InADistancePickerTheColumnsKeepTheirOrder) {
    const auto distance = picker<GXDistancePickerView>();
    distance->setIsMetric(true);
    const auto& wheel = distance->pickerView();
    wheel->layoutIfNeeded();
    // Columns of 54, 3 and 50 points with gaps of 5 are 117 wide, from 101.5.
    EXPECT_NEAR(CGRectGetMinX(frameOfColumn(wheel, 0)), 101.5, 1e-4);
    EXPECT_NEAR(CGRectGetMinX(frameOfColumn(wheel, 2)), 168.5, 1e-4);
    EXPECT_EQ(wheel->rightDescLabel()->text(), "km");
    // "299" ends at 155.5 and begins at 125.5.
    EXPECT_NEAR(CGRectGetMinX(wheel->rightDescLabel()->frame()), 125.5 - 10 - 20, 1e-4);
    EXPECT_EQ(wheel->rightDescLabel()->frame().size, CGSizeMake(20, 20));
}

TEST_F(RightToLeft, TheNamesOfTheHeartRatesColumnsStayBesideThem) {
    const auto rates = picker<GXHeartRatePickerView>();
    const auto& wheel = rates->pickerView();
    EXPECT_FALSE(wheel->labelsFollowReading());
    // Columns of 54, 5 and 54 points with gaps of 5 make 123, from 98.5 on; titles and labels are
    // 30 wide.
    EXPECT_EQ(wheel->leftDescLabel()->text(), "AVG");
    EXPECT_NEAR(CGRectGetMinX(wheel->leftDescLabel()->frame()), 98.5 + 54 - 30 - 10 - 30, 1e-4);
    EXPECT_EQ(wheel->rightDescLabel()->text(), "MAX");
    EXPECT_NEAR(CGRectGetMinX(wheel->rightDescLabel()->frame()), 167.5 + 30 + 10, 1e-4);
}

TEST_F(RightToLeft, AnotherLocaleTakesEffectWithTheNextReload) {
    const auto base = picker<GXBasePickerView>();
    const auto& wheel = base->pickerView();
    wheel->setRightLabelText("bpm");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("en"));
    EXPECT_EQ(CGRectGetMinX(wheel->rightDescLabel()->frame()), 125);
    wheel->reloadAllComponents();
    EXPECT_EQ(CGRectGetMinX(wheel->rightDescLabel()->frame()), 195);
}

TEST_F(RightToLeft, LabelsThatDoNotFollowReadingGoBackToTheirSides) {
    const auto base = picker<GXBasePickerView>();
    const auto& wheel = base->pickerView();
    wheel->setRightLabelText("bpm");
    EXPECT_TRUE(wheel->labelsFollowReading());
    wheel->setLabelsFollowReading(false);
    wheel->layoutIfNeeded();
    EXPECT_EQ(CGRectGetMinX(wheel->rightDescLabel()->frame()), 195);
    wheel->setLabelsFollowReading(true);
    wheel->layoutIfNeeded();
    EXPECT_EQ(CGRectGetMinX(wheel->rightDescLabel()->frame()), 125);
}
