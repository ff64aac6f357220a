// The largest fonts with which a picker shows all of its texts.

#include "GXFontFitting.h"

#include <gtest/gtest.h>

#include "GXBpmPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXStyleSheet.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "IconImages.h"
#include "ProportionalTextEngine.h"

using namespace gx;

namespace {

class PickerFonts : public testing::Test {
protected:
    void SetUp() override { UITextEngine::setShared(create<ProportionalTextEngine>()); }
    void TearDown() override {
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        UITextEngine::setShared(nullptr);
    }

    static void setTextScale(double scale) { GXStyleSheet::globalStyleSheet()->setTextScale(scale); }
    static CGFloat styleSheetSize() { return GXStyleSheet::globalStyleSheet()->pickerValueFont()->pointSize(); }
    /// Nothing stands for the style sheet's.
    static std::optional<CGFloat> sizeOf(const Ref<GXStyleSheetFont>& font) {
        return font ? std::optional(font->pointSize()) : std::nullopt;
    }
    static void setSize(const Ref<GXBasePickerView>& picker, CGFloat size) {
        const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", size, UIFontWeight::Regular, UIColor::labelColor());
        picker->setCustomValueFont(font);
        picker->setCustomLabelFont(font);
        picker->layoutIfNeeded();
    }
    static Ref<GXDurationPickerView> durationInWidth(CGFloat width) {
        const auto picker = create<GXDurationPickerView>(CGRectMake(0, 0, width, 216));
        picker->setType(GXDurationTypeHoursMinutesSeconds);
        picker->layoutIfNeeded();
        return picker;
    }
    /// How far the unit reaches to the right; it has to end 14 points before the wheel does.
    static CGFloat endOfUnit(const Ref<GXBasePickerView>& picker) { return CGRectGetMaxX(picker->pickerView()->rightDescLabel()->frame()); }
};

} // namespace

TEST_F(PickerFonts, OfTheStyleSheetStayWhereAllTextsFit) {
    const auto picker = create<GXBpmPickerView>(CGRectMake(0, 0, 320, 216));
    picker->sizeFontsToFit();
    EXPECT_EQ(sizeOf(picker->customValueFont()), std::nullopt);
    EXPECT_EQ(sizeOf(picker->customLabelFont()), std::nullopt);
}

TEST_F(PickerFonts, ShrinkUntilNoTitleIsWiderThanItsColumn) {
    setTextScale(2);
    // Wide enough for all but the minutes, whose column is 30 points wide.
    const auto picker = durationInWidth(900);
    picker->sizeFontsToFit();
    EXPECT_EQ(styleSheetSize(), 44);
    EXPECT_EQ(sizeOf(picker->customValueFont()), 25) << "two digits of 0.6 times 25 are 30 points wide";
    EXPECT_EQ(sizeOf(picker->customLabelFont()), 25);
}

TEST_F(PickerFonts, ShrinkUntilTheUnitStandsWithinTheIndicator) {
    const auto picker = durationInWidth(320);
    picker->sizeFontsToFit();
    const auto size = sizeOf(picker->customValueFont());
    ASSERT_TRUE(size);
    EXPECT_GT(*size, 13);
    picker->layoutIfNeeded();
    EXPECT_LE(endOfUnit(picker), 320 - 14);
    setSize(picker, *size + 1);
    EXPECT_GT(endOfUnit(picker), 320 - 14) << "a point more is too large";
}

TEST_F(PickerFonts, AreNeverSmallerThan13Points) {
    const auto picker = durationInWidth(120);
    picker->sizeFontsToFit();
    EXPECT_EQ(sizeOf(picker->customValueFont()), 13);
    EXPECT_EQ(sizeOf(picker->customLabelFont()), 13);
    EXPECT_GT(endOfUnit(picker), 120 - 14) << "although the unit has no room";
}

TEST_F(PickerFonts, GrowAgainWithTheFrame) {
    const auto picker = durationInWidth(120);
    picker->sizeFontsToFit();
    picker->setFrame(CGRectMake(0, 0, 900, 216));
    picker->sizeFontsToFit();
    EXPECT_EQ(sizeOf(picker->customValueFont()), std::nullopt);
}

TEST_F(PickerFonts, KeepFamilyWeightAndColourOfTheStyleSheet) {
    struct Sheet : GXStyleSheet {
        Ref<GXStyleSheetFont> pickerValueFont() const override {
            return GXStyleSheetFont::fontWithFamily_size_weight_color("Wide", 60, UIFontWeight::Bold, UIColor::colorWithHex(0xB3261E));
        }
        Ref<GXStyleSheetFont> pickerLabelFont() const override {
            return GXStyleSheetFont::fontWithFamily_size_weight_color("Narrow", 60, UIFontWeight::Medium, UIColor::blackColor());
        }
    };
    GXStyleSheet::setGlobalStyleSheet(create<Sheet>());
    const auto picker = durationInWidth(900);
    picker->sizeFontsToFit();
    ASSERT_EQ(sizeOf(picker->customValueFont()), 25);
    EXPECT_EQ(picker->customValueFont()->familyName(), "Wide");
    EXPECT_EQ(picker->customValueFont()->weight(), UIFontWeight::Bold);
    EXPECT_EQ(picker->customValueFont()->color(), UIColor::colorWithHex(0xB3261E));
    ASSERT_EQ(sizeOf(picker->customLabelFont()), 25);
    EXPECT_EQ(picker->customLabelFont()->familyName(), "Narrow");
    EXPECT_EQ(picker->customLabelFont()->weight(), UIFontWeight::Medium);
}

