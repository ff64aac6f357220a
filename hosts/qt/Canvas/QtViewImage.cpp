#include <GXUIPickers/QtViewImage.h>

#include <cmath>

#include <QPainter>

#include "QtCanvas.h"
#include <GXUIPickers/UIWindow.h>

namespace gx::qt {

namespace {

bool canDraw(CGSize size, double scale) {
    // Qt's limit for one image.
    constexpr double largestSide = 32767;
    const double width = std::ceil(size.width * scale);
    const double height = std::ceil(size.height * scale);
    return width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
}

} // namespace

QImage imageOfView(const Ref<UIView>& view, CGSize size, double scale, UIUserInterfaceStyle style) {
    if (!view || !canDraw(size, scale)) return {};
    const Ref<UIWindow> window = create<UIWindow>(CGRect{{}, size});
    window->setUserInterfaceStyle(style);
    window->addSubview(view);
    view->setFrame(window->bounds());
    return imageOfWindow(window, scale);
}

QImage imageOfWindow(const Ref<UIWindow>& window, double scale) {
    if (!window || !canDraw(window->bounds().size, scale)) return {};
    const CGSize size = window->bounds().size;
    QImage image(static_cast<int>(std::ceil(size.width * scale)), static_cast<int>(std::ceil(size.height * scale)),
                 QImage::Format_ARGB32_Premultiplied);
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
