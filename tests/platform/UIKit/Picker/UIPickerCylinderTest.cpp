// Where a column's rows are drawn and how faint they are, in wheels of every height.

#include <gtest/gtest.h>

#include <cmath>

#include "UIPickerCylinder.h"
#include "UIPickerView.h"

using namespace gx;

namespace {

constexpr UIAccessibilityContrast normal = UIAccessibilityContrast::Normal;
constexpr UIAccessibilityContrast high = UIAccessibilityContrast::High;

struct UIPickerCylinderTest : testing::Test {
    static UIPickerCylinder cylinder(CGFloat height, CGFloat rowHeight) {
        UIPickerCylinder made;
        made.setHeight_rowHeight(height, rowHeight);
        return made;
    }
    /// How much of a row's alpha the fade toward the edge leaves.
    static double leftAtEdge(double rows, const UIPickerCylinder::Look& look, UIAccessibilityContrast contrast) {
        const double outside = std::min(std::fabs(rows), 1.0);
        return look.alpha / (contrast == high ? 1 - 0.2 * outside : (1 - 0.42 * outside) * look.shortening);
    }
    /// Calls with wheels of many heights, rows of many heights, both contrasts, and distances a
    /// hundredth of a row apart.
    template <class Check>
    static void forMany(Check check) {
        for (const CGFloat rowHeight : {10.0, 32.0, 40.0, 56.0, 120.0}) {
            for (const double rowsHigh : {0.5, 1.0, 1.1, 1.6, 2.0, 2.24, 2.25, 2.5, 3.0, 4.0, 5.4, 9.0, 30.0}) {
                const CGFloat height = rowsHigh * rowHeight;
                const UIPickerCylinder wheel = cylinder(height, rowHeight);
                for (const UIAccessibilityContrast contrast : {normal, high}) {
                    SCOPED_TRACE(testing::Message() << height << " points, rows of " << rowHeight << (contrast == high ? ", high" : ""));
                    check(wheel, height, rowHeight, contrast);
                }
            }
        }
    }
};

} // namespace

TEST_F(UIPickerCylinderTest, RowsAreAtFirstAsHighAsThoseOfAWheelWhoseDelegateGivesNoHeight) {
    EXPECT_EQ(UIPickerCylinder::initialRowHeight, UIPickerView::defaultRowHeight);
}

TEST_F(UIPickerCylinderTest, TheMiddleRowIsDrawnAsItIs) {
    forMany([](const UIPickerCylinder& wheel, CGFloat, CGFloat, UIAccessibilityContrast contrast) {
        const UIPickerCylinder::Look look = wheel.lookOfRow(0, contrast);
        EXPECT_EQ(look.y, 0);
        EXPECT_EQ(look.shortening, 1);
        EXPECT_EQ(look.narrowing, 1);
        EXPECT_EQ(look.alpha, 1);
    });
}

