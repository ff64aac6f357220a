// The focus, states and messages that Qt's screen readers get of a widget with views.

#include <QAccessible>
#include <QAccessibleActionInterface>

#include "QtAccessibility.h"
#include "WidgetTest.h"

using namespace gx;
using Events = std::vector<std::string>;

namespace {

Events& events() {
    static Events noted;
    return noted;
}

/// Takes the events that Qt would pass on to a screen reader.
void note(QAccessibleEvent* event) {
    QAccessibleInterface* const from = event->accessibleInterface();
    const std::string name = from != nullptr && from->text(QAccessible::Name).isEmpty() ? "widget"
                             : from != nullptr                                          ? from->text(QAccessible::Name).toStdString()
                                                                                        : "nothing";
    switch (event->type()) {
    case QAccessible::Focus:
        events().push_back("focus " + name);
        break;
    case QAccessible::ValueChanged:
        events().push_back("value " + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString().toStdString());
        break;
    case QAccessible::NameChanged:
        events().push_back("name " + name);
        break;
    case QAccessible::StateChanged: {
        const QAccessible::State changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
        const QAccessible::State state = from->state();
        if (changed.expanded) events().push_back(name + (state.expanded ? " expanded" : " collapsed"));
        if (changed.checked) events().push_back(name + (state.checked ? " checked" : " unchecked"));
        break;
    }
    case QAccessible::ObjectShow:
    case QAccessible::Alert:
        events().push_back("say " + name);
        break;
    default:
        break;
    }
}

/// One of three choices.
class Choices : public UIView {
public:
    NSInteger chosen = 0;

    class Element : public UIAccessibilityElement {
    public:
        Element(const Ref<Choices>& view, NSInteger part)
            : UIAccessibilityElement(view, part < 0 ? UIAccessibilityRole::RadioGroup : UIAccessibilityRole::RadioButton, part) {}
        std::optional<std::string> label() const override { return part() < 0 ? "Size" : "Size " + std::to_string(part()); }
        std::optional<bool> isChecked() const override { return part() < 0 ? std::nullopt : std::optional(part() == choices()->chosen); }
        Ref<UIAccessibilityElement> container() const override { return part() < 0 ? nullptr : std::make_shared<Element>(choices(), -1); }
        NSInteger childCount() const override { return part() < 0 ? 3 : 0; }
        Ref<UIAccessibilityElement> child(NSInteger index) const override { return std::make_shared<Element>(choices(), index); }
        bool isFocused() const override { return UIAccessibilityElement::isFocused() && part() == choices()->chosen; }
        void activateAtTime(NSTimeInterval) const override {
            choices()->chosen = part();
            choices()->setNeedsDisplay();
        }

    private:
        Ref<Choices> choices() const { return std::static_pointer_cast<Choices>(view()); }
    };
    bool canBecomeFirstResponder() override { return true; }
    UIAccessibilityElements accessibilityElements() override { return {std::make_shared<Element>(refTo(this), -1)}; }
};

struct QtAccessibleFocus : WidgetTest {
    QtAccessibleFocus() {
        wheel->setAccessibilityLabel("Number");
        widget.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
        widget.setFocus();
        take();
    }
    QAccessibleInterface* interface() { return QAccessible::queryAccessibleInterface(&widget); }
    QAccessibleInterface* child(int index) { return interface()->child(index); }
    Events take() {
        run(0.05);
        events().clear();
        dynamic_cast<gx::qt::QtAccessibleView*>(interface())->announceChanges(note);
        return events();
    }
    static void act(QAccessibleInterface* on, const QString& action) {
        on->actionInterface()->doAction(action);
        QCoreApplication::processEvents(); // An activation comes after the call.
    }
};

} // namespace

TEST_F(QtAccessibleFocus, TheColumnOfTheKeysIsFocusedAndNotTheWidget) {
    EXPECT_TRUE(interface()->state().focused) << "nothing else is";
    EXPECT_EQ(interface()->focusChild(), nullptr);
    EXPECT_TRUE(child(0)->state().focusable);
    EXPECT_FALSE(child(0)->state().focused);
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_EQ(take(), Events{"focus Number"});
    EXPECT_FALSE(interface()->state().focused);
    EXPECT_EQ(interface()->focusChild(), child(0));
    EXPECT_TRUE(child(0)->state().focused);
    EXPECT_FALSE(child(1)->state().focused);
    EXPECT_EQ(take(), Events{});
    QTest::keyClick(&widget, Qt::Key_Right);
    EXPECT_EQ(take(), Events{"focus Number"});
    EXPECT_EQ(interface()->focusChild(), child(1));
}

