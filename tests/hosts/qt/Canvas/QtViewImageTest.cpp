#include <gtest/gtest.h>

#include "Pixels.h"
#include "QtViewImage.h"
#include "UIGraphicsContext.h"
#include "UILabel.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;
using gx::qt::imageOfView;

namespace {

struct Canvas : UIView {
    CGRect drawnIn;
    bool isInWindow = false;
    void drawRect(UIGraphicsContext& context, CGRect rect) override {
        drawnIn = rect;
        isInWindow = window() != nullptr;
        context.fillRect(CGRectMake(0, 0, 5, 5), UIColor::labelColor());
    }
};

TEST(QtViewImage, TheViewIsLaidOutInThatSizeAndDrawnInItsPixels) {
    for (const double scale : {1.0, 2.0, 3.0}) {
        const auto view = create<Canvas>(CGRectMake(7, 7, 1, 1));
        const QImage image = imageOfView(view, {40, 30}, scale, UIUserInterfaceStyle::Light);
        const int side = static_cast<int>(5 * scale);
        EXPECT_EQ(image.size(), QSize(8 * side, 6 * side));
        EXPECT_EQ(image.devicePixelRatio(), scale);
        EXPECT_EQ(view->drawnIn, CGRectMake(0, 0, 40, 30));
        EXPECT_TRUE(view->isInWindow);
        EXPECT_EQ(inkOf(image), QRect(0, 0, side, side));
        EXPECT_FALSE(view->superview());
    }
}

TEST(QtViewImage, RoundsPixelsUp) {
    const auto view = create<Canvas>(CGRectZero);
    EXPECT_EQ(imageOfView(view, {10.2, 10}, 1.5, UIUserInterfaceStyle::Light).size(), QSize(16, 15));
}

TEST(QtViewImage, ColoursFollowTheLook) {
    const auto view = create<Canvas>(CGRectZero);
    const QImage light = imageOfView(view, {10, 10}, 1, UIUserInterfaceStyle::Light);
    const QImage dark = imageOfView(view, {10, 10}, 1, UIUserInterfaceStyle::Dark);
    EXPECT_LT(qGray(light.pixel(2, 2)), 60);
    EXPECT_GT(qGray(dark.pixel(2, 2)), 200);
}

TEST(QtViewImage, WithoutAViewOrPixelsThereIsNoImage) {
    const auto view = create<Canvas>(CGRectZero);
    EXPECT_TRUE(imageOfView(nullptr, {10, 10}, 1, UIUserInterfaceStyle::Light).isNull());
    EXPECT_TRUE(imageOfView(view, {0, 10}, 1, UIUserInterfaceStyle::Light).isNull());
    EXPECT_TRUE(imageOfView(view, {10, 10}, 0, UIUserInterfaceStyle::Light).isNull());
    EXPECT_TRUE(imageOfView(view, {10, 10}, -1, UIUserInterfaceStyle::Light).isNull());
    EXPECT_TRUE(imageOfView(view, {1e9, 10}, 1, UIUserInterfaceStyle::Light).isNull());
}

TEST(QtViewImage, AWheelShowsItsRowsAroundTheSelectionIndicator) {
    const auto source = create<WheelSource>();
    const Ref<UIPickerView> wheel = wheelWithSource(source);
    wheel->selectRow_inComponent_animated(50, 0, false);
    wheel->setShowsSelectionIndicator(false);
    const QImage image = imageOfView(wheel, {320, 216}, 2, UIUserInterfaceStyle::Light);
    // The column is 80 points wide, in the middle.
    EXPECT_TRUE(QRect(240, 0, 160, 432).contains(inkOf(image)));
    const auto strongestIn = [&image](QRect area) {
        int most = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) most = std::max(most, qAlpha(image.pixel(x, y)));
        }
        return most;
    };
    const QRect row50(240, 176, 160, 80);
    const QRect row49(240, 96, 160, 76);
    EXPECT_GT(strongestIn(row50), 240);
    EXPECT_LT(strongestIn(row49), strongestIn(row50));
    EXPECT_GT(strongestIn(row49), 50);
}

} // namespace
