// The focus of screen readers, and what they are asked to say.

#include "TestWindow.h"
#include "UILabel.h"
#include "UIScrollView.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// A button that takes the focus.
class Focusable : public UIView {
public:
    bool canBecomeFirstResponder() override { return true; }
    UIAccessibilityElements accessibilityElements() override {
        return wholeAccessibilityElement(refTo<UIView>(this), UIAccessibilityRole::Button);
    }
};

Ref<Focusable> focusable(const std::string& label, CGRect frame) {
    auto view = create<Focusable>(frame);
    view->setAccessibilityLabel(label);
    return view;
}

/// A group of elements that are parts of one view; the part `chosen` has the focus.
class Parts : public Focusable {
public:
    NSInteger chosen = 1;

    class Element : public UIAccessibilityElement {
    public:
        Element(const Ref<Parts>& parts, NSInteger part)
            : UIAccessibilityElement(parts, part < 0 ? UIAccessibilityRole::RadioGroup : UIAccessibilityRole::RadioButton, part),
              parts_(parts) {}
        Ref<UIAccessibilityElement> container() const override {
            return part() < 0 ? nullptr : std::make_shared<Element>(parts_.lock(), -1);
        }
        NSInteger childCount() const override { return part() < 0 ? 3 : 0; }
        Ref<UIAccessibilityElement> child(NSInteger index) const override { return std::make_shared<Element>(parts_.lock(), index); }
        bool isFocused() const override { return UIAccessibilityElement::isFocused() && part() == parts_.lock()->chosen; }

    private:
        WeakRef<Parts> parts_;
    };
    UIAccessibilityElements accessibilityElements() override { return {std::make_shared<Element>(refTo(this), -1)}; }
};

struct UIAccessibilityFocus : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 320, 480));
    TestWindow window{root};
};

} // namespace

TEST_F(UIAccessibilityFocus, AViewThatTakesKeysIsFocusableAndFocusedWhileItHasThem) {
    const auto view = focusable("Save", CGRectMake(0, 0, 100, 40));
    root->addSubview(view);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_TRUE(element->isFocusable());
    EXPECT_FALSE(element->isFocused());
    EXPECT_EQ(window->focusedAccessibilityElement(), nullptr);
    view->becomeFirstResponder();
    EXPECT_TRUE(element->isFocused());
    ASSERT_TRUE(window->focusedAccessibilityElement());
    EXPECT_TRUE(window->focusedAccessibilityElement()->isSameAs(*element));
    window->setReceivesKeys(false);
    EXPECT_FALSE(element->isFocused());
    EXPECT_EQ(window->focusedAccessibilityElement(), nullptr);
    window->setReceivesKeys(true);
    view->setUserInteractionEnabled(false);
    EXPECT_FALSE(element->isFocusable());
}

TEST_F(UIAccessibilityFocus, ATextIsNotFocusable) {
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("km");
    root->addSubview(label);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_FALSE(element->isFocusable());
    EXPECT_FALSE(element->focus());
    EXPECT_EQ(window->firstResponder(), nullptr);
}

TEST_F(UIAccessibilityFocus, FocusingBringsTheViewIntoSightAndShowsTheMark) {
    const auto scroll = create<UIScrollView>(CGRectMake(0, 0, 320, 100));
    scroll->setContentSize({320, 1000});
    const auto view = focusable("Save", CGRectMake(0, 500, 100, 40));
    scroll->addSubview(view);
    root->addSubview(scroll);
    window.tick(TestWindow::frame);
    const auto element = view->accessibilityElements().at(0);
    EXPECT_FALSE(window->showsFocus());
    EXPECT_TRUE(element->focus());
    EXPECT_TRUE(element->isFocused());
    EXPECT_TRUE(window->showsFocus());
    window.runUntilStill();
    EXPECT_TRUE(CGRectIntersectsRect(element->frame(), CGRectMake(0, 0, 320, 100)));
    view->setHidden(true);
    EXPECT_FALSE(element->focus());
}

TEST_F(UIAccessibilityFocus, APartOfAViewMayHaveTheFocus) {
    const auto parts = create<Parts>(CGRectMake(0, 0, 100, 40));
    root->addSubview(parts);
    parts->becomeFirstResponder();
    ASSERT_TRUE(window->focusedAccessibilityElement());
    EXPECT_EQ(window->focusedAccessibilityElement()->part(), 1);
    parts->chosen = 2;
    EXPECT_EQ(window->focusedAccessibilityElement()->part(), 2);
    parts->chosen = -1;
    EXPECT_EQ(window->focusedAccessibilityElement()->part(), -1) << "the group itself";
}

TEST_F(UIAccessibilityFocus, AnElementKnowsItsContainerAndThatItsChildren) {
    const auto parts = create<Parts>(CGRectMake(0, 0, 100, 40));
    const auto group = parts->accessibilityElements().at(0);
    const auto second = group->child(1);
    EXPECT_EQ(group->indexOfChild(*second), 1);
    EXPECT_EQ(group->indexOfChild(*group), -1);
    EXPECT_TRUE(second->container()->isSameAs(*group));
    const UIAccessibilityElements top = outermostAccessibilityElements({group->child(0), second, group});
    ASSERT_EQ(top.size(), 1U);
    EXPECT_TRUE(top[0]->isSameAs(*group));
}

TEST_F(UIAccessibilityFocus, ARoleThatWasSetGoesBeforeTheViewsOwn) {
    const auto label = create<UILabel>(CGRectMake(0, 0, 100, 20));
    label->setText("Settings");
    root->addSubview(label);
    label->setAccessibilityRole(UIAccessibilityRole::Heading);
    EXPECT_EQ(root->accessibilityElements().at(0)->role(), UIAccessibilityRole::Heading);
    label->setAccessibilityRole(std::nullopt);
    EXPECT_EQ(root->accessibilityElements().at(0)->role(), UIAccessibilityRole::Text);
}

TEST_F(UIAccessibilityFocus, WhatScreenReadersSeeAsksForAFrameWhenItChanges) {
    while (window.tick(TestWindow::frame)) {
    }
    root->setAccessibilityLabel("page");
    EXPECT_TRUE(window.tick(TestWindow::frame));
    root->setAccessibilityLabel("page");
    EXPECT_FALSE(window.tick(TestWindow::frame));
    root->setAccessibilityExpanded(true);
    EXPECT_TRUE(window.tick(TestWindow::frame));
    root->setAccessibilityExpanded(true);
    EXPECT_FALSE(window.tick(TestWindow::frame));
    root->setAccessibilityRole(UIAccessibilityRole::Group);
    EXPECT_TRUE(window.tick(TestWindow::frame));
    root->setAccessibilityRole(UIAccessibilityRole::Group);
    EXPECT_FALSE(window.tick(TestWindow::frame));
    window->announce("Saved");
    EXPECT_TRUE(window.tick(TestWindow::frame));
}

TEST_F(UIAccessibilityFocus, OfManyAnnouncementsTheNewestAreKept) {
    constexpr std::size_t most = UIAccessibilityAnnouncements::highestCount;
    for (std::size_t i = 0; i < most + 2; ++i) window->announce(std::to_string(i));
    const auto taken = window->takeAnnouncements();
    ASSERT_EQ(taken.size(), most);
    EXPECT_EQ(taken.front().text, "2");
    EXPECT_EQ(taken.back().text, std::to_string(most + 1));
    EXPECT_EQ(taken.back().priority, UIAccessibilityAnnouncement::Priority::Polite);
    EXPECT_TRUE(window->takeAnnouncements().empty());
}
