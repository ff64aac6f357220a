#pragma once

#include <functional>
#include <memory>

#include <QAccessible>

#include "QtAccessibleSurface.h"
#include "QtAccessibleText.h"
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

/// Where elements find each other's interfaces. `QtAccessibleView` implements it.
class GX_EXPORT QtAccessibleTree {
public:
    /// The same for the same element, as long as its view lives. Nothing for none, and once the
    /// surface has no object.
    virtual QAccessibleInterface* interfaceOf(const Ref<UIAccessibilityElement>& element) const = 0;
    /// The next frame announces changes, however long ago the last ones were.
    virtual void lookAfterNextFrame() = 0;

protected:
    ~QtAccessibleTree() = default;
};

/// One element of the views that a surface shows.
///
/// Invalid, with actions that are no-ops, while the element does not exist.
///
/// An activation comes after the call that asks for it: one that opens a dialog takes until that is
/// closed, and a screen reader waits for the call. Everything else has happened when the call ends.
class QtAccessibleElement : public QAccessibleInterface, public QAccessibleValueInterface, public QAccessibleActionInterface {
public:
    /// Returns seconds on the clock of the window's ticks; used only while the object lives.
    using Clock = std::function<NSTimeInterval()>;

    QtAccessibleElement(std::shared_ptr<QtAccessibleSurface> surface, WeakRef<UIWindow> window, Clock clock,
                        Ref<UIAccessibilityElement> element);

    bool isSameAs(const UIAccessibilityElement& element) const { return element_->isSameAs(element); }
    const Ref<UIAccessibilityElement>& element() const { return element_; }
    /// Another handle of the same element, which may belong to another container now.
    void setElement(const Ref<UIAccessibilityElement>& element) {
        if (element->container() || !element_->container()) element_ = element;
    }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    // The value is the number that is shown.

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    /// The element for one query, in the surroundings of its object.
    struct Visited {
        std::shared_ptr<void> here;
        Ref<UIAccessibilityElement> element;
        UIAccessibilityElement* operator->() const { return element.get(); }
    };
    Visited visited() const { return {surface_->visit(), element_}; }
    bool isAdjustable() const { return visited()->role() == UIAccessibilityRole::Adjustable; }
    bool canAct() const { return isValid() && surface_->isEnabled(); }
    void perform(UIAccessibilityAction::Kind kind, double number = 0) const;
    void takeFocus() const;
    void activateLater() const;
    QtAccessibleTree* tree() const;
    QVariant number(double UIAccessibilityNumbers::*part) const;

    std::shared_ptr<QtAccessibleSurface> surface_; // Never empty.
    WeakRef<UIWindow> window_;
    Clock clock_;
    Ref<UIAccessibilityElement> element_;
    QtAccessibleText value_;
};

/// Of an element's text; empty for none.
QString textOf(const std::optional<std::string>& text);

} // namespace gx::qt
