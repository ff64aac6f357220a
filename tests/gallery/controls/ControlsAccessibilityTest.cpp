// What a screen reader finds of the gallery's controls.

#include "Button.h"
#include "Paragraph.h"
#include "SegmentedControl.h"
#include "TestWindow.h"

using namespace gallery;
using namespace gx;

namespace {

class ControlsAccessibilityTest : public testing::Test {
protected:
    Ref<UIView> content = create<UIView>(CGRectMake(0, 0, 300, 400));
    Ref<Button> button = Button::buttonWithTitle_style("Press", Button::Style::Plain);
    std::unique_ptr<TestWindow> window;
    int taps = 0;

    void SetUp() override {
        button->setFrame(CGRectMake(0, 0, 300, 100));
        button->setAction([this] { ++taps; });
        content->addSubview(button);
        window = std::make_unique<TestWindow>(content);
    }
};

} // namespace

TEST_F(ControlsAccessibilityTest, AButtonIsReadByItsTitleAndPressedByAScreenReader) {
    const auto elements = button->accessibilityElements();
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0]->role(), UIAccessibilityRole::Button);
    EXPECT_EQ(elements[0]->label(), "Press");
    elements[0]->activateAtTime(window->now);
    EXPECT_EQ(taps, 1);
    EXPECT_EQ(Button::buttonWithTitle_sign("All pages", Button::Sign::Menu)->accessibilityLabel(), "All pages");
}

