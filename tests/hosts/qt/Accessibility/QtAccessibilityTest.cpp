// What Qt's screen readers get of a widget with views.

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleValueInterface>

#include "QtAccessibility.h"
#include "UIImageView.h"
#include "UILabel.h"
#include "UITableViewCell.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::UIViewWidget;

namespace {

std::vector<std::string>& events() {
    static std::vector<std::string> noted;
    return noted;
}

/// Takes the events that Qt would pass on to a screen reader.
void note(QAccessibleEvent* event) {
    if (event->type() == QAccessible::ValueChanged) {
        events().push_back("value " + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString().toStdString());
    } else if (event->type() == QAccessible::TextUpdated) {
        auto* const update = static_cast<QAccessibleTextUpdateEvent*>(event);
        events().push_back("text " + update->textRemoved().toStdString() + " > " + update->textInserted().toStdString());
    } else {
        events().emplace_back(event->type() == QAccessible::ObjectReorder ? "reorder" : "other");
    }
}

struct QtAccessibility : WidgetTest {
    QtAccessibility() {
        wheel->setAccessibilityLabel("Number");
        run(0.1);
    }
    QAccessibleInterface* interface() { return QAccessible::queryAccessibleInterface(&widget); }
    QAccessibleInterface* child(int index) {
        QAccessibleInterface* const found = interface()->child(index);
        EXPECT_TRUE(found);
        return found;
    }
    static void act(QAccessibleInterface* on, const QString& action) {
        ASSERT_TRUE(on->actionInterface());
        on->actionInterface()->doAction(action);
        QCoreApplication::processEvents(); // An activation comes after the call.
    }
    static const QString& increase() { return QAccessibleActionInterface::increaseAction(); }
    static const QString& decrease() { return QAccessibleActionInterface::decreaseAction(); }
    static const QString& setFocus() { return QAccessibleActionInterface::setFocusAction(); }
};

} // namespace

TEST_F(QtAccessibility, AColumnIsASpinBoxWithNameAndValue) {
    EXPECT_EQ(interface()->childCount(), 2);
    QAccessibleInterface* const column = child(1);
    EXPECT_TRUE(column->isValid());
    EXPECT_EQ(column->role(), QAccessible::SpinBox);
    EXPECT_EQ(column->text(QAccessible::Name), "Number");
    EXPECT_EQ(column->text(QAccessible::Value), "10");
    EXPECT_EQ(column->text(QAccessible::Help), "");
    EXPECT_EQ(column->parent(), interface());
    EXPECT_EQ(interface()->indexOfChild(column), 1);
    EXPECT_EQ(child(1), column) << "the next query returns the same";
    EXPECT_EQ(interface()->child(2), nullptr);
    EXPECT_EQ(interface()->child(-1), nullptr);
}

TEST_F(QtAccessibility, AColumnsRectIsItsStripOnTheScreen) {
    // 80 points from 77.5 on cover the pixels 77 to 157.
    EXPECT_EQ(child(0)->rect(), QRect(widget.mapToGlobal(QPoint(77, 0)), QSize(81, 216)));
    const QPoint point = widget.mapToGlobal(secondColumn);
    EXPECT_EQ(interface()->childAt(point.x(), point.y()), child(1));
    const QPoint outside = widget.mapToGlobal(beside);
    EXPECT_EQ(interface()->childAt(outside.x(), outside.y()), nullptr);
}

TEST_F(QtAccessibility, TheValueIsTheNumberShown) {
    QAccessibleValueInterface* const value = child(0)->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toInt(), 10);
    EXPECT_EQ(value->minimumValue().toInt(), 0);
    EXPECT_EQ(value->maximumValue().toInt(), 99);
    EXPECT_EQ(value->minimumStepSize().toInt(), 1);
    value->setCurrentValue(25);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{25, 0}}));
    EXPECT_EQ(value->currentValue().toInt(), 25);
    value->setCurrentValue("no number");
    value->setCurrentValue(1000);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{25, 0}, {99, 0}}));
    source->title = [](NSInteger row, NSInteger) { return std::to_string(row - 20); };
    wheel->reloadAllComponents();
    run(0.1);
    EXPECT_EQ(value->currentValue().toInt(), 79);
    EXPECT_EQ(value->minimumValue().toInt(), -20);
    EXPECT_EQ(value->maximumValue().toInt(), 79);
    value->setCurrentValue(-5.2);
    run(1);
    EXPECT_EQ(source->notices, (Notices{{25, 0}, {99, 0}, {15, 0}}));
}

