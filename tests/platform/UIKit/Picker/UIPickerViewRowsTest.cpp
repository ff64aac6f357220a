// Which views and titles of the delegate a wheel shows, and what rows cost.

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "CastTo.h"
#include "PickerViewTest.h"
#include "UILabel.h"

namespace {
struct RichSource : WheelSource {
    Ref<NSAttributedString> attributed;
    bool givesViews = false;
    std::vector<Ref<UIView>> offered;
    Ref<UIView> fixedView;

    Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
        return attributed;
    }
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger row, NSInteger,
                                                               const Ref<UIView>& view) override {
        if (fixedView) return fixedView;
        if (!givesViews) return nullptr;
        if (view) offered.push_back(view);
        const Ref<UIView> given = view ? view : create<UIView>(CGRectZero);
        given->setTag(row);
        return given;
    }
};

struct UIPickerViewRows : testing::Test {
    Ref<RichSource> source = create<RichSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
};
} // namespace

TEST_F(UIPickerViewRows, AnAttributedTitleGoesBeforeAPlainOne) {
    source->attributed = NSAttributedString::attributedStringWithString_attributes("rich", {nullptr, UIColor::blackColor()});
    const auto label = castTo<UILabel>(wheel->viewForRow_forComponent(0, 0));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->attributedText(), source->attributed);
    EXPECT_EQ(source->titleQuestions, 0);
    source->attributed = nullptr;
    wheel->reloadAllComponents();
    const auto plain = castTo<UILabel>(wheel->viewForRow_forComponent(0, 0));
    EXPECT_EQ(plain->text(), "0");
    EXPECT_FALSE(plain->attributedText());
}

TEST_F(UIPickerViewRows, AViewGoesBeforeTitlesAndComesBackForReuse) {
    source->givesViews = true;
    source->attributed = NSAttributedString::attributedStringWithString_attributes("rich", {});
    const Ref<UIView> first = wheel->viewForRow_forComponent(0, 0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->tag(), 0);
    EXPECT_TRUE(source->offered.empty());
    wheel->selectRow_inComponent_animated(50, 0, false);
    EXPECT_EQ(wheel->viewForRow_forComponent(50, 0)->tag(), 50);
    EXPECT_NE(std::find(source->offered.begin(), source->offered.end(), first), source->offered.end());
}

TEST_F(UIPickerViewRows, ADelegateMayGiveAnotherViewThanTheOneOffered) {
    struct Wasteful : WheelSource {
        std::map<NSInteger, Ref<UIView>> given;
        Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger row, NSInteger,
                                                                   const Ref<UIView>&) override {
            return given[row] = create<UIView>(CGRectZero);
        }
    };
    const auto wasteful = create<Wasteful>();
    wheel->setDelegate(wasteful);
    for (int i = 0; i < 5; ++i) {
        wheel->reloadAllComponents();
        EXPECT_EQ(wheel->viewForRow_forComponent(0, 0), wasteful->given[0]);
    }
    EXPECT_LE(viewsBelow(*wheel), 1 + wasteful->given.size() + 2) << "the column, its rows, and two views that wait";
}

TEST_F(UIPickerViewRows, OneDelegatesViewsAreNotOfferedToAnother) {
    source->givesViews = true;
    wheel->layoutIfNeeded();
    auto other = create<RichSource>();
    other->givesViews = true;
    wheel->setDelegate(other);
    wheel->layoutIfNeeded();
    EXPECT_TRUE(other->offered.empty());
}

TEST_F(UIPickerViewRows, ADelegateMayReturnOneViewForAllRowsAndTheWheelItself) {
    source->fixedView = create<UIView>(CGRectZero);
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(source->fixedView->superview()->superview(), wheel);
    source->fixedView = wheel;
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(wheel->frame(), CGRectMake(0, 0, 320, 216));
    source->fixedView = nullptr;
}

TEST_F(UIPickerViewRows, AViewSharedByRowsStaysWhenOneOfThemIsNotVisibleAnyMore) {
    source->fixedView = create<UIView>(CGRectZero);
    wheel->reloadAllComponents();
    for (const NSInteger row : {50, 10}) {
        wheel->selectRow_inComponent_animated(row, 0, false);
        wheel->layoutIfNeeded();
        EXPECT_EQ(wheel->viewForRow_forComponent(row, 0)->superview()->superview(), wheel);
    }
    source->fixedView = nullptr;
}

TEST_F(UIPickerViewRows, AViewSharedByRowsStaysWhenSeveralOfThemAreNotVisibleAnyMore) {
    source->fixedView = create<UIView>(CGRectZero);
    wheel->reloadAllComponents();
    wheel->selectRow_inComponent_animated(50, 0, false);
    wheel->layoutIfNeeded();
    // Of seven rows or so, more leave than there are views that wait.
    wheel->setFrame(CGRectMake(0, 0, 320, 20));
    wheel->layoutIfNeeded();
    ASSERT_TRUE(source->fixedView->superview());
    EXPECT_EQ(source->fixedView->superview()->superview(), wheel);
    source->fixedView = nullptr;
}

