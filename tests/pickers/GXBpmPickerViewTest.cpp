#include "GXBpmPickerView.h"

#include "PickerTest.h"

using namespace gx;
using BpmPicker = PickerTest<GXBpmPickerView>;

TEST_F(BpmPicker, ItIsSetUpStepByStepThroughTheSetters) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source", // the wheel
                                          "reload", "select 0 in 0", // minimum
                                          "reload", "select 0 in 0", // maximum
                                          "reload", "select 0 in 0", // step
                                          "select 16 in 0",          // current value
                                          "right bpm", "reload"}));
    for (const NSNumber& number : {picker->minValue(), picker->maxValue(), picker->stepSize(), picker->currentValue()}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Int);
    }
}

TEST_F(BpmPicker, AFreshOneShows160Among24RowsWithItsUnit) {
    EXPECT_EQ(rows(), 24);
    EXPECT_EQ(selected(), 16);
    EXPECT_EQ(selectedTitle(), "160");
    EXPECT_EQ(title(0), "0");
    EXPECT_EQ(title(23), "230");
    EXPECT_EQ(wheel().rightDescLabel()->text(), "bpm");
    // "230" is 30 wide, so the column is 54: the label starts at 160 + 27 + 10.
    EXPECT_NEAR(CGRectGetMinX(wheel().rightDescLabel()->frame()), 197, 1e-5);
}

TEST_F(BpmPicker, TheLastRowReports230AndNoRowReports240) {
    turn(23);
    turn(24); // clamped to the last row
    ASSERT_EQ(notices->list.size(), 2U);
    for (const auto& notice : notices->list) {
        EXPECT_EQ(notice.value.integerValue(), 230);
        EXPECT_EQ(notice.component, 0);
    }
}

TEST_F(BpmPicker, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXBpmPickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->currentValue().intValue(), 160);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 0), 60);
    const auto coded = create<GXBpmPickerView>(create<NSCoder>());
    EXPECT_EQ(coded->currentValue().intValue(), 160);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "bpm");
}

TEST(BpmPickerSubclass, WithoutAWheelItIsSetUpAllTheSame) {
    struct WithoutWheel : GXBpmPickerView {
        void initGXBasePickerView() override {}
    };
    const auto bare = create<WithoutWheel>(CGRectMake(0, 0, 320, 216));
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->pickerView());
    EXPECT_EQ(bare->stepSize().intValue(), 10);
}
