// Controls below the pointer.

#include "GalleryTest.h"
#include "RecordingCanvas.h"

using namespace gallery;
using namespace gx;

namespace {

/// A button of 300 by 100 points in a view of 300 by 400.
struct ControlHoverTest : testing::Test {
    ControlHoverTest() {
        button->setFrame(CGRectMake(0, 0, 300, 100));
        content->addSubview(button);
        window.tick(0.1);
    }

    Ref<UIView> content = create<UIView>(CGRectMake(0, 0, 300, 400));
    Ref<Button> button = Button::buttonWithTitle_style("Press", Button::Style::Plain);
    TestWindow window{content};
};

} // namespace

TEST_F(ControlHoverTest, AButtonShowsThatItCanBePressedBelowThePointer) {
    window->pointerMoved({150, 50});
    EXPECT_TRUE(button->isHovered());
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
    EXPECT_TRUE(window.tick(0.1));
    window->pointerMoved({151, 50});
    EXPECT_FALSE(window.tick(0.1)) << "it looks the same";
    window->pointerMoved({150, 150});
    EXPECT_FALSE(button->isHovered());
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    EXPECT_TRUE(window.tick(0.1));
}

TEST_F(ControlHoverTest, TheSegmentBelowThePointerIsMarkedUnlessItIsChosen) {
    const auto segments = SegmentedControl::segmentsWithChoices({"a", "b", "c"}, 1);
    segments->setFrame(CGRectMake(0, 200, 300, 40));
    content->addSubview(segments);
    window.tick(0.1);
    // The track, the thumb and, below the pointer, a mark.
    const auto fills = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        const std::vector<std::string> painted = canvas.painted();
        return std::count_if(painted.begin(), painted.end(), [](const std::string& call) { return call.starts_with("fill"); });
    };
    const auto atRest = fills();
    window->pointerMoved({50, 220});
    EXPECT_EQ(fills(), atRest + 1);
    EXPECT_TRUE(window.tick(0.1));
    window->pointerMoved({60, 220});
    EXPECT_FALSE(window.tick(0.1)) << "the same segment";
    window->pointerMoved({150, 220});
    EXPECT_EQ(fills(), atRest);
    EXPECT_TRUE(window.tick(0.1));
}
