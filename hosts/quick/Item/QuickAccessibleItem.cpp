#include "QuickAccessibleItem.h"

#include <utility>

namespace gx::quick {

namespace {

QRect onScreenOf(const QQuickItem& item, const QRectF& area) {
    const QRectF inItem = area.toAlignedRect();
    return {item.mapToGlobal(inItem.topLeft()).toPoint(), inItem.size().toSize()};
}

/// The control has the focus, its content the views.
class ItemSurface final : public qt::QtAccessibleSurface {
public:
    ItemSurface(QQuickItem& control, QQuickItem& content, std::shared_ptr<const QuickSurroundings> surroundings)
        : control_(&control), content_(&content), surroundings_(std::move(surroundings)) {}

    QObject* object() const override { return content_ ? control_.data() : nullptr; }
    bool isEnabled() const override { return control_->isEnabled(); }
    bool isVisible() const override { return control_->isVisible(); }
    bool hasFocus() const override { return control_->hasActiveFocus(); }
    bool canTakeFocus() const override { return control_->property("focusPolicy").toInt() != Qt::NoFocus; }
    void takeFocus() override {
        const QPointer<QQuickItem> control = control_;
        if (control->window() != nullptr) control->window()->requestActivate();
        if (control) control->forceActiveFocus(Qt::OtherFocusReason);
    }
    QRect onScreen(const QRectF& area) const override { return onScreenOf(*content_, area); }
    QRect frame() const override { return onScreenOf(*control_, QRectF(0, 0, control_->width(), control_->height())); }
    std::shared_ptr<void> visit() const override { return std::make_shared<QuickSurroundings::Visit>(*surroundings_); }

private:
    QPointer<QQuickItem> control_;
    QPointer<QQuickItem> content_;
    std::shared_ptr<const QuickSurroundings> surroundings_;
};

} // namespace

QuickAccessibleItem::QuickAccessibleItem(QQuickItem& control, QQuickItem& content, std::shared_ptr<const QuickSurroundings> surroundings,
                                         WeakRef<UIWindow> window, Clock clock, std::function<QString()> name)
    : QuickAccessibleItem(control, std::make_shared<ItemSurface>(control, content, std::move(surroundings)), std::move(window),
                          std::move(clock), std::move(name)) {}

QuickAccessibleItem::QuickAccessibleItem(QQuickItem& control, std::shared_ptr<qt::QtAccessibleSurface> surface, WeakRef<UIWindow> window,
                                         Clock clock, std::function<QString()> name)
    : QAccessibleObject(&control), QtAccessibleView(surface, std::move(window), std::move(clock)), control_(&control),
      surface_(std::move(surface)), name_(std::move(name)) {}

void QuickAccessibleItem::forgetOthers(QQuickItem& control) {
    QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(&control);
    if (known == nullptr || dynamic_cast<QuickAccessibleItem*>(known) != nullptr) return;
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
}

bool QuickAccessibleItem::isValid() const { return surface_->exists(); }

QAccessible::State QuickAccessibleItem::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !surface_->isEnabled();
    state.invisible = !surface_->isVisible();
    state.focusable = surface_->canTakeFocus();
    state.focused = surface_->hasFocus() && !isElementFocused();
    return state;
}

QString QuickAccessibleItem::text(QAccessible::Text kind) const { return kind == QAccessible::Name && isValid() ? name_() : QString(); }

QAccessibleInterface* QuickAccessibleItem::parent() const {
    if (!control_) return nullptr;
    for (QQuickItem* item = control_->parentItem(); item != nullptr; item = item->parentItem()) {
        if (control_->window() != nullptr && item == control_->window()->contentItem()) break;
        if (QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(item)) return found;
    }
    return control_->window() != nullptr ? QAccessible::queryAccessibleInterface(control_->window()) : nullptr;
}

} // namespace gx::quick
