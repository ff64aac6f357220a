// Examples of the reference: style sheet, texts, units and formatters.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

using namespace gx;

namespace {

// [GXStyleSheet GXStyleSheetFont]
/// - Pickers that are there already keep their row height, and show new fonts after `reloadData`.
/// - The style sheet is one for the whole application.
/// - Return one font object as long as it stays the same: wheels read it for each row.
class LargeDigits : public GXStyleSheet {
public:
    Ref<GXStyleSheetFont> pickerValueFont() const override {
        static const Ref<GXStyleSheetFont> font =
            GXStyleSheetFont::fontWithFamily_size_weight_color("", 30, UIFontWeight::Bold, UIColor::labelColor());
        return font;
    }
    double pickerRowHeight() const override { return 52; }
};
// [GXStyleSheet GXStyleSheetFont]

TEST(ReferenceExamples, StyleSheets) {
    // [GXStyleSheet GXStyleSheetFont]
    GXStyleSheet::setGlobalStyleSheet(create<LargeDigits>());
    const auto picker = create<GXBpmPickerView>(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(picker->pickerView()->rowSizeForComponent(0).height, 52);
    EXPECT_EQ(GXStyleSheet::globalStyleSheet()->pickerValueFont()->pointSize(), 30);
    GXStyleSheet::setGlobalStyleSheet(nullptr); // The usual looks again.
    // [GXStyleSheet GXStyleSheetFont]
}

TEST(ReferenceExamples, Localisation) {
    // [GXLocalization]
    /// - Texts on screen stay until `reloadData` of each picker.
    /// - It decides words alone: the decimal separator is that of `NSLocale`.
    /// - An unknown language is English, without a message; `translationLanguage` tells.
    const auto picker = create<GXBpmPickerView>(CGRectMake(0, 0, 320, 216));
    const Ref<GXLocalization> texts = GXLocalization::sharedLocalization();
    texts->setLanguage("de_AT");
    picker->reloadData();
    EXPECT_EQ(texts->translationLanguage(), "de");
    EXPECT_EQ(picker->pickerView()->rightLabelText(), texts->localizedStringWithKey_comment("bpm", ""));
    texts->setLanguage("en");
    // [GXLocalization]
}

TEST(ReferenceExamples, AccessibilityNumbers) {
    // [GXAccessibilityNumber]
    /// - Give the digits as they are shown: "1.0" and "1" have different plurals in some languages.
    /// - A minus belongs to the whole part.
    const GXAccessibilityNumber number = {"5", ".", "3"};
    const Ref<GXLocalization> texts = GXLocalization::sharedLocalization();
    EXPECT_EQ(texts->accessibilityTextForNumber_unit(number, GXAccessibilityUnit::Kilometre), "5.3 kilometres");
    EXPECT_EQ(texts->accessibilityTextForNumber_unit({"1", "", ""}, GXAccessibilityUnit::Kilometre), "1 kilometre");
    // [GXAccessibilityNumber]
}

TEST(ReferenceExamples, Units) {
    // [GXUnitConverter]
    /// - Results are floats, rounded up on the way to kilograms and Celsius: do not convert to and
    ///   fro to compare.
    /// - Stones are decimal: 3.5 are three stones and seven pounds.
    EXPECT_EQ(GXUnitConverter::temperatureCtoF(100), 212);
    EXPECT_EQ(GXUnitConverter::temperatureFtoC(32), 0);
    EXPECT_NEAR(GXUnitConverter::kgToLb(70), 154.3236, 0.0001);
    EXPECT_GE(GXUnitConverter::lbToKg(GXUnitConverter::kgToLb(70)), 70);
    EXPECT_EQ(GXUnitConverter::kgToSt(GXUnitConverter::stToKg(3.5F)), 3.5F);
    // [GXUnitConverter]
}

TEST(ReferenceExamples, Formatters) {
    // [GXUnitFormatter GXDistanceFormatter GXSpeedFormatter GXCaloriesFormatter]
    /// - It names the unit and converts nothing: quantities stay in base units.
    /// - A new formatter is imperial unless told.
    /// - Switch a picker with its own `setIsMetric`, which keeps its formatter in step.
    const auto distances = create<GXDistanceFormatter>(NSInteger{0}, true, true);
    EXPECT_EQ(distances->unit({}), "km");
    distances->setMetric(false);
    EXPECT_EQ(distances->unit({}), "mi");
    EXPECT_EQ(create<GXSpeedFormatter>()->unit({}), "mph");
    EXPECT_EQ(create<GXCaloriesFormatter>()->unit({}), "kcal");
    // [GXUnitFormatter GXDistanceFormatter GXSpeedFormatter GXCaloriesFormatter]
}

} // namespace
