// How a wheel's rows are drawn as a cylinder, and that a tap meets the row that is drawn under it.

#include <algorithm>
#include <map>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// Notes where each text lands in the window, how it is squeezed and how faint it is.
class PlacingCanvas : public UIGraphicsContext {
public:
    struct Text {
        CGFloat middle = 0;
        double scaleX = 1;
        double scaleY = 1;
        double alpha = 1;
        CGRect clip;
    };
    std::map<std::string, Text> texts;
    int indicators = 0;

    void saveState() override { saved_.push_back(state_); }
    void restoreState() override {
        state_ = saved_.back();
        saved_.pop_back();
    }
    void translate(CGFloat x, CGFloat y) override {
        state_.x += x * state_.scaleX;
        state_.y += y * state_.scaleY;
    }
    void scale(CGFloat x, CGFloat y) override {
        state_.scaleX *= x;
        state_.scaleY *= y;
    }
    void clipToRect(CGRect rect) override {
        const CGRect mapped = {{state_.x + rect.origin.x * state_.scaleX, state_.y + rect.origin.y * state_.scaleY}, rect.size};
        state_.clip = CGRectIntersection(state_.clip, mapped);
    }
    void multiplyAlpha(double alpha) override { state_.alpha *= alpha; }

protected:
    void fillRectWithComponents(CGRect, const UIColorComponents&, CGFloat) override { ++indicators; }
    void drawTextWithComponents(std::string_view text, const UIFont&, const UIColorComponents&, CGPoint origin) override {
        constexpr CGFloat halfLine = 10;
        texts[std::string(text)] = {state_.y + (origin.y + halfLine) * state_.scaleY, state_.scaleX, state_.scaleY, state_.alpha,
                                    state_.clip};
    }
    void drawImageInRect(const UIImage&, CGRect) override {}

private:
    struct State {
        double x = 0;
        double y = 0;
        double scaleX = 1;
        double scaleY = 1;
        double alpha = 1;
        CGRect clip = CGRectMake(-1e6, -1e6, 2e6, 2e6);
    };
    State state_;
    std::vector<State> saved_;
};

struct UIPickerViewDrawing : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    std::map<std::string, PlacingCanvas::Text> drawn() {
        PlacingCanvas canvas;
        window->draw(canvas);
        return canvas.texts;
    }
};

} // namespace

TEST_F(UIPickerViewDrawing, TheSelectedRowIsDrawnWithoutForeshortening) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    const PlacingCanvas::Text row = drawn().at("50");
    EXPECT_DOUBLE_EQ(row.middle, 108);
    EXPECT_DOUBLE_EQ(row.scaleX, 1);
    EXPECT_DOUBLE_EQ(row.scaleY, 1);
    EXPECT_DOUBLE_EQ(row.alpha, 1);
}

TEST_F(UIPickerViewDrawing, RowsTiltAndFadeAlikeAboveAndBelow) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    const auto rows = drawn();
    for (int i = 1; i <= 2; ++i) {
        const PlacingCanvas::Text below = rows.at(std::to_string(50 + i));
        const PlacingCanvas::Text above = rows.at(std::to_string(50 - i));
        const PlacingCanvas::Text before = rows.at(std::to_string(50 + i - 1));
        EXPECT_NEAR(below.middle - 108, 108 - above.middle, 1e-9);
        EXPECT_LT(below.middle - before.middle, 40);
        EXPECT_GT(below.middle, before.middle);
        EXPECT_LT(below.scaleY, before.scaleY);
        EXPECT_LT(below.scaleX, before.scaleX);
        EXPECT_GT(below.scaleX, below.scaleY) << "squeezed, and a little narrower for being further away";
        EXPECT_LT(below.alpha, before.alpha);
        EXPECT_DOUBLE_EQ(below.alpha, above.alpha);
    }
    // The radius is 108 / sin 65° = 119.164…; the next row is turned by 40 / 119.164 = 0.33567 and
    // stands at 119.164 · sin 0.33567.
    EXPECT_NEAR(rows.at("51").middle - 108, 39.2528, 1e-3);
    EXPECT_EQ(rows.size(), 5U) << "the next ones would be cut by the edge";
}

TEST_F(UIPickerViewDrawing, NoRowIsDrawnBeyondTheWheel) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    for (const auto& [title, row] : drawn()) EXPECT_EQ(row.clip, CGRectMake(0, 0, 320, 216)) << title;
}

