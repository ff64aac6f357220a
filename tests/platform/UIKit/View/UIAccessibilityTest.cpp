// What a screen reader finds among views.

#include <functional>

#include "NSLocale.h"
#include "TestWindow.h"
#include "UIImageView.h"
#include "UILabel.h"
#include "UITableViewCell.h"
#include "WheelSource.h"

using namespace gx;
using Labels = std::vector<std::string>;

namespace {

Labels labelsOf(const Ref<UIView>& view) {
    Labels labels;
    for (const Ref<UIAccessibilityElement>& element : view->accessibilityElements()) labels.push_back(element->label().value_or("(none)"));
    return labels;
}

Ref<UILabel> labelWithText(const std::string& text, CGRect frame = {{0, 0}, {100, 20}}) {
    auto label = create<UILabel>(frame);
    label->setText(text);
    return label;
}

Ref<UIImage> imageWithLabel(std::optional<std::string> label) {
    const Ref<UIImage> image = UIImage::imageWithPixels_width_height_scale({0, 0, 0, 255}, 1, 1, 1);
    image->setAccessibilityLabel(std::move(label));
    return image;
}

/// Notes the taps on it.
class Tapped : public UITableViewCell {
public:
    int taps = 0;
    std::function<void()> whenTapped;
    void touchEnded(const UITouch&) override {
        ++taps;
        if (const auto act = whenTapped) act();
    }
};

struct UIAccessibilityTest : testing::Test {
    Ref<UIView> root = create<UIView>(CGRectMake(0, 0, 320, 480));
};

} // namespace

TEST_F(UIAccessibilityTest, AViewOffersWhatItsSubviewsDoInTheirOrder) {
    const auto group = create<UIView>(CGRectMake(0, 100, 320, 100));
    group->addSubview(labelWithText("second"));
    group->addSubview(labelWithText("third"));
    root->addSubview(labelWithText("first"));
    root->addSubview(group);
    root->addSubview(labelWithText("fourth"));
    EXPECT_EQ(labelsOf(root), (Labels{"first", "second", "third", "fourth"}));
}

TEST_F(UIAccessibilityTest, WhatIsNotDrawnIsNotRead) {
    const auto hidden = labelWithText("hidden");
    hidden->setHidden(true);
    const auto clear = labelWithText("clear");
    clear->setAlpha(0);
    const auto faint = labelWithText("faint");
    faint->setAlpha(0.01);
    const auto hiddenGroup = create<UIView>(CGRectMake(0, 0, 320, 100));
    hiddenGroup->setHidden(true);
    hiddenGroup->addSubview(labelWithText("in a hidden group"));
    for (const Ref<UIView>& view : std::vector<Ref<UIView>>{hidden, clear, faint, hiddenGroup, labelWithText("empty", {}),
                                                            labelWithText("nowhere", CGRectNull), labelWithText("")}) {
        root->addSubview(view);
    }
    EXPECT_EQ(labelsOf(root), Labels{"faint"});
}

TEST_F(UIAccessibilityTest, ALabelIsATextAndALabelOfItsOwnGoesBeforeIt) {
    const auto label = labelWithText("km");
    root->addSubview(label);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_EQ(element->role(), UIAccessibilityRole::Text);
    EXPECT_EQ(element->view(), label);
    EXPECT_EQ(element->label(), "km");
    EXPECT_EQ(element->value(), std::nullopt);
    EXPECT_EQ(element->index(), std::nullopt);
    EXPECT_EQ(element->count(), 0);
    label->setAccessibilityLabel("kilometres");
    EXPECT_EQ(element->label(), "kilometres");
    label->setAccessibilityLabel(std::nullopt);
    EXPECT_EQ(element->label(), "km");
}

TEST_F(UIAccessibilityTest, OnlyAnImageWithALabelIsRead) {
    const auto plain = create<UIImageView>(CGRectMake(0, 0, 20, 20));
    plain->setImage(imageWithLabel(std::nullopt));
    const auto sunny = create<UIImageView>(CGRectMake(20, 0, 20, 20));
    sunny->setImage(imageWithLabel("sunny"));
    const auto named = create<UIImageView>(CGRectMake(40, 0, 20, 20));
    named->setAccessibilityLabel("logo");
    for (const auto& view : {plain, sunny, named}) root->addSubview(view);
    EXPECT_EQ(labelsOf(root), (Labels{"sunny", "logo"}));
    EXPECT_EQ(root->accessibilityElements().at(0)->role(), UIAccessibilityRole::Image);
}

TEST_F(UIAccessibilityTest, ACellIsOneButtonNamedByItsTexts) {
    const auto cell = create<UITableViewCell>(UITableViewCellStyleValue1, std::nullopt);
    cell->textLabel()->setText("Distance");
    cell->detailTextLabel()->setText("5.3 km");
    root->addSubview(cell);
    cell->layoutIfNeeded();
    ASSERT_EQ(labelsOf(root), Labels{"Distance, 5.3 km"});
    EXPECT_EQ(root->accessibilityElements().at(0)->role(), UIAccessibilityRole::Button);
    cell->setAccessibilityLabel("How far");
    EXPECT_EQ(labelsOf(root), Labels{"How far"});
}

