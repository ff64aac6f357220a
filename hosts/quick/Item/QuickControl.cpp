#include "QuickControl.h"

#include <array>

#include <QFontInfo>
#include <QGuiApplication>
#include <QMetaProperty>
#include <QPalette>
#include <QQmlProperty>
#include <QtQml>

#include "QtLooks.h"

namespace gx::quick {

namespace {

/// What changes an item's looks.
constexpr std::array<const char*, 7> followedProperties = {"font",    "locale",       "mirrored",     "palette",
                                                           "enabled", "highContrast", "reducedMotion"};

double pixelSizeOf(const QFont& font) { return font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize(); }

} // namespace

void QuickControl::set(QQuickItem* control, QObject& receiver, const QMetaMethod& slot) {
    if (control_) {
        QObject::disconnect(control_, nullptr, &receiver, nullptr);
        control_->removeEventFilter(&receiver);
    }
    control_ = control;
    name_ = QQmlProperty();
    if (!control_) return;
    control_->installEventFilter(&receiver);
    const QMetaObject& its = *control_->metaObject();
    for (const char* const name : followedProperties) {
        const QMetaProperty property = its.property(its.indexOfProperty(name));
        if (property.hasNotifySignal()) QObject::connect(control_, property.notifySignal(), &receiver, slot);
    }
    name_ = QQmlProperty(control_, QStringLiteral("Accessible.name"), qmlContext(control_));
    name_.connectNotifySignal(&receiver, slot.methodIndex());
}

const QObject& QuickControl::owner(const QObject& item) const {
    if (control_) return *control_;
    const QQmlContext* const document = qmlContext(&item);
    const QObject* const root = document ? document->contextObject() : nullptr;
    return root != nullptr && root->inherits("QQuickControl") ? *root : item;
}

bool QuickControl::flag(const char* name, bool otherwise) const {
    const QVariant value = control_ ? control_->property(name) : QVariant();
    return value.isValid() ? value.toBool() : otherwise;
}

QColor QuickControl::color(const char* role) const {
    if (control_) {
        const QLatin1String group(isEnabled() ? "palette." : "palette.active.");
        const QVariant color = QQmlProperty::read(control_, group + QLatin1String(role), qmlContext(control_));
        if (color.isValid()) return color.value<QColor>();
    }
    const QPalette palette = QGuiApplication::palette();
    if (qstrcmp(role, "window") == 0) return palette.color(QPalette::Window);
    return palette.color(qstrcmp(role, "highlight") == 0 ? QPalette::Highlight : QPalette::WindowText);
}

QFont QuickControl::font() const {
    const QVariant font = control_ ? control_->property("font") : QVariant();
    return font.isValid() ? font.value<QFont>() : QGuiApplication::font();
}

QuickLooks QuickControl::looks() const {
    const QFont font = this->font();
    return {font.family().toStdString(), pixelSizeOf(font), color("windowText"), flag("highContrast", false)};
}

bool QuickControl::isDark() const {
    QPalette palette;
    palette.setColor(QPalette::Window, color("window"));
    return qt::styleOfPalette(palette) == UIUserInterfaceStyle::Dark;
}

QLocale QuickControl::locale() const {
    const QVariant locale = control_ ? control_->property("locale") : QVariant();
    return locale.isValid() ? locale.toLocale() : QLocale();
}

bool QuickControl::isMirrored() const { return flag("mirrored", locale().textDirection() == Qt::RightToLeft); }

bool QuickControl::takesFocusByPress() const {
    return control_ != nullptr && (control_->property("focusPolicy").toInt() & Qt::ClickFocus) == Qt::ClickFocus;
}

QString QuickControl::accessibleName() const { return control_ ? name_.read().toString() : QString(); }

void QuickControl::notifyMoved() const {
    if (control_) QMetaObject::invokeMethod(control_, "moved", Qt::DirectConnection);
}

} // namespace gx::quick
