#include <QHBoxLayout>
#include <QLineEdit>

#include "GXDistancePickerView.h"
#include "PickerNotices.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::UIViewWidget;

namespace {

struct UIViewWidgetKeys : WidgetTest {
    UIViewWidgetKeys() { wheel->becomeFirstResponder(); }

    /// Returns whether the key was accepted.
    bool press(int key, Qt::KeyboardModifiers held = {}, const QString& text = {}, bool isRepeat = false) {
        QKeyEvent event(QEvent::KeyPress, key, held, text, isRepeat);
        event.ignore();
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }
};

/// A picker of kilometres and tenths on the screen.
struct PickerKeys : testing::Test {
    PickerKeys() {
        picker->setIsMetric(true);
        picker->setDelegate(notices);
        widget.setClock([this] { return now; });
        widget.setRootView(picker);
        widget.resize(320, 216);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        widget.stepFrame();
        picker->pickerView()->becomeFirstResponder();
    }
    void run(double seconds) {
        for (double end = now + seconds; now < end; now += 1.0 / 60) widget.stepFrame();
    }
    std::vector<double> told() const {
        std::vector<double> values;
        for (const PickerNotices::Notice& notice : notices->list) values.push_back(notice.value.doubleValue());
        return values;
    }

    double now = 1000;
    Ref<GXDistancePickerView> picker = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216));
    Ref<PickerNotices> notices = create<PickerNotices>();
    UIViewWidget widget;
};

} // namespace

TEST_F(UIViewWidgetKeys, ArrowsPagesAndEndsSpinTheWheel) {
    for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Down}) {
        QTest::keyClick(&widget, key);
    }
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 0}}));
    QTest::keyClick(&widget, Qt::Key_Right);
    QTest::keyClick(&widget, Qt::Key_End);
    run(1);
    QTest::keyClick(&widget, Qt::Key_Left);
    QTest::keyClick(&widget, Qt::Key_Home);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {99, 1}, {0, 0}}));
}

TEST_F(UIViewWidgetKeys, AHeldKeyRepeatsAndIsReportedOnce) {
    press(Qt::Key_Down);
    for (int i = 0; i < 20; ++i) {
        step(1.0 / 30);
        press(Qt::Key_Down, {}, {}, true);
    }
    EXPECT_TRUE(source->notices.empty());
    run(1);
    EXPECT_EQ(source->notices, (Notices{{31, 0}}));
}

