#include <GXUIPickers/UIViewWidget.h>

#include <algorithm>
#include <cmath>

#include <QEnterEvent>
#include <QFocusEvent>
#include <QInputEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTouchEvent>
#include <QWheelEvent>

#include "QtAccessibleWidget.h"
#include "QtEventClock.h"
#include "QtInput.h"
#include "QtLooks.h"
#include "QtRepaint.h"
#include <GXUIPickers/UITextEngine.h>

namespace gx::qt {

namespace {

double secondsOf(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) * 1e-9; }

/// Of one frame on the screen, in seconds.
double framePeriod(const QScreen* screen) {
    constexpr double usualRate = 60; // Of most screens, for a system that reports none.
    const double rate = screen ? screen->refreshRate() : usualRate;
    return 1 / (rate >= 1 ? rate : usualRate);
}

/// For `QAccessible::installFactory`: the interfaces of `UIViewWidget`s, nothing for other objects.
QAccessibleInterface* accessibleInterfaceFor(const QString&, QObject* object) {
    auto* const widget = dynamic_cast<UIViewWidget*>(object);
    if (widget == nullptr) return nullptr;
    return new QtAccessibleWidget(
        widget, widget->uiWindow(), [widget] { return widget->now(); }, [widget] { return widget->windowInput(); });
}

/// Views measure their texts from the start, so the host has to be there before them.
void warnWithoutHost() {
    if (!std::dynamic_pointer_cast<UIFixedWidthTextEngine>(UITextEngine::shared())) return;
    qWarning("UIViewWidget: call gx::qt::installQtHost before the first view. Without it texts have wrong widths.");
}

} // namespace

UIViewWidget::UIViewWidget(QWidget* parent)
    : QWidget(parent), window_(gx::create<UIWindow>(CGRectMake(0, 0, width(), height()))), windowInput_(window_),
      input_(std::make_shared<QtInput>(window_)), repaint_(std::make_unique<QtRepaint>()), eventClock_(std::make_unique<QtEventClock>()) {
    steadyClock_.start();
    frameTimer_.setSingleShot(true);
    frameTimer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&frameTimer_, &QTimer::timeout, this, [this] { stepFrame(); });
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMouseTracking(true);          // A move without a button shows that a release went elsewhere.
    setFocusPolicy(Qt::StrongFocus); // A press takes the focus away from where the user was typing.
    followPalette();
    warnWithoutHost();
    QAccessible::installFactory(accessibleInterfaceFor); // Qt keeps a factory once.
    window_->setHost(this);                              // A new window asks for its first frame.
}

UIViewWidget::~UIViewWidget() { window_->setHost(nullptr); }

void UIViewWidget::setRootView(Ref<UIView> view) {
    if (view == rootView_) return;
    if (const Ref<UIView> before = std::move(rootView_); before && before->superview() == window_) before->removeFromSuperview();
    rootView_ = std::move(view);
    if (!rootView_) return;
    const CGSize size = rootView_->bounds().size;
    sizeHint_ = QSizeF(size.width, size.height).toSize();
    updateGeometry();
    window_->addSubview(rootView_);
    rootView_->setFrame(window_->bounds());
}

QSize UIViewWidget::sizeHint() const { return rootView_ && !sizeHint_.isEmpty() ? sizeHint_ : QWidget::sizeHint(); }

void UIViewWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    windowInput_->setFrame(CGRectMake(0, 0, width(), height()));
    // The application may have put the view elsewhere meanwhile.
    if (rootView_ && rootView_->superview() == window_) rootView_->setFrame(window_->bounds());
}

// Look

void UIViewWidget::setUserInterfaceStyle(std::optional<UIUserInterfaceStyle> style) {
    fixedStyle_ = style;
    followPalette();
}

void UIViewWidget::followPalette() { windowInput_->setUserInterfaceStyle(fixedStyle_.value_or(styleOfPalette(palette()))); }

void UIViewWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) followPalette();
    const std::shared_ptr<QtInput> input = input_;
    if (event->type() != QEvent::EnabledChange || isEnabled()) return;
    const double time = now();
    input->cancelAll(time);
    input->pointerLeft();
}

void UIViewWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const Ref<UIWindowInput> window = windowInput_;
    repaint_->paint(*this, painter, event->rect(), *window);
}

// Time

double UIViewWidget::now() const { return ownClock_ ? ownClock_() : secondsOf(steadyClock_); }

double UIViewWidget::timeOf(const QInputEvent& event) {
    const double delivery = now();
    return ownClock_ ? delivery : eventClock_->timeOfEvent(event.timestamp(), delivery);
}

void UIViewWidget::setClock(std::function<double()> clock, FrameDriver driver) {
    ownClock_ = std::move(clock);
    driver_ = ownClock_ ? driver : FrameDriver::Timer;
    frameTimer_.stop();
    if (isFrameDue_) scheduleTick();
}

