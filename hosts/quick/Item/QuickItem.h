#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QElapsedTimer>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

#include <GXUIPickers/UIHost.h>

#include "QtEventClock.h"
#include "QtInput.h"
#include "QuickCanvas.h"
#include "QuickControl.h"
#include "QuickSurroundings.h"

namespace gx::quick {

/// Shows a view in a window of Qt Quick: what a control of this module has as its content.
///
/// - Supports: fingers, mouse, mouse wheel, trackpad, keyboard and pointer; the font, locale,
///   direction, palette and focus of the control around it; screen readers; every renderer.
/// - Supports flickables around it: what a view takes stays with it, all else is theirs.
/// - Does not support: pens as such, input methods that compose a text.
///
/// **Control.** The item follows the control that it is the content of, by the names of the
/// control's properties, and gets its keys. Without a control it has looks of its own and no keys.
///
/// **Frames.** Nothing runs while nothing changes. A change asks the window for frames; each moves
/// the views, until one finds nothing to draw. Hidden items finish all movements at once.
///
/// **Services.** Every call into views is made in the item's own surroundings (`visit`).
class QuickItem : public QQuickItem, private UIWindowHost {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit QuickItem(QQuickItem* parent = nullptr);
    ~QuickItem() override;
    Q_DISABLE_COPY_MOVE(QuickItem)

    const Ref<UIWindow>& uiWindow() const { return window_; }
    /// What the item is the content of; nothing without one.
    QQuickItem* control() const { return control_.item(); }
    /// In seconds, on the clock of the frames.
    double now() const { return static_cast<double>(clock_.nsecsElapsed()) * 1e-9; }
    /// Its own looks, language and direction, for a query from outside.
    std::shared_ptr<const QuickSurroundings> surroundings() const { return surroundings_; }
    /// What the application calls the control; empty without a name.
    QString accessibleName() const { return control_.accessibleName(); }
    /// The same for views; nothing without a name.
    std::optional<std::string> accessibilityLabel() const {
        const QString name = accessibleName();
        return name.isEmpty() ? std::nullopt : std::optional(name.toStdString());
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    [[nodiscard]] QuickSurroundings::Visit visit() const { return QuickSurroundings::Visit(*surroundings_); }
    /// In place of the one before. It fills the item.
    void setRootView(const Ref<UIView>& view);
    /// Looks, language, direction or size have changed. Called in the item's surroundings; rows
    /// keep their height unless `isRowHeightChanged`.
    virtual void surroundingsDidChange(bool isRowHeightChanged) = 0;
    /// The implicit width at a text scale of 1, in points: that of a phone.
    virtual double usualWidth() const { return 320; }
    /// The control, also before it has the item; else the item.
    const QObject& owner() const { return control_.owner(*this); }
    /// A warning with the file and the line where the control is made.
    void warn(const QString& text) const;
    /// Ends all movements at once, on the rows that they were heading for.
    void finishMovements() { window_->finishAnimations(); }
    /// The control's signal for the user's own changes.
    void notifyMoved() const { control_.notifyMoved(); }

    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& geometry, const QRectF& before) override;
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override { cancelInput(); }
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override { cancelInput(); }
    void wheelEvent(QWheelEvent* event) override;
    void hoverEnterEvent(QHoverEvent* event) override { hoverMoveEvent(event); }
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;

private:
    Q_SLOT void follow();
    void advance();
    void finish();

    void windowNeedsFrame() override;
    void pointerStyleDidChange(UIPointerStyle style) override;

    void followWindow(QQuickWindow* window);
    double timeOf(const QInputEvent& event);
    void takeFocusByPress();
    void cancelInput();
    bool keyPressed(QKeyEvent& event);
    void focusCame(Qt::FocusReason reason);

    Ref<UIWindow> window_;
    Ref<UIView> rootView_;
    std::shared_ptr<qt::QtInput> input_;
    qt::QtEventClock eventClock_;
    QElapsedTimer clock_;
    QuickCanvas canvas_;
    std::shared_ptr<QuickSurroundings> surroundings_ = std::make_shared<QuickSurroundings>();
    QuickControl control_;
    QPointer<QQuickWindow> shownIn_;
    bool isFrameNeeded_ = false;
};

} // namespace gx::quick
