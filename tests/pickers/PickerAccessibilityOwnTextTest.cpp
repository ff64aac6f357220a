// Accessibility texts of pickers without a measurement, of composites and cells, and in an
// application's own words.

#include "AccessibilityTextTest.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeightPickerCell.h"
#include "GXWeightPickerView.h"

using namespace gx;

TEST_F(PickerAccessibilityText, ANumberOfNothingIsItsTitle) {
    const auto picker = create<GXBasePickerView>(place);
    picker->setCurrentValue(boxed(42));
    EXPECT_EQ(picker->accessibilityElements().at(0)->label(), std::nullopt);
    EXPECT_EQ(valueOf(picker), "42");
    picker->setAccessibilityLabel("Laps");
    EXPECT_EQ(labelsOf(picker), Texts{"Laps"});
}

TEST_F(PickerAccessibilityText, ANumberWithoutATitleHasNoText) {
    struct Untitled : GXDistancePickerView {
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
            return std::nullopt;
        }
    };
    const auto picker = metricPicker<Untitled>(boxed(5300));
    EXPECT_EQ(picker->pickerView_accessibilityValueForRow_forComponent(picker->pickerView(), 5, 0), std::nullopt);
}

TEST_F(PickerAccessibilityText, ACompositeOffersTheColumnsOfBothPickers) {
    const auto picker = create<GXDistanceAndDurationPicker>(place);
    picker->setIsMetric(true);
    EXPECT_EQ(labelsOf(picker), (Texts{"Distance, kilometres", "Distance, tenths", "Duration, hours", "Duration, minutes"}));
    EXPECT_EQ(valuesOf(picker), (Texts{"5.0 kilometres", "5.0 kilometres", "5 minutes", "5 minutes"}));
}

TEST_F(PickerAccessibilityText, APickersCellIsItsColumns) {
    const auto cell = create<GXWeightPickerCell>(place);
    cell->pickerView()->setCurrentValue(boxedDouble(72.5));
    EXPECT_EQ(labelsOf(cell), (Texts{"Weight, kilograms", "Weight, tenths"}));
}

TEST_F(PickerAccessibilityText, AnApplicationsLocaliserHasItsOwnWords) {
    struct OwnWords : GXLocalization {
        std::optional<std::string> accessibilityTextForName(GXAccessibilityName name) const override {
            if (name == GXAccessibilityName::Tenths) return std::nullopt;
            return name == GXAccessibilityName::Distance ? std::optional<std::string>("Way")
                                                         : GXLocalization::accessibilityTextForName(name);
        }
        std::optional<std::string> accessibilityTextForNumber_unit(const GXAccessibilityNumber& number,
                                                                   GXAccessibilityUnit unit) const override {
            if (unit != GXAccessibilityUnit::Kilometre) return std::nullopt;
            return number.whole + " point " + number.fraction + " clicks";
        }
    };
    GXLocalization::setSharedLocalization(create<OwnWords>());
    const auto picker = metricPicker<GXDistancePickerView>(boxed(5300));
    EXPECT_EQ(labelsOf(picker), (Texts{"Way, kilometres", "Way"}));
    EXPECT_EQ(valueOf(picker), "5 point 3 clicks");
}

TEST_F(PickerAccessibilityText, ALocaliserMayLeaveOutPatternsAndQuantities) {
    struct FewWords : GXLocalization {
        bool hasQuantities = true;
        std::optional<std::string> accessibilityTextForName(GXAccessibilityName name) const override {
            const bool isLeftOut = name == GXAccessibilityName::NameAndPart || name == GXAccessibilityName::PerKilometre;
            return isLeftOut ? std::nullopt : GXLocalization::accessibilityTextForName(name);
        }
        std::optional<std::string> accessibilityTextForNumber_unit(const GXAccessibilityNumber& number,
                                                                   GXAccessibilityUnit unit) const override {
            return hasQuantities ? GXLocalization::accessibilityTextForNumber_unit(number, unit) : std::nullopt;
        }
    };
    const auto localization = create<FewWords>();
    GXLocalization::setSharedLocalization(localization);
    // 5:15 per kilometre.
    const auto picker = metricPicker<GXPacePickerView>(boxedDouble(1000.0 / 315));
    EXPECT_EQ(labelsOf(picker), (Texts{"Pace", "Pace"}));
    EXPECT_EQ(valueOf(picker), "5 minutes 15 seconds");
    localization->hasQuantities = false;
    EXPECT_EQ(valuesOf(picker), (Texts{"05", "15"})) << "the titles are left to be said";
}

TEST_F(PickerAccessibilityText, AColumnThatHoldsNoPartHasTheMeasurementsNameAlone) {
    const auto nameOf = [](const Ref<GXBasePickerView>& picker, NSInteger component) {
        return picker->pickerView_accessibilityLabelForComponent(picker->pickerView(), component);
    };
    for (const NSInteger component : {1, 99}) {
        EXPECT_EQ(nameOf(create<GXDistancePickerView>(place), component), "Distance");
        EXPECT_EQ(nameOf(create<GXSpeedPickerView>(place), component), "Speed");
        EXPECT_EQ(nameOf(create<GXPacePickerView>(place), component), "Pace");
        EXPECT_EQ(nameOf(create<GXWeightPickerView>(place), component), "Weight");
        EXPECT_EQ(nameOf(create<GXDurationPickerView>(place), component), "Duration");
    }
    const auto duration = create<GXDurationPickerView>(place);
    duration->setType(99);
    EXPECT_EQ(duration->pickerView_accessibilityValueForRow_forComponent(duration->pickerView(), 0, 0), std::nullopt);
}
