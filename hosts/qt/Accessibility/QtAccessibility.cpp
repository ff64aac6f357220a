#include "QtAccessibility.h"

#include <algorithm>
#include <utility>

#include <QPointer>

#include "QtAccessibleBus.h"

namespace gx::qt {

QtAccessibleView::QtAccessibleView(std::shared_ptr<QtAccessibleSurface> surface, WeakRef<UIWindow> window, Clock clock)
    : surface_(std::move(surface)), window_(std::move(window)), clock_(std::move(clock)) {}

QtAccessibleView::~QtAccessibleView() {
    for (const Known& known : known_) QAccessible::deleteAccessibleInterface(known.identifier);
}

UIAccessibilityElements QtAccessibleView::elements() const {
    const std::shared_ptr<void> here = surface_->visit();
    const Ref<UIWindow> window = window_.lock(); // The views may drop the object meanwhile.
    return window && surface_->exists() ? window->accessibilityElements() : UIAccessibilityElements();
}

void QtAccessibleView::removeExpired() const {
    std::erase_if(known_, [](const Known& known) {
        if (known.element->view()) return false;
        QAccessible::deleteAccessibleInterface(known.identifier);
        return true;
    });
}

QAccessibleInterface* QtAccessibleView::interfaceOf(const Ref<UIAccessibilityElement>& element) const {
    if (!element || !surface_->exists()) return nullptr;
    const auto entry =
        std::find_if(known_.begin(), known_.end(), [&element](const Known& known) { return known.element->isSameAs(*element); });
    if (entry != known_.end()) {
        auto* const interface = dynamic_cast<QtAccessibleElement*>(QAccessible::accessibleInterface(entry->identifier));
        if (interface != nullptr) interface->setElement(element);
        return interface;
    }
    removeExpired();
    // Owned by Qt from here on.
    auto* const made = new QtAccessibleElement(surface_, window_, clock_, element);
    known_.push_back({element, QAccessible::registerAccessibleInterface(made)});
    return made;
}

// The tree

int QtAccessibleView::elementCount() const { return static_cast<int>(top().size()); }

QAccessibleInterface* QtAccessibleView::elementAt(int index) const {
    const QPointer<QObject> object = surface_->object();
    const UIAccessibilityElements top = this->top();
    if (!object || index < 0 || static_cast<std::size_t>(index) >= top.size()) return nullptr;
    return interfaceOf(top[static_cast<std::size_t>(index)]);
}

int QtAccessibleView::indexOfElement(const QAccessibleInterface* child) const {
    const auto* const known = dynamic_cast<const QtAccessibleElement*>(child);
    if (known == nullptr) return -1;
    const UIAccessibilityElements top = this->top();
    const auto entry = std::find_if(top.begin(), top.end(), [known](const auto& element) { return known->isSameAs(*element); });
    return entry == top.end() ? -1 : static_cast<int>(entry - top.begin());
}

QAccessibleInterface* QtAccessibleView::elementAtPlace(int x, int y) const {
    // What is read last is on top.
    const QPointer<QObject> object = surface_->object();
    const UIAccessibilityElements elements = this->elements();
    for (std::size_t i = elements.size(); object && i-- > 0;) {
        QAccessibleInterface* const found = interfaceOf(elements[i]);
        if (found == nullptr || !found->rect().contains(x, y)) continue;
        for (int child = 0; child < found->childCount(); ++child) {
            QAccessibleInterface* const below = found->child(child);
            if (below != nullptr && below->rect().contains(x, y)) return below;
        }
        return found;
    }
    return nullptr;
}

// The focus

Ref<UIAccessibilityElement> QtAccessibleView::focused() const {
    const std::shared_ptr<void> here = surface_->visit();
    const Ref<UIWindow> window = window_.lock();
    return window && surface_->exists() && surface_->hasFocus() ? window->focusedAccessibilityElement() : nullptr;
}

QAccessibleInterface* QtAccessibleView::focusedElement() const {
    const QPointer<QObject> object = surface_->object();
    const Ref<UIAccessibilityElement> element = focused();
    return object && element ? interfaceOf(element) : nullptr;
}

// Changes

void QtAccessibleView::announceChanges(Sender send) {
    const std::shared_ptr<void> here = surface_->visit();
    const QPointer<QObject> object = surface_->object();
    const Ref<UIWindow> window = window_.lock();
    if (!object || !window) return;
    const std::shared_ptr<UIAccessibilityChanges> changes = changes_;
    const std::vector<UIAccessibilityChanges::Change> found = changes->takeChanges(*window);
    // A listener or a view may drop the object, and this with it.
    bool isFocusAnnounced = false;
    for (const UIAccessibilityChanges::Change& change : found) {
        if (!object) return;
        using Kind = UIAccessibilityChanges::Change::Kind;
        if (change.kind == Kind::Announcement && !isFocusAnnounced) announceFocus(send);
        isFocusAnnounced |= change.kind == Kind::Announcement;
        if (object) announce(change, send);
    }
    if (object && !isFocusAnnounced) announceFocus(send);
}

void QtAccessibleView::announceChangesOfFrame(bool draws, std::uint64_t stepCount) {
    hasNewFrame_ |= draws;
    if (!hasNewFrame_) return;
    const QPointer<QObject> object = surface_->object();
    const std::shared_ptr<UIAccessibilityChanges> changes = changes_;
    const double time = clock_();
    const double waited = time - lastLook_; // Negative after a change of the clock.
    const bool isNeeded = !draws || isLookRequested_ || stepCount != stepCount_ || waited < 0 || waited >= longestWait;
    const bool hasColumnChanged = !isNeeded && changes->hasColumnChanged();
    if (!object || (!isNeeded && !hasColumnChanged)) return; // A view may have dropped this.
    hasNewFrame_ = false;
    isLookRequested_ = false;
    stepCount_ = stepCount;
    lastLook_ = time;
    announceChanges(hasFrameSender() ? frameSender() : &QAccessible::updateAccessibility);
}

QtAccessibleView::Sender& QtAccessibleView::frameSender() {
    static Sender sender = nullptr;
    return sender;
}

void QtAccessibleView::announce(const UIAccessibilityChanges::Change& change, Sender send) {
    using Kind = UIAccessibilityChanges::Change::Kind;
    const QPointer<QObject> object = surface_->object();
    const QString value = change.element ? textOf(change.element->value()) : QString();
    QAccessibleInterface* const element = !object ? nullptr : change.element ? interfaceOf(change.element) : root();
    if (element == nullptr) return;
    QAccessible::State changed;
    switch (change.kind) {
    case Kind::Elements: {
        // Qt sends an event for each child, also where there are millions.
        if (element->childCount() > highestReorderedCount) return;
        QAccessibleEvent event(element, QAccessible::ObjectReorder);
        return send(&event);
    }
    case Kind::Label: {
        QAccessibleEvent event(element, QAccessible::NameChanged);
        return send(&event);
    }
    case Kind::Number: {
        QAccessibleValueChangeEvent event(element, value);
        return send(&event);
    }
    case Kind::Value: {
        if (element->textInterface() == nullptr) return;
        QAccessibleTextUpdateEvent event(element, 0, QString::fromStdString(change.before), value);
        return send(&event);
    }
    case Kind::Expanded: {
        changed.expanded = true;
        QAccessibleStateChangeEvent event(element, changed);
        send(&event);
        if (object) reportExpandedOnBus(*element);
        return;
    }
    case Kind::Checked: {
        changed.checked = true;
        QAccessibleStateChangeEvent event(element, changed);
        return send(&event);
    }
    case Kind::Focus: // By `announceFocus`, since the surface's own focus counts too.
        return;
    case Kind::Announcement:
        return announcements_.announce(*object, change.announcement, send);
    }
}

void QtAccessibleView::announceFocus(Sender send) {
    const QPointer<QObject> object = surface_->object();
    const Ref<UIAccessibilityElement> element = focused();
    if (!object) return;
    const bool isSame = element && focused_ ? element->isSameAs(*focused_) : element == focused_;
    const bool hasFocus = surface_->hasFocus();
    focused_ = element;
    if (isSame || !hasFocus) return;
    QAccessibleEvent event(element ? interfaceOf(element) : root(), QAccessible::Focus);
    send(&event);
}

void QtAccessibleView::forgetFocus() {
    focused_ = nullptr;
    lookAfterNextFrame();
    if (const Ref<UIWindow> window = window_.lock()) window->requestFrame();
}

namespace {

/// Nothing for other objects, and while no screen reader runs.
QtAccessibleView* activeViewOf(QObject& object) {
    const bool isActive = QAccessible::isActive() || QtAccessibleView::hasFrameSender();
    return isActive ? dynamic_cast<QtAccessibleView*>(QAccessible::queryAccessibleInterface(&object)) : nullptr;
}

} // namespace

void announceAccessibilityFocus(QObject& object) {
    if (QtAccessibleView* const view = activeViewOf(object)) view->forgetFocus();
}

void announceAccessibilityChanges(QObject& object, bool draws, std::uint64_t stepCount) {
    if (QtAccessibleView* const view = activeViewOf(object)) view->announceChangesOfFrame(draws, stepCount);
}

} // namespace gx::qt
