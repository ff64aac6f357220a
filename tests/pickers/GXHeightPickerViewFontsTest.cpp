// The height picker's titles grow with the style sheet, as far as its rows and columns have room.

#include "GXStyleSheet.h"
#include "HeightPickerTest.h"
#include "ProportionalTextEngine.h"
#include "UILabel.h"

using namespace gx;

namespace {

struct HeightPickerFonts : HeightPicker {
    HeightPickerFonts() { UITextEngine::setShared(create<ProportionalTextEngine>()); }
    ~HeightPickerFonts() override {
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        UITextEngine::setShared(nullptr);
    }
    CGFloat sizeAtScale(double scale) {
        GXStyleSheet::globalStyleSheet()->setTextScale(scale);
        picker->reloadData();
        picker->layoutIfNeeded();
        const auto label = std::static_pointer_cast<UILabel>(picker->viewForRow_forComponent(selected(0), 0));
        return label ? label->font()->pointSize() : 0;
    }
};

} // namespace

TEST_F(HeightPickerFonts, AreTheWheelsOwnAtTheUsualTextSize) {
    picker->setHeightInCm(180);
    EXPECT_EQ(sizeAtScale(1), 22);
}

TEST_F(HeightPickerFonts, GrowAndShrinkWithTheStyleSheet) {
    picker->setHeightInCm(180);
    EXPECT_EQ(sizeAtScale(0.8), 17) << "17.6, cut to whole points";
    EXPECT_EQ(sizeAtScale(1.25), 27);
    EXPECT_EQ(sizeAtScale(1), 22);
}

TEST_F(HeightPickerFonts, StayWithinRowsAndColumnsOfFixedSizes) {
    picker->setHeightInCm(180);
    EXPECT_EQ(sizeAtScale(3), 33) << "lines of 1.2 times 33 points fit into 40, those of 34 do not";
    EXPECT_EQ(picker->pickerView_rowHeightForComponent(picker, 0), 40);
    EXPECT_EQ(picker->rowSizeForComponent(0), (CGSize{60, 40}));
    picker->setIsMetric(true);
    EXPECT_EQ(sizeAtScale(3), 33);
    EXPECT_EQ(picker->rowSizeForComponent(0), (CGSize{100, 40}));
}

TEST_F(HeightPickerFonts, LeaveTheTitlesAttributesAlone) {
    picker->setHeightInCm(180);
    sizeAtScale(2);
    EXPECT_FALSE(picker->styleString("a")->attributes().font) << "the colour alone";
}
