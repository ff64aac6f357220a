#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIHost.h>

class QInputEvent;

namespace gx::qt {

class QtEventClock;
class QtInput;
class QtRepaint;

/// Shows any view in a Qt application. Call `installQtHost` once before the first view is made.
///
/// - Supports: one root view that fills the widget; fingers, mouse, mouse wheel, trackpad and
///   keyboard; any ratio of device pixels to points, also one that changes between screens; a light
///   and a dark look, by default the palette's, at either contrast; screen readers.
/// - Supports the pointer: views below it show that they can be pressed or turned, and so does the
///   widget's cursor, which is the library's own.
/// - Does not support: pens as such, gestures, input methods that compose a text.
///
/// **Input.** Events that no view has handled are ignored, so that a QScrollArea around the widget
/// scrolls and shortcuts work.
///
/// **Focus.** Tab goes through the views that take the focus, and from the last one to the next
/// widget. Coming in by Tab begins at the first view, by Shift and Tab at the last. A widget that
/// is hidden, as when its window closes, finishes all animations: delegates of wheels are notified
/// of the rows on which these land.
///
/// **Frames.** Nothing runs while nothing changes. A change starts ticks at the screen's refresh
/// rate; each tick moves the views, until one finds nothing to draw, and has painted what looks
/// different then. Ticks do not depend on the widget being visible.
///
/// **Time.** Frames are on a steady clock that starts with the widget, and so are input events, by
/// their own times. With another clock (`setClock`) events happen at its time on their delivery.
class GX_EXPORT UIViewWidget : public QWidget, private UIWindowHost {
public:
    /// Owned by `parent`, if there is one. Empty until `setRootView`.
    explicit UIViewWidget(QWidget* parent = nullptr);
    ~UIViewWidget() override;

    /// The window that contains the views; never empty.
    const Ref<UIWindow>& uiWindow() const { return window_; }

    /// The view that fills the widget, in place of the one before; nothing for none. Its present
    /// size becomes the widget's size hint.
    void setRootView(Ref<UIView> view);
    const Ref<UIView>& rootView() const { return rootView_; }

    /// The look that colours are drawn in. Nothing (the default) for that of the widget's palette,
    /// also when it changes. The widget's own background stays the palette's.
    void setUserInterfaceStyle(std::optional<UIUserInterfaceStyle> style);
    UIUserInterfaceStyle userInterfaceStyle() const { return window_->userInterfaceStyle(); }

    /// The contrast that colours are drawn in. Default: normal.
    void setContrast(UIAccessibilityContrast contrast) { windowInput_->setAccessibilityContrast(contrast); }
    UIAccessibilityContrast contrast() const { return window_->accessibilityContrast(); }

    /// Called for each row that passes a wheel's selection indicator while the user spins it: the
    /// moment for a click.
    void setWheelTickHandler(std::function<void()> handler) { wheelTickHandler_ = std::move(handler); }

    // For tests and recordings

    /// What gets all that the widget would send to its window, to pass it on: a recorder. Nothing
    /// for the window itself.
    void setWindowInput(Ref<UIWindowInput> input);
    const Ref<UIWindowInput>& windowInput() const { return windowInput_; }
    /// What makes ticks come.
    enum class FrameDriver {
        Timer, ///< ticks come by themselves
        Hand   ///< only `stepFrame` ticks
    };
    /// An empty clock restores the widget's own, and ticks by themselves.
    void setClock(std::function<double()> clock, FrameDriver driver = FrameDriver::Hand);
    /// One tick, now. Returns whether something was to be drawn.
    bool stepFrame();
    /// The time of what happens now, in seconds on the clock of the frames.
    double now() const;
    /// Whether a tick is pending, by timer or by hand.
    bool isFrameDue() const { return isFrameDue_; }

    /// The size that the root view had when it was set.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void windowNeedsFrame() override;
    void giveFeedback(UIFeedback feedback) override;
    void pointerStyleDidChange(UIPointerStyle style) override;

    double timeOf(const QInputEvent& event);
    void scheduleTick();
    void followPalette();

    Ref<UIWindow> window_;
    Ref<UIWindowInput> windowInput_; // The window, or what stands before it.
    Ref<UIView> rootView_;
    std::shared_ptr<QtInput> input_;
    std::unique_ptr<QtRepaint> repaint_;
    std::unique_ptr<QtEventClock> eventClock_;
    std::optional<UIUserInterfaceStyle> fixedStyle_;
    std::function<void()> wheelTickHandler_;
    QSize sizeHint_;

    QElapsedTimer steadyClock_;
    std::function<double()> ownClock_;
    FrameDriver driver_ = FrameDriver::Timer;
    QTimer frameTimer_;
    double nextFrame_ = 0; // When the pending tick should come, on the steady clock.
    bool isFrameDue_ = false;
};

} // namespace gx::qt
