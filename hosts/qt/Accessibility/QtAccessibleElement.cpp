#include "QtAccessibleElement.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace gx::qt {

QString textOf(const std::optional<std::string>& text) { return text ? QString::fromStdString(*text) : QString(); }

QtAccessibleElement::QtAccessibleElement(std::shared_ptr<QtAccessibleSurface> surface, WeakRef<UIWindow> window, Clock clock,
                                         Ref<UIAccessibilityElement> element)
    : surface_(std::move(surface)), window_(std::move(window)), clock_(std::move(clock)), element_(std::move(element)),
      value_([this] { return text(QAccessible::Value); }) {}

namespace {

/// Whether the element is there, in the window of the surface.
bool isShownBy(const QtAccessibleSurface& surface, const Ref<UIWindow>& window, const UIAccessibilityElement& element) {
    if (!surface.exists() || !window) return false;
    const std::shared_ptr<void> here = surface.visit();
    const Ref<UIViewNode> view = element.view();
    return view && view->window() == window && element.exists();
}

} // namespace

bool QtAccessibleElement::isValid() const { return isShownBy(*surface_, window_.lock(), *element_); }

QAccessible::Role QtAccessibleElement::role() const {
    switch (visited()->role()) {
    case UIAccessibilityRole::Adjustable:
        return QAccessible::SpinBox;
    case UIAccessibilityRole::Button:
        return visited()->isChecked() ? QAccessible::CheckBox : QAccessible::Button;
    case UIAccessibilityRole::Image:
        return QAccessible::Graphic;
    case UIAccessibilityRole::Heading:
        return QAccessible::Heading;
    case UIAccessibilityRole::Group:
    case UIAccessibilityRole::RadioGroup:
        return QAccessible::Grouping;
    case UIAccessibilityRole::RadioButton:
        return QAccessible::RadioButton;
    case UIAccessibilityRole::List:
        return QAccessible::List;
    case UIAccessibilityRole::ListItem:
        return QAccessible::ListItem;
    case UIAccessibilityRole::Text:
        break;
    }
    return QAccessible::StaticText;
}

QString QtAccessibleElement::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return textOf(visited()->label());
    return kind == QAccessible::Value ? textOf(visited()->value()) : QString();
}

QRect QtAccessibleElement::rect() const {
    if (!isValid()) return {};
    const CGRect area = visited()->frame();
    if (!surface_->exists()) return {};
    return surface_->onScreen({area.origin.x, area.origin.y, area.size.width, area.size.height});
}

QAccessible::State QtAccessibleElement::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const bool hasActions = !actionNames().isEmpty();
    state.disabled = !surface_->isEnabled() || (hasActions && !visited()->isEnabled());
    state.invisible = !surface_->isVisible();
    state.offscreen = !rect().intersects(surface_->frame());
    state.readOnly = !hasActions;
    state.focusable = surface_->canTakeFocus() && visited()->isFocusable();
    state.focused = surface_->hasFocus() && visited()->isFocused();
    if (const std::optional<bool> isExpanded = visited()->isExpanded()) {
        state.expandable = true;
        state.expanded = *isExpanded;
        state.collapsed = !*isExpanded;
    }
    if (const std::optional<bool> isChecked = visited()->isChecked()) {
        state.checkable = true;
        state.checked = *isChecked;
    }
    return state;
}

void* QtAccessibleElement::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface && isAdjustable()) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface && isAdjustable()) return static_cast<QAccessibleTextInterface*>(&value_);
    if (type == QAccessible::ActionInterface && !actionNames().isEmpty()) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

// The tree

QtAccessibleTree* QtAccessibleElement::tree() const {
    return surface_->exists() ? dynamic_cast<QtAccessibleTree*>(QAccessible::queryAccessibleInterface(surface_->object())) : nullptr;
}

QAccessibleInterface* QtAccessibleElement::parent() const {
    const Ref<UIAccessibilityElement> container = visited()->container();
    if (!surface_->exists()) return nullptr;
    const QtAccessibleTree* const tree = container ? this->tree() : nullptr;
    return tree ? tree->interfaceOf(container) : QAccessible::queryAccessibleInterface(surface_->object());
}

int QtAccessibleElement::childCount() const {
    return static_cast<int>(std::min<NSInteger>(visited()->childCount(), std::numeric_limits<int>::max()));
}

QAccessibleInterface* QtAccessibleElement::child(int index) const {
    const Ref<UIAccessibilityElement> child = index >= 0 && index < childCount() ? visited()->child(index) : nullptr;
    const QtAccessibleTree* const tree = child ? this->tree() : nullptr;
    return tree ? tree->interfaceOf(child) : nullptr;
}

int QtAccessibleElement::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const element = dynamic_cast<const QtAccessibleElement*>(child);
    const NSInteger index = element ? visited()->indexOfChild(*element->element()) : -1;
    return index < childCount() ? static_cast<int>(index) : -1;
}

