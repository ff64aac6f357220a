#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "UIViewWidget.h"
#include "WheelSource.h"

/// A widget of 320 by 216 points on the screen, showing a wheel of two columns of 80 points by 40
/// at x 77.5 and 162.5, each at row 10 of 100. The clock is advanced by hand.
struct WidgetTest : testing::Test {
    explicit WidgetTest(gx::NSInteger columns = 2) {
        source->rows.assign(static_cast<std::size_t>(columns), 100);
        wheel = wheelWithSource(source);
        for (gx::NSInteger i = 0; i < columns; ++i) wheel->selectRow_inComponent_animated(10, i, false);
        widget.setClock([this] { return now; });
        widget.setRootView(wheel);
        widget.resize(320, 216);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        run(0.1);
    }

    void step(double seconds) {
        now += seconds;
        widget.stepFrame();
    }
    void run(double seconds) {
        constexpr double frame = 1.0 / 60;
        for (double left = seconds; left > 0; left -= frame) step(std::min(left, frame));
    }

    static constexpr QPoint firstColumn{117, 108};
    static constexpr QPoint secondColumn{202, 108};
    static constexpr QPoint beside{20, 108};

    /// One event of a mouse wheel or trackpad. Returns whether it was accepted.
    bool wheelEvent(QPoint place, QPoint pixels, QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
        QWheelEvent event(place, widget.mapToGlobal(place), pixels, angle, Qt::NoButton, Qt::NoModifier, phase, false);
        event.ignore();
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }

    using Notices = std::vector<WheelSource::Notice>;

    double now = 1000;
    gx::Ref<WheelSource> source = gx::create<WheelSource>();
    gx::Ref<gx::UIPickerView> wheel;
    gx::qt::UIViewWidget widget;
};
