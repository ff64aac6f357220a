#pragma once

#include <functional>
#include <string>

#include "ScenarioPicker.h"
#include "UIWindow.h"

namespace scenarios {

/// Plays one scenario in a window, as a host does: with the frames that the window asks for, on a
/// clock that the scenario moves.
class ScenarioRun : public gx::UIWindowHost {
public:
    explicit ScenarioRun(const Json& scenario);
    ~ScenarioRun() override;
    ScenarioRun(const ScenarioRun&) = delete;
    ScenarioRun& operator=(const ScenarioRun&) = delete;

    /// What each `state` found, as README.md describes it. Checks each `expect`.
    Json play();

    void windowNeedsFrame() override { needsFrame_ = true; }
    void giveFeedback(gx::UIFeedback) override { ++passedRows_; }

private:
    void playStep(const Json& step);
    void touch(const Json& step);
    void glide(const Json& step);
    void scroll(const Json& step);
    void key(const Json& step);
    void focusColumn(std::size_t column);
    void type(const std::string& text);
    void wait(double seconds);
    void frame(double seconds);
    void expect(const Json& expected);
    Json state();

    /// Calls the window and then notes what it has reported meanwhile.
    void call(const std::function<void()>& work);
    gx::UIAccessibilityElements columns() const;
    /// A column's middle, moved down by `points`, in whole points.
    gx::CGPoint placeIn(std::size_t column, double points) const;

    const Json& scenario_;
    gx::Ref<ScenarioPicker> picker_;
    gx::Ref<gx::UIWindow> window_;
    double now_ = 1000;
    bool needsFrame_ = false;
    gx::NSInteger passedRows_ = 0;
    Json shown_;

    // Since the last state.
    gx::NSInteger inputs_ = 0;
    gx::NSInteger rows_ = 0;
    double moments_ = 0;
    Json changes_ = Json::array();
};

} // namespace scenarios
