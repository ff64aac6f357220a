#include "QtAccessibleAnnouncements.h"

#include <QPointer>

namespace gx::qt {

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

#ifdef Q_OS_LINUX
constexpr QAccessible::Role messageRole = QAccessible::Notification;
constexpr QAccessible::Event messageEvent = QAccessible::ObjectShow;
#else
constexpr QAccessible::Role messageRole = QAccessible::AlertMessage;
constexpr QAccessible::Event messageEvent = QAccessible::Alert;
#endif

/// A message beside the elements of the views. It has a name and nothing else.
class Message : public QAccessibleInterface {
public:
    Message(QObject* object, QString text) : object_(object), text_(std::move(text)) {}

    bool isValid() const override { return !object_.isNull(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return object_ ? QAccessible::queryAccessibleInterface(object_.data()) : nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? text_ : QString(); }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return messageRole; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

private:
    QPointer<QObject> object_;
    QString text_;
};

#endif

} // namespace

QtAccessibleAnnouncements::~QtAccessibleAnnouncements() {
    for (const QAccessible::Id message : messages_) QAccessible::deleteAccessibleInterface(message);
}

void QtAccessibleAnnouncements::announce(QObject& object, const UIAccessibilityAnnouncement& announcement, Sender send) {
    const QString text = QString::fromStdString(announcement.text);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // Owned by Qt from here on.
    auto* const message = new Message(&object, text);
    messages_.push_back(QAccessible::registerAccessibleInterface(message));
    if (messages_.size() > keptCount) {
        QAccessible::deleteAccessibleInterface(messages_.front());
        messages_.pop_front();
    }
    QAccessibleEvent event(message, messageEvent);
    send(&event);
#else
    QAccessibleAnnouncementEvent event(&object, text);
    const bool isUrgent = announcement.priority == UIAccessibilityAnnouncement::Priority::Assertive;
    event.setPoliteness(isUrgent ? QAccessible::AnnouncementPoliteness::Assertive : QAccessible::AnnouncementPoliteness::Polite);
    send(&event);
#endif
}

} // namespace gx::qt
