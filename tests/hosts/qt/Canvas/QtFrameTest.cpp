#include <gtest/gtest.h>

#include <QPainter>

#include "QtCanvas.h"
#include "UILabel.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;
using gx::qt::QtCanvas;
using gx::qt::QtFrame;
using gx::qt::QtTextEngine;

namespace {

/// A wheel of two columns beside a label, recorded frame by frame for a screen with so many pixels
/// a point. What has changed is painted over the picture of the frame before.
struct Screen {
    explicit Screen(double scale) : device(QTransform::fromScale(scale, scale)), picture(pixelsOf(scale), QImage::Format_RGB32) {
        source->rows = {100, 24};
        wheel = wheelWithSource(source);
        label->setText("Label 7");
        views->addSubview(wheel);
        views->addSubview(label);
        record();
        paint(picture, picture.rect());
    }
    static QSize pixelsOf(double scale) { return (QSizeF(480, 220) * scale).toSize(); }

    void record() {
        views->tick(now += 0.013);
        std::swap(shown, before);
        canvas.begin(shown, device);
        views->draw(canvas);
        canvas.end();
    }
    void paint(QImage& image, const QRect& area) {
        QPainter painter(&image);
        painter.setClipRect(area);
        painter.fillRect(area, Qt::white);
        painter.setWorldTransform(device);
        canvas.paintFrame(painter, shown, area);
    }
    /// In whole points, as a widget is repainted.
    QRect changedPixels() const {
        const QRect changed = shown.areaChangedSince(before);
        if (changed.isEmpty()) return {};
        const QRect points = device.inverted().mapRect(QRectF(changed)).toAlignedRect().adjusted(-1, -1, 1, 1);
        return device.mapRect(QRectF(points)).toAlignedRect();
    }
    /// Whether painting what has changed since the frame before gives the whole picture.
    void expectWholePicture(const char* what) {
        record();
        ASSERT_TRUE(shown.isComplete()) << what;
        const QRect changed = changedPixels();
        if (!changed.isEmpty()) paint(picture, changed);
        QImage whole(picture.size(), picture.format());
        paint(whole, whole.rect());
        ASSERT_EQ(picture, whole) << what;
    }

    double now = 1000;
    QTransform device;
    QImage picture;
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UILabel> label = create<UILabel>(CGRectMake(340.3, 20.6, 120, 30));
    Ref<UIWindow> views = create<UIWindow>(CGRectMake(0, 0, 480, 220));
    QtCanvas canvas;
    QtFrame shown;
    QtFrame before;
};

class QtFrameAtEachScale : public testing::TestWithParam<double> {};

TEST_P(QtFrameAtEachScale, PaintingWhatHasChangedGivesTheWholePicture) {
    Screen screen(GetParam());
    screen.wheel->selectRow_inComponent_animated(50, 0, true);
    screen.wheel->selectRow_inComponent_animated(3, 1, true);
    for (int i = 0; i < 60; ++i) {
        if (i == 20) screen.label->setText("Another label");
        if (i == 30) screen.label->setFrame(CGRectMake(330.7, 60.1, 120, 30));
        if (i == 40) screen.wheel->setAlpha(0.7);
        ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in motion")) << "frame " << i;
    }
}

TEST_P(QtFrameAtEachScale, AFrameThatLooksTheSameHasNoChange) {
    Screen screen(GetParam());
    screen.views->setNeedsDisplay();
    screen.record();
    EXPECT_TRUE(screen.changedPixels().isEmpty());
}

TEST_P(QtFrameAtEachScale, ASpinningColumnIsTheWholeChange) {
    Screen screen(GetParam());
    screen.wheel->selectRow_inComponent_animated(50, 0, true);
    for (int i = 0; i < 3; ++i) screen.record();
    for (int i = 0; i < 8; ++i) {
        screen.record();
        const QRect changed = screen.changedPixels();
        EXPECT_FALSE(changed.isEmpty());
        EXPECT_LT(changed.right(), 162 * GetParam()) << "left of the second column";
    }
}

TEST_P(QtFrameAtEachScale, AFontThatChangesLateIsPainted) {
    Screen screen(GetParam());
    QtTextEngine& engine = *QtTextEngine::shared();
    const std::string family = engine.interfaceFamily();
    const QImage before = screen.picture;
    engine.setInterfaceFamily("monospace");
    screen.label->setText("Label 8");
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("another font"));
    EXPECT_NE(screen.picture, before);
    engine.setInterfaceFamily(family);
    screen.label->setText("Label 7");
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("the first font"));
    EXPECT_EQ(screen.picture, before);
}

INSTANTIATE_TEST_SUITE_P(Scales, QtFrameAtEachScale, testing::Values(1, 1.5, 2, 3));

} // namespace