QAccessibleInterface* QtAccessibleElement::childAt(int x, int y) const {
    // The items of a list lie where the view is, which knows those in sight.
    QAccessibleInterface* const root = surface_->exists() ? QAccessible::queryAccessibleInterface(surface_->object()) : nullptr;
    QAccessibleInterface* found = root != nullptr ? root->childAt(x, y) : nullptr;
    while (found != nullptr && found->parent() != this) found = found == root ? nullptr : found->parent();
    return found;
}

QAccessibleInterface* QtAccessibleElement::focusChild() const {
    const std::shared_ptr<void> here = surface_->visit();
    const Ref<UIWindow> window = window_.lock();
    const bool hasFocus = window && surface_->exists() && surface_->hasFocus();
    const Ref<UIAccessibilityElement> focused = hasFocus ? window->focusedAccessibilityElement() : nullptr;
    for (Ref<UIAccessibilityElement> above = focused; above; above = above->container()) {
        if (!above->isSameAs(*element_)) continue;
        const QtAccessibleTree* const tree = this->tree();
        return tree ? tree->interfaceOf(focused) : nullptr;
    }
    return nullptr;
}

// Numbers

QVariant QtAccessibleElement::number(double UIAccessibilityNumbers::*part) const {
    const std::optional<UIAccessibilityNumbers> numbers = isValid() ? visited()->numbers() : std::nullopt;
    return numbers ? QVariant((*numbers).*part) : QVariant();
}

QVariant QtAccessibleElement::currentValue() const { return number(&UIAccessibilityNumbers::value); }
QVariant QtAccessibleElement::minimumValue() const { return number(&UIAccessibilityNumbers::minimum); }
QVariant QtAccessibleElement::maximumValue() const { return number(&UIAccessibilityNumbers::maximum); }
QVariant QtAccessibleElement::minimumStepSize() const { return number(&UIAccessibilityNumbers::step); }

void QtAccessibleElement::setCurrentValue(const QVariant& value) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && canAct()) perform(UIAccessibilityAction::Kind::SetNumber, number);
}

// Actions

QStringList QtAccessibleElement::actionNames() const {
    QStringList names;
    switch (visited()->role()) {
    case UIAccessibilityRole::Adjustable:
        names = {increaseAction(), decreaseAction()};
        break;
    case UIAccessibilityRole::Button:
    case UIAccessibilityRole::RadioButton:
    case UIAccessibilityRole::ListItem:
        names = {pressAction()};
        if (visited()->isChecked()) names.append(toggleAction());
        break;
    default:
        break;
    }
    if (visited()->isFocusable()) names.append(setFocusAction());
    return names;
}

namespace {

void performAction(const QtAccessibleSurface& surface, const Ref<UIWindow>& window, const UIAccessibilityAction& action,
                   const Ref<UIAccessibilityElement>& element) {
    const std::shared_ptr<void> here = surface.visit();
    QAccessibleInterface* const root = surface.exists() ? QAccessible::queryAccessibleInterface(surface.object()) : nullptr;
    if (auto* const tree = dynamic_cast<QtAccessibleTree*>(root)) tree->lookAfterNextFrame();
    const Ref<UIWindowInput> input = surface.input();
    (input ? input : window)->performAction_onElement(action, element);
}

} // namespace

void QtAccessibleElement::doAction(const QString& name) {
    using Kind = UIAccessibilityAction::Kind;
    if (!canAct() || !actionNames().contains(name)) return;
    if (name == increaseAction()) return perform(Kind::Increment);
    if (name == decreaseAction()) return perform(Kind::Decrement);
    if (name == setFocusAction()) return takeFocus();
    activateLater();
}

void QtAccessibleElement::perform(UIAccessibilityAction::Kind kind, double number) const {
    // The views may drop the object, and with it this interface.
    const std::shared_ptr<QtAccessibleSurface> surface = surface_;
    const Ref<UIAccessibilityElement> element = element_;
    performAction(*surface, window_.lock(), {kind, number, clock_()}, element);
}

void QtAccessibleElement::takeFocus() const {
    const std::shared_ptr<QtAccessibleSurface> surface = surface_;
    const Ref<UIAccessibilityElement> element = element_;
    const WeakRef<UIWindow> window = window_;
    const Clock clock = clock_;
    surface->takeFocus();
    if (!isShownBy(*surface, window.lock(), *element)) return;
    performAction(*surface, window.lock(), {UIAccessibilityAction::Kind::Focus, 0, clock()}, element);
}

void QtAccessibleElement::activateLater() const {
    const auto activate = [surface = surface_, window = window_, clock = clock_, element = element_] {
        if (!isShownBy(*surface, window.lock(), *element) || !surface->isEnabled() || surface->isBlockedByDialog()) return;
        performAction(*surface, window.lock(), {UIAccessibilityAction::Kind::Activate, 0, clock()}, element);
    };
    // Not called once the object is gone.
    QMetaObject::invokeMethod(surface_->object(), activate, Qt::QueuedConnection);
}

} // namespace gx::qt
