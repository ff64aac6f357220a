#pragma once

#include <QColor>
#include <QFont>
#include <QLocale>
#include <QMetaMethod>
#include <QPointer>
#include <QQmlProperty>
#include <QQuickItem>

#include "QuickStyleSheet.h"

namespace gx::quick {

/// The control that an item is the content of, read by the names of its properties: the class of
/// controls has no public header.
///
/// Without a control it has the application's looks, is no place for keys and takes all input.
class QuickControl {
public:
    QQuickItem* item() const { return control_; }
    /// What the application knows of `item`: its control, also while that is made and has not got
    /// it yet, and else itself.
    const QObject& owner(const QObject& item) const;
    /// Has `receiver` follow another control: its events go through the receiver's `eventFilter`,
    /// and changes of its looks call `slot`.
    void set(QQuickItem* control, QObject& receiver, const QMetaMethod& slot);

    QuickLooks looks() const;
    bool isDark() const;
    QColor highlight() const { return color("highlight"); }
    QLocale locale() const;
    bool isMirrored() const;
    bool isEnabled() const { return flag("enabled", true); }
    bool reducesMotion() const { return flag("reducedMotion", false); }
    bool takesWheel() const { return flag("wheelEnabled", true); }
    bool takesFocusByPress() const;
    /// What the application calls it for screen readers; empty without a name.
    QString accessibleName() const;
    /// Emits the signal for the user's own changes.
    void notifyMoved() const;

private:
    bool flag(const char* name, bool otherwise) const;
    /// Of the palette. That of an enabled control also when it is disabled: the item is dimmed as a
    /// whole then.
    QColor color(const char* role) const;
    QFont font() const;

    QPointer<QQuickItem> control_;
    // Looked up once: while a document is taken down, its names cannot be resolved any more.
    QQmlProperty name_;
};

} // namespace gx::quick
