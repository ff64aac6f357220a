// What a screen reader finds in a wheel, and how it adjusts it.

#include "TestWindow.h"
#include "UILabel.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;

namespace {

/// Also gives accessibility texts.
class SpeakingSource : public WheelSource {
public:
    std::optional<std::string> name;
    std::optional<std::string> value;
    Ref<UIView> view;
    Ref<NSAttributedString> attributed;

    Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
        return attributed;
    }
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>&, NSInteger component) override {
        return name ? std::optional(*name + " " + std::to_string(component)) : std::nullopt;
    }
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                NSInteger component) override {
        return value ? std::optional(*value + " " + std::to_string(row) + " of " + std::to_string(component)) : std::nullopt;
    }
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger row, NSInteger,
                                                               const Ref<UIView>&) override {
        return row == 10 ? view : nullptr;
    }
};

struct UIPickerColumnElementTest : testing::Test {
    Ref<SpeakingSource> source = create<SpeakingSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);

    Ref<UIAccessibilityElement> element(std::size_t index = 0) {
        const UIAccessibilityElements elements = wheel->accessibilityElements();
        EXPECT_LT(index, elements.size());
        return index < elements.size() ? elements[index] : nullptr;
    }
    std::vector<NSInteger> parts() {
        std::vector<NSInteger> parts;
        for (const auto& each : wheel->accessibilityElements()) parts.push_back(each->part());
        return parts;
    }
};

struct UIPickerColumnElementInWindow : UIPickerColumnElementTest {
    TestWindow window{wheel};
};

} // namespace

TEST_F(UIPickerColumnElementTest, EachColumnThatCanBeSpunIsOneElement) {
    // The second has one row, the third none, the fourth rows without titles: nothing to turn.
    source->rows = {100, 1, 0, 5, 2};
    source->title = [](NSInteger row, NSInteger component) { return component == 3 ? std::nullopt : std::optional(std::to_string(row)); };
    wheel->reloadAllComponents();
    EXPECT_EQ(parts(), (std::vector<NSInteger>{0, 4}));
    EXPECT_EQ(element()->role(), UIAccessibilityRole::Adjustable);
    EXPECT_EQ(element()->count(), 100);
    EXPECT_EQ(element(1)->count(), 2);
}

TEST_F(UIPickerColumnElementTest, NothingElseInTheWheelIsAnElement) {
    const auto unit = create<UILabel>(CGRectMake(0, 0, 50, 20));
    unit->setText("km");
    wheel->addSubview(unit);
    EXPECT_EQ(parts(), std::vector<NSInteger>{0});
}

TEST_F(UIPickerColumnElementTest, AnEmptyWheelHasNoElements) {
    wheel->setFrame({});
    EXPECT_EQ(parts(), std::vector<NSInteger>{});
    EXPECT_TRUE(create<UIPickerView>(CGRectMake(0, 0, 320, 216))->accessibilityElements().empty());
}

TEST_F(UIPickerColumnElementTest, AColumnWithoutALabelHasTheWheelsLabel) {
    EXPECT_EQ(element()->label(), std::nullopt);
    wheel->setAccessibilityLabel("Number");
    EXPECT_EQ(element()->label(), "Number");
    source->name = "Column";
    EXPECT_EQ(element()->label(), "Column 0");
}

TEST_F(UIPickerColumnElementTest, TheValueIsTheDelegatesOrElseTheRowsTitle) {
    wheel->selectRow_inComponent_animated(42, 0, false);
    EXPECT_EQ(element()->value(), "42");
    EXPECT_EQ(element()->index(), 42);
    source->value = "row";
    EXPECT_EQ(element()->value(), "row 42 of 0");
}

TEST_F(UIPickerColumnElementTest, TheValueOfARowsViewIsItsLabels) {
    const auto view = create<UIView>();
    for (const char* text : {"partly", "cloudy"}) {
        const auto label = create<UILabel>(CGRectMake(0, 0, 50, 20));
        label->setText(text);
        view->addSubview(label);
    }
    source->view = view;
    wheel->selectRow_inComponent_animated(10, 0, false);
    EXPECT_EQ(element()->value(), "partly, cloudy");
}

TEST_F(UIPickerColumnElementInWindow, TheValueOfARowOutOfSightIsItsTitle) {
    window.fling({160, 190}, {160, 20}, 3);
    window.run(0.3);
    ASSERT_FALSE(wheel->viewForRow_forComponent(0, 0)) << "it should have spun further";
    EXPECT_EQ(element()->value(), "0") << "the row reported";
    source->attributed = NSAttributedString::attributedStringWithString_attributes("rich", {});
    EXPECT_EQ(element()->value(), "rich") << "an attributed title goes before a plain one";
    source->attributed = nullptr;
    EXPECT_EQ(element()->index(), 0);
    window.runUntilStill();
}

