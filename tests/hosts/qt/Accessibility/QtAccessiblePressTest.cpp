// When a screen reader's actions take place: an activation after its call, all others within it.

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleValueInterface>
#include <QDialog>
#include <QTimer>

#include "UITableViewCell.h"
#include "UIViewWidget.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::UIViewWidget;

namespace {

/// Calls out when it is tapped.
class Tapped : public UITableViewCell {
public:
    std::function<void()> whenTapped;
    int taps = 0;
    void touchEnded(const UITouch&) override {
        ++taps;
        const std::function<void()> handler = whenTapped;
        if (handler) handler();
    }
};

struct QtAccessiblePress : testing::Test {
    std::unique_ptr<UIViewWidget> widget = std::make_unique<UIViewWidget>();
    Ref<Tapped> cell = create<Tapped>(CGRectMake(0, 0, 320, 44));
    double now = 1;

    QtAccessiblePress() {
        cell->setAccessibilityLabel("Save");
        widget->resize(320, 100);
        widget->setClock([this] { return now; });
        const auto root = create<UIView>(CGRectMake(0, 0, 320, 100));
        root->addSubview(cell);
        widget->setRootView(root);
    }
    void press() {
        QAccessibleInterface* const button = QAccessible::queryAccessibleInterface(widget.get())->child(0);
        ASSERT_TRUE(button && button->actionInterface());
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
};

} // namespace

TEST_F(QtAccessiblePress, TakesPlaceAfterTheCall) {
    press();
    EXPECT_EQ(cell->taps, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 1);
}

TEST_F(QtAccessiblePress, DoesNotWaitForADialogThatItOpens) {
    QDialog dialog(widget.get());
    int opened = 0;
    cell->whenTapped = [&] {
        ++opened;
        dialog.exec();
    };
    press();
    EXPECT_FALSE(dialog.isVisible());
    bool wasVisible = false;
    QTimer::singleShot(0, &dialog, [&] {
        wasVisible = dialog.isVisible();
        press(); // The user could not either.
        QCoreApplication::processEvents();
        dialog.accept();
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(wasVisible);
    EXPECT_EQ(opened, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 1);
    cell->whenTapped = nullptr;
    press();
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 2) << "the dialog is closed";
}

TEST_F(QtAccessiblePress, ADialogOfAnotherWindowDoesNotBlockIt) {
    QWidget other;
    QDialog dialog(&other);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.show();
    ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
    press();
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 1);
    dialog.hide();
    QDialog own(widget.get());
    own.setWindowModality(Qt::WindowModal);
    own.show();
    press();
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 1) << "it is in front of the widget";
}

TEST_F(QtAccessiblePress, IsANoOpForWhatHasGoneMeanwhile) {
    press();
    cell->removeFromSuperview();
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 0);
    widget->rootView()->addSubview(cell);
    press();
    cell->setHidden(true);
    QCoreApplication::processEvents();
    cell->setHidden(false);
    press();
    widget->setEnabled(false);
    QCoreApplication::processEvents();
    widget->setEnabled(true);
    EXPECT_EQ(cell->taps, 0);
    press();
    UIViewWidget another;
    another.setRootView(cell);
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 0) << "another window shows it";
    another.setRootView(nullptr);
    widget->rootView()->addSubview(cell);
    press();
    widget = nullptr;
    QCoreApplication::processEvents();
    EXPECT_EQ(cell->taps, 0);
}

TEST_F(QtAccessiblePress, MayDropTheWidget) {
    cell->whenTapped = [this] { widget = nullptr; };
    press();
    QCoreApplication::processEvents();
    EXPECT_FALSE(widget);
    EXPECT_EQ(cell->taps, 1);
}

TEST_F(QtAccessiblePress, AllOtherActionsTakePlaceWithinTheCall) {
    const auto source = create<WheelSource>();
    source->rows = {100, 100};
    const auto wheel = wheelWithSource(source);
    widget->setRootView(wheel);
    QAccessibleInterface* const column = QAccessible::queryAccessibleInterface(widget.get())->child(1);
    ASSERT_TRUE(column);
    const double before = column->valueInterface()->currentValue().toDouble();
    column->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(column->valueInterface()->currentValue().toDouble(), before + 1);
    column->valueInterface()->setCurrentValue(20);
    EXPECT_EQ(column->valueInterface()->currentValue().toDouble(), 20);
    column->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(wheel->componentOfKeys(), 1);
}

TEST_F(QtAccessiblePress, ActionsComeByWayOfTheWindowsInput) {
    struct Noting : UIWindowInput {
        explicit Noting(Ref<UIWindow> shown) : window(std::move(shown)) {}
        Ref<UIWindow> window;
        std::vector<UIAccessibilityAction> actions;
        void performAction_onElement(const UIAccessibilityAction& action, const Ref<UIAccessibilityElement>& element) override {
            actions.push_back(action);
            window->performAction_onElement(action, element);
        }
        bool touchBegan_at_time(std::int64_t, CGPoint, NSTimeInterval) override { return false; }
        void touchMoved_at_time(std::int64_t, CGPoint, NSTimeInterval) override {}
        void touchEnded_at_time(std::int64_t, CGPoint, NSTimeInterval) override {}
        void touchCancelled_at_time(std::int64_t, NSTimeInterval) override {}
        bool scroll(const UIScroll&) override { return false; }
        void pointerMoved(CGPoint) override {}
        void pointerLeft() override {}
        bool keyDown(const UIKey&) override { return false; }
        void setReceivesKeys(bool) override {}
        void takeFocusAway() override {}
        void setFrame(CGRect) override {}
        void setUserInterfaceStyle(UIUserInterfaceStyle) override {}
        void setAccessibilityContrast(UIAccessibilityContrast) override {}
        void setReducesMotion(bool) override {}
        void finishAnimations() override {}
        bool tick(NSTimeInterval time) override { return window->tick(time); }
        void draw(UIGraphicsContext&) override {}
    };
    const auto input = std::make_shared<Noting>(widget->uiWindow());
    widget->setWindowInput(input);
    press();
    now = 3;
    QCoreApplication::processEvents();
    using Kind = UIAccessibilityAction::Kind;
    ASSERT_EQ(input->actions.size(), 1U);
    EXPECT_EQ(input->actions[0].kind, Kind::Activate);
    EXPECT_EQ(input->actions[0].timestamp, 3);
    EXPECT_EQ(cell->taps, 1);
    const auto source = create<WheelSource>();
    widget->setRootView(wheelWithSource(source));
    QAccessibleInterface* const column = QAccessible::queryAccessibleInterface(widget.get())->child(0);
    ASSERT_TRUE(column);
    column->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    column->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    column->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    column->valueInterface()->setCurrentValue(12.5);
    ASSERT_EQ(input->actions.size(), 5U);
    EXPECT_EQ(input->actions[1].kind, Kind::Increment);
    EXPECT_EQ(input->actions[2].kind, Kind::Decrement);
    EXPECT_EQ(input->actions[3].kind, Kind::Focus);
    EXPECT_EQ(input->actions[4].kind, Kind::SetNumber);
    EXPECT_EQ(input->actions[4].number, 12.5);
}