TEST_F(UIPickerCylinderTest, ARowIsInvisibleBeforeItTouchesAnEdge) {
    int visible = 0;
    forMany([&visible](const UIPickerCylinder& wheel, CGFloat height, CGFloat rowHeight, UIAccessibilityContrast contrast) {
        for (double rows = -20; rows <= 20; rows += 0.01) {
            const UIPickerCylinder::Look look = wheel.lookOfRow(rows, contrast);
            if (look.alpha <= 0) continue;
            // In a wheel lower than two rows and a quarter the nearest row is cut while it leaves.
            if (height < 2.25 * rowHeight && std::fabs(rows) < 0.75) continue;
            ++visible;
            EXPECT_LT(std::fabs(look.y) + 0.5 * rowHeight * look.shortening, 0.5 * height) << rows;
        }
    });
    EXPECT_GT(visible, 10'000);
}

TEST_F(UIPickerCylinderTest, TheRowNearestToTheSelectionIndicatorIsNeverFaded) {
    forMany([](const UIPickerCylinder& wheel, CGFloat, CGFloat, UIAccessibilityContrast contrast) {
        for (double rows = -0.5; rows <= 0.5; rows += 0.01) {
            const UIPickerCylinder::Look look = wheel.lookOfRow(rows, contrast);
            if (look.alpha > 0) { // Wheels half as high as a row tilt it away before.
                EXPECT_DOUBLE_EQ(leftAtEdge(rows, look, contrast), 1) << rows;
            }
        }
    });
    const UIPickerCylinder low = cylinder(44, 40);
    for (const UIAccessibilityContrast contrast : {normal, high}) {
        EXPECT_GT(low.lookOfRow(0.5, contrast).alpha, 0.1);
        EXPECT_EQ(low.lookOfRow(0.76, contrast).alpha, 0);
        EXPECT_EQ(low.lookOfRow(1, contrast).alpha, 0) << "at rest only the selected row is seen";
    }
}

TEST_F(UIPickerCylinderTest, RowsFadeSteadilyAndAlikeAboveAndBelow) {
    forMany([](const UIPickerCylinder& wheel, CGFloat, CGFloat, UIAccessibilityContrast contrast) {
        double alphaBefore = 1;
        double seenBefore = 1; // Of a row that is tilted away all that is seen is a line.
        for (double rows = 0; rows <= 20; rows += 0.01) {
            const UIPickerCylinder::Look look = wheel.lookOfRow(rows, contrast);
            const double seen = look.alpha * look.shortening;
            EXPECT_EQ(look.alpha, wheel.lookOfRow(-rows, contrast).alpha) << rows;
            EXPECT_LE(look.alpha, alphaBefore) << rows;
            EXPECT_LT(seenBefore - seen, 0.1) << "no step is seen, a hundredth of a row further, at " << rows;
            alphaBefore = look.alpha;
            seenBefore = seen;
        }
        EXPECT_EQ(alphaBefore, 0);
    });
}

TEST_F(UIPickerCylinderTest, FiveRowsOfAUsualWheelAreSeenAtRest) {
    const UIPickerCylinder wheel = cylinder(216, 40);
    for (const UIAccessibilityContrast contrast : {normal, high}) {
        EXPECT_DOUBLE_EQ(leftAtEdge(1, wheel.lookOfRow(1, contrast), contrast), 1);
        EXPECT_GT(leftAtEdge(2, wheel.lookOfRow(2, contrast), contrast), 0.99);
        EXPECT_GT(leftAtEdge(2.75, wheel.lookOfRow(2.75, contrast), contrast), 0);
        EXPECT_EQ(wheel.lookOfRow(2.8, contrast).alpha, 0) << "its outer side reaches the edge at 2.797";
        EXPECT_EQ(wheel.lookOfRow(3, contrast).alpha, 0);
    }
}

TEST_F(UIPickerCylinderTest, AtHighContrastTheFadeIsNarrower) {
    const UIPickerCylinder wheel = cylinder(216, 40);
    const double between = 2.2;
    EXPECT_LT(leftAtEdge(between, wheel.lookOfRow(between, normal), normal), 0.95);
    EXPECT_DOUBLE_EQ(leftAtEdge(between, wheel.lookOfRow(between, high), high), 1);
}

TEST_F(UIPickerCylinderTest, FindsTheRowThatIsDrawnAtAPlaceAlsoAnInvisibleOne) {
    const UIPickerCylinder wheel = cylinder(216, 40);
    for (double rows = -2.7; rows < 2.75; rows += 0.1) {
        EXPECT_NEAR(wheel.rowsDrawnAt(wheel.lookOfRow(rows, normal).y).value_or(100), rows, 1e-9);
    }
    // The radius is 108 / sin 65° = 119.164: three rows are 1.00702, whose sine is 0.84525.
    EXPECT_NEAR(wheel.rowsDrawnAt(100.72).value_or(100), 3, 0.01);
    EXPECT_EQ(wheel.lookOfRow(3, normal).alpha, 0);
    EXPECT_FALSE(wheel.rowsDrawnAt(120));
    EXPECT_FALSE(wheel.rowsDrawnAt(-120));
}

TEST_F(UIPickerCylinderTest, FollowsANewHeightOfWheelAndRows) {
    UIPickerCylinder wheel = cylinder(216, 40);
    const double reach = wheel.reach();
    wheel.setHeight_rowHeight(432, 40);
    EXPECT_DOUBLE_EQ(wheel.reach(), 2 * reach);
    EXPECT_GT(wheel.lookOfRow(3, normal).alpha, 0);
    wheel.setHeight_rowHeight(432, 80);
    EXPECT_DOUBLE_EQ(wheel.reach(), reach);
    EXPECT_EQ(wheel.lookOfRow(3, normal).alpha, 0);
}