TEST_F(QtAccessibility, AReadOnlyTextIsTheValueAsAPersonSaysIt) {
    source->title = [](NSInteger row, NSInteger) { return std::to_string(row) + " km"; };
    wheel->reloadAllComponents();
    run(0.1);
    QAccessibleTextInterface* const text = child(0)->textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->characterCount(), 5);
    EXPECT_EQ(text->text(0, 5), "10 km");
    EXPECT_EQ(text->text(0, -1), "10 km");
    EXPECT_EQ(text->text(3, 100), "km");
    EXPECT_EQ(text->text(-2, 2), "10");
    EXPECT_EQ(text->text(4, 2), "");
    EXPECT_EQ(text->cursorPosition(), 0);
    EXPECT_EQ(text->selectionCount(), 0);
    int start = 7;
    int end = 7;
    text->selection(0, &start, &end);
    EXPECT_EQ(end - start, 0);
    EXPECT_EQ(text->attributes(0, &start, &end), "");
    EXPECT_EQ(end, 5);
    EXPECT_EQ(child(0)->editableTextInterface(), nullptr);
}

TEST_F(QtAccessibility, ActionsSpinTheWheelAndAreReportedOnce) {
    EXPECT_EQ(child(0)->actionInterface()->actionNames(), (QStringList{increase(), decrease(), setFocus()}));
    act(child(0), increase());
    act(child(0), increase());
    EXPECT_TRUE(source->notices.empty());
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 0}}));
    act(child(1), decrease());
    run(1);
    EXPECT_EQ(source->notices, (Notices{{12, 0}, {9, 1}}));
    act(child(1), QAccessibleActionInterface::pressAction());
    run(1);
    EXPECT_EQ(source->notices.size(), 2U);
}