TEST_F(UIPickerColumnElementInWindow, AColumnsFrameIsItsStrip) { EXPECT_EQ(element()->frame(), CGRectMake(120, 0, 80, 216)); }

TEST_F(UIPickerColumnElementInWindow, AnIncrementMovesByOneRowAndIsReportedOnceAtRest) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    element()->increment();
    window.tick(TestWindow::frame);
    EXPECT_EQ(source->notices, Notices{}) << "not before it rests";
    EXPECT_EQ(element()->index(), 11) << "where it goes to, at once";
    EXPECT_EQ(wheel->selectedRowInComponent(0), 10);
    EXPECT_TRUE(wheel->isTurning());
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
    EXPECT_EQ(element()->index(), 11);
    element()->decrement();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{11, 0}, {10, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, QuickIncrementsAddUpToOneReport) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    for (int i = 0; i < 3; ++i) {
        element()->increment();
        window.tick(TestWindow::frame);
    }
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{13, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, AnIncrementIsWholeWhateverPartOfANotchIsWaiting) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    window.scrollNotches({160, 108}, -0.5);
    element()->increment();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{11, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, AtTheEndsNothingMovesAndNothingIsReported) {
    element()->decrement();
    window.runUntilStill();
    wheel->selectRow_inComponent_animated(99, 0, false);
    element()->increment();
    EXPECT_FALSE(wheel->isTurning());
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(element()->index(), 99);
    wheel->selectRow_inComponent_animated(98, 0, false);
    element()->increment();
    element()->increment();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{99, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, AnIndexIsClampedToTheRows) {
    element()->setIndex(57);
    window.runUntilStill();
    element()->setIndex(57);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{57, 0}})) << "it stands there already";
    element()->setIndex(100);
    window.runUntilStill();
    element()->setIndex(-1);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{57, 0}, {99, 0}, {0, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, AColumnUnderAFingerIsNotAdjusted) {
    window.down({160, 108});
    element()->increment();
    window.up({160, 108});
    window.runUntilStill();
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(element()->index(), 0);
}

TEST_F(UIPickerColumnElementInWindow, AStepCompletesATypedNumber) {
    wheel->becomeFirstResponder();
    window.type("4");
    window.run(0.5);
    ASSERT_EQ(source->notices, Notices{}) << "more digits may come";
    element()->increment();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    window.run(0.2);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}}));
    window.type("7");
    window.run(0.5);
    element()->setIndex(70);
    window.run(0.4);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}, {7, 0}, {70, 0}}));
    window.type("2"); // Another number, not the end of one.
    window.run(0.5);
    element()->decrement();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {5, 0}, {7, 0}, {70, 0}, {2, 0}, {1, 0}}));
}

TEST_F(UIPickerColumnElementInWindow, AStepOfAnotherColumnCompletesATypedNumber) {
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    window.tick(0);
    wheel->becomeFirstResponder();
    window.type("4");
    window.run(0.5);
    element(1)->increment();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    window.run(0.2);
    EXPECT_EQ(source->notices, (Notices{{4, 0}, {1, 1}}));
}

TEST_F(UIPickerColumnElementInWindow, TheReportOfATypedNumberMayRemoveTheColumn) {
    wheel->becomeFirstResponder();
    window.type("4");
    window.run(0.5);
    source->whenTold = [this](NSInteger, NSInteger) {
        source->rows = {};
        wheel->reloadAllComponents();
    };
    element()->increment();
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
    EXPECT_FALSE(wheel->isTurning());
}

TEST_F(UIPickerColumnElementTest, WithoutAWindowAStepArrivesAtOnce) {
    element()->decrement();
    EXPECT_EQ(source->notices, Notices{}) << "at the end there is nothing to turn";
    element()->increment();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    element()->setIndex(5);
    EXPECT_EQ(source->notices, (Notices{{1, 0}, {5, 0}}));
    EXPECT_EQ(element()->index(), 5);
}

TEST_F(UIPickerColumnElementTest, AWheelWithoutUserInteractionIsNotAdjusted) {
    wheel->setUserInteractionEnabled(false);
    EXPECT_FALSE(element()->isEnabled());
    element()->increment();
    EXPECT_EQ(source->notices, Notices{});
}

TEST_F(UIPickerColumnElementTest, AColumnThatAReloadRemovesDoesNotExistUntilItComesBack) {
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    const auto second = element(1);
    EXPECT_TRUE(second->exists());
    source->rows = {100};
    wheel->reloadAllComponents();
    EXPECT_FALSE(second->exists());
    EXPECT_FALSE(second->isEnabled());
    EXPECT_EQ(second->label(), std::nullopt);
    EXPECT_EQ(second->value(), std::nullopt);
    EXPECT_EQ(second->index(), std::nullopt);
    EXPECT_EQ(second->count(), 0);
    EXPECT_TRUE(CGRectIsNull(second->frame()));
    second->increment();
    second->setIndex(3);
    EXPECT_EQ(source->notices, Notices{});
    source->rows = {100, 7};
    wheel->reloadAllComponents();
    EXPECT_TRUE(second->exists());
    EXPECT_EQ(second->count(), 7);
}

