#include "QuickItem.h"

#include <QQmlInfo>

#include "QtAccessibility.h"
#include "QtLooks.h"
#include "QuickAccessibleItem.h"
#include "QuickHost.h"
#include "QuickPaintedNode.h"

namespace gx::quick {

namespace {

// In points, at a text scale of 1: what the pickers are made for.
constexpr double usualHeight = 216;
// Chosen: still legible. By it pictures are dimmed too, and in a style without disabled colours.
constexpr double disabledOpacity = 0.4;

/// For `QAccessible::installFactory`: the interfaces of controls whose content is an item of this
/// module, nothing for other objects.
QAccessibleInterface* accessibleInterfaceFor(const QString&, QObject* object) {
    auto* const control = qobject_cast<QQuickItem*>(object);
    if (control == nullptr) return nullptr;
    for (QQuickItem* const child : control->childItems()) {
        auto* const item = qobject_cast<QuickItem*>(child);
        if (item != nullptr && item->control() == control) {
            return new QuickAccessibleItem(
                *control, *item, item->surroundings(), item->uiWindow(), [item] { return item->now(); },
                [item] { return item->accessibleName(); });
        }
    }
    return nullptr;
}

} // namespace

QuickItem::QuickItem(QQuickItem* parent) : QQuickItem(parent) {
    installHost();
    QAccessible::installFactory(accessibleInterfaceFor); // Qt keeps a factory once.
    window_ = gx::create<UIWindow>(CGRectZero);
    input_ = std::make_shared<qt::QtInput>(window_);
    clock_.start();
    setFlag(ItemHasContents);
    setClip(true); // A row of a very low wheel leaves across the edge.
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    window_->setReceivesKeys(false);
    window_->setHost(this); // A new window asks for its first frame.
}

QuickItem::~QuickItem() { window_->setHost(nullptr); }

void QuickItem::setRootView(const Ref<UIView>& view) {
    if (rootView_) rootView_->removeFromSuperview();
    rootView_ = view;
    if (!rootView_) return;
    window_->addSubview(rootView_);
    rootView_->setFrame(window_->bounds());
}

void QuickItem::warn(const QString& text) const { qmlWarning(&owner()) << text; }

// The control and the window

void QuickItem::componentComplete() {
    QQuickItem::componentComplete();
    follow();
}

void QuickItem::follow() {
    if (!isComponentComplete()) return;
    const double scaleBefore = surroundings_->styleSheet()->textScale();
    const QuickLooks looks = control_.looks();
    const QColor highlight = control_.highlight();
    surroundings_->styleSheet()->setLooks(looks);
    surroundings_->setLocale_isMirrored(control_.locale(), control_.isMirrored());
    window_->setReducesMotion(control_.reducesMotion());
    window_->setUserInterfaceStyle(control_.isDark() ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
    window_->setAccessibilityContrast(looks.isHighContrast ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal);
    window_->setTintColor(UIColor::colorWithRed_green_blue_alpha(highlight.redF(), highlight.greenF(), highlight.blueF(), 1));
    const double scale = surroundings_->styleSheet()->textScale();
    setImplicitSize(usualWidth() * scale, usualHeight * scale);
    setOpacity(control_.isEnabled() ? 1 : disabledOpacity);
    const QuickSurroundings::Visit here = visit();
    surroundingsDidChange(scale != scaleBefore);
}

void QuickItem::itemChange(ItemChange change, const ItemChangeData& data) {
    switch (change) {
    case ItemParentHasChanged:
        control_.set(data.item, *this, staticMetaObject.method(staticMetaObject.indexOfSlot("follow()")));
        if (control()) QuickAccessibleItem::forgetOthers(*control());
        follow();
        break;
    case ItemSceneChange:
        followWindow(data.window);
        break;
    case ItemVisibleHasChanged:
        if (!data.boolValue) finish();
        break;
    case ItemDevicePixelRatioHasChanged:
        window_->setNeedsDisplay();
        break;
    default:
        break;
    }
    QQuickItem::itemChange(change, data);
}

void QuickItem::followWindow(QQuickWindow* window) {
    if (shownIn_) disconnect(shownIn_, nullptr, this, nullptr);
    shownIn_ = window;
    if (!window) return finish();
    connect(window, &QQuickWindow::afterAnimating, this, &QuickItem::advance);
    connect(window, &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible) finish();
    });
    if (isFrameNeeded_) window->update();
}

void QuickItem::geometryChange(const QRectF& geometry, const QRectF& before) {
    QQuickItem::geometryChange(geometry, before);
    if (geometry.size() == before.size()) return;
    const QuickSurroundings::Visit here = visit();
    window_->setFrame(CGRectMake(0, 0, width(), height()));
    if (rootView_) rootView_->setFrame(window_->bounds());
    if (isComponentComplete()) surroundingsDidChange(false);
}

// Frames

