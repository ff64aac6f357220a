#pragma once

#include <functional>
#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>

#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

/// What a screen reader finds in a widget that shows views.
///
/// The widget is a group, and each element of its views (see `UIAccessibilityElement`) a child of
/// it, in reading order. Qt makes it on the first query, by the factory that `installQtHost`
/// installs.
///
/// - Supports: names, values, places and states; columns of a wheel as spin boxes, whose value is
///   the row and whose text is the row's accessibility text; increasing and decreasing them;
///   pressing buttons.
/// - Does not support: texts as documents, selection.
///
/// Elements come and go with every reload, while Qt knows each by an interface that has to stay the
/// same. So an element keeps its interface for as long as its view lives; while it is not on the
/// screen, the interface is invalid and its actions are no-ops.
class QtAccessibleView : public QAccessibleWidget {
public:
    /// Returns seconds on the clock of the window's ticks.
    using Clock = std::function<NSTimeInterval()>;

    /// `window` holds the views that the widget shows. The clock is used only while the widget
    /// lives.
    QtAccessibleView(QWidget* widget, WeakRef<UIWindow> window, Clock clock);
    ~QtAccessibleView() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    /// Reports to screen readers which elements have another value than at the last call, and
    /// whether there are others. To be called when views may have changed.
    ///
    /// Qt passes events on only while a screen reader runs, so tests take them themselves.
    using Sender = void (*)(QAccessibleEvent* event);
    void announceChanges(Sender send = &QAccessible::updateAccessibility);

private:
    struct Known {
        Ref<UIAccessibilityElement> element;
        QAccessible::Id identifier;
        QString value;
    };
    UIAccessibilityElements elements() const;
    QAccessibleInterface* interfaceOf(const Ref<UIAccessibilityElement>& element) const;
    Known& knownFor(const Ref<UIAccessibilityElement>& element, const QString& value) const;
    void removeExpired() const;

    WeakRef<UIWindow> window_;
    Clock clock_;
    mutable std::vector<Known> known_; // Queries add what they return for the first time.
    UIAccessibilityElements announced_;
};

/// Has the widget's `QtAccessibleView` announce changes while a screen reader runs; a no-op for
/// other widgets.
void announceAccessibilityChanges(QWidget& widget);

} // namespace gx::qt
