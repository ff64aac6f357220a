// When a widget looks for changes that screen readers wait for.

#include <QAccessible>
#include <QAccessibleActionInterface>

#include "QtAccessibility.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::QtAccessibleView;
using Events = std::vector<std::string>;

namespace {

Events& events() {
    static Events noted;
    return noted;
}

/// Takes what the widget sends to screen readers.
void note(QAccessibleEvent* event) {
    if (event->type() == QAccessible::ValueChanged) {
        events().push_back("value " + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString().toStdString());
    } else if (event->type() == QAccessible::NameChanged) {
        events().push_back("name " + event->accessibleInterface()->text(QAccessible::Name).toStdString());
    } else if (event->type() == QAccessible::ObjectShow || event->type() == QAccessible::Alert) {
        events().push_back("say " + event->accessibleInterface()->text(QAccessible::Name).toStdString());
    }
}

/// A button that counts how often it was looked at, and moves when it is asked to.
struct Watched : UIView {
    mutable int looks = 0;
    bool moves = false;
    std::optional<std::string> accessibilityLabel() const override {
        ++looks;
        return UIView::accessibilityLabel();
    }
    class Element : public UIAccessibilityElement {
    public:
        explicit Element(const Ref<Watched>& view) : UIAccessibilityElement(view, UIAccessibilityRole::Button) {}
        std::optional<std::string> label() const override { return view()->accessibilityLabel(); }
        void activateAtTime(NSTimeInterval) const override { view()->setAccessibilityLabel("Pressed"); }
    };
    UIAccessibilityElements accessibilityElements() override { return {std::make_shared<Element>(refTo(this))}; }
    bool advanceToTime(NSTimeInterval) override { return moves; }
};

/// A widget with a watched button above a wheel, for a screen reader that runs.
struct QtAccessibilityFrames : WidgetTest {
    QtAccessibilityFrames() {
        QtAccessibleView::setFrameSender(note);
        wheel->setAccessibilityLabel("Number");
        watched->setAccessibilityLabel("Watched");
        const auto root = create<UIView>(CGRectMake(0, 0, 320, 216));
        widget.setRootView(root);
        root->addSubview(wheel);
        root->addSubview(watched);
        widget.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
        widget.setFocus();
        run(1);
        watched->looks = 0;
        events().clear();
    }
    ~QtAccessibilityFrames() override { QtAccessibleView::setFrameSender(nullptr); }
    /// Something beside the wheel moves from now on.
    void keepMoving() {
        watched->moves = true;
        widget.uiWindow()->animateView(watched);
        run(0.5);
        watched->looks = 0;
        events().clear();
    }

    Ref<Watched> watched = create<Watched>(CGRectMake(0, 0, 40, 20));
};

} // namespace

TEST_F(QtAccessibilityFrames, AMovementIsLookedAtTenTimesASecond) {
    keepMoving();
    for (int i = 0; i < 120; ++i) step(1.0 / 60);
    EXPECT_GE(watched->looks, 16);
    EXPECT_LE(watched->looks, 20);
    watched->moves = false;
    run(1);
    watched->looks = 0;
    run(1);
    EXPECT_EQ(watched->looks, 0) << "nothing is drawn";
}

TEST_F(QtAccessibilityFrames, EachKeyIsAnnouncedWithTheNextFrameOnce) {
    keepMoving();
    QTest::keyClick(&widget, Qt::Key_Tab);
    step(0.001);
    for (int row = 11; row < 16; ++row) {
        events().clear();
        QTest::keyClick(&widget, Qt::Key_Down);
        step(0.001);
        EXPECT_EQ(events(), Events{"value " + std::to_string(row)});
    }
    events().clear();
    run(1);
    EXPECT_EQ(events(), Events{});
}

TEST_F(QtAccessibilityFrames, AKeyThatMovesNoColumnIsLookedAtWithTheNextFrame) {
    keepMoving();
    step(0.11);
    watched->looks = 0;
    step(0.001);
    EXPECT_EQ(watched->looks, 0);
    QTest::keyClick(&widget, Qt::Key_F5);
    step(0.001);
    EXPECT_EQ(watched->looks, 1);
    QTest::mousePress(&widget, Qt::LeftButton, {}, beside);
    step(0.001);
    EXPECT_EQ(watched->looks, 2);
    QTest::mouseMove(&widget, beside + QPoint(2, 0));
    step(0.001);
    EXPECT_EQ(watched->looks, 2) << "a movement is no step";
}

TEST_F(QtAccessibilityFrames, AColumnIsAnnouncedInTheFrameInWhichItRests) {
    keepMoving();
    wheelEvent(firstColumn, {}, {0, -360});
    int frames = 0;
    while (wheel->isTurning() && ++frames < 600) {
        EXPECT_EQ(events(), Events{});
        step(0.004);
    }
    EXPECT_EQ(events(), Events{"value 13"});
    run(1);
    EXPECT_EQ(events(), Events{"value 13"});
}

TEST_F(QtAccessibilityFrames, ARequestOfTheProgramIsAnnouncedAtOnce) {
    keepMoving();
    step(0.11);
    wheel->selectRow_inComponent_animated(42, 1, false);
    step(0.001);
    EXPECT_EQ(events(), Events{"value 42"});
}

TEST_F(QtAccessibilityFrames, TheLastFrameIsFollowedByALook) {
    step(0.001);
    watched->setAccessibilityLabel("Other");
    watched->setNeedsDisplay();
    step(0.001);
    step(0.001);
    EXPECT_EQ(events(), Events{"name Other"});
}

TEST_F(QtAccessibilityFrames, ANewNameWaitsATenthOfASecondWhileSomethingMoves) {
    keepMoving();
    step(0.11);
    watched->setAccessibilityLabel("Other");
    for (int i = 0; i < 9; ++i) step(0.01);
    EXPECT_EQ(events(), Events{});
    step(0.011);
    EXPECT_EQ(events(), Events{"name Other"});
}

TEST_F(QtAccessibilityFrames, AnActionOfTheScreenReaderIsAnnouncedWithTheNextFrame) {
    keepMoving();
    step(0.11);
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(&widget);
    QAccessibleInterface* const button = whole->child(whole->childCount() - 1);
    ASSERT_EQ(button->text(QAccessible::Name), "Watched");
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents(); // An activation comes after the call.
    step(0.001);
    EXPECT_EQ(events(), Events{"name Pressed"});
}

TEST_F(QtAccessibilityFrames, MessagesKeepTheirOrder) {
    keepMoving();
    step(0.11);
    widget.uiWindow()->announce("One");
    step(0.01);
    widget.uiWindow()->announce("Two");
    run(0.1);
    EXPECT_EQ(events(), (Events{"say One", "say Two"}));
}

TEST_F(QtAccessibilityFrames, AnEarlierTimeOfAnotherClockIsLookedAtAtOnce) {
    keepMoving();
    now -= 900;
    watched->looks = 0;
    step(0.001);
    EXPECT_EQ(watched->looks, 1);
}
