#include "UIImageView.h"

#include <gtest/gtest.h>

#include "RecordingCanvas.h"
#include "UIWindow.h"

using namespace gx;
using Calls = std::vector<std::string>;

namespace {

/// 8 by 4 pixels at scale 2: 4 by 2 points.
Ref<UIImage> wideImage() { return UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(128, 0), 8, 4, 2); }

struct UIImageViewTest : testing::Test {
    Ref<UIImageView> view = create<UIImageView>(CGRectMake(10, 20, 40, 40));
    RecordingCanvas canvas;

    Calls drawn(UIViewContentMode mode) {
        view->setContentMode(mode);
        view->renderInContext(canvas);
        Calls painted = canvas.painted();
        canvas.calls.clear();
        return painted;
    }
};

} // namespace

TEST_F(UIImageViewTest, WithoutAnImageItShowsNothing) {
    EXPECT_FALSE(view->showsSomething());
    EXPECT_EQ(drawn(UIViewContentModeScaleToFill), Calls{});
    EXPECT_EQ(view->sizeThatFits({100, 100}), CGSizeMake(0, 0));
    EXPECT_EQ(view->accessibilityLabel(), std::nullopt);
}

TEST_F(UIImageViewTest, ItTakesNoTouches) {
    EXPECT_FALSE(view->isUserInteractionEnabled());
    EXPECT_FALSE(create<UIImageView>(create<NSCoder>())->isUserInteractionEnabled());
    EXPECT_FALSE(create<UIImageView>()->isUserInteractionEnabled());
}

TEST_F(UIImageViewTest, ItFitsItsImageInPoints) {
    view->setImage(wideImage());
    EXPECT_TRUE(view->showsSomething());
    EXPECT_EQ(view->sizeThatFits({}), CGSizeMake(4, 2));
    view->sizeToFit();
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, 4, 2));
}

TEST_F(UIImageViewTest, TheContentModeSaysWhereTheImageLies) {
    view->setImage(wideImage());
    EXPECT_EQ(view->contentMode(), UIViewContentModeScaleToFill);
    EXPECT_EQ(drawn(UIViewContentModeScaleToFill), Calls{"image 8 by 4 in 0 0 40 40"});
    // 40 / 4 = 10 times as wide, 40 / 2 = 20 times as high.
    EXPECT_EQ(drawn(UIViewContentModeScaleAspectFit), Calls{"image 8 by 4 in 0 10 40 20"});
    EXPECT_EQ(drawn(UIViewContentModeScaleAspectFill), Calls{"image 8 by 4 in -20 0 80 40"});
    EXPECT_EQ(drawn(UIViewContentModeCenter), Calls{"image 8 by 4 in 18 19 4 2"});
}

TEST_F(UIImageViewTest, AnImageIsPlacedInBoundsThatAreScrolled) {
    view->setImage(wideImage());
    view->setBounds(CGRectMake(100, 0, 40, 40));
    EXPECT_EQ(drawn(UIViewContentModeCenter), Calls{"image 8 by 4 in 118 19 4 2"});
}

TEST_F(UIImageViewTest, AnImageLargerThanTheBoundsIsCentredOnThem) {
    view->setFrame(CGRectMake(0, 0, 2, 1));
    view->setImage(wideImage());
    EXPECT_EQ(drawn(UIViewContentModeCenter), Calls{"image 8 by 4 in -1 -0.5 4 2"});
}

TEST_F(UIImageViewTest, EmptyBoundsShowNoImage) {
    view->setImage(wideImage());
    view->setFrame(CGRectNull);
    EXPECT_EQ(drawn(UIViewContentModeCenter), Calls{});
}

TEST_F(UIImageViewTest, AnotherImageOrModeRequestsAFrameAndTheSameDoesNot) {
    const auto window = create<UIWindow>(CGRectMake(0, 0, 100, 100));
    window->addSubview(view);
    window->tick(0);
    const Ref<UIImage> image = wideImage();
    view->setImage(image);
    EXPECT_TRUE(window->tick(1));
    view->setImage(image);
    EXPECT_FALSE(window->tick(2));
    view->setContentMode(UIViewContentModeCenter);
    EXPECT_TRUE(window->tick(3));
    view->setContentMode(UIViewContentModeCenter);
    EXPECT_FALSE(window->tick(4));
    view->setImage(nullptr);
    EXPECT_TRUE(window->tick(5));
}

TEST_F(UIImageViewTest, ItRestoresItsContentMode) {
    const auto restored = [](NSInteger mode) {
        const auto coder = create<NSCoder>();
        coder->encodeInteger_forKey(mode, "contentMode");
        coder->encodeCGRect_forKey(CGRectMake(1, 2, 3, 4), "frame");
        return create<UIImageView>(coder);
    };
    EXPECT_EQ(restored(0)->contentMode(), UIViewContentModeScaleToFill);
    EXPECT_EQ(restored(1)->contentMode(), UIViewContentModeScaleAspectFit);
    EXPECT_EQ(restored(2)->contentMode(), UIViewContentModeScaleAspectFill);
    EXPECT_EQ(restored(4)->contentMode(), UIViewContentModeCenter);
    EXPECT_EQ(restored(3)->contentMode(), UIViewContentModeScaleToFill) << "unknown";
    EXPECT_EQ(restored(-1)->contentMode(), UIViewContentModeScaleToFill);
    EXPECT_EQ(restored(4)->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(create<UIImageView>(Ref<NSCoder>())->contentMode(), UIViewContentModeScaleToFill);
}