void QuickItem::windowNeedsFrame() {
    isFrameNeeded_ = true;
    if (shownIn_) shownIn_->update();
}

void QuickItem::advance() {
    if (!isFrameNeeded_) return;
    const QPointer<QuickItem> self(this); // Handlers of signals may drop the item.
    const QuickSurroundings::Visit here = visit();
    const Ref<UIWindow> window = window_;
    const bool draws = window->tick(now());
    if (!self) return;
    isFrameNeeded_ = draws;
    if (draws) {
        canvas_.begin(shownIn_ ? shownIn_->effectiveDevicePixelRatio() : 1);
        window->draw(canvas_);
        update();
        if (shownIn_) shownIn_->update();
    }
    if (control()) qt::announceAccessibilityChanges(*control(), draws, input_->stepCount());
}

QSGNode* QuickItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) { return nodeWithPieces(canvas_.pieces(), node, *window()); }

void QuickItem::finish() {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    const Ref<UIWindow> window = window_;
    const double time = now();
    input->pointerLeft();
    input->cancelAll(time);
    window->finishAnimations();
}

void QuickItem::pointerStyleDidChange(UIPointerStyle style) {
    if (style == UIPointerStyle::Default) {
        unsetCursor(); // That of the items around.
    } else {
        setCursor(qt::cursorOfStyle(style));
    }
}

// Input. Handlers may drop the item, so each operation keeps the input alive and uses nothing of
// the item afterwards.

double QuickItem::timeOf(const QInputEvent& event) { return eventClock_.timeOfEvent(event.timestamp(), now()); }

void QuickItem::takeFocusByPress() {
    if (control_.takesFocusByPress() && !control()->hasActiveFocus()) control()->forceActiveFocus(Qt::MouseFocusReason);
}

void QuickItem::touchEvent(QTouchEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    const QPointer<QuickItem> self(this);
    const bool isUsed = input->touch(*event, timeOf(*event));
    event->setAccepted(isUsed);
    if (!self || !isUsed || event->type() != QEvent::TouchBegin) return;
    setKeepTouchGrab(true); // No flickable takes a gesture away.
    setKeepMouseGrab(true);
    takeFocusByPress();
}

void QuickItem::mousePressEvent(QMouseEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    const QPointer<QuickItem> self(this);
    const bool isUsed = input->mousePress(*event, timeOf(*event));
    event->setAccepted(isUsed);
    if (!self || !isUsed) return;
    setKeepMouseGrab(true); // No flickable takes a gesture away.
    takeFocusByPress();
}

void QuickItem::mouseMoveEvent(QMouseEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    event->setAccepted(input->mouseMove(*event, timeOf(*event)));
}

void QuickItem::mouseReleaseEvent(QMouseEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    setKeepMouseGrab(false);
    event->setAccepted(input->mouseRelease(*event, timeOf(*event)));
}

void QuickItem::cancelInput() {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    input->cancelAll(now());
}

void QuickItem::wheelEvent(QWheelEvent* event) {
    if (!control_.takesWheel()) return event->ignore();
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    event->setAccepted(input->wheel(*event, timeOf(*event)));
}

void QuickItem::hoverMoveEvent(QHoverEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    event->ignore(); // The control hovers too.
    input->pointerEntered(event->position());
}

void QuickItem::hoverLeaveEvent(QHoverEvent* event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    event->ignore();
    input->pointerLeft();
}

// The keyboard. The control has the focus.

bool QuickItem::eventFilter(QObject* watched, QEvent* event) {
    if (watched != control()) return QQuickItem::eventFilter(watched, event);
    const Ref<UIWindow> window = window_;
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPressed(*static_cast<QKeyEvent*>(event)); // The type says so. NOLINT
    case QEvent::Wheel:
        event->ignore(); // Not used here. The control would take it from the page nevertheless.
        return true;
    case QEvent::FocusIn:
        focusCame(static_cast<QFocusEvent*>(event)->reason()); // NOLINT
        return false;
    case QEvent::FocusOut: {
        const QuickSurroundings::Visit here = visit();
        window->setReceivesKeys(false);
        return false;
    }
    default:
        return false;
    }
}

bool QuickItem::keyPressed(QKeyEvent& event) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    const bool isUsed = isTab ? input->moveFocus(event.key() == Qt::Key_Tab, now()) : input->keyPress(event, timeOf(event));
    event.setAccepted(isUsed);
    return isUsed;
}

void QuickItem::focusCame(Qt::FocusReason reason) {
    const QuickSurroundings::Visit here = visit();
    const std::shared_ptr<qt::QtInput> input = input_;
    const Ref<UIWindow> window = window_;
    const double time = now();
    window->setReceivesKeys(true);
    if (control()) qt::announceAccessibilityFocus(*control());
    // A press chooses its column itself.
    if (reason == Qt::MouseFocusReason) return;
    window->takeFocusAway();
    input->moveFocus(reason != Qt::BacktabFocusReason, time);
}

} // namespace gx::quick