TEST_F(UIPickerViewRows, TheViewOfADelegateReplacedMeanwhileIsDropped) {
    struct Leaver : RichSource {
        Ref<RichSource> successor;
        std::vector<Ref<UIView>> made;
        Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& asking, NSInteger row, NSInteger component,
                                                                   const Ref<UIView>& view) override {
            if (successor) asking->setDelegate(std::exchange(successor, nullptr));
            made.push_back(RichSource::pickerView_viewForRow_forComponent_reusingView(asking, row, component, view));
            return made.back();
        }
    };
    const auto leaver = create<Leaver>();
    leaver->givesViews = true;
    wheel->setDelegate(leaver);
    wheel->layoutIfNeeded();
    source->givesViews = true;
    leaver->successor = source;
    wheel->reloadAllComponents();
    for (int i = 0; i < 3; ++i) wheel->layoutIfNeeded();
    EXPECT_FALSE(leaver->made.empty());
    for (const Ref<UIView>& view : leaver->made) {
        EXPECT_EQ(std::count(source->offered.begin(), source->offered.end(), view), 0);
        EXPECT_FALSE(view->superview());
    }
    EXPECT_EQ(wheel->viewForRow_forComponent(1, 0)->tag(), 1);
    const auto another = create<RichSource>();
    another->givesViews = true;
    leaver->successor = another;
    wheel->setDelegate(leaver); // Which leaves before any row has a view.
    for (int i = 0; i < 3; ++i) wheel->layoutIfNeeded();
    EXPECT_FALSE(leaver->made.back()->superview());
    EXPECT_EQ(wheel->delegate().lock(), another);
    EXPECT_EQ(wheel->viewForRow_forComponent(1, 0)->tag(), 1);
}

TEST_F(UIPickerViewRows, ViewsMayCallBackWhenTheyAreMovedOrRemoved) {
    struct Meddling : UIView {
        Ref<WheelSource> source;
        WeakRef<UIPickerView> wheel;
        void meddle() {
            const Ref<UIPickerView> turned = wheel.lock();
            if (!turned) return;
            source->rows.push_back(10);
            turned->reloadAllComponents();
            turned->numberOfComponents();
            turned->setDelegate(WeakRef<UIPickerViewDelegate>());
        }
        void setFrame(CGRect frame) override {
            const bool isMoved = frame != this->frame();
            UIView::setFrame(frame);
            if (isMoved && tag() > 0) meddle();
        }
        void didMoveToWindow() override { meddle(); }
    };
    TestWindow window(wheel);
    for (int round = 0; round < 3; ++round) {
        const auto view = create<Meddling>(CGRectZero);
        view->source = source;
        view->wheel = wheel;
        source->fixedView = view;
        wheel->setDelegate(source);
        window.tick(TestWindow::frame);
        view->setTag(1);
        wheel->setDelegate(source);
        window.tick(TestWindow::frame);
        wheel->selectRow_inComponent_animated(30 + round, 0, false);
        window.tick(TestWindow::frame);
    }
    source->fixedView = nullptr;
    wheel->setDelegate(source);
    window.tick(TestWindow::frame);
    EXPECT_TRUE(wheel->viewForRow_forComponent(32, 0));
    EXPECT_GT(wheel->numberOfComponents(), 1) << "the views did meddle";
}

// Cost

TEST_F(UIPickerViewTest, ABillionRowsCostWhatAHundredDo) {
    const auto cost = [&](NSInteger rows) {
        source->rows = {rows};
        wheel->reloadAllComponents();
        wheel->layoutIfNeeded();
        source->forget();
        wheel->reloadAllComponents();
        wheel->selectRow_inComponent_animated(rows - 50, 0, false);
        wheel->layoutIfNeeded();
        return std::pair(source->questions(), viewsBelow(*wheel));
    };
    const auto few = cost(100);
    EXPECT_EQ(cost(billion), few);
    EXPECT_EQ(wheel->selectedRowInComponent(0), billion - 50);
    EXPECT_DOUBLE_EQ(CGRectGetMidY(rowRect(billion - 50, 0)), 108);
}

TEST_F(UIPickerViewTest, AtMostTheVisibleRowsAndTwoMoreViewsAreAlive) {
    TestWindow window(wheel);
    source->rows = {billion};
    wheel->reloadAllComponents();
    window.tick(0);
    std::size_t inSight = 0;
    for (NSInteger row = 0; row < 20; ++row) inSight += wheel->viewForRow_forComponent(row, 0) ? 1U : 0U;
    EXPECT_EQ(inSight, 4U) << "from the first row downward: 108 · 1.25 points of arc below the middle";
    window.fling({160, 150}, {160, 50}, 5);
    std::size_t most = 0;
    // less the column itself
    while (window.tick(TestWindow::frame)) most = std::max(most, viewsBelow(*wheel) - 1);
    // A full wheel shows 2 · 135 points of rows, at most 8 of them in part.
    EXPECT_LE(most, 8U + 2U);
}

TEST_F(UIPickerViewTest, TheLastOfTheLargestNumberOfRowsIsShownExactly) {
    constexpr NSInteger largest = std::numeric_limits<NSInteger>::max();
    source->rows = {largest};
    wheel->reloadAllComponents();
    wheel->selectRow_inComponent_animated(largest, 0, false);
    EXPECT_EQ(wheel->selectedRowInComponent(0), largest - 1);
    EXPECT_EQ(rowRect(largest - 1, 0), CGRectMake(120, 88, 80, 40));
    EXPECT_EQ(rowRect(largest - 2, 0), CGRectMake(120, 48, 80, 40));
    TestWindow window(wheel);
    window.drag({160, 108}, {160, 108 + 86});
    window.runUntilStill();
    EXPECT_EQ(wheel->selectedRowInComponent(0), largest - 3);
}
