#include <QScrollArea>
#include <QScrollBar>

#include "WidgetTest.h"

using namespace gx;
using gx::qt::UIViewWidget;

namespace {

struct UIViewWidgetInput : WidgetTest {
    static QPointingDevice* device(QInputDevice::DeviceType type) {
        // Qt keeps them until the application ends.
        static QPointingDevice* const screen = QTest::createTouchDevice();
        static QPointingDevice* const trackpad = QTest::createTouchDevice(QInputDevice::DeviceType::TouchPad);
        return type == QInputDevice::DeviceType::TouchPad ? trackpad : screen;
    }
    QPointingDevice* screen = device(QInputDevice::DeviceType::TouchScreen);
};

TEST_F(UIViewWidgetInput, AMouseDragSpinsTheWheelAndIsReportedOnce) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    for (int y = 100; y >= 28; y -= 8) {
        step(0.016);
        QTest::mouseMove(&widget, {117, y});
    }
    run(0.2);
    EXPECT_TRUE(source->notices.empty());
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {117, 28});
    run(1);
    // 80 points less the slop of 6 are nearly two rows of 40.
    EXPECT_EQ(source->notices, (Notices{{12, 0}}));
    EXPECT_EQ(wheel->selectedRowInComponent(1), 10);
    EXPECT_FALSE(widget.isFrameDue());
}

TEST_F(UIViewWidgetInput, ATapOnARowGoesThere) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {117, 148});
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, ADoubleClickIsTwoTaps) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {117, 148});
    run(1);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, {117, 148});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {117, 148});
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}, {12, 0}}));
}

TEST_F(UIViewWidgetInput, OtherButtonsDoNothing) {
    QTest::mousePress(&widget, Qt::RightButton, {}, firstColumn);
    QTest::mouseMove(&widget, {117, 28});
    run(0.2);
    QTest::mouseRelease(&widget, Qt::RightButton, {}, {117, 28});
    run(1);
    EXPECT_TRUE(source->notices.empty());
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(UIViewWidgetInput, AReleaseElsewhereEndsTheDrag) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    step(0.016);
    QTest::mouseMove(&widget, {117, 62});
    step(0.016);
    EXPECT_TRUE(wheel->isTurning());
    QMouseEvent hover(QEvent::MouseMove, QPointF(117, 20), widget.mapToGlobal(QPointF(117, 20)), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &hover);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}})); // 40 points less the slop away.
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {117, 20});
    run(1);
    EXPECT_EQ(source->notices.size(), 1U);
}

TEST_F(UIViewWidgetInput, TwoFingersSpinTwoColumns) {
    QTest::touchEvent(&widget, screen).press(0, firstColumn).press(1, secondColumn);
    for (int i = 1; i <= 10; ++i) {
        step(0.016);
        QTest::touchEvent(&widget, screen).move(0, firstColumn - QPoint(0, 8 * i)).move(1, secondColumn + QPoint(0, 4 * i));
    }
    run(0.2);
    QTest::touchEvent(&widget, screen).release(0, firstColumn - QPoint(0, 80)).release(1, secondColumn + QPoint(0, 40));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {9, 1}}));
}

TEST_F(UIViewWidgetInput, ARestingFingerLeavesAnotherAlone) {
    QTest::touchEvent(&widget, screen).press(0, firstColumn);
    step(0.016);
    QTest::touchEvent(&widget, screen).stationary(0).press(1, secondColumn);
    for (int i = 1; i <= 10; ++i) {
        step(0.016);
        QTest::touchEvent(&widget, screen).stationary(0).move(1, secondColumn - QPoint(0, 8 * i));
    }
    run(0.2);
    QTest::touchEvent(&widget, screen).stationary(0).release(1, secondColumn - QPoint(0, 80));
    run(1);
    QTest::touchEvent(&widget, screen).release(0, firstColumn);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 1}}));
}