void UIViewWidget::setWindowInput(Ref<UIWindowInput> input) {
    windowInput_ = input ? std::move(input) : window_;
    input_->setWindow(windowInput_);
}

void UIViewWidget::windowNeedsFrame() {
    repaint_->viewsDidChange();
    if (isFrameDue_) return;
    isFrameDue_ = true;
    scheduleTick();
}

void UIViewWidget::scheduleTick() {
    if (driver_ == FrameDriver::Hand) return;
    // Timers take whole milliseconds only. Counting from when the last tick should have come keeps
    // the screen's rate on average; a tick that comes late, or first after a rest, restarts the
    // count.
    const double present = secondsOf(steadyClock_);
    nextFrame_ = std::max(nextFrame_ + framePeriod(screen()), present);
    frameTimer_.start(static_cast<int>(std::lround((nextFrame_ - present) * 1000)));
}

bool UIViewWidget::stepFrame() {
    const QPointer<QWidget> self(this); // A delegate may drop the widget.
    const Ref<UIWindowInput> window = windowInput_;
    const bool draws = window->tick(now());
    if (!self) return draws;
    isFrameDue_ = draws;
    if (draws) {
        repaint_->frameDidChange(*this, *window);
        scheduleTick();
    } else {
        frameTimer_.stop();
    }
    // Callbacks may drop the widget.
    announceAccessibilityChanges(*this, draws, input_->stepCount());
    return draws;
}

void UIViewWidget::giveFeedback(UIFeedback feedback) {
    if (feedback != UIFeedback::SelectionChanged) return;
    // The handler may be replaced while it runs.
    const std::function<void()> handler = wheelTickHandler_;
    if (handler) handler();
}

void UIViewWidget::pointerStyleDidChange(UIPointerStyle style) {
    if (style == UIPointerStyle::Default) {
        unsetCursor(); // That of the widgets around.
    } else {
        setCursor(cursorOfStyle(style));
    }
}

// Input. Callbacks of views may drop the widget, so each operation keeps the input alive and uses
// nothing of the widget afterwards.

bool UIViewWidget::event(QEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: {
        // The type says so
        const auto& touch = *static_cast<QTouchEvent*>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        event->setAccepted(input->touch(touch, timeOf(touch)));
        return event->isAccepted();
    }
    case QEvent::WindowDeactivate: {
        // The fingers' further moves go to another window, and so may their end.
        const QPointer<QWidget> self(this);
        input->cancelAll(now());
        return self ? QWidget::event(event) : true;
    }
    default:
        return QWidget::event(event);
    }
}

void UIViewWidget::hideEvent(QHideEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    const Ref<UIWindowInput> window = windowInput_;
    const double time = now();
    QWidget::hideEvent(event);
    input->pointerLeft();
    input->cancelAll(time);
    window->finishAnimations();
}

// The keyboard

bool UIViewWidget::focusNextPrevChild(bool next) {
    const std::shared_ptr<QtInput> input = input_;
    const QPointer<QWidget> self(this);
    if (input->moveFocus(next, now()) || !self) return true;
    // Without another widget, the first view follows the last one.
    return QWidget::focusNextPrevChild(next) || (!self.isNull() && input->moveFocus(next, now()));
}

void UIViewWidget::focusInEvent(QFocusEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    const Ref<UIWindowInput> window = windowInput_;
    const double time = now();
    const Qt::FocusReason reason = event->reason();
    QWidget::focusInEvent(event);
    window->setReceivesKeys(true);
    announceAccessibilityFocus(*this);
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) return;
    window->takeFocusAway();
    input->moveFocus(reason == Qt::TabFocusReason, time);
}

void UIViewWidget::focusOutEvent(QFocusEvent* event) {
    const Ref<UIWindowInput> window = windowInput_;
    QWidget::focusOutEvent(event);
    window->setReceivesKeys(false);
}

void UIViewWidget::keyPressEvent(QKeyEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    const QPointer<QWidget> self(this);
    const bool isUsed = input->keyPress(*event, timeOf(*event));
    event->setAccepted(isUsed);
    if (!isUsed && self) QWidget::keyPressEvent(event); // Escape closes a popup.
}

void UIViewWidget::enterEvent(QEnterEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    input->pointerEntered(event->position());
}

void UIViewWidget::leaveEvent(QEvent*) {
    const std::shared_ptr<QtInput> input = input_;
    input->pointerLeft();
}

void UIViewWidget::mousePressEvent(QMouseEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    event->setAccepted(input->mousePress(*event, timeOf(*event)));
}

void UIViewWidget::mouseMoveEvent(QMouseEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    event->setAccepted(input->mouseMove(*event, timeOf(*event)));
}

void UIViewWidget::mouseReleaseEvent(QMouseEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    event->setAccepted(input->mouseRelease(*event, timeOf(*event)));
}

void UIViewWidget::wheelEvent(QWheelEvent* event) {
    const std::shared_ptr<QtInput> input = input_;
    event->setAccepted(input->wheel(*event, timeOf(*event)));
}

} // namespace gx::qt
