// A host: a window of the library in a terminal, one line a row, without any toolkit.

#include <GXUIPickers/GXUIPickers.h>
#include <GXUIPickers/UIHost.h>

#include <array>
#include <cmath>
#include <iostream>
#include <string>

using namespace gx;

namespace {

constexpr CGFloat characterWidth = 10;
constexpr CGFloat lineHeight = 20;
constexpr std::size_t columns = 32;
constexpr std::size_t lines = 11;

/// Measures: every character is one cell of the terminal, in every font.
class CellTextEngine : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont&) override {
        return {static_cast<CGFloat>(text.size()) * characterWidth, lineHeight};
    }
};

/// Draws: puts texts into cells. A wheel of texts needs translation and scale; colours and
/// rectangles have no place here, and rows that have nearly faded are left out.
class CellCanvas : public UIGraphicsContext {
public:
    void saveState() override { saved_.push_back(state_); }
    void restoreState() override {
        state_ = saved_.back();
        saved_.pop_back();
    }
    void translate(CGFloat x, CGFloat y) override {
        state_.origin.x += x * state_.scaleX;
        state_.origin.y += y * state_.scaleY;
    }
    void scale(CGFloat x, CGFloat y) override {
        state_.scaleX *= x;
        state_.scaleY *= y;
    }
    void clipToRect(CGRect) override {}
    void multiplyAlpha(double alpha) override { state_.alpha *= alpha; }

    void print() const {
        for (const std::string& line : cells_) std::cout << '|' << line << "|\n";
    }

protected:
    void fillRectWithComponents(CGRect, const UIColorComponents&, CGFloat) override {}
    void drawImageInRect(const UIImage&, CGRect) override {}
    void drawTextWithComponents(std::string_view text, const UIFont&, const UIColorComponents&, CGPoint place) override {
        constexpr double faint = 0.2;
        if (state_.alpha < faint) return;
        const double line = std::floor((state_.origin.y + (place.y + lineHeight / 2) * state_.scaleY) / lineHeight);
        const double column = std::round((state_.origin.x + place.x * state_.scaleX) / characterWidth);
        if (line < 0 || line >= lines || column < 0 || column + static_cast<double>(text.size()) > columns) return;
        cells_[static_cast<std::size_t>(line)].replace(static_cast<std::size_t>(column), text.size(), text);
    }

private:
    struct State {
        CGPoint origin;
        CGFloat scaleX = 1;
        CGFloat scaleY = 1;
        double alpha = 1;
    };
    State state_;
    std::vector<State> saved_;
    std::vector<std::string> cells_ = std::vector<std::string>(lines, std::string(columns, ' '));
};

/// Notes that a frame is needed; a host with a screen would ask its toolkit for one.
class Terminal : public UIWindowHost {
public:
    explicit Terminal(const Ref<UIView>& view) {
        window_->setHost(this);
        window_->setFrame(view->frame());
        window_->addSubview(view);
    }
    ~Terminal() override { window_->setHost(nullptr); }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void windowNeedsFrame() override { needsFrame_ = true; }
    UIWindow& window() { return *window_; }
    double now() const { return now_; }

    /// Frames until nothing moves any more, then a picture. Returns how many there were.
    int run() {
        int frames = 0;
        while (needsFrame_) {
            now_ += 1.0 / 60;
            needsFrame_ = window_->tick(now_);
            ++frames;
        }
        CellCanvas canvas;
        window_->draw(canvas);
        canvas.print();
        return frames;
    }

private:
    Ref<UIWindow> window_ = create<UIWindow>(CGRectZero);
    double now_ = 0;
    bool needsFrame_ = true;
};

} // namespace

int main() {
    UITextEngine::setShared(create<CellTextEngine>());
    const auto picker = create<GXDurationPickerView>(CGRectMake(0, 0, columns * characterWidth, lines * lineHeight));
    picker->setCurrentValue(NSNumber::numberWithInt(27 * 60 * 1000)); // Milliseconds.
    Terminal terminal(picker);
    terminal.run();

    // A finger throws the minutes; they come to rest by themselves.
    const CGPoint minutes = {18 * characterWidth, 5.5 * lineHeight};
    terminal.window().touchBegan_at_time(0, minutes, terminal.now());
    for (int step = 1; step <= 5; ++step) {
        terminal.window().touchMoved_at_time(0, {minutes.x, minutes.y - 12 * step}, terminal.now() + step / 100.0);
    }
    terminal.window().touchEnded_at_time(0, {minutes.x, minutes.y - 60}, terminal.now() + 0.05);
    const bool hasMoved = terminal.run() > 10;
    std::cout << picker->currentValueText() << "\n";
    UITextEngine::setShared(nullptr);
    return hasMoved ? 0 : 1;
}