TEST(UIPickerColumnElement, AnElementFollowsItsColumnToAnotherPlace) {
    struct Movable : UIPickerView {
        using UIPickerView::exchangeComponents;
    };
    const auto source = create<WheelSource>();
    source->rows = {100, 7};
    const auto wheel = create<Movable>(CGRectMake(0, 0, 320, 216));
    wheel->setDataSource(source);
    wheel->setDelegate(source);
    const auto last = wheel->accessibilityElements().at(1);
    source->rows = {100, 30, 7};
    wheel->exchangeComponents(1, 2);
    wheel->reloadAllComponents();
    EXPECT_EQ(last->count(), 7);
    last->increment();
    EXPECT_EQ(source->notices, (Notices{{1, 2}}));
    constexpr NSInteger none = UIPickerView::highestComponentCount;
    for (const NSInteger wrong : {NSInteger{-1}, none}) {
        wheel->exchangeComponents(wrong, 0);
        wheel->exchangeComponents(2, wrong);
    }
    EXPECT_EQ(last->count(), 7) << "of places that no column can have nothing is exchanged";
    wheel->exchangeComponents(2, none - 1);
    EXPECT_FALSE(last->exists()) << "there is no such column yet";
}

TEST(UIPickerColumnElement, TheFirstColumnCanBeExchangedToo) {
    struct Movable : UIPickerView {
        using UIPickerView::exchangeComponents;
    };
    const auto source = create<WheelSource>();
    source->rows = {100, 7, 8};
    const auto wheel = create<Movable>(CGRectMake(0, 0, 320, 216));
    wheel->setDataSource(source);
    wheel->setDelegate(source);
    TestWindow window(wheel);
    const auto elements = wheel->accessibilityElements();
    wheel->becomeFirstResponder();
    window.press(UIKey::Code::Right);
    ASSERT_EQ(wheel->componentOfKeys(), 1);
    const auto exchange = [&](NSInteger one, NSInteger other) {
        std::swap(source->rows[static_cast<std::size_t>(one)], source->rows[static_cast<std::size_t>(other)]);
        wheel->exchangeComponents(one, other);
        wheel->reloadAllComponents();
    };
    exchange(0, 1);
    EXPECT_EQ(elements.at(0)->count(), 100);
    EXPECT_EQ(elements.at(1)->count(), 7);
    EXPECT_EQ(wheel->componentOfKeys(), 0) << "the choice of the keys goes along";
    exchange(2, 0);
    EXPECT_EQ(elements.at(1)->count(), 7);
    EXPECT_EQ(elements.at(2)->count(), 8);
    EXPECT_EQ(wheel->componentOfKeys(), 2);
    exchange(0, 1);
    EXPECT_EQ(wheel->componentOfKeys(), 2) << "it is neither of the two";
}

TEST_F(UIPickerColumnElementTest, AHiddenWheelsColumnsDoNotExist) {
    const auto column = element();
    wheel->setHidden(true);
    EXPECT_FALSE(column->exists());
    EXPECT_TRUE(CGRectIsNull(column->frame()));
    EXPECT_FALSE(column->isEnabled());
}

TEST_F(UIPickerColumnElementTest, WithoutItsDelegateAColumnHasTheWheelsLabelAndNoValue) {
    const auto column = element();
    wheel->setAccessibilityLabel("Number");
    source = nullptr;
    EXPECT_EQ(column->label(), "Number");
    EXPECT_EQ(column->value(), std::nullopt);
    EXPECT_EQ(column->index(), 0) << "it stands where it stood";
}

TEST_F(UIPickerColumnElementTest, TheReportOfAStepMayDropTheWheel) {
    const auto column = element();
    source->whenTold = [this](NSInteger, NSInteger) { wheel.reset(); };
    column->increment();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
    EXPECT_FALSE(wheel);
    EXPECT_FALSE(column->exists());
    EXPECT_FALSE(column->isEnabled());
    EXPECT_EQ(column->label(), std::nullopt);
    EXPECT_EQ(column->value(), std::nullopt);
    EXPECT_EQ(column->index(), std::nullopt);
    EXPECT_EQ(column->count(), 0);
    EXPECT_TRUE(CGRectIsNull(column->frame()));
    column->increment();
    EXPECT_EQ(source->notices, (Notices{{1, 0}}));
}

TEST(UIPickerColumnElement, TheValueOfADelegateWithTitlesAloneIsTheTitle) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    wheel->setAccessibilityLabel("Number");
    const auto elements = wheel->accessibilityElements();
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0]->label(), "Number");
    EXPECT_EQ(elements[0]->value(), "0");
}