TEST_F(QtAccessibleFocus, AWidgetThatGetsTheFocusBackReportsItsElementAgain) {
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_EQ(take(), Events{"focus Number"});
    widget.clearFocus();
    EXPECT_EQ(take(), Events{});
    EXPECT_FALSE(child(0)->state().focused);
    EXPECT_EQ(interface()->focusChild(), nullptr);
    widget.setFocus();
    EXPECT_EQ(take(), Events{"focus Number"});
    widget.clearFocus();
    widget.setFocus();
    dynamic_cast<gx::qt::QtAccessibleView*>(interface())->forgetFocus();
    EXPECT_EQ(take(), Events{"focus Number"}) << "Qt has told of the widget in between";
}

TEST_F(QtAccessibleFocus, AViewThatLosesTheFocusLeavesItToTheWidget) {
    QTest::keyClick(&widget, Qt::Key_Tab);
    take();
    wheel->resignFirstResponder();
    EXPECT_EQ(take(), Events{"focus widget"});
    EXPECT_TRUE(interface()->state().focused);
}

TEST_F(QtAccessibleFocus, AScreenReaderMayGiveAColumnTheFocus) {
    widget.clearFocus();
    take();
    ASSERT_TRUE(child(1)->actionInterface()->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    act(child(1), QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(widget.hasFocus());
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    EXPECT_EQ(take(), Events{"focus Number"});
    EXPECT_TRUE(child(1)->state().focused);
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_EQ(take(), Events{"value 11"});
}

TEST_F(QtAccessibleFocus, AGroupHoldsItsRadioButtons) {
    const auto choices = create<Choices>(CGRectMake(0, 0, 320, 40));
    widget.setRootView(choices);
    take();
    ASSERT_EQ(interface()->childCount(), 1);
    QAccessibleInterface* const group = child(0);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    EXPECT_EQ(group->childCount(), 3);
    QAccessibleInterface* const second = group->child(1);
    EXPECT_EQ(second->role(), QAccessible::RadioButton);
    EXPECT_EQ(second->parent(), group);
    EXPECT_EQ(group->parent(), interface());
    EXPECT_EQ(group->indexOfChild(second), 1);
    EXPECT_EQ(group->child(3), nullptr);
    EXPECT_EQ(group->child(1), second) << "the next query returns the same";
    EXPECT_TRUE(second->state().checkable);
    EXPECT_FALSE(second->state().checked);
    choices->becomeFirstResponder();
    EXPECT_EQ(take(), Events{"focus Size 0"});
    EXPECT_EQ(interface()->focusChild(), group->child(0));
    EXPECT_EQ(group->focusChild(), group->child(0));
    EXPECT_EQ(second->focusChild(), nullptr);
    EXPECT_TRUE(second->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    act(second, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(take(), (Events{"Size 0 unchecked", "Size 1 checked", "focus Size 1"}));
    EXPECT_TRUE(second->state().checked);
}

TEST_F(QtAccessibleFocus, ExpandedAndCollapsedAreStates) {
    EXPECT_FALSE(child(0)->state().expandable);
    wheel->setAccessibilityExpanded(false);
    take();
    EXPECT_TRUE(child(0)->state().expandable);
    EXPECT_TRUE(child(0)->state().collapsed);
    wheel->setAccessibilityExpanded(true);
    EXPECT_EQ(take(), (Events{"Number expanded", "Number expanded"})) << "of both columns";
    EXPECT_TRUE(child(0)->state().expanded);
    EXPECT_FALSE(child(0)->state().collapsed);
}

TEST_F(QtAccessibleFocus, ANewNameIsReported) {
    wheel->setAccessibilityLabel("Hours");
    EXPECT_EQ(take(), (Events{"name Hours", "name Hours"}));
}

TEST_F(QtAccessibleFocus, MessagesComeAfterTheFocus) {
    QTest::keyClick(&widget, Qt::Key_Tab);
    widget.uiWindow()->announce("Saved");
    widget.uiWindow()->announce("Too fast", UIAccessibilityAnnouncement::Priority::Assertive);
    EXPECT_EQ(take(), (Events{"focus Number", "say Saved", "say Too fast"}));
    EXPECT_EQ(take(), Events{});
    for (int i = 0; i < 100; ++i) {
        widget.uiWindow()->announce(std::to_string(i));
        EXPECT_EQ(take(), Events{"say " + std::to_string(i)});
    }
}
