#include "QtAccessibleWidget.h"

#include <memory>
#include <utility>

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace gx::qt {

namespace {

class WidgetSurface final : public QtAccessibleSurface {
public:
    WidgetSurface(QWidget* widget, QtAccessibleWidget::Input input) : widget_(widget), input_(std::move(input)) {}

    QObject* object() const override { return widget_.data(); }
    bool isEnabled() const override { return widget_->isEnabled(); }
    bool isVisible() const override { return widget_->isVisible(); }
    bool hasFocus() const override { return widget_->hasFocus(); }
    bool canTakeFocus() const override { return widget_->focusPolicy() != Qt::NoFocus; }
    void takeFocus() override {
        const QPointer<QWidget> widget = widget_;
        widget->window()->activateWindow();
        if (widget) widget->setFocus(Qt::OtherFocusReason); // Keys come to its window then.
    }
    QRect onScreen(const QRectF& area) const override {
        const QRect inWidget = area.toAlignedRect();
        return {widget_->mapToGlobal(inWidget.topLeft()), inWidget.size()};
    }
    QRect frame() const override { return {widget_->mapToGlobal(QPoint()), widget_->size()}; }
    bool isBlockedByDialog() const override {
        const QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || dialog == widget_->window()) return false;
        const QWidget* const parent = dialog->parentWidget();
        return dialog->windowModality() == Qt::ApplicationModal || (parent != nullptr && parent->window() == widget_->window());
    }
    Ref<UIWindowInput> input() const override { return input_(); }

private:
    QPointer<QWidget> widget_;
    QtAccessibleWidget::Input input_;
};

} // namespace

QtAccessibleWidget::QtAccessibleWidget(QWidget* widget, WeakRef<UIWindow> window, Clock clock, Input input)
    : QAccessibleWidget(widget, QAccessible::Grouping),
      QtAccessibleView(std::make_shared<WidgetSurface>(widget, std::move(input)), std::move(window), std::move(clock)) {}

QAccessible::State QtAccessibleWidget::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    if (state.focused && isElementFocused()) state.focused = false;
    return state;
}

} // namespace gx::qt
