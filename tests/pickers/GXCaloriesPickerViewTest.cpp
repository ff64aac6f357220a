#include "GXCaloriesPickerView.h"

#include "PickerTest.h"

using namespace gx;
using CaloriesPicker = PickerTest<GXCaloriesPickerView>;

TEST_F(CaloriesPicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source", // the wheel
                                          "reload", "select 0 in 0", // minimum
                                          "reload", "select 0 in 0", // maximum
                                          "reload", "select 0 in 0", // step
                                          "select 0 in 0",           // current value
                                          "right kcal", "data source"}));
    for (const NSNumber& number : {picker->minValue(), picker->maxValue(), picker->stepSize(), picker->currentValue()}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Int);
    }
}

TEST_F(CaloriesPicker, AFreshOneHasTenThousandRowsAndSelectsTheFirst) {
    EXPECT_EQ(rows(), 10000);
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(title(9999), "99990");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "kcal");
}

TEST_F(CaloriesPicker, Row12Reports120) {
    turn(12);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.integerValue(), 120);
    EXPECT_EQ(notices->list[0].component, 0);
}

TEST_F(CaloriesPicker, TheUnitIsFixedAtConstruction) {
    const Ref<GXCaloriesFormatter> formatter = picker->caloriesFormatter();
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), Calls{});
    EXPECT_EQ(picker->caloriesFormatter(), formatter);
    EXPECT_FALSE(formatter->metric());
    EXPECT_EQ(wheel().rightLabelText(), "kcal");
}

TEST_F(CaloriesPicker, AnotherFormatterIsStoredOnly) {
    const auto formatter = create<GXCaloriesFormatter>(0, true, true);
    EXPECT_EQ(callsOf([&] { picker->setCaloriesFormatter(formatter); }), Calls{});
    EXPECT_EQ(picker->caloriesFormatter(), formatter);
    picker->setCaloriesFormatter(nullptr);
    EXPECT_TRUE(picker->caloriesFormatter()) << "made anew when asked for";
}

TEST_F(CaloriesPicker, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXCaloriesPickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->maxValue().intValue(), 100000);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXCaloriesPickerView>(create<NSCoder>());
    EXPECT_EQ(coded->maxValue().intValue(), 100000);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "kcal");
}

TEST(CaloriesPickerSubclass, WithoutAWheelItIsSetUpAllTheSame) {
    struct WithoutWheel : GXCaloriesPickerView {
        void initGXBasePickerView() override {}
    };
    const auto bare = create<WithoutWheel>(CGRectMake(0, 0, 320, 216));
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->pickerView());
    EXPECT_EQ(bare->stepSize().intValue(), 10);
}