TEST_F(UIViewWidgetInput, TheMouseEventsOfAFingerAreNotCountedTwice) {
    const auto send = [this](QEvent::Type type, QPoint place, Qt::MouseEventSource origin, const QPointingDevice* device) {
        QMouseEvent event(type, place, place, widget.mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier, origin, device);
        event.ignore();
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    };
    const QPoint below(117, 148);
    const QPointingDevice* mouse = QPointingDevice::primaryPointingDevice();
    EXPECT_FALSE(send(QEvent::MouseButtonPress, below, Qt::MouseEventSynthesizedBySystem, mouse));
    EXPECT_FALSE(send(QEvent::MouseButtonRelease, below, Qt::MouseEventSynthesizedBySystem, mouse));
    EXPECT_FALSE(send(QEvent::MouseButtonPress, below, Qt::MouseEventSynthesizedByQt, screen));
    EXPECT_FALSE(send(QEvent::MouseButtonRelease, below, Qt::MouseEventSynthesizedByQt, screen));
    run(1);
    EXPECT_TRUE(source->notices.empty());
    // What Qt makes of a pen counts.
    EXPECT_TRUE(send(QEvent::MouseButtonPress, below, Qt::MouseEventSynthesizedByQt, mouse));
    EXPECT_TRUE(send(QEvent::MouseButtonRelease, below, Qt::MouseEventSynthesizedByQt, mouse));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, FingersOnATrackpadAreNoFingersOnTheScreen) {
    QPointingDevice* trackpad = device(QInputDevice::DeviceType::TouchPad);
    QTest::touchEvent(&widget, trackpad).press(0, QPoint(117, 148));
    QTest::touchEvent(&widget, trackpad).release(0, QPoint(117, 148));
    run(1);
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(UIViewWidgetInput, ACancelledTouchSnapsToTheNearestRow) {
    QTest::touchEvent(&widget, screen).press(0, firstColumn);
    step(0.016);
    QTest::touchEvent(&widget, screen).move(0, firstColumn - QPoint(0, 40));
    step(0.016);
    QTouchEvent cancel(QEvent::TouchCancel, screen);
    QApplication::sendEvent(&widget, &cancel);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, HidingTheWidgetEndsTheDragAndReportsIt) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    step(0.016);
    QTest::mouseMove(&widget, firstColumn - QPoint(0, 40));
    step(0.016);
    widget.hide();
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
    EXPECT_FALSE(widget.isFrameDue());
}

TEST_F(UIViewWidgetInput, AnotherWindowInFrontEndsTheDrag) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    step(0.016);
    QTest::mouseMove(&widget, firstColumn - QPoint(0, 40));
    step(0.016);
    QEvent away(QEvent::WindowDeactivate);
    QApplication::sendEvent(&widget, &away);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, DisablingTheWidgetEndsTheDrag) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, firstColumn);
    step(0.016);
    QTest::mouseMove(&widget, firstColumn - QPoint(0, 40));
    step(0.016);
    widget.setEnabled(false);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, OneNotchTowardTheUserIsTheNextRow) {
    EXPECT_TRUE(wheelEvent(firstColumn, {}, {0, -120}));
    run(1);
    EXPECT_TRUE(wheelEvent(secondColumn, {}, {0, 240}));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}, {8, 1}}));
}

TEST_F(UIViewWidgetInput, PartsOfANotchAddUp) {
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(wheelEvent(firstColumn, {}, {0, -15}));
    run(1);
    EXPECT_TRUE(source->notices.empty());
    EXPECT_TRUE(wheelEvent(firstColumn, {}, {0, -15}));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, AStrokeOnATrackpadScrollsByItsPoints) {
    EXPECT_TRUE(wheelEvent(firstColumn, {}, {}, Qt::ScrollBegin));
    for (int i = 0; i < 8; ++i) {
        step(0.016);
        EXPECT_TRUE(wheelEvent(firstColumn, {0, -10}, {0, -20}, Qt::ScrollUpdate));
    }
    EXPECT_TRUE(wheelEvent(firstColumn, {0, -35}, {0, -70}, Qt::ScrollMomentum));
    step(0.016);
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 13); // 115 points are 2.9 rows.
    EXPECT_TRUE(source->notices.empty());
    EXPECT_TRUE(wheelEvent(firstColumn, {}, {}, Qt::ScrollEnd));
    step(0.016);
    run(0.3);
    EXPECT_EQ(source->notices, (Notices{{13, 0}}));
}

