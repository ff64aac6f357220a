#include <gtest/gtest.h>

#include <QPainter>

#include "QtImageScaler.h"
#include "QtTextImageCache.h"

using namespace gx;
using gx::qt::QtImageScaler;
using gx::qt::QtTextEngine;
using gx::qt::QtTextImageCache;

namespace {

struct QtImageScalerTest : testing::Test {
    QImage textImage(const char* text, double size, QRgb color = 0xff204060) {
        const QtTextEngine::Face& face = QtTextEngine::shared()->faceOfFont(*UIFont::systemFontOfSize_weight(22));
        return cache.imageOfText(text, face, size, color)->image;
    }
    static QImage paper() {
        QImage image(160, 160, QImage::Format_ARGB32_Premultiplied);
        image.fill(0xffe0d0f0);
        return image;
    }
    static QImage drawnByQt(const QImage& image, const QRectF& area, double opacity) {
        QImage onto = paper();
        QPainter painter(&onto);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(opacity);
        painter.drawImage(area, image);
        return onto;
    }
    QImage drawnFromHere(const QImage& image, const QRectF& area, double opacity) {
        QImage onto = paper();
        QPainter painter(&onto);
        painter.setOpacity(opacity);
        const QRect pixels = scaler.scale(image, area);
        EXPECT_FALSE(pixels.isEmpty());
        painter.drawImage(pixels.topLeft(), scaler.result(), QRect(QPoint(), pixels.size()));
        return onto;
    }

    /// Nothing if the area is not supported.
    QImage blended(const QImage& image, const QRectF& area, double opacity, QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
        QImage onto = paper().convertToFormat(format);
        return scaler.blend(image, area, opacity, onto, onto.rect()) ? onto : QImage();
    }

    QtTextImageCache cache;
    QtImageScaler scaler;
};

TEST_F(QtImageScalerTest, AResultIsPixelForPixelWhatQtDraws) {
    int count = 0;
    int blendedCount = 0;
    for (const char* text : {"7", "42", "1000000", "km/h", "Åg|fi"}) {
        for (const double size : {11.0, 22.0, 33.0, 44.0}) {
            const QImage image = textImage(text, size);
            for (int i = 0; i < 60; ++i) {
                const double narrowing = 0.996 - 0.0061 * (i % 40);
                const double shortening = 1 - 0.0137 * i;
                const QRectF area(3 + 0.37 * i, 2 + 1.13 * i, image.width() * narrowing, image.height() * shortening);
                const double opacity = 1 - 0.016 * i;
                ASSERT_EQ(drawnFromHere(image, area, opacity), drawnByQt(image, area, opacity))
                    << text << " at " << size << ", " << i << ": " << area.x() << ' ' << area.y() << ' ' << area.width() << ' '
                    << area.height();
                ++count;
                if (area.right() > 156 || area.bottom() > 159) continue;
                ASSERT_EQ(blended(image, area, opacity), drawnByQt(image, area, opacity)) << text << " at " << size << ", " << i;
                ++blendedCount;
            }
        }
    }
    EXPECT_EQ(count, 1200);
    EXPECT_GT(blendedCount, 900);
}

TEST_F(QtImageScalerTest, AnImageThatLeavesTheDeviceIsWhatQtDraws) {
    const QImage image = textImage("42", 44);
    for (const QPointF place : {QPointF(-10.3, 20.6), QPointF(140.2, 20.1), QPointF(30.4, -11.7), QPointF(30.4, 149.5)}) {
        const QRectF area(place, QSizeF(image.width() * 0.83, image.height() * 0.61));
        EXPECT_EQ(drawnFromHere(image, area, 0.7), drawnByQt(image, area, 0.7)) << place.x() << ' ' << place.y();
    }
}

TEST_F(QtImageScalerTest, ATranslucentTextIsWhatQtDraws) {
    const QImage image = textImage("42", 44, 0x80ff3311);
    const QRectF area(10.25, 20.75, image.width() * 0.9, image.height() * 0.7);
    EXPECT_EQ(drawnFromHere(image, area, 1), drawnByQt(image, area, 1));
    EXPECT_EQ(blended(image, area, 1), drawnByQt(image, area, 1));
}

TEST_F(QtImageScalerTest, BlendingWithAnImageWithoutAlphaIsTheSame) {
    const QImage image = textImage("42", 44);
    const QRectF area(10.25, 20.75, image.width() * 0.9, image.height() * 0.7);
    EXPECT_EQ(blended(image, area, 0.3, QImage::Format_RGB32), drawnByQt(image, area, 0.3).convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(blended(image, area, 0.3, QImage::Format_RGB16).isNull());
}

TEST_F(QtImageScalerTest, AnAreaThatIsCutIsNotBlended) {
    const QImage image = textImage("42", 44);
    const QSizeF size(image.width() * 0.83, image.height() * 0.61);
    for (const QPointF place :
         {QPointF(-0.6, 20.6), QPointF(160.6 - size.width(), 20.1), QPointF(30.4, -0.6), QPointF(30.4, 160.6 - size.height())}) {
        EXPECT_TRUE(blended(image, {place, size}, 0.7).isNull()) << place.x() << ' ' << place.y();
    }
    QImage onto = paper();
    EXPECT_FALSE(scaler.blend(image, {QPointF(20, 20), size}, 0.7, onto, QRect(21, 0, 100, 100)));
    EXPECT_EQ(onto, paper());
}

TEST_F(QtImageScalerTest, OtherImagesAreLeftToTheCaller) {
    const QImage image = textImage("42", 44);
    const QSizeF size = image.size();
    EXPECT_FALSE(scaler.scale(image, {QPointF(), size}).isEmpty()) << "as large as the image";
    EXPECT_TRUE(scaler.scale(image, {0, 0, size.width() * 1.1, size.height()}).isEmpty()) << "wider";
    EXPECT_TRUE(scaler.scale(image, {0, 0, size.width() * 0.5, size.height()}).isEmpty()) << "half as wide";
    EXPECT_TRUE(scaler.scale(image, {0, 0, 0, 0}).isEmpty()) << "nothing";
    EXPECT_TRUE(scaler.scale(image.convertToFormat(QImage::Format_RGB32), {0, 0, size.width() * 0.9, size.height()}).isEmpty());
    EXPECT_TRUE(scaler.scale(QImage(), {0, 0, 10, 10}).isEmpty());
}

} // namespace