TEST_F(UIAccessibilityTest, ACellWithoutTextsIsNoElement) {
    root->addSubview(create<UITableViewCell>(CGRectMake(0, 0, 320, 44)));
    EXPECT_EQ(labelsOf(root), Labels{});
}

TEST_F(UIAccessibilityTest, AWheelInACellStaysAnElementOfItsOwn) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    wheel->setAccessibilityLabel("wheel");
    const auto cell = create<UITableViewCell>(CGRectMake(0, 0, 320, 216));
    cell->contentView()->addSubview(labelWithText("Weight"));
    cell->contentView()->addSubview(wheel);
    EXPECT_EQ(labelsOf(cell), (Labels{"Weight", "wheel"}));
    EXPECT_EQ(cell->accessibilityElements().at(1)->role(), UIAccessibilityRole::Adjustable);
}

TEST_F(UIAccessibilityTest, AFrameIsInTheCoordinatesOfTheWindow) {
    const auto scrolled = create<UIView>(CGRectMake(10, 20, 100, 100));
    scrolled->setBounds(CGRectMake(0, 30, 100, 100)); // Scrolled by 30 points.
    scrolled->addSubview(labelWithText("text", CGRectMake(5, 40, 50, 20)));
    root->addSubview(scrolled);
    const TestWindow window(root);
    // 10 + 5, 20 + 40 - 30.
    EXPECT_EQ(root->accessibilityElements().at(0)->frame(), CGRectMake(15, 30, 50, 20));
}

TEST_F(UIAccessibilityTest, AnElementEndsWithItsViewAndRestsWhileThatIsHidden) {
    auto label = labelWithText("text");
    root->addSubview(label);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_TRUE(element->exists());
    root->setHidden(true);
    EXPECT_FALSE(element->exists());
    EXPECT_TRUE(CGRectIsNull(element->frame()));
    root->setHidden(false);
    EXPECT_TRUE(element->exists());
    label->removeFromSuperview();
    label.reset();
    EXPECT_FALSE(element->exists());
    EXPECT_FALSE(element->view());
    EXPECT_EQ(element->label(), std::nullopt);
    EXPECT_FALSE(element->isEnabled());
    element->increment();
    element->activateAtTime(1);
}

TEST_F(UIAccessibilityTest, HandlesOfOneThingAreTheSame) {
    root->addSubview(labelWithText("one"));
    root->addSubview(labelWithText("two"));
    const auto before = root->accessibilityElements();
    const auto after = root->accessibilityElements();
    EXPECT_NE(before[0], after[0]);
    EXPECT_TRUE(before[0]->isSameAs(*after[0]));
    EXPECT_FALSE(before[0]->isSameAs(*after[1]));
}

TEST_F(UIAccessibilityTest, ActivatingTapsInTheMiddle) {
    const auto cell = create<Tapped>(CGRectMake(0, 40, 320, 44));
    cell->setAccessibilityLabel("Edit");
    root->addSubview(cell);
    const auto element = root->accessibilityElements().at(0);
    element->activateAtTime(1);
    EXPECT_EQ(cell->taps, 0) << "no window, no tap";
    const TestWindow window(root);
    element->activateAtTime(1);
    EXPECT_EQ(cell->taps, 1);
    cell->whenTapped = [&] { cell->removeFromSuperview(); };
    element->activateAtTime(2);
    EXPECT_EQ(cell->taps, 2);
    element->activateAtTime(3);
    EXPECT_EQ(cell->taps, 2) << "it has left the window";
}

TEST_F(UIAccessibilityTest, WhatTakesNoTouchesIsNotEnabled) {
    const auto cell = create<Tapped>(CGRectMake(0, 40, 320, 44));
    cell->setAccessibilityLabel("Edit");
    root->addSubview(cell);
    const TestWindow window(root);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_TRUE(element->isEnabled());
    root->setUserInteractionEnabled(false);
    EXPECT_FALSE(element->isEnabled());
    element->activateAtTime(1);
    EXPECT_EQ(cell->taps, 0);
}

TEST_F(UIAccessibilityTest, WhatIsCoveredOrOutOfSightIsNotPressedNorAnythingInItsPlace) {
    const auto clip = create<UIView>(CGRectMake(0, 100, 320, 100));
    clip->setClipsToBounds(true);
    root->addSubview(clip);
    const auto cell = create<Tapped>(UITableViewCellStyleDefault, "row");
    cell->textLabel()->setText("Cell");
    clip->addSubview(cell);
    const auto above = create<Tapped>(UITableViewCellStyleDefault, "row");
    above->setFrame(CGRectMake(0, 56, 320, 44));
    root->addSubview(above);
    TestWindow window(root);
    const auto element = cell->accessibilityElements().at(0);

    // Its middle lies above the clip, its lower edge within.
    cell->setFrame(CGRectMake(0, -30, 320, 44));
    element->activateAtTime(window.now);
    EXPECT_EQ(cell->taps, 1);
    EXPECT_EQ(above->taps, 0);
    cell->setFrame(CGRectMake(0, -44, 320, 44));
    element->activateAtTime(window.now);
    EXPECT_EQ(cell->taps, 1);
    EXPECT_EQ(above->taps, 0);
    cell->setFrame(CGRectMake(0, 20, 320, 44));
    root->addSubview(create<UIView>(root->bounds()));
    element->activateAtTime(window.now);
    EXPECT_EQ(cell->taps, 1);
}

