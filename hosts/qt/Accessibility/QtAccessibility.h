#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>

#include "QtAccessibleAnnouncements.h"
#include "QtAccessibleElement.h"
#include <GXUIPickers/UIAccessibilityChanges.h>

namespace gx::qt {

/// What a screen reader finds in a widget that shows views.
///
/// The widget is a group that holds the elements of its views (see `UIAccessibilityElement`) in
/// reading order, as a tree. Qt makes it on the first query, by the factory that `installQtHost`
/// installs.
///
/// - Supports: names, values, places and states; the focus, also set from outside; columns of a
///   wheel as spin boxes, whose value is the number they show and whose text is the row's
///   accessibility text; lists with items that are made when they are asked for; radio buttons;
///   what is expanded or checked; pressing; announcements.
/// - Does not support: texts as documents, selection.
///
/// Elements come and go with every reload, while Qt knows each by an interface that has to stay the
/// same. So an element keeps its interface for as long as its view lives; while it is not on the
/// screen, the interface is invalid and its actions are no-ops.
class QtAccessibleView : public QAccessibleWidget, public QtAccessibleTree {
public:
    using Clock = QtAccessibleElement::Clock;

    /// `window` holds the views that the widget shows. The clock is used only while the widget
    /// lives.
    QtAccessibleView(QWidget* widget, WeakRef<UIWindow> window, Clock clock);
    ~QtAccessibleView() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    /// The element in sight at a place, however deep in the tree it is.
    QAccessibleInterface* childAt(int x, int y) const override;
    /// The element with the focus, while the widget has the focus.
    QAccessibleInterface* focusChild() const override;
    /// Focused only while none of its elements is.
    QAccessible::State state() const override;

    QAccessibleInterface* interfaceOf(const Ref<UIAccessibilityElement>& element) const override;

    /// Reports to screen readers what `UIAccessibilityChanges` finds, each change once. To be
    /// called when views may have changed.
    ///
    /// Qt passes events on only while a screen reader runs, so tests take them themselves.
    using Sender = void (*)(QAccessibleEvent* event);
    void announceChanges(Sender send = &QAccessible::updateAccessibility);
    /// The next `announceChanges` reports the focus, also where it was before.
    void forgetFocus();

private:
    /// Chosen: lists with more children do not report new ones.
    static constexpr int highestReorderedCount = 1000;

    struct Known {
        Ref<UIAccessibilityElement> element;
        QAccessible::Id identifier;
    };
    UIAccessibilityElements elements() const;
    UIAccessibilityElements top() const { return outermostAccessibilityElements(elements()); }
    Ref<UIAccessibilityElement> focused() const;
    void removeExpired() const;
    void announce(const UIAccessibilityChanges::Change& change, Sender send);
    void announceFocus(Sender send);

    WeakRef<UIWindow> window_;
    Clock clock_;
    mutable std::vector<Known> known_; // Queries add what they return for the first time.
    std::shared_ptr<UIAccessibilityChanges> changes_ = std::make_shared<UIAccessibilityChanges>();
    QtAccessibleAnnouncements announcements_;
    Ref<UIAccessibilityElement> focused_; // As announced last.
};

/// To be called when the widget gets the focus: Qt has told screen readers of the widget then, and
/// they have to know which of its elements it is.
void announceAccessibilityFocus(QWidget& widget);
/// Has the widget's `QtAccessibleView` announce changes while a screen reader runs; a no-op for
/// other widgets.
void announceAccessibilityChanges(QWidget& widget);

} // namespace gx::qt
