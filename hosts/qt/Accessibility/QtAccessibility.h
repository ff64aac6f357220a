#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QAccessible>

#include "QtAccessibleAnnouncements.h"
#include "QtAccessibleElement.h"
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIAccessibilityChanges.h>

namespace gx::qt {

/// What a screen reader finds in the views that a surface shows: the part of its accessibility
/// interface that is the same for a widget and an item of Qt Quick.
///
/// That interface derives from this one too. It is a group that holds the elements of the views
/// (see `UIAccessibilityElement`) in reading order, as a tree.
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
class GX_EXPORT QtAccessibleView : public QtAccessibleTree {
public:
    using Clock = QtAccessibleElement::Clock;

    /// `window` holds the views that the surface shows. The clock is used only while its object
    /// lives.
    QtAccessibleView(std::shared_ptr<QtAccessibleSurface> surface, WeakRef<UIWindow> window, Clock clock);
    Q_DISABLE_COPY_MOVE(QtAccessibleView)

    int elementCount() const;
    QAccessibleInterface* elementAt(int index) const;
    int indexOfElement(const QAccessibleInterface* child) const;
    /// The element in sight at a place, however deep in the tree it is.
    QAccessibleInterface* elementAtPlace(int x, int y) const;
    /// The element with the focus, while the surface has the focus.
    QAccessibleInterface* focusedElement() const;
    bool isElementFocused() const { return focused() != nullptr; }

    QAccessibleInterface* interfaceOf(const Ref<UIAccessibilityElement>& element) const override;

    /// Reports to screen readers what `UIAccessibilityChanges` finds, each change once. To be
    /// called when views may have changed.
    ///
    /// Qt passes events on only while a screen reader runs, so tests take them themselves.
    using Sender = void (*)(QAccessibleEvent* event);
    void announceChanges(Sender send = &QAccessible::updateAccessibility);
    /// The next `announceChanges` reports the focus, also where it was before.
    void forgetFocus();

protected:
    ~QtAccessibleView();

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
    QAccessibleInterface* root() const { return QAccessible::queryAccessibleInterface(surface_->object()); }

    std::shared_ptr<QtAccessibleSurface> surface_; // Never empty.
    WeakRef<UIWindow> window_;
    Clock clock_;
    mutable std::vector<Known> known_; // Queries add what they return for the first time.
    std::shared_ptr<UIAccessibilityChanges> changes_ = std::make_shared<UIAccessibilityChanges>();
    QtAccessibleAnnouncements announcements_;
    Ref<UIAccessibilityElement> focused_; // As announced last.
};

/// To be called when a surface gets the focus: Qt has told screen readers of its object then, and
/// they have to know which of its elements it is.
GX_EXPORT void announceAccessibilityFocus(QObject& object);
/// Has the object's `QtAccessibleView` announce changes while a screen reader runs; a no-op for
/// objects without one.
GX_EXPORT void announceAccessibilityChanges(QObject& object);

} // namespace gx::qt
