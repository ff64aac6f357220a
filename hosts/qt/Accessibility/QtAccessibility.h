#pragma once

#include <cstdint>
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
    /// After a tick of the window: announces changes if something may have changed that a user
    /// waits for, since looking for them takes longer than a frame.
    ///
    /// - At once after a key, a press, a release or an action of a screen reader; when a column has
    ///   another row, so that it rests or a key has moved it; and after the last frame.
    /// - Else, while something moves, every `longestWait` seconds.
    ///
    /// `draws` is what the tick returned, `stepCount` that of the surface's `QtInput`.
    void announceChangesOfFrame(bool draws, std::uint64_t stepCount);
    /// For tests: where the changes of frames go, also while no screen reader runs. Nothing
    /// restores Qt's own way.
    static void setFrameSender(Sender send) { frameSender() = send; }
    static bool hasFrameSender() { return frameSender() != nullptr; }
    /// The next `announceChanges` reports the focus, also where it was before.
    void forgetFocus();
    void lookAfterNextFrame() override { isLookRequested_ = true; }

protected:
    ~QtAccessibleView();

private:
    /// Chosen: lists with more children do not report new ones.
    static constexpr int highestReorderedCount = 1000;
    /// Chosen: too short to be noticed, and long enough that looking takes little of the time.
    static constexpr double longestWait = 0.1;

    struct Known {
        Ref<UIAccessibilityElement> element;
        QAccessible::Id identifier;
    };
    static Sender& frameSender();
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
    bool hasNewFrame_ = false;            // One that no look has followed.
    bool isLookRequested_ = true;
    std::uint64_t stepCount_ = 0; // At the last look of a frame, as the next.
    double lastLook_ = 0;
};

/// To be called when a surface gets the focus: Qt has told screen readers of its object then, and
/// they have to know which of its elements it is.
GX_EXPORT void announceAccessibilityFocus(QObject& object);
/// Has the object's `QtAccessibleView` announce changes after a tick of its window, while a screen
/// reader runs (`QtAccessibleView::announceChangesOfFrame`); a no-op for objects without one.
GX_EXPORT void announceAccessibilityChanges(QObject& object, bool draws, std::uint64_t stepCount);

} // namespace gx::qt
