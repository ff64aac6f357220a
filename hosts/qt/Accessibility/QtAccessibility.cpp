#include "QtAccessibility.h"

#include <algorithm>
#include <utility>

#include <QPointer>
#include <QWidget>

namespace gx::qt {

namespace {

QString textOf(const std::optional<std::string>& text) { return text ? QString::fromStdString(*text) : QString(); }

bool areSame(const UIAccessibilityElements& one, const UIAccessibilityElements& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](const auto& a, const auto& b) { return a->isSameAs(*b); });
}

/// One element of a widget's views.
class QtAccessibleElement : public QAccessibleInterface, public QAccessibleValueInterface, public QAccessibleActionInterface {
public:
    QtAccessibleElement(QWidget* widget, WeakRef<UIWindow> window, QtAccessibleView::Clock clock, Ref<UIAccessibilityElement> element)
        : widget_(widget), window_(std::move(window)), clock_(std::move(clock)), element_(std::move(element)) {}

    bool isSameAs(const UIAccessibilityElement& element) const { return element_->isSameAs(element); }

    bool isValid() const override {
        const Ref<UIViewNode> view = element_->view();
        const Ref<UIWindow> window = window_.lock();
        return !widget_.isNull() && window && view && view->window() == window && element_->exists();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return widget_ ? QAccessible::queryAccessibleInterface(widget_.data()) : nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QAccessible::Role role() const override {
        switch (element_->role()) {
        case UIAccessibilityRole::Adjustable:
            return QAccessible::SpinBox;
        case UIAccessibilityRole::Button:
            return QAccessible::Button;
        case UIAccessibilityRole::Image:
            return QAccessible::Graphic;
        case UIAccessibilityRole::Text:
            break;
        }
        return QAccessible::StaticText;
    }
    QString text(QAccessible::Text kind) const override {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return textOf(element_->label());
        return kind == QAccessible::Value ? textOf(element_->value()) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) return {};
        const CGRect area = element_->frame();
        const QRect inWidget = QRectF(area.origin.x, area.origin.y, area.size.width, area.size.height).toAlignedRect();
        return {widget_->mapToGlobal(inWidget.topLeft()), inWidget.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool hasActions = !actionNames().isEmpty();
        state.disabled = !widget_->isEnabled() || (hasActions && !element_->isEnabled());
        state.invisible = !widget_->isVisible();
        state.offscreen = !rect().intersects(QRect(widget_->mapToGlobal(QPoint()), widget_->size()));
        state.readOnly = !hasActions;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        const bool isAdjustable = element_->role() == UIAccessibilityRole::Adjustable;
        if (type == QAccessible::ValueInterface && isAdjustable) return static_cast<QAccessibleValueInterface*>(this);
        if (type == QAccessible::ActionInterface && !actionNames().isEmpty()) return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    // The value is the row.

    QVariant currentValue() const override { return isValid() ? QVariant(rowOf(element_->index().value_or(0))) : QVariant(); }
    void setCurrentValue(const QVariant& value) override {
        bool isNumber = false;
        const NSInteger row = value.toLongLong(&isNumber);
        if (isNumber && canAct()) Ref<UIAccessibilityElement>(element_)->setIndex(row);
    }
    QVariant minimumValue() const override { return isValid() ? QVariant(rowOf(0)) : QVariant(); }
    QVariant maximumValue() const override { return isValid() ? QVariant(rowOf(element_->count() - 1)) : QVariant(); }
    QVariant minimumStepSize() const override { return rowOf(1); }

    QStringList actionNames() const override {
        switch (element_->role()) {
        case UIAccessibilityRole::Adjustable:
            return {increaseAction(), decreaseAction()};
        case UIAccessibilityRole::Button:
            return {pressAction()};
        default:
            return {};
        }
    }
    void doAction(const QString& name) override {
        if (!canAct() || !actionNames().contains(name)) return;
        // The views may drop the widget, and with it this interface.
        const Ref<UIAccessibilityElement> element = element_;
        if (name == increaseAction()) {
            element->increment();
        } else if (name == decreaseAction()) {
            element->decrement();
        } else {
            element->activateAtTime(clock_());
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    static qlonglong rowOf(NSInteger row) { return row; }
    bool canAct() const { return isValid() && widget_->isEnabled(); }

    QPointer<QWidget> widget_;
    WeakRef<UIWindow> window_;
    QtAccessibleView::Clock clock_;
    Ref<UIAccessibilityElement> element_;
};

} // namespace

QtAccessibleView::QtAccessibleView(QWidget* widget, WeakRef<UIWindow> window, Clock clock)
    : QAccessibleWidget(widget, QAccessible::Grouping), window_(std::move(window)), clock_(std::move(clock)) {}

QtAccessibleView::~QtAccessibleView() {
    for (const Known& known : known_) QAccessible::deleteAccessibleInterface(known.identifier);
}

UIAccessibilityElements QtAccessibleView::elements() const {
    const Ref<UIWindow> window = window_.lock(); // The views may drop the widget meanwhile.
    return window && object() ? window->accessibilityElements() : UIAccessibilityElements();
}

void QtAccessibleView::removeExpired() const {
    std::erase_if(known_, [](const Known& known) {
        if (known.element->view()) return false;
        QAccessible::deleteAccessibleInterface(known.identifier);
        return true;
    });
}

QtAccessibleView::Known& QtAccessibleView::knownFor(const Ref<UIAccessibilityElement>& element, const QString& value) const {
    const auto entry =
        std::find_if(known_.begin(), known_.end(), [&element](const Known& known) { return known.element->isSameAs(*element); });
    if (entry != known_.end()) return *entry;
    removeExpired();
    // Owned by Qt from here on.
    auto* const made = new QtAccessibleElement(widget(), window_, clock_, element);
    known_.push_back({element, QAccessible::registerAccessibleInterface(made), value});
    return known_.back();
}

int QtAccessibleView::childCount() const { return static_cast<int>(elements().size()); }

QAccessibleInterface* QtAccessibleView::child(int index) const {
    const QPointer<QObject> widget = object();
    const UIAccessibilityElements elements = this->elements();
    if (!widget || index < 0 || static_cast<std::size_t>(index) >= elements.size()) return nullptr;
    return interfaceOf(elements[static_cast<std::size_t>(index)]);
}

QAccessibleInterface* QtAccessibleView::interfaceOf(const Ref<UIAccessibilityElement>& element) const {
    const QPointer<QObject> widget = object();
    const QString value = textOf(element->value());
    if (!widget) return nullptr; // The views have dropped it, and this with it.
    return QAccessible::accessibleInterface(knownFor(element, value).identifier);
}

int QtAccessibleView::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const known = dynamic_cast<const QtAccessibleElement*>(child);
    if (!known) return -1;
    const UIAccessibilityElements elements = this->elements();
    const auto entry = std::find_if(elements.begin(), elements.end(), [known](const auto& element) { return known->isSameAs(*element); });
    return entry == elements.end() ? -1 : static_cast<int>(entry - elements.begin());
}

QAccessibleInterface* QtAccessibleView::childAt(int x, int y) const {
    // What is read last is on top.
    const QPointer<QObject> widget = object();
    const UIAccessibilityElements elements = this->elements();
    for (std::size_t i = elements.size(); widget && i-- > 0;) {
        QAccessibleInterface* const found = interfaceOf(elements[i]);
        if (found != nullptr && found->rect().contains(x, y)) return found;
    }
    return nullptr;
}

void QtAccessibleView::announceChanges(Sender send) {
    const QPointer<QObject> widget = object();
    const UIAccessibilityElements present = elements();
    if (!widget) return;
    if (!areSame(present, announced_)) {
        announced_ = present;
        QAccessibleEvent event(this, QAccessible::ObjectReorder);
        send(&event);
    }
    for (const Ref<UIAccessibilityElement>& element : present) {
        if (element->role() != UIAccessibilityRole::Adjustable) continue;
        const QString value = textOf(element->value());
        if (!widget) return; // A listener or a view has dropped it, and this with it.
        Known& known = knownFor(element, value);
        if (known.value == value) continue;
        known.value = value;
        QAccessibleValueChangeEvent event(QAccessible::accessibleInterface(known.identifier), value);
        send(&event);
        if (!widget) return;
    }
}

void announceAccessibilityChanges(QWidget& widget) {
    if (!QAccessible::isActive()) return;
    if (auto* const view = dynamic_cast<QtAccessibleView*>(QAccessible::queryAccessibleInterface(&widget))) view->announceChanges();
}

} // namespace gx::qt
