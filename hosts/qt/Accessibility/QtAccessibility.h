#pragma once

#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <GXUIPickers/UIAccessibility.h>

namespace gx::qt {

class UIViewWidget;

/// Answers a screen reader's questions about a `UIViewWidget`: the widget is a group, and each element of its views (see
/// `UIAccessibilityElement`) a child of it, in the order in which they are read. Made by Qt when it is first asked; `installQtHost` says
/// how.
///
/// Supports: names, values, places and states; columns of a wheel as spin boxes, whose value is the row and whose text is what a person
/// says of it; increasing and decreasing them, and pressing buttons. Does not support: texts as documents, selection.
///
/// Elements come and go with every reload, while Qt knows each by an interface that has to stay the same. So an element keeps its
/// interface for as long as its view lives; one that is not on the screen is not valid, and takes no orders.
class QtAccessibleView : public QAccessibleWidget {
public:
    explicit QtAccessibleView(UIViewWidget* widget);
    ~QtAccessibleView() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    /// Tells listeners which elements say something else than when they were last told, and whether there are others. To be called when
    /// views may have changed; Qt passes events on only while a screen reader runs, so tests take them themselves.
    using Sender = void (*)(QAccessibleEvent* event);
    void announceChanges(Sender send = &QAccessible::updateAccessibility);

private:
    struct Known {
        Ref<UIAccessibilityElement> element;
        QAccessible::Id identifier;
        QString value;
    };
    UIViewWidget* view() const;
    UIAccessibilityElements elements() const;
    QAccessibleInterface* interfaceOf(const Ref<UIAccessibilityElement>& element) const;
    Known& knownFor(const Ref<UIAccessibilityElement>& element, const QString& value) const;
    void forgetViewsThatAreGone() const;

    // Questions make what they are the first to ask for.
    mutable std::vector<Known> known_;
    UIAccessibilityElements announced_;
};

/// For `QAccessible::installFactory`: the interfaces of `UIViewWidget`s, nothing for other objects.
QAccessibleInterface* accessibleInterfaceFor(const QString& className, QObject* object);
/// Has the widget's interface announce changes, while someone listens. A widget that nobody has asked about has nobody to tell.
void announceAccessibilityChanges(UIViewWidget& widget);

} // namespace gx::qt