TEST_F(UIViewWidgetKeys, TypedDigitsSelectTheirRow) {
    QTest::keyClicks(&widget, "42");
    run(1);
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(UIViewWidgetKeys, IgnoresKeysThatNoViewHandles) {
    EXPECT_TRUE(press(Qt::Key_Down));
    EXPECT_FALSE(press(Qt::Key_Down, Qt::ControlModifier));
    EXPECT_FALSE(press(Qt::Key_4, Qt::AltModifier, "4"));
    EXPECT_FALSE(press(Qt::Key_A, Qt::ControlModifier, "\x01"));
    EXPECT_FALSE(press(Qt::Key_Return, {}, "\r"));
    EXPECT_FALSE(press(Qt::Key_Escape, {}, "\x1b"));
    EXPECT_FALSE(press(Qt::Key_Space, {}, " "));
    EXPECT_FALSE(press(Qt::Key_F1));
    wheel->resignFirstResponder();
    EXPECT_FALSE(press(Qt::Key_Down));
}

TEST_F(UIViewWidgetKeys, AltGrTypesCharacters) {
    source->title = [](NSInteger row, NSInteger) { return row == 10 ? "a" : "µ"; };
    wheel->reloadAllComponents();
    EXPECT_TRUE(press(Qt::Key_M, Qt::ControlModifier | Qt::AltModifier, "µ"));
    run(2);
    EXPECT_EQ(source->notices, (Notices{{0, 0}}));
}

TEST_F(UIViewWidgetKeys, TypesCharactersBeyondTheFirstPlane) {
    source->title = [](NSInteger row, NSInteger) { return row == 3 ? "🚴" : "a"; };
    wheel->reloadAllComponents();
    EXPECT_TRUE(press(0, {}, "🚴"));
    EXPECT_FALSE(press(0, {}, QString(QChar(0xd83d)))) << "half a character";
    EXPECT_FALSE(press(0, {}, QString::fromUcs4(U"\U000f0000"))) << "of private use";
    run(2);
    EXPECT_EQ(source->notices, (Notices{{3, 0}}));
}

TEST_F(UIViewWidgetKeys, TabGoesRoundTheWheels) {
    const auto page = create<UIView>(CGRectMake(0, 0, 320, 216));
    const auto other = wheelWithSource(source);
    wheel->setFrame(CGRectMake(0, 0, 320, 100));
    other->setFrame(CGRectMake(0, 100, 320, 100));
    widget.setRootView(page);
    page->addSubview(wheel);
    page->addSubview(other);
    run(0.1);
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_TRUE(wheel->isFirstResponder());
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_TRUE(other->isFirstResponder());
    QTest::keyClick(&widget, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(wheel->isFirstResponder());
    QTest::keyClick(&widget, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(other->isFirstResponder()) << "there is no other widget to go to";
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_TRUE(wheel->isFirstResponder());
}

TEST_F(UIViewWidgetKeys, TabGoesToTheWidgetsAroundAndBack) {
    QWidget window;
    QHBoxLayout layout(&window);
    QLineEdit before;
    auto* const middle = new UIViewWidget;
    QLineEdit after;
    layout.addWidget(&before);
    layout.addWidget(middle);
    layout.addWidget(&after);
    middle->setMinimumSize(320, 216);
    middle->setRootView(wheel);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    before.setFocus();
    EXPECT_FALSE(middle->uiWindow()->receivesKeys() && middle->hasFocus());
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(middle->hasFocus());
    EXPECT_TRUE(middle->uiWindow()->receivesKeys());
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_TRUE(middle->uiWindow()->showsFocus());
    QTest::keyClick(middle, Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
    EXPECT_FALSE(middle->uiWindow()->receivesKeys());
    EXPECT_FALSE(wheel->isFirstResponder());
    QTest::keyClick(&after, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(wheel->isFirstResponder());
    QTest::keyClick(middle, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before.hasFocus());
    layout.removeWidget(&before);
    layout.removeWidget(&after);
}

TEST_F(UIViewWidgetKeys, AClickFocusesAWheelWithoutAMark) {
    wheel->resignFirstResponder();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, secondColumn);
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_FALSE(widget.uiWindow()->showsFocus());
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_TRUE(widget.uiWindow()->showsFocus());
    run(1);
    EXPECT_EQ(source->notices, (Notices{{11, 1}}));
}

TEST_F(UIViewWidgetKeys, HidingOrClosingFinishesAnimations) {
    QTest::keyClick(&widget, Qt::Key_End);
    widget.hide();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
    widget.show();
    wheel->becomeFirstResponder();
    QTest::keyClick(&widget, Qt::Key_4);
    widget.close();
    EXPECT_EQ(source->notices, (Notices{{99, 0}, {4, 0}}));
}

TEST_F(UIViewWidgetKeys, ADelegateMayDropTheWidgetDuringAKey) {
    auto* dropped = new UIViewWidget;
    dropped->setClock([] { return 5.0; });
    dropped->setRootView(wheel);
    dropped->resize(320, 216);
    dropped->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(dropped));
    dropped->stepFrame();
    wheel->becomeFirstResponder();
    QKeyEvent digit(QEvent::KeyPress, Qt::Key_4, {}, "4");
    QApplication::sendEvent(dropped, &digit);
    wheel->selectRow_inComponent_animated(0, 1, false);
    source->whenTold = [&dropped](NSInteger, NSInteger) { delete std::exchange(dropped, nullptr); };
    QKeyEvent other(QEvent::KeyPress, Qt::Key_Escape, {});
    dropped->stepFrame();
    dropped->setClock([] { return 5.9; });
    dropped->stepFrame();
    ASSERT_TRUE(dropped);
    QApplication::sendEvent(dropped, &other);
    EXPECT_EQ(dropped, nullptr);
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}

TEST_F(PickerKeys, AnArrowIsReportedOnce) {
    const double before = picker->currentValue().doubleValue();
    QTest::keyClick(&widget, Qt::Key_Down);
    QTest::keyClick(&widget, Qt::Key_Down);
    run(1);
    EXPECT_EQ(told(), (std::vector<double>{before + 2000}));
}

TEST_F(PickerKeys, ATypedNumberIsReportedOnceForEachColumn) {
    QTest::keyClicks(&widget, "12");
    run(2);
    EXPECT_EQ(told(), (std::vector<double>{12000}));
    notices->list.clear();
    QTest::keyClicks(&widget, "7.5");
    run(2);
    EXPECT_EQ(told(), (std::vector<double>{7000, 7500}));
    EXPECT_EQ(picker->currentValue().doubleValue(), 7500);
}