TEST_F(QtAccessibility, ActionsAreNoOpsInADisabledWidget) {
    EXPECT_FALSE(child(0)->state().disabled);
    widget.setEnabled(false);
    EXPECT_TRUE(child(0)->state().disabled);
    act(child(0), increase());
    child(0)->valueInterface()->setCurrentValue(3);
    run(1);
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(QtAccessibility, TextsImagesAndCellsHaveRolesOfTheirOwn) {
    const auto root = create<UIView>(CGRectMake(0, 0, 320, 216));
    const auto label = create<UILabel>(CGRectMake(10, 20, 100, 20));
    label->setText("Total");
    const auto image = create<UIImageView>(CGRectMake(10, 50, 20, 20));
    image->setAccessibilityLabel("sunny");
    const auto cell = create<UITableViewCell>(CGRectMake(0, 100, 320, 44));
    cell->textLabel()->setText("Edit");
    for (const Ref<UIView>& view : std::vector<Ref<UIView>>{label, image, cell}) root->addSubview(view);
    widget.setRootView(root);
    run(0.1);
    ASSERT_EQ(interface()->childCount(), 3);
    EXPECT_EQ(child(0)->role(), QAccessible::StaticText);
    EXPECT_EQ(child(0)->text(QAccessible::Name), "Total");
    EXPECT_EQ(child(0)->rect(), QRect(widget.mapToGlobal(QPoint(10, 20)), QSize(100, 20)));
    EXPECT_EQ(child(0)->actionInterface(), nullptr);
    EXPECT_EQ(child(0)->valueInterface(), nullptr);
    EXPECT_FALSE(child(0)->state().disabled) << "a text is there to be read, though it takes no touches";
    EXPECT_EQ(child(1)->role(), QAccessible::Graphic);
    EXPECT_EQ(child(2)->role(), QAccessible::Button);
    EXPECT_EQ(child(2)->text(QAccessible::Name), "Edit");
    EXPECT_EQ(child(2)->valueInterface(), nullptr);
    EXPECT_EQ(child(2)->actionInterface()->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
}

TEST_F(QtAccessibility, PressingAButtonTapsItInTheMiddle) {
    struct Tapped : UITableViewCell {
        std::vector<CGPoint> taps;
        void touchEnded(const UITouch& touch) override { taps.push_back(touch.locationInWindow); }
    };
    const auto root = create<UIView>(CGRectMake(0, 0, 320, 216));
    const auto cell = create<Tapped>(CGRectMake(0, 100, 320, 44));
    cell->setAccessibilityLabel("Edit");
    root->addSubview(cell);
    widget.setRootView(root);
    act(child(0), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(cell->taps, (std::vector<CGPoint>{{160, 122}}));
}

TEST_F(QtAccessibility, AColumnThatIsGoneIsInvalidAndItsActionsAreNoOps) {
    QAccessibleInterface* const second = child(1);
    source->rows = {100};
    wheel->reloadAllComponents();
    run(0.1);
    EXPECT_EQ(interface()->childCount(), 1);
    EXPECT_FALSE(second->isValid());
    EXPECT_TRUE(second->state().invalid);
    EXPECT_EQ(second->text(QAccessible::Name), "");
    EXPECT_EQ(second->rect(), QRect());
    EXPECT_FALSE(second->valueInterface()->currentValue().isValid());
    EXPECT_EQ(interface()->indexOfChild(second), -1);
    act(second, increase());
    second->valueInterface()->setCurrentValue(3);
    EXPECT_TRUE(source->notices.empty());
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    run(0.1);
    EXPECT_EQ(child(1), second) << "it is back";
    EXPECT_TRUE(second->isValid());
}

TEST_F(QtAccessibility, AViewThatHasLeftTheWidgetIsInvalid) {
    QAccessibleInterface* const column = child(0);
    widget.setRootView(nullptr);
    EXPECT_FALSE(column->isValid());
    EXPECT_EQ(interface()->childCount(), 0);
    act(column, increase());
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(QtAccessibility, ListenersAreNotifiedOfAChangedValue) {
    using Events = std::vector<std::string>;
    auto* const view = dynamic_cast<gx::qt::QtAccessibleView*>(interface());
    ASSERT_TRUE(view);
    events().clear();
    view->announceChanges(note);
    view->announceChanges(note);
    EXPECT_EQ(events(), Events{"reorder"}) << "the views are new to them, once";
    act(child(0), increase());
    step(0.01);
    view->announceChanges(note);
    EXPECT_EQ(events(), (Events{"reorder", "value 11", "text 10 > 11"})) << "a step has its value at once";
    run(1);
    view->announceChanges(note);
    EXPECT_EQ(events().size(), 3U) << "and nothing more when it has come to rest";
    events().clear();
    wheel->selectRow_inComponent_animated(20, 1, false);
    view->announceChanges(note);
    EXPECT_EQ(events(), (Events{"value 20", "text 10 > 20"}));
    events().clear();
    source->rows = {100};
    wheel->reloadAllComponents();
    view->announceChanges(note);
    EXPECT_EQ(events(), Events{"reorder"});
}

TEST(QtAccessibilityLifetime, InterfacesAreDeletedWithTheWidget) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    auto widget = std::make_unique<UIViewWidget>();
    widget->setRootView(wheel);
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(widget.get());
    const QAccessible::Id child = QAccessible::uniqueId(whole->child(0));
    EXPECT_TRUE(QAccessible::accessibleInterface(child));
    widget.reset();
    EXPECT_FALSE(QAccessible::accessibleInterface(child));
}

TEST(QtAccessibilityLifetime, ADelegateMayDropTheWidget) {
    const auto source = create<WheelSource>();
    auto wheel = wheelWithSource(source);
    auto widget = std::make_unique<UIViewWidget>();
    widget->setRootView(wheel);
    source->whenTold = [&](NSInteger, NSInteger) {
        widget.reset();
        wheel.reset();
    };
    QAccessibleInterface* const column = QAccessible::queryAccessibleInterface(widget.get())->child(0);
    ASSERT_TRUE(column);
    double now = 1;
    widget->setClock([&now] { return now; });
    column->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    for (int i = 0; i < 100 && widget; ++i) {
        now += 0.02;
        widget->stepFrame();
    }
    EXPECT_FALSE(widget);
    EXPECT_EQ(source->notices, (std::vector<WheelSource::Notice>{{1, 0}}));
}