TEST_F(ControlsAccessibilityTest, SegmentsAreRadioButtonsOfAGroupWithTheControlsLabel) {
    const auto segments = SegmentedControl::segmentsWithChoices({"One", "Two", "Three"}, 1);
    segments->setFrame(CGRectMake(0, 200, 300, 40));
    segments->setAccessibilityLabel("Number");
    std::vector<std::size_t> told;
    segments->setAction([&told](std::size_t chosen) { told.push_back(chosen); });
    content->addSubview(segments);
    const auto elements = segments->accessibilityElements();
    ASSERT_EQ(elements.size(), 3U);
    const auto group = elements[0]->container();
    ASSERT_TRUE(group);
    EXPECT_EQ(group->role(), UIAccessibilityRole::RadioGroup);
    EXPECT_EQ(group->label(), "Number");
    EXPECT_FALSE(group->isFocusable());
    ASSERT_EQ(group->childCount(), 3);
    EXPECT_FALSE(group->child(3));
    EXPECT_FALSE(group->child(-1));
    for (NSInteger i = 0; i < 3; ++i) {
        const auto& element = *elements[static_cast<std::size_t>(i)];
        EXPECT_EQ(element.role(), UIAccessibilityRole::RadioButton);
        EXPECT_TRUE(element.container()->isSameAs(*group));
        EXPECT_TRUE(group->child(i)->isSameAs(element));
        EXPECT_EQ(element.place(), (UIAccessibilityPlace{i, 3}));
        EXPECT_EQ(element.isChecked(), i == 1);
        EXPECT_EQ(CGRectGetMinX(element.frame()) - CGRectGetMinX(group->frame()), static_cast<CGFloat>(i) * 100);
        EXPECT_EQ(element.frame().size, CGSizeMake(100, 40));
    }
    EXPECT_EQ(elements[2]->label(), "Three");

    elements[2]->activateAtTime(window->now);
    EXPECT_EQ(elements[1]->isChecked(), false);
    EXPECT_EQ(elements[2]->isChecked(), true);
    elements[2]->activateAtTime(window->now); // It is chosen already.
    elements[0]->activateAtTime(window->now);
    EXPECT_EQ(told, (std::vector<std::size_t>{2, 0}));
    segments->setUserInteractionEnabled(false);
    elements[1]->activateAtTime(window->now);
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(ControlsAccessibilityTest, TheFocusOfSegmentsIsWithTheChosenOneUntilAScreenReaderMovesIt) {
    const auto segments = SegmentedControl::segmentsWithChoices({"One", "Two", "Three"}, 1);
    segments->setFrame(CGRectMake(0, 200, 300, 40));
    content->addSubview(segments);
    const auto elements = segments->accessibilityElements();
    const auto hasFocus = [&](std::size_t index) {
        const auto focused = (*window)->focusedAccessibilityElement();
        return focused && focused->isSameAs(*elements[index]) && elements[index]->isFocused();
    };
    EXPECT_FALSE(elements[1]->isFocused());
    EXPECT_TRUE(segments->becomeFirstResponder());
    EXPECT_TRUE(hasFocus(1));
    EXPECT_FALSE(elements[0]->isFocused());
    window->press(UIKey::Code::Right);
    EXPECT_TRUE(hasFocus(2));

    EXPECT_TRUE(elements[0]->isFocusable());
    EXPECT_TRUE(elements[0]->focus());
    EXPECT_TRUE(hasFocus(0));
    EXPECT_EQ(segments->chosen(), 2U) << "the focus alone has moved";
    window->press(UIKey::Code::Space);
    EXPECT_EQ(segments->chosen(), 0U);
    elements[2]->focus();
    window->press(UIKey::Code::Left);
    EXPECT_EQ(segments->chosen(), 1U) << "the one beside the focus";
    elements[2]->focus();
    segments->setChosen(0);
    EXPECT_TRUE(hasFocus(0));
    segments->setUserInteractionEnabled(false);
    EXPECT_FALSE(elements[1]->focus());
}

TEST_F(ControlsAccessibilityTest, AnElementOfSegmentsThatAreGoneIsNothing) {
    auto segments = SegmentedControl::segmentsWithChoices({"One", "Two"}, 1);
    const auto element = segments->accessibilityElements().at(1);
    segments = nullptr;
    EXPECT_FALSE(element->exists());
    EXPECT_EQ(element->label(), std::nullopt);
    EXPECT_EQ(element->isChecked(), false);
    EXPECT_FALSE(element->container());
    EXPECT_EQ(element->place(), std::nullopt);
    EXPECT_FALSE(element->focus());
    element->activateAtTime(0);
}

TEST_F(ControlsAccessibilityTest, ButtonsInARadioGroupAreItsChoices) {
    content->setAccessibilityRole(UIAccessibilityRole::RadioGroup);
    content->setAccessibilityLabel("Languages");
    const auto other = Button::buttonWithTitle_style("Other", Button::Style::Row);
    other->setFrame(CGRectMake(0, 300, 100, 40));
    content->addSubview(other);
    other->setChosen(true);
    const auto element = other->accessibilityElements().at(0);
    EXPECT_EQ(element->role(), UIAccessibilityRole::RadioButton);
    EXPECT_EQ(element->label(), "Other");
    EXPECT_EQ(element->isChecked(), true);
    EXPECT_EQ(element->container()->label(), "Languages");
    EXPECT_EQ(element->place(), (UIAccessibilityPlace{1, 2})) << "behind the button of this test";
    EXPECT_EQ(button->accessibilityElements().at(0)->isChecked(), false);
    EXPECT_TRUE(button->accessibilityElements().at(0)->focus());
    EXPECT_TRUE(button->isFirstResponder());
    button->accessibilityElements().at(0)->activateAtTime(window->now);
    EXPECT_EQ(taps, 1);
}

TEST_F(ControlsAccessibilityTest, AButtonsDetailIsReadBehindItsTitleAndQueriedEachTime) {
    std::string state = "off";
    button->setAccessibilityDetail([&state] { return state; });
    const auto element = button->accessibilityElements().at(0);
    EXPECT_EQ(element->label(), "Press, off");
    state = "on";
    EXPECT_EQ(element->label(), "Press, on");
}

TEST(ParagraphTest, AScreenReaderFindsTheWholeText) {
    const auto text = create<Paragraph>(CGRectMake(0, 0, 50, 100));
    EXPECT_TRUE(text->accessibilityElements().empty());
    text->setText("broken into lines");
    ASSERT_EQ(text->accessibilityElements().size(), 1U);
    EXPECT_EQ(text->accessibilityElements()[0]->role(), UIAccessibilityRole::Text);
    EXPECT_EQ(text->accessibilityElements()[0]->label(), "broken into lines");
}
