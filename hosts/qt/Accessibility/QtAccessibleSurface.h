#pragma once

#include <memory>

#include <QObject>
#include <QRect>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIWindowInput.h>

namespace gx::qt {

/// What shows a window's views on the screen, as far as screen readers need it: a widget, or an
/// item of Qt Quick.
///
/// It may outlive its object. The other operations are only for while there is one.
class GX_EXPORT QtAccessibleSurface {
public:
    virtual ~QtAccessibleSurface() = default;

    /// The one whose accessibility interface holds the elements of the views; nothing once it is
    /// gone.
    virtual QObject* object() const = 0;
    bool exists() const { return object() != nullptr; }

    virtual bool isEnabled() const = 0;
    virtual bool isVisible() const = 0;
    /// Whether keys come to it at present, and whether they can.
    virtual bool hasFocus() const = 0;
    virtual bool canTakeFocus() const = 0;
    /// Also brings its window to the front. Callbacks may drop the object.
    virtual void takeFocus() = 0;
    /// A rectangle of the window on the screen.
    virtual QRect onScreen(const QRectF& area) const = 0;
    /// All of it on the screen.
    virtual QRect frame() const = 0;
    /// Whether a dialog has to be closed before the user can go on here.
    virtual bool isBlockedByDialog() const { return false; }
    /// What the object sends to its window by; nothing for the window itself.
    virtual Ref<UIWindowInput> input() const { return nullptr; }
    /// For the time of a query: while the result lives, views read the object's own services, such
    /// as its language. Nothing where these are the application's.
    virtual std::shared_ptr<void> visit() const { return nullptr; }
};

} // namespace gx::qt
