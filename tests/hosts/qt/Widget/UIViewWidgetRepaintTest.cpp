// Which parts of a widget are painted again.

#include <utility>

#include <QPaintEvent>
#include <QScreen>
#include <QWindow>

#include "UILabel.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::UIViewWidget;

namespace {

/// Notes what it is asked to paint.
struct NotingWidget : UIViewWidget {
    QRegion painted;
    void paintEvent(QPaintEvent* event) override {
        painted |= event->region();
        UIViewWidget::paintEvent(event);
    }
};

/// A wheel of two columns in the corner of a large window, beside labels. The clock is advanced by
/// hand.
struct UIViewWidgetRepaint : testing::Test {
    UIViewWidgetRepaint() {
        source->rows = {100, 100};
        wheel = wheelWithSource(source);
        root->setBackgroundColor(UIColor::whiteColor());
        for (int i = 0; i < 20; ++i) {
            const auto label = create<UILabel>(CGRectMake(400, 10 + 25 * i, 250, 20));
            label->setText("Label " + std::to_string(i));
            root->addSubview(label);
            labels.push_back(label);
        }
        root->addSubview(wheel);
        widget.setClock([this] { return now; });
        widget.setRootView(root);
        widget.resize(700, 600);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        for (int i = 0; i < 5; ++i) frame();
        widget.painted = {};
    }
    void frame(double seconds = 1.0 / 60) {
        now += seconds;
        widget.stepFrame();
        QCoreApplication::processEvents();
    }
    /// What is on the screen is what a widget that is painted as a whole shows.
    void expectWholePicture(const char* what) {
        const QImage shown = widget.screen()->grabWindow(widget.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage whole = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(shown.size(), whole.size());
        ASSERT_EQ(shown, whole) << what;
    }

    double now = 1000;
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 700, 600));
    std::vector<Ref<UILabel>> labels;
    NotingWidget widget;
};

TEST_F(UIViewWidgetRepaint, ASpinningColumnIsPaintedAlone) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    frame(); // A request has the rows of both columns made again, in another order.
    widget.painted = {};
    for (int i = 0; i < 8; ++i) frame();
    EXPECT_FALSE(widget.painted.isEmpty());
    const QRect column(77, 0, 81, 216);
    const QRect painted = widget.painted.boundingRect();
    EXPECT_TRUE(column.adjusted(-3, -3, 3, 3).contains(painted))
        << painted.x() << ' ' << painted.y() << ' ' << painted.width() << ' ' << painted.height();
}

TEST_F(UIViewWidgetRepaint, ASpinningWheelHasNoOtherViewDraw) {
    struct CountingView : UIView {
        int count = 0;
        void drawRect(UIGraphicsContext& context, CGRect rect) override {
            ++count;
            context.fillRect(rect, UIColor::systemBlueColor());
        }
    };
    const auto beside = create<CountingView>(CGRectMake(300, 400, 50, 50));
    const auto within = create<CountingView>(CGRectMake(10, 10, 20, 20));
    beside->addSubview(within);
    root->addSubview(beside);
    frame();
    const int first = beside->count;
    EXPECT_GT(first, 0);
    wheel->selectRow_inComponent_animated(50, 0, true);
    for (int i = 0; i < 8; ++i) frame();
    EXPECT_TRUE(wheel->isTurning());
    EXPECT_EQ(beside->count, first);
    EXPECT_EQ(within->count, first);
    expectWholePicture("while it spins"); // All draw for it.
    EXPECT_EQ(beside->count, first + 1);
    within->setNeedsDisplay();
    frame();
    EXPECT_EQ(within->count, first + 2);
    EXPECT_EQ(beside->count, first + 2) << "a view around it draws again";
    root->setNeedsDisplay();
    frame();
    EXPECT_EQ(within->count, first + 3) << "as does one below it";
}

TEST_F(UIViewWidgetRepaint, AFrameThatLooksTheSamePaintsNothing) {
    root->setNeedsDisplay();
    frame();
    EXPECT_TRUE(widget.painted.isEmpty());
}

