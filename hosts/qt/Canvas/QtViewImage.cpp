#include <GXUIPickers/QtViewImage.h>

#include <cmath>

#include <QPainter>

#include "QtCanvas.h"
#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

QImage imageOfView(const Ref<UIView>& view, CGSize size, double scale, UIUserInterfaceStyle style) {
    // Qt's limit for one image.
    constexpr double largestSide = 32767;
    const double width = std::ceil(size.width * scale);
    const double height = std::ceil(size.height * scale);
    const bool isDrawable = view && width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
    if (!isDrawable) return {};
    const Ref<UIWindow> window = create<UIWindow>(CGRect{{}, size});
    window->setUserInterfaceStyle(style);
    window->addSubview(view);
    view->setFrame(window->bounds());
    QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QtCanvas canvas;
    canvas.begin(painter);
    window->draw(canvas);
    canvas.end();
    return image;
}

} // namespace gx::qt
