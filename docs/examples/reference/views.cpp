// Examples of the reference: views, windows, events and what screen readers find.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

using namespace gx;

namespace {

// [UIView UIViewNode]
/// - A view holds its subviews strongly and its superview not at all: keep no `Ref` to a superview.
/// - Frames are in the superview's coordinates, bounds in the view's own.
/// - `layoutSubviews` is for placing subviews; what changes a size there is laid out in the next
///   pass.
/// - A view without a window draws and lays out, but gets no events and no time.
class Badge : public UIView {
public:
    void layoutSubviews() override {
        UIView::layoutSubviews();
        for (const Ref<UIView>& view : subviews()) view->setFrame(bounds());
    }
};
// [UIView UIViewNode]

TEST(ReferenceExamples, Views) {
    // [UIView UIViewNode]
    const auto badge = create<Badge>(CGRectMake(20, 10, 60, 24));
    badge->setBackgroundColor(UIColor::systemBlueColor());
    badge->setCornerRadius(12);
    const auto text = create<UILabel>(CGRectZero);
    badge->addSubview(text);
    badge->layoutIfNeeded();
    EXPECT_EQ(text->frame(), CGRectMake(0, 0, 60, 24));
    EXPECT_EQ(badge->superview(), nullptr);
    EXPECT_EQ(badge->alpha(), 1);
    // [UIView UIViewNode]
}

TEST(ReferenceExamples, Constraints) {
    // [NSLayoutConstraint NSLayoutPins]
    /// - Only pins to the superview's edges are known. Another format gives an empty list.
    /// - Constraints belong to the superview; removing the view drops them.
    const auto parent = create<UIView>(CGRectMake(0, 0, 320, 100));
    const auto child = create<UIView>(CGRectZero);
    parent->addSubview(child);
    parent->addConstraints(
        NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views("H:|-16-[child]-16-|", 0, {}, {{"child", child}}));
    parent->addConstraints(NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views("V:|[child]|", 0, {}, {{"child", child}}));
    parent->layoutIfNeeded();
    EXPECT_EQ(child->frame(), CGRectMake(16, 0, 288, 100));
    EXPECT_EQ(NSLayoutPins::pinsOfConstraints(parent->constraints()).front().left, 16.0);
    // [NSLayoutConstraint NSLayoutPins]
}

// [UIResponder UITouch]
/// - Returning false from `touchBegan` lets a view above have the touch, but the rest of the touch
///   still comes here.
/// - A touch may end by `touchCancelled` instead of `touchEnded`: undo there what `touchBegan` did.
/// - Locations are the window's: convert them before you compare them with your bounds.
class Button : public UIView {
public:
    bool touchBegan(const UITouch&) override { return true; } // Mine.
    void touchEnded(const UITouch& touch) override {
        if (CGRectContainsPoint(bounds(), convertPointFromWindow(touch.locationInWindow))) ++taps;
    }
    int taps = 0;
};
// [UIResponder UITouch]

TEST(ReferenceExamples, Responders) {
    // [UIResponder UITouch]
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 480));
    const auto button = create<Button>(CGRectMake(10, 10, 100, 44));
    window->addSubview(button);
    window->touchBegan_at_time(0, CGPointMake(20, 20), 0.0);
    window->touchEnded_at_time(0, CGPointMake(20, 20), 0.1);
    EXPECT_EQ(button->taps, 1);
    // [UIResponder UITouch]
}

// [UIWindow UIWindowInput UIWindowHost]
/// - The window holds its host as a plain pointer: call `setHost(nullptr)` before the host goes.
/// - Times have to be of one steady clock, that of `tick`; never the clock on the wall.
/// - `tick` returning false means that nothing moves: stop asking until `windowNeedsFrame`.
/// - Closing a window without `finishAnimations` loses the spin that is under way.
class FrameCounter : public UIWindowHost {
public:
    void windowNeedsFrame() override { needsFrame = true; }
    bool needsFrame = false;
};
// [UIWindow UIWindowInput UIWindowHost]

TEST(ReferenceExamples, Windows) {
    // [UIWindow UIWindowInput UIWindowHost]
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    FrameCounter host;
    window->setHost(&host);
    const auto picker = create<GXBpmPickerView>(window->bounds());
    window->addSubview(picker);
    window->tick(0.0);

    UIWindowInput& input = *window; // What a host sends, it sends through this.
    input.scroll({.deltaY = 1, .timestamp = 0.1, .locationInWindow = CGPointMake(160, 108)});
    EXPECT_TRUE(host.needsFrame);
    for (double time = 0.1; input.tick(time); time += 1.0 / 60) {
    } // A second of frames, at once.
    EXPECT_EQ(picker->currentValue().integerValue(), 170);
    window->setHost(nullptr);
    // [UIWindow UIWindowInput UIWindowHost]
}

TEST(ReferenceExamples, Roots) {
    // [UIViewRoot]
    /// - It is what a view knows of its window; implement a window by `UIWindow`, not by this.
    /// - It is empty for a view in no window: check it.
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    const auto view = create<UIView>(window->bounds());
    EXPECT_EQ(view->viewRoot(), nullptr);
    window->addSubview(view);
    view->viewRoot()->requestFrame(); // A view that looks different calls setNeedsDisplay.
    EXPECT_EQ(view->window(), window);
    // [UIViewRoot]
}