TEST_F(UIAccessibilityTest, AnElementThatIsNotAdjustableIgnoresIncrementAndDecrement) {
    root->addSubview(labelWithText("text"));
    const auto element = root->accessibilityElements().at(0);
    element->increment();
    element->decrement();
    element->setIndex(3);
    EXPECT_EQ(element->index(), std::nullopt);
    EXPECT_EQ(element->count(), 0);
    EXPECT_EQ(element->label(), "text");
}

TEST_F(UIAccessibilityTest, WhatIsTransparentOrBelowItDoesNotExist) {
    const auto group = create<UIView>(CGRectMake(0, 0, 320, 100));
    group->addSubview(labelWithText("text"));
    root->addSubview(group);
    const auto element = root->accessibilityElements().at(0);
    EXPECT_TRUE(element->exists());
    group->setAlpha(0);
    EXPECT_FALSE(element->exists());
    EXPECT_TRUE(CGRectIsNull(element->frame()));
    EXPECT_TRUE(root->accessibilityElements().empty());
}

TEST_F(UIAccessibilityTest, AnElementOutlivesItsView) {
    auto label = labelWithText("text");
    const auto element = label->accessibilityElements().at(0);
    label = nullptr;
    EXPECT_FALSE(element->exists());
    EXPECT_FALSE(element->isEnabled());
    EXPECT_EQ(element->label(), std::nullopt);
    EXPECT_TRUE(CGRectIsNull(element->frame()));
}

TEST_F(UIAccessibilityTest, ElementsAreTheSameIfTheirViewsAndPartsAre) {
    root->addSubview(labelWithText("one"));
    root->addSubview(labelWithText("other"));
    const auto one = root->accessibilityElements().at(0);
    const auto other = root->accessibilityElements().at(1);
    EXPECT_TRUE(one->isSameAs(*root->accessibilityElements().at(0)));
    EXPECT_FALSE(one->isSameAs(*other));
    EXPECT_FALSE(other->isSameAs(*one));
    EXPECT_FALSE(one->isSameAs(UIAccessibilityElement(one->view(), one->role(), one->part() + 1)));
}

TEST_F(UIAccessibilityTest, OfSeveralLabelsThoseThatSayNothingAreLeftOut) {
    for (const char* text : {"one", "two", "three", "four"}) root->addSubview(labelWithText(text));
    const auto elements = root->accessibilityElements();
    EXPECT_EQ(joinedAccessibilityLabels(elements), "one, two, three, four");
    std::static_pointer_cast<UILabel>(root->subviews()[0])->setText("");
    std::static_pointer_cast<UILabel>(root->subviews()[2])->setText(std::nullopt);
    EXPECT_EQ(joinedAccessibilityLabels(elements), "two, four");
    EXPECT_EQ(joinedAccessibilityLabels({}), std::nullopt);
}

TEST_F(UIAccessibilityTest, LabelsAreJoinedAsTheLocaleJoinsAList) {
    for (const char* text : {"one", "two"}) root->addSubview(labelWithText(text));
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    EXPECT_EQ(joinedAccessibilityLabels(root->accessibilityElements()), "one، two");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ja"));
    EXPECT_EQ(joinedAccessibilityLabels(root->accessibilityElements()), "one、two");
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("zh"));
    EXPECT_EQ(joinedAccessibilityLabels(root->accessibilityElements()), "one，two");
    NSLocale::setCurrentLocale(nullptr);
    EXPECT_EQ(joinedAccessibilityLabels(root->accessibilityElements()), "one, two");
}

TEST_F(UIAccessibilityTest, NoViewOffersNothing) {
    EXPECT_TRUE(wholeAccessibilityElement(nullptr, UIAccessibilityRole::Text).empty());
    EXPECT_TRUE(accessibilityElementsOfSubviews(nullptr).empty());
}

TEST_F(UIAccessibilityTest, ACellInACellIsAButtonOfItsOwn) {
    const auto outer = create<UITableViewCell>(CGRectMake(0, 0, 320, 88));
    outer->textLabel()->setText("outer");
    const auto inner = create<UITableViewCell>(CGRectMake(0, 44, 320, 44));
    inner->textLabel()->setText("inner");
    outer->contentView()->addSubview(inner);
    root->addSubview(outer);
    outer->layoutIfNeeded();
    EXPECT_EQ(labelsOf(root), (Labels{"outer", "inner"}));
}