TEST_F(UIViewWidgetRepaint, WhatGoesIsPaintedOver) {
    labels[3]->setHidden(true);
    frame();
    EXPECT_FALSE(widget.painted.isEmpty());
    EXPECT_TRUE(QRect(390, 80, 270, 30).contains(widget.painted.boundingRect()));
    expectWholePicture("a hidden label");
    labels[3]->setHidden(false);
    labels[3]->setAlpha(0.5);
    frame();
    expectWholePicture("a label that is back");
    labels[5]->setFrame(CGRectMake(20.3, 300.7, 250, 20));
    frame();
    expectWholePicture("a label that has moved");
}

TEST_F(UIViewWidgetRepaint, TheScreenShowsTheWholePictureInEachFrame) {
    expectWholePicture("at first");
    wheel->selectRow_inComponent_animated(50, 0, true);
    wheel->selectRow_inComponent_animated(3, 1, true);
    for (int i = 0; i < 40; ++i) {
        frame(0.013);
        if (i == 10) labels[2]->setText("Another label");
        if (i == 20) wheel->setAlpha(0.7);
        if (i == 25) labels[7]->removeFromSuperview();
        if (i % 3 == 0) widget.update(QRect(10 * i, 5 * i, 50, 40)); // Something lay over it.
        if (i % 4 == 0) frame(0);
        if (i % 5 != 0) continue;
        frame(0);
        expectWholePicture("while it spins");
    }
}

TEST_F(UIViewWidgetRepaint, ALookAndASizeThatChangeArePaintedAsAWhole) {
    widget.setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    frame();
    expectWholePicture("dark");
    widget.setUserInterfaceStyle(UIUserInterfaceStyle::Light);
    frame();
    widget.resize(500, 650);
    QCoreApplication::processEvents();
    frame();
    expectWholePicture("another size");
    widget.hide();
    wheel->selectRow_inComponent_animated(70, 0, false);
    frame();
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    frame();
    expectWholePicture("shown again");
}

TEST_F(UIViewWidgetRepaint, AChangeBetweenTheTickAndThePaintIsPainted) {
    now += 0.01;
    labels[0]->setText("First");
    widget.stepFrame();
    labels[0]->setText("Second");
    labels[1]->setText("Third");
    QCoreApplication::processEvents();
    frame();
    frame();
    expectWholePicture("in the end");
}

TEST_F(UIViewWidgetRepaint, AViewMayHaveTheWidgetPaintedWhileItDraws) {
    struct PaintingView : UIView {
        using UIView::UIView;
        QWidget* widget = nullptr;
        QImage seen;
        void drawRect(UIGraphicsContext& context, CGRect rect) override {
            context.fillRect(rect, UIColor::blackColor());
            QWidget* const painted = std::exchange(widget, nullptr);
            if (!painted) return;
            painted->repaint();
            seen = painted->grab().toImage();
        }
    };
    const auto painting = create<PaintingView>(CGRectMake(10, 400, 50, 50));
    root->addSubview(painting);
    for (int i = 0; i < 5; ++i) frame();
    painting->widget = &widget;
    painting->setNeedsDisplay();
    frame();
    EXPECT_EQ(painting->seen, widget.grab().toImage());
    ASSERT_NO_FATAL_FAILURE(expectWholePicture("after it was painted"));
    labels[3]->setText("Three");
    frame();
    ASSERT_NO_FATAL_FAILURE(expectWholePicture("in the next frame"));
}

TEST_F(UIViewWidgetRepaint, ATextTooLargeForAnImageIsPaintedToo) {
    labels[0]->setFont(UIFont::systemFontOfSize_weight(8000));
    labels[0]->setFrame(CGRectMake(-2000, -3000, 9000, 9000));
    frame();
    expectWholePicture("a huge text");
    wheel->selectRow_inComponent_animated(50, 0, true);
    for (int i = 0; i < 5; ++i) frame();
    expectWholePicture("and what spins above it");
}

} // namespace