TEST_F(UIPickerViewDrawing, ATapSelectsTheRowThatIsDrawnUnderIt) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    const auto rows = drawn();
    for (const auto& [title, row] : rows) {
        if (title == "50") continue;
        wheel->selectRow_inComponent_animated(50, 0, false);
        window.tap({160, row.middle});
        window.runUntilStill();
        EXPECT_EQ(std::to_string(source->notices.back().row), title);
    }
    EXPECT_EQ(source->notices.size(), rows.size() - 1);
}

TEST_F(UIPickerViewDrawing, NoRowIsSeenCutByAnEdgeWhileItTurns) {
    int visible = 0;
    for (const CGFloat height : {100.0, 132.0, 176.0, 216.0, 300.0}) {
        wheel->setFrame(CGRectMake(0, 0, 320, height));
        for (const UIAccessibilityContrast contrast : {UIAccessibilityContrast::Normal, UIAccessibilityContrast::High}) {
            window->setAccessibilityContrast(contrast);
            wheel->selectRow_inComponent_animated(50, 0, false);
            window.tick(0);
            wheel->selectRow_inComponent_animated(56, 0, true);
            while (window.tick(TestWindow::frame)) {
                for (const auto& [title, row] : drawn()) {
                    visible += row.alpha > 0 ? 1 : 0;
                    EXPECT_GE(row.middle - 20 * row.scaleY, 0) << title << " in " << height;
                    EXPECT_LE(row.middle + 20 * row.scaleY, height) << title << " in " << height;
                }
            }
        }
    }
    EXPECT_GT(visible, 500);
}

TEST_F(UIPickerViewDrawing, ATapAtTheEdgeSpinsToTheRowThatHasFadedOutThere) {
    wheel->selectRow_inComponent_animated(50, 0, false);
    ASSERT_FALSE(drawn().contains("53"));
    EXPECT_TRUE(wheel->viewForRow_forComponent(53, 0)) << "it has a view all the same";
    window.tap({160, 209});
    window.runUntilStill();
    EXPECT_EQ(source->notices, (std::vector<WheelSource::Notice>{{53, 0}}));
    window.tap({160, 7});
    window.runUntilStill();
    EXPECT_EQ(source->notices.back(), (WheelSource::Notice{50, 0}));
}

TEST_F(UIPickerViewDrawing, TheSelectionIndicatorIsDrawnOnlyIfItIsShown) {
    PlacingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.indicators, 1);
    wheel->setShowsSelectionIndicator(false);
    window->draw(canvas);
    EXPECT_EQ(canvas.indicators, 1);
}

TEST_F(UIPickerViewDrawing, HidingAndShowingTheSelectionIndicatorDrawsAgain) {
    window.runUntilStill();
    window.tick(0);
    ASSERT_FALSE(window.tick(0));
    wheel->setShowsSelectionIndicator(false);
    EXPECT_TRUE(window.tick(0));
    wheel->setShowsSelectionIndicator(false);
    EXPECT_FALSE(window.tick(0)) << "the same again changes nothing";
    wheel->setShowsSelectionIndicator(true);
    EXPECT_TRUE(window.tick(0));
}

TEST_F(UIPickerViewDrawing, AWheelWithoutColumnsDrawsNothing) {
    source->rows = {};
    wheel->reloadAllComponents();
    window.tick(0);
    PlacingCanvas canvas;
    window->draw(canvas);
    EXPECT_EQ(canvas.indicators, 0);
    EXPECT_TRUE(canvas.texts.empty());
    EXPECT_EQ(wheel->selectionIndicatorFrame(), CGRect{});
}

TEST_F(UIPickerViewDrawing, ARowTiltedBeyondTheEdgeIsNotDrawn) {
    // As high as the wheel: the rows beside the selected one are tilted by more than 90 degrees.
    source->height = 216;
    wheel->selectRow_inComponent_animated(50, 0, false);
    window.tick(0);
    ASSERT_TRUE(wheel->viewForRow_forComponent(51, 0));
    const auto texts = drawn();
    EXPECT_EQ(texts.size(), 1U);
    EXPECT_TRUE(texts.contains("50"));
}

TEST_F(UIPickerViewDrawing, AViewThatWasPutElsewhereStaysThere) {
    const auto elsewhere = create<UIView>(CGRectMake(0, 300, 100, 100)); // In no window.
    elsewhere->addSubview(wheel->viewForRow_forComponent(0, 0));
    EXPECT_FALSE(drawn().contains("0"));
    EXPECT_TRUE(drawn().contains("1"));
    wheel->setDelegate(create<WheelSource>()); // All rows go; they may not be taken from elsewhere.
    EXPECT_EQ(elsewhere->subviews().size(), 1U);
}