TEST(ReferenceExamples, Keys) {
    // [UIKey UIScroll]
    /// - Positive deltas of scrolling go to later rows, whatever the toolkit's sign is.
    /// - A key goes to the view with the focus, and nowhere without one.
    /// - Leave out modifiers that type a character, such as AltGr: `isCommand` would turn the key
    ///   away.
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    const auto picker = create<GXBpmPickerView>(window->bounds());
    window->addSubview(picker);
    window->tick(0);
    EXPECT_TRUE(picker->pickerView()->becomeFirstResponder());
    UIKey key;
    key.code = UIKey::Code::Down;
    EXPECT_TRUE(window->keyDown(key));
    window->finishAnimations();
    EXPECT_EQ(picker->currentValue().integerValue(), 170);
    // [UIKey UIScroll]
}

TEST(ReferenceExamples, Labels) {
    // [UILabel]
    /// - One line: a longer text ends in "…".
    /// - Plain and attributed text replace each other.
    /// - It takes no touches; put it into a view of your own to tap it.
    const auto label = create<UILabel>(CGRectMake(0, 0, 200, 24));
    label->setText("Average");
    label->setTextAlignment(NSTextAlignmentNatural);
    label->sizeToFit();
    EXPECT_EQ(label->frame().size.width, 70);
    EXPECT_EQ(label->accessibilityLabel(), "Average");
    // [UILabel]
}

TEST(ReferenceExamples, ImageViews) {
    // [UIImageView]
    /// - The default mode stretches the image; use `UIViewContentModeScaleAspectFit` for pictures.
    /// - It shows the image's label to screen readers only if there is one.
    const auto icon = create<UIImageView>(CGRectMake(0, 0, 44, 44));
    icon->setImage(UIImage::imageWithHostHandle_size(7, CGSizeMake(24, 24)));
    icon->setContentMode(UIViewContentModeScaleAspectFit);
    EXPECT_EQ(icon->sizeThatFits({}), CGSizeMake(24, 24));
    // [UIImageView]
}

TEST(ReferenceExamples, ScrollViews) {
    // [UIScrollView]
    /// - Without a content size nothing scrolls.
    /// - It scrolls up and down only.
    /// - A drag that begins on a wheel's column spins the wheel and never scrolls.
    const auto page = create<UIScrollView>(CGRectMake(0, 0, 320, 480));
    page->setContentSize(CGSizeMake(320, 1000));
    page->setContentOffset_animated(CGPointMake(0, 9000), false);
    EXPECT_EQ(page->contentOffset().y, 520); // Clamped to the content.
    // [UIScrollView]
}

TEST(ReferenceExamples, Elements) {
    // [UIAccessibilityElement UIAccessibilityNumbers UIAccessibilityPlace UIAccessibilityAction]
    /// - An element is a handle: two queries return two of them for one thing. Compare with
    ///   `isSameAs`.
    /// - It outlives its view: check `exists` before you show it.
    /// - Actions count as the user's, so the delegate is called.
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    const auto picker = create<GXBpmPickerView>(window->bounds());
    window->addSubview(picker);
    window->tick(0);
    const Ref<UIAccessibilityElement> column = window->accessibilityElements().front();
    EXPECT_EQ(column->value(), "160 beats per minute");
    EXPECT_EQ(column->numbers()->value, 160);
    EXPECT_EQ(column->place(), std::nullopt); // Not one of a set.

    UIAccessibilityAction action;
    action.kind = UIAccessibilityAction::Kind::SetNumber;
    action.number = 90;
    window->performAction_onElement(action, column);
    window->finishAnimations();
    EXPECT_EQ(picker->currentValue().integerValue(), 90);
    // [UIAccessibilityElement UIAccessibilityNumbers UIAccessibilityPlace UIAccessibilityAction]
}

TEST(ReferenceExamples, AccessibilityChanges) {
    // [UIAccessibilityChanges UIAccessibilityChanges::Change]
    /// - The first look finds everything, since nothing was known before.
    /// - Announcements wait until keys come to the window.
    /// - Look only while there is a screen reader: it queries every element.
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    UIAccessibilityChanges changes;
    changes.takeChanges(*window);
    window->announce("Saved");
    window->tick(0);
    const auto found = changes.takeChanges(*window);
    EXPECT_EQ(found.back().kind, UIAccessibilityChanges::Change::Kind::Announcement);
    EXPECT_EQ(found.back().announcement.text, "Saved");
    // [UIAccessibilityChanges UIAccessibilityChanges::Change]
}

TEST(ReferenceExamples, Announcements) {
    // [UIAccessibilityAnnouncement UIAccessibilityAnnouncements]
    /// - Use `UIWindow::announce`; hosts take what waits after each frame.
    /// - An announcement without a text is ignored, and of many the newest are kept.
    UIAccessibilityAnnouncements waiting; // What a window keeps them in.
    EXPECT_FALSE(waiting.add({}));
    UIAccessibilityAnnouncement saved;
    saved.text = "Saved";
    EXPECT_TRUE(waiting.add(saved));
    EXPECT_EQ(waiting.take().size(), 1U);
    // [UIAccessibilityAnnouncement UIAccessibilityAnnouncements]
}

} // namespace
