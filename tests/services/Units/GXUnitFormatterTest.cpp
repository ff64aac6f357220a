#include "GXUnitFormatter.h"

#include <gtest/gtest.h>

#include "GXCaloriesFormatter.h"
#include "GXDistanceFormatter.h"
#include "GXLocalization.h"
#include "GXSpeedFormatter.h"

namespace gx {
namespace {

const NSNumber tenKilometres = NSNumber::numberWithInt(10000);
const NSNumber one = NSNumber::numberWithInt(1);
const NSNumber hundred = NSNumber::numberWithInt(100);

/// Leaves English to the next test.
class GXUnitFormatterTest : public testing::Test {
protected:
    void TearDown() override { GXLocalization::setSharedLocalization(nullptr); }
};

struct Units {
    std::optional<std::string> kilometre;
    std::optional<std::string> mile;
    std::optional<std::string> kilometresPerHour;
    std::optional<std::string> milesPerHour;
    std::optional<std::string> kilocalorie;
    friend bool operator==(const Units&, const Units&) = default;
};

Units unitsIn(const std::string& language) {
    GXLocalization::sharedLocalization()->setLanguage(language);
    return {create<GXDistanceFormatter>(1, true, 1)->unit(tenKilometres), create<GXDistanceFormatter>(1, false, 1)->unit(tenKilometres),
            create<GXSpeedFormatter>(1, true, 1)->unit(one), create<GXSpeedFormatter>(1, false, 1)->unit(one),
            create<GXCaloriesFormatter>(0, false, true)->unit(hundred)};
}

TEST_F(GXUnitFormatterTest, NamesItsUnitInTheLanguageOfTheSharedLocalizer) {
    EXPECT_EQ(unitsIn("en"), (Units{"km", "mi", "km/h", "mph", "kcal"}));
    EXPECT_EQ(unitsIn("ru"), (Units{"км", "ми", "км/ч", "ми/ч", "ккал"}));
    EXPECT_EQ(unitsIn("zh-Hans"), (Units{"公里", "英里", "公里/小时", "英里/小时", "千卡"}));
    EXPECT_EQ(unitsIn("tr_TR"), (Units{"km", "mil", "km/sa", "mil/sa", "kcal"}));
}

TEST_F(GXUnitFormatterTest, UsesTheLanguageAtTheTimeOfTheCall) {
    const auto formatter = create<GXDistanceFormatter>(1, true, 1);
    EXPECT_EQ(formatter->unit(tenKilometres), "km");
    GXLocalization::sharedLocalization()->setLanguage("ru");
    EXPECT_EQ(formatter->unit(tenKilometres), "км");
}

TEST_F(GXUnitFormatterTest, HasTheUnitSystemLastSet) {
    const auto formatter = create<GXDistanceFormatter>(1, true, 1);
    EXPECT_TRUE(formatter->metric());
    formatter->setMetric(false);
    EXPECT_FALSE(formatter->metric());
    EXPECT_EQ(formatter->unit(tenKilometres), "mi");
    formatter->setMetric(true);
    EXPECT_TRUE(formatter->metric());
    EXPECT_EQ(formatter->unit(tenKilometres), "km");
    EXPECT_FALSE(create<GXDistanceFormatter>(1, false, 1)->metric());
}

TEST_F(GXUnitFormatterTest, ASpeedFollowsTheUnitSystem) {
    const auto formatter = create<GXSpeedFormatter>(1, false, 1);
    EXPECT_EQ(formatter->unit(one), "mph");
    formatter->setMetric(true);
    EXPECT_EQ(formatter->unit(one), "km/h");
}

TEST_F(GXUnitFormatterTest, EnergyIsShownInKilocaloriesInBothUnitSystems) {
    const auto formatter = create<GXCaloriesFormatter>(0, true, true);
    EXPECT_EQ(formatter->unit(hundred), "kcal");
    formatter->setMetric(false);
    EXPECT_FALSE(formatter->metric());
    EXPECT_EQ(formatter->unit(hundred), "kcal");
}

TEST_F(GXUnitFormatterTest, TheUnitIsTheSameForEveryAmountStyleAndWish) {
    const auto formatter = create<GXDistanceFormatter>(1, true, 1);
    EXPECT_EQ(formatter->unit(NSNumber()), "km");
    EXPECT_EQ(formatter->unit(NSNumber::numberWithDouble(-0.5)), "km");
    EXPECT_EQ(create<GXDistanceFormatter>(0, true, true)->unit(tenKilometres), "km");
    EXPECT_EQ(create<GXDistanceFormatter>(7, true, true)->unit(tenKilometres), "km");
    EXPECT_EQ(create<GXDistanceFormatter>(1, true, 0)->unit(tenKilometres), "km");
}

TEST_F(GXUnitFormatterTest, RemembersStyleAndWishForSubclasses) {
    const auto formatter = create<GXSpeedFormatter>(1, true, 0);
    EXPECT_EQ(formatter->style(), 1);
    EXPECT_FALSE(formatter->usingUnit());
    EXPECT_TRUE(create<GXSpeedFormatter>(0, true, true)->usingUnit());
}

TEST_F(GXUnitFormatterTest, IsImperialWhenMadeWithoutArguments) {
    const auto formatter = create<GXDistanceFormatter>();
    EXPECT_EQ(formatter->style(), 0);
    EXPECT_FALSE(formatter->metric());
    EXPECT_TRUE(formatter->usingUnit());
    EXPECT_EQ(formatter->unit(tenKilometres), "mi");
}

/// A localiser that has no text, and replaces itself during the call.
class Vanishing : public GXLocalization {
public:
    std::optional<std::string> localizedStringWithKey_comment(const std::string&, const std::string&) const override {
        GXLocalization::setSharedLocalization(nullptr);
        return text_;
    }

private:
    std::optional<std::string> text_;
};

TEST_F(GXUnitFormatterTest, ReturnsNothingWhereTheLocalizerHasNoText) {
    GXLocalization::setSharedLocalization(create<Vanishing>());
    const auto formatter = create<GXDistanceFormatter>(1, true, 1);
    EXPECT_EQ(formatter->unit(tenKilometres), std::nullopt);
    EXPECT_EQ(formatter->unit(tenKilometres), "km");
}

/// An application that shows short distances in its own unit.
class Furlongs : public GXDistanceFormatter {
public:
    std::optional<std::string> unit(const NSNumber& quantity) const override {
        return metric() || quantity.intValue() > 1000 ? GXDistanceFormatter::unit(quantity) : "fur";
    }
};

TEST_F(GXUnitFormatterTest, AnApplicationReplacesTheUnit) {
    const auto formatter = create<Furlongs>(1, false, 1);
    EXPECT_EQ(formatter->unit(NSNumber::numberWithInt(1000)), "fur");
    EXPECT_EQ(formatter->unit(NSNumber::numberWithInt(1001)), "mi");
}

} // namespace
} // namespace gx
