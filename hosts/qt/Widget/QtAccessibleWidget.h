#pragma once

#include <QAccessibleWidget>

#include "QtAccessibility.h"

namespace gx::qt {

/// What a screen reader finds in a widget that shows views: a group that holds their elements.
class QtAccessibleWidget final : public QAccessibleWidget, public QtAccessibleView {
public:
    using Input = std::function<Ref<UIWindowInput>()>;

    /// `window` holds the views that the widget shows. The clock, and what the widget sends to its
    /// window by, are used only while the widget lives.
    QtAccessibleWidget(QWidget* widget, WeakRef<UIWindow> window, Clock clock, Input input);

    int childCount() const override { return elementCount(); }
    QAccessibleInterface* child(int index) const override { return elementAt(index); }
    int indexOfChild(const QAccessibleInterface* child) const override { return indexOfElement(child); }
    QAccessibleInterface* childAt(int x, int y) const override { return elementAtPlace(x, y); }
    QAccessibleInterface* focusChild() const override { return focusedElement(); }
    /// Focused only while none of its elements is.
    QAccessible::State state() const override;
};

} // namespace gx::qt
