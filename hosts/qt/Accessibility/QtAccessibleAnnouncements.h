#pragma once

#include <deque>

#include <QAccessible>
#include <QObject>

#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

/// Has screen readers say messages.
///
/// Qt passes announcements on as such from version 6.8 on. Before, a message is a notification that
/// appears, which screen readers on Linux say; elsewhere it is an alert. Each has an interface of
/// its own, since screen readers remember the names of those they know.
class QtAccessibleAnnouncements {
public:
    QtAccessibleAnnouncements() = default;
    ~QtAccessibleAnnouncements();
    Q_DISABLE_COPY_MOVE(QtAccessibleAnnouncements)

    using Sender = void (*)(QAccessibleEvent* event);
    void announce(QObject& object, const UIAccessibilityAnnouncement& announcement, Sender send);

private:
    /// Chosen as what waits at most: a screen reader reads a message a moment after it came.
    static constexpr std::size_t keptCount = UIAccessibilityAnnouncements::highestCount;

    std::deque<QAccessible::Id> messages_;
};

} // namespace gx::qt