TEST_F(UIViewWidgetInput, PixelsWithoutPhasesAreIgnored) {
    EXPECT_TRUE(wheelEvent(firstColumn, {0, -3}, {0, -120}));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, NotchesWithPhasesAreNotches) {
    EXPECT_TRUE(wheelEvent(firstColumn, {}, {0, -120}, Qt::ScrollUpdate));
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIViewWidgetInput, WheelEventsBesideTheColumnsAreIgnored) {
    EXPECT_FALSE(wheelEvent(beside, {}, {0, -120}));
    EXPECT_FALSE(wheelEvent(beside, {0, -10}, {0, -20}, Qt::ScrollUpdate));
    EXPECT_FALSE(wheelEvent(firstColumn, {}, {}));
    run(1);
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(UIViewWidgetInput, UnhandledEventsScrollTheAreaAround) {
    QScrollArea area;
    auto* inner = new UIViewWidget;
    inner->setRootView(wheel);
    inner->setFixedSize(320, 1000);
    area.setWidget(inner);
    area.resize(320, 200);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    const auto notchAt = [inner](QPoint place) {
        QWheelEvent event(place, inner->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // Others are not passed on.
        qApp->notify(inner, &event);
    };
    notchAt({117, 100});
    EXPECT_EQ(area.verticalScrollBar()->value(), 0);
    notchAt({20, 100});
    EXPECT_GT(area.verticalScrollBar()->value(), 0);
}

TEST_F(UIViewWidgetInput, PressesWithoutAViewAreIgnored) {
    widget.setRootView(nullptr);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(firstColumn), widget.mapToGlobal(QPointF(firstColumn)), Qt::LeftButton,
                      Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &press);
    EXPECT_FALSE(press.isAccepted());
}

TEST_F(UIViewWidgetInput, PressesThatNoViewTakesAreIgnored) {
    const auto isAcceptedAt = [this](QPoint place) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(place), widget.mapToGlobal(QPointF(place)), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &press);
        return press.isAccepted();
    };
    EXPECT_FALSE(isAcceptedAt({20, 100})) << "beside the columns";
    EXPECT_TRUE(isAcceptedAt(firstColumn));
}

TEST_F(UIViewWidgetInput, AViewThatTakesNoTouchLosesItAtOnce) {
    struct Passing : UIView {
        std::string log;
        bool touchBegan(const UITouch&) override {
            log += "began ";
            return false;
        }
        void touchMoved(const UITouch&) override { log += "moved "; }
        void touchCancelled(const UITouch&) override { log += "cancelled "; }
    };
    const auto passing = create<Passing>(CGRectMake(0, 0, 320, 216));
    widget.setRootView(passing);
    QTest::mousePress(&widget, Qt::LeftButton, {}, {20, 100});
    QTest::mouseMove(&widget, {20, 120});
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, {20, 120});
    EXPECT_EQ(passing->log, "began cancelled ");
}

TEST_F(UIViewWidgetInput, APressTakesTheFocus) {
    EXPECT_EQ(widget.focusPolicy(), Qt::StrongFocus);
    widget.clearFocus();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, beside);
    EXPECT_EQ(widget.window()->focusWidget(), &widget);
}

TEST_F(UIViewWidgetInput, ADelegateMayDropTheWidget) {
    auto* dropped = new UIViewWidget;
    double time = 5;
    dropped->setClock([&time] { return time; });
    dropped->setRootView(wheel);
    dropped->resize(320, 216);
    dropped->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dropped));
    source->whenTold = [&dropped](NSInteger, NSInteger) { delete std::exchange(dropped, nullptr); };
    dropped->stepFrame();
    const QPointF place = firstColumn;
    QWheelEvent notch(place, place, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(dropped, &notch);
    for (int i = 0; dropped && i < 60; ++i) {
        time += 0.016;
        dropped->stepFrame();
    }
    EXPECT_EQ(dropped, nullptr);
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
    EXPECT_FALSE(wheel->window());
}

} // namespace