TEST_F(PickerFonts, DependOnBothLabels) {
    const auto picker = create<GXHeartRatePickerView>(CGRectMake(0, 0, 210, 216));
    picker->sizeFontsToFit();
    const auto size = sizeOf(picker->customValueFont());
    ASSERT_TRUE(size);
    picker->layoutIfNeeded();
    EXPECT_GE(CGRectGetMinX(picker->pickerView()->leftDescLabel()->frame()), 14);
    EXPECT_LE(endOfUnit(picker), 210 - 14);
}

TEST_F(PickerFonts, AreTheSameInAllOfAComposite) {
    const auto picker = create<GXDistanceAndDurationPicker>(CGRectMake(0, 0, 390, 216));
    setTextScale(3);
    picker->sizeFontsToFit();
    const auto& distance = picker->distancePicker();
    const auto& duration = picker->durationPicker();
    ASSERT_TRUE(sizeOf(distance->customValueFont()));
    for (const auto& font : {distance->customLabelFont(), duration->customValueFont(), duration->customLabelFont()}) {
        EXPECT_EQ(sizeOf(font), sizeOf(distance->customValueFont()));
    }
    EXPECT_EQ(sizeOf(picker->customValueFont()), std::nullopt) << "it shows no text of its own";
}

TEST_F(PickerFonts, OfACompositeKeepTheUnitOffTheOtherIndicator) {
    const auto picker = create<GXDistanceAndDurationPicker>(CGRectMake(0, 0, 390, 216));
    setTextScale(3);
    picker->sizeFontsToFit();
    // The duration begins 20 points before the middle, and its indicator 8 points after that.
    const auto endOfDistance = [&picker] {
        picker->layoutIfNeeded();
        return endOfUnit(picker->distancePicker());
    };
    EXPECT_LE(endOfDistance(), 195 - 20 + 8);
}

TEST_F(PickerFonts, OfACompositeWithIconsFitItsNumbers) {
    const auto picker = create<GXWeatherAndTemperaturePickerView>(CGRectMake(0, 0, 220, 216));
    picker->weatherPicker()->setIconImages(iconImages(3));
    setTextScale(3);
    picker->sizeFontsToFit();
    const auto size = sizeOf(picker->temperaturePicker()->customValueFont());
    ASSERT_TRUE(size);
    EXPECT_EQ(sizeOf(picker->weatherPicker()->customValueFont()), size);
}

TEST_F(PickerFonts, StayAsTheyAreWithoutAWheelOrAFrame) {
    const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", 99, UIFontWeight::Regular, UIColor::labelColor());
    const auto bare = create<GXDurationPickerView>(CGRectMake(0, 0, 100, 216));
    bare->setPickerView(nullptr);
    bare->setCustomValueFont(font);
    bare->sizeFontsToFit();
    EXPECT_EQ(bare->customValueFont(), font);
    const auto flat = create<GXDurationPickerView>(CGRectMake(0, 0, 100, 0));
    flat->setCustomValueFont(font);
    flat->sizeFontsToFit();
    EXPECT_EQ(flat->customValueFont(), font);
    const auto emptied = create<GXDistanceAndDurationPicker>(CGRectMake(0, 0, 100, 216));
    emptied->setDistancePicker(nullptr);
    emptied->setDurationPicker(nullptr);
    emptied->setCustomValueFont(font);
    emptied->sizeFontsToFit();
    EXPECT_EQ(emptied->customValueFont(), font);
}

TEST_F(PickerFonts, OfAStyleSheetWithoutFontsStayAbsent) {
    struct Sheet : GXStyleSheet {
        bool hasFonts = true;
        Ref<GXStyleSheetFont> pickerValueFont() const override { return hasFonts ? GXStyleSheet::pickerValueFont() : nullptr; }
    };
    const auto picker = durationInWidth(120);
    const auto sheet = create<Sheet>();
    sheet->hasFonts = false;
    GXStyleSheet::setGlobalStyleSheet(sheet);
    picker->sizeFontsToFit();
    EXPECT_EQ(sizeOf(picker->customValueFont()), std::nullopt);
}

TEST_F(PickerFonts, AreChosenToTheEndWhenThePickerIsDropped) {
    struct Dropping : GXDurationPickerView {
        std::function<void()> whenSet;
        void setCustomLabelFont(Ref<GXStyleSheetFont> font) override {
            if (const auto act = std::exchange(whenSet, nullptr)) act();
            GXDurationPickerView::setCustomLabelFont(std::move(font));
        }
    };
    Ref<Dropping> picker = create<Dropping>(CGRectMake(0, 0, 120, 216));
    const WeakRef<Dropping> weak = picker;
    Dropping& dropped = *picker;
    dropped.whenSet = [&picker] {
        picker->setPickerView(nullptr);
        picker = nullptr;
    };
    dropped.sizeFontsToFit();
    EXPECT_TRUE(weak.expired());
}
