#pragma once

#include <functional>
#include <memory>

#include <QAccessibleObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include "QtAccessibility.h"
#include "QuickSurroundings.h"

namespace gx::quick {

/// What a screen reader finds in a control of this module: a group that holds the elements of its
/// views.
class QuickAccessibleItem final : public QAccessibleObject, public qt::QtAccessibleView {
public:
    /// `content` is the control's content, whose views `window` holds; they are queried in
    /// `surroundings`. The clock and the name are queried only while the control lives.
    QuickAccessibleItem(QQuickItem& control, QQuickItem& content, std::shared_ptr<const QuickSurroundings> surroundings,
                        WeakRef<UIWindow> window, Clock clock, std::function<QString()> name);

    /// Lets go of an interface of another class, made before the control had its content, so that
    /// the next query makes one of this: Qt makes one as soon as a document sets a role or a name.
    static void forgetOthers(QQuickItem& control);

    bool isValid() const override;
    QAccessible::Role role() const override { return QAccessible::Grouping; }
    /// Focused only while none of its elements is.
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override { return control_ ? surface_->frame() : QRect(); }
    QWindow* window() const override { return control_ ? control_->window() : nullptr; }
    /// The next item above that screen readers know, or else the window.
    QAccessibleInterface* parent() const override;

    int childCount() const override { return elementCount(); }
    QAccessibleInterface* child(int index) const override { return elementAt(index); }
    int indexOfChild(const QAccessibleInterface* child) const override { return indexOfElement(child); }
    QAccessibleInterface* childAt(int x, int y) const override { return elementAtPlace(x, y); }
    QAccessibleInterface* focusChild() const override { return focusedElement(); }

private:
    QuickAccessibleItem(QQuickItem& control, std::shared_ptr<qt::QtAccessibleSurface> surface, WeakRef<UIWindow> window, Clock clock,
                        std::function<QString()> name);

    QPointer<QQuickItem> control_;
    std::shared_ptr<qt::QtAccessibleSurface> surface_;
    std::function<QString()> name_;
};

} // namespace gx::quick
