// What the wheel answers, what it asks and when, and where it puts its rows; no turning.

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "TestWindow.h"
#include "UILabel.h"
#include "WheelSource.h"

using namespace gx;

namespace {

constexpr NSInteger billion = 1'000'000'000;

struct Wheel : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);

    CGRect rowRect(NSInteger row, NSInteger component) {
        const Ref<UIView> view = wheel->viewForRow_forComponent(row, component);
        return wheel->convertRect_fromView(view ? view->bounds() : CGRectZero, view);
    }
};

std::size_t viewsBelow(const UIView& view) {
    std::size_t count = 0;
    for (const Ref<UIView>& below : view.subviews()) count += 1 + viewsBelow(*below);
    return count;
}

} // namespace

// Selection

TEST_F(Wheel, AComponentNeverAskedForStandsAtRow0) { EXPECT_EQ(wheel->selectedRowInComponent(0), 0); }

TEST_F(Wheel, ARequestIsHeldToTheRowsThereAreWhenItIsRead) {
    wheel->selectRow_inComponent_animated(100, 0, false);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 99);
    source->rows = {101};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 100) << "more rows: the request shows";
    source->rows = {3};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 2);
    wheel->selectRow_inComponent_animated(-7, 0, false);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
}

TEST_F(Wheel, AComponentWithoutRowsAnswers0AndOneThatDoesNotExistMinus1) {
    source->rows = {0};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
    EXPECT_EQ(wheel->selectedRowInComponent(1), -1);
    EXPECT_EQ(wheel->selectedRowInComponent(-1), -1);
}

TEST_F(Wheel, ARequestForAComponentThatDoesNotExistIsIgnored) {
    wheel->selectRow_inComponent_animated(5, 1, false);
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(1), 0);
}

TEST_F(Wheel, AComponentThatComesBackStandsWhereItWasAskedTo) {
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    wheel->selectRow_inComponent_animated(5, 1, false);
    source->rows = {100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(1), -1);
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(1), 5);
}

TEST_F(Wheel, ARequestByTheProgramTellsNobody) {
    wheel->selectRow_inComponent_animated(5, 0, false);
    wheel->layoutIfNeeded();
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(Wheel, ARequestWithAnimationButNoWindowIsShownAtOnce) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    EXPECT_DOUBLE_EQ(CGRectGetMidY(rowRect(50, 0)), 108);
}

// Answers it keeps

TEST_F(Wheel, CountsAreAskedForOnceUntilAReload) {
    wheel->layoutIfNeeded();
    source->forget();
    wheel->numberOfComponents();
    wheel->numberOfRowsInComponent(0);
    wheel->selectedRowInComponent(0);
    EXPECT_EQ(source->questions(), 0);
    source->rows = {7};
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 100) << "the answer is kept";
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 7);
    EXPECT_EQ(source->componentQuestions, 1);
    EXPECT_EQ(source->rowQuestions, 1);
    EXPECT_EQ(source->widthQuestions, 0) << "widths are asked for when they are needed";
}

TEST_F(Wheel, WhateverMakesTheAnswersStaleMakesItAskAgain) {
    const auto asksAgainAfter = [&](auto&& act) {
        wheel->layoutIfNeeded();
        source->forget();
        act();
        wheel->numberOfRowsInComponent(0);
        return source->rowQuestions == 1;
    };
    EXPECT_TRUE(asksAgainAfter([&] { wheel->reloadAllComponents(); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->reloadComponent(0); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->setDataSource(source); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->setDelegate(source); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->setFrame(CGRectMake(0, 0, 321, 216)); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->setBounds(CGRectMake(0, 0, 322, 216)); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->selectRow_inComponent_animated(3, 0, false); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->turnToRow_inComponent(4, 0); }));
    EXPECT_TRUE(asksAgainAfter([&] { wheel->setBounds(CGRectMake(0, 50, 322, 216)); }));
    EXPECT_FALSE(asksAgainAfter([&] { wheel->setFrame(CGRectMake(50, 0, 322, 216)); })) << "moved, not resized";
    EXPECT_FALSE(asksAgainAfter([&] { wheel->reloadComponent(1); })) << "there is none";
}

TEST_F(Wheel, AReloadIsLaidOutOnceAndBindsEachRowInSightOnce) {
    wheel->layoutIfNeeded();
    source->forget();
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(source->componentQuestions, 1);
    EXPECT_EQ(source->rowQuestions, 1);
    EXPECT_EQ(source->widthQuestions, 1);
    EXPECT_EQ(source->heightQuestions, 1);
    const int titles = source->titleQuestions;
    EXPECT_GT(titles, 2);
    EXPECT_LT(titles, 10);
    wheel->layoutIfNeeded();
    EXPECT_EQ(source->titleQuestions, titles);
}

TEST_F(Wheel, TheRowsShowWhatTheDelegateSaysAfterAReload) {
    source->title = [](NSInteger row, NSInteger) { return "a" + std::to_string(row); };
    wheel->reloadAllComponents();
    const auto label = std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(1, 0));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(), "a1");
    source->title = [](NSInteger row, NSInteger) { return "b" + std::to_string(row); };
    wheel->reloadAllComponents();
    EXPECT_EQ(std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(1, 0))->text(), "b1");
}

// Places

TEST_F(Wheel, ColumnsStand5ApartAndTogetherCentred) {
    source->rows = {10, 10, 10};
    wheel->reloadAllComponents();
    // 3 · 80 + 2 · 5 = 250, from 35 to 285.
    EXPECT_EQ(rowRect(0, 0), CGRectMake(35, 88, 80, 40));
    EXPECT_EQ(rowRect(0, 1), CGRectMake(120, 88, 80, 40));
    EXPECT_EQ(rowRect(0, 2), CGRectMake(205, 88, 80, 40));
    EXPECT_EQ(wheel->rowSizeForComponent(1), CGSizeMake(80, 40));
}

TEST_F(Wheel, RowsFollowEachOtherByTheirHeightWhateverTheCylinderShows) {
    EXPECT_EQ(rowRect(1, 0), CGRectMake(120, 128, 80, 40));
    EXPECT_EQ(rowRect(2, 0), CGRectMake(120, 168, 80, 40));
    wheel->selectRow_inComponent_animated(50, 0, false);
    EXPECT_EQ(rowRect(49, 0), CGRectMake(120, 48, 80, 40));
}

TEST_F(Wheel, ADelegateThatLeavesSizesToTheWheelGetsEqualSharesAndRowsOf32) {
    source->rows = {10, 10};
    source->width = source->height = UIPickerView::automaticDimension;
    wheel->reloadAllComponents();
    EXPECT_EQ(rowRect(0, 0), CGRectMake(0, 92, 157.5, 32)); // (320 − 5) / 2
    EXPECT_EQ(rowRect(0, 1), CGRectMake(162.5, 92, 157.5, 32));
}

TEST_F(Wheel, SizesThatMakeNoSenseBecomeDefaults) {
    for (const double height : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        source->height = height;
        wheel->reloadAllComponents();
        EXPECT_EQ(wheel->rowSizeForComponent(0).height, 32) << height;
    }
    source->width = -5;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->rowSizeForComponent(0).width, 0);
    source->width = std::numeric_limits<double>::infinity();
    wheel->reloadAllComponents();
    EXPECT_TRUE(std::isfinite(wheel->rowSizeForComponent(0).width));
    wheel->layoutIfNeeded();
}

TEST_F(Wheel, AViewIsThereForRowsInSightOnly) {
    EXPECT_TRUE(wheel->viewForRow_forComponent(2, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(20, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(-1, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(0, 1));
}

TEST_F(Wheel, WithoutBoundsThereAreNoViewsAndNoRowSize) {
    wheel->setFrame(CGRectZero);
    EXPECT_FALSE(wheel->viewForRow_forComponent(0, 0));
    EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(0, 0));
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 100) << "counts need no bounds";
    wheel->setFrame(CGRectMake(0, 0, 320, 216));
    EXPECT_TRUE(wheel->viewForRow_forComponent(0, 0));
    constexpr CGFloat infinity = std::numeric_limits<CGFloat>::infinity();
    for (const CGSize size : {CGSizeMake(infinity, 216), CGSizeMake(320, infinity)}) {
        wheel->setFrame({{0, 0}, size});
        EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(0, 0)) << "nor with bounds that have no end";
    }
}

TEST_F(Wheel, AComponentThatDoesNotExistHasNoRowSize) {
    EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(80, 40));
    EXPECT_EQ(wheel->rowSizeForComponent(1), CGSizeMake(0, 0));
    EXPECT_EQ(wheel->rowSizeForComponent(-1), CGSizeMake(0, 0));
}

TEST_F(Wheel, TheSameBoundsAskNothingAnew) {
    wheel->layoutIfNeeded();
    source->forget();
    wheel->setBounds(wheel->bounds());
    wheel->layoutIfNeeded();
    EXPECT_EQ(source->questions(), 0);
}

TEST_F(Wheel, BeforeItsFirstLayoutAnAnimatedRequestArrivesAtOnce) {
    const auto window = create<UIWindow>(wheel->frame());
    window->addSubview(wheel);
    wheel->selectRow_inComponent_animated(50, 0, true);
    EXPECT_EQ(wheel->rowInBandOfComponent(0), 50) << "there is no column yet that could move";
}

// What the delegate gives

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

struct RichWheel : testing::Test {
    Ref<RichSource> source = create<RichSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
};
} // namespace

TEST_F(RichWheel, AnAttributedTitleGoesBeforeAPlainOne) {
    source->attributed = NSAttributedString::attributedStringWithString_attributes("rich", {nullptr, UIColor::blackColor()});
    const auto label = std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(0, 0));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->attributedText(), source->attributed);
    EXPECT_EQ(source->titleQuestions, 0);
    source->attributed = nullptr;
    wheel->reloadAllComponents();
    const auto plain = std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(0, 0));
    EXPECT_EQ(plain->text(), "0");
    EXPECT_FALSE(plain->attributedText());
}

TEST_F(RichWheel, AViewGoesBeforeTitlesAndComesBackForReuse) {
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

TEST_F(RichWheel, ADelegateMayGiveAnotherViewThanTheOneOffered) {
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

TEST_F(RichWheel, OneDelegatesViewsAreNotOfferedToAnother) {
    source->givesViews = true;
    wheel->layoutIfNeeded();
    auto other = create<RichSource>();
    other->givesViews = true;
    wheel->setDelegate(other);
    wheel->layoutIfNeeded();
    EXPECT_TRUE(other->offered.empty());
}

TEST_F(RichWheel, OneViewForAllRowsAndTheWheelItselfAreSurvived) {
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

TEST_F(RichWheel, AViewSharedByRowsStaysWhenOneOfThemLeavesSight) {
    source->fixedView = create<UIView>(CGRectZero);
    wheel->reloadAllComponents();
    for (const NSInteger row : {50, 10}) {
        wheel->selectRow_inComponent_animated(row, 0, false);
        wheel->layoutIfNeeded();
        EXPECT_EQ(wheel->viewForRow_forComponent(row, 0)->superview()->superview(), wheel);
    }
    source->fixedView = nullptr;
}

TEST_F(RichWheel, AViewSharedByRowsStaysWhenSeveralOfThemLeaveSight) {
    source->fixedView = create<UIView>(CGRectZero);
    wheel->reloadAllComponents();
    wheel->selectRow_inComponent_animated(50, 0, false);
    wheel->layoutIfNeeded();
    wheel->setFrame(CGRectMake(0, 0, 320, 20)); // Of seven rows or so, more leave than there are views that wait.
    wheel->layoutIfNeeded();
    ASSERT_TRUE(source->fixedView->superview());
    EXPECT_EQ(source->fixedView->superview()->superview(), wheel);
    source->fixedView = nullptr;
}

TEST_F(RichWheel, ADelegateReplacedWhileItMakesAViewHasMadeItForNobody) {
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

TEST_F(RichWheel, ViewsThatCallBackWhenTheyAreMovedOrLeaveAreSurvived) {
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

TEST_F(Wheel, ABillionRowsCostWhatAHundredDo) {
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

TEST_F(Wheel, AtMostTheRowsInSightAndTwoViewsMoreAreAlive) {
    TestWindow window(wheel);
    source->rows = {billion};
    wheel->reloadAllComponents();
    window.tick(0);
    std::size_t inSight = 0;
    for (NSInteger row = 0; row < 20; ++row) inSight += wheel->viewForRow_forComponent(row, 0) ? 1U : 0U;
    EXPECT_EQ(inSight, 4U) << "from the first row downward: 108 · 1.25 points of arc below the middle";
    window.fling({160, 150}, {160, 50}, 5);
    std::size_t most = 0;
    while (window.tick(TestWindow::frame)) most = std::max(most, viewsBelow(*wheel) - 1); // less the column itself
    // A full wheel shows 2 · 135 points of rows, at most 8 of them in part.
    EXPECT_LE(most, 8U + 2U);
}

TEST_F(Wheel, TheLastOfTheLargestNumberOfRowsIsShownExactly) {
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

// Bad answers

TEST_F(Wheel, NegativeCountsAre0) {
    source->rows = {-5};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 0);
    source->componentAnswer = -3;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    wheel->layoutIfNeeded();
}

TEST_F(Wheel, MoreColumnsThanAnyScreenHoldsAreLeftOut) {
    source->componentAnswer = billion;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), UIPickerView::highestComponentCount);
    wheel->layoutIfNeeded();
}

TEST_F(Wheel, HugeBoundsAndTinyRowsShowABoundedNumberOfRows) {
    source->rows = {billion};
    source->height = 1e-6;
    wheel->setFrame(CGRectMake(0, 0, 1e9, 1e9));
    wheel->layoutIfNeeded();
    EXPECT_LT(viewsBelow(*wheel), 250U);
}

TEST_F(Wheel, ADataSourceThatAsksBackOrOrdersWhileItIsAskedIsAnswered) {
    struct Meddler : WheelSource {
        NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& wheel, NSInteger component) override {
            wheel->numberOfRowsInComponent(component);
            wheel->selectRow_inComponent_animated(3, component, true);
            wheel->reloadAllComponents();
            wheel->layoutIfNeeded();
            wheel->viewForRow_forComponent(0, component);
            return WheelSource::pickerView_numberOfRowsInComponent(wheel, component);
        }
        NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& wheel) override {
            wheel->reloadComponent(0);
            rows.resize(rows.size() == 1 ? 3 : 1, 10);
            return WheelSource::numberOfComponentsInPickerView(wheel);
        }
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                       NSInteger component) override {
            wheel->setDelegate(WeakRef<UIPickerViewDelegate>());
            return WheelSource::pickerView_titleForRow_forComponent(wheel, row, component);
        }
    };
    const auto meddler = create<Meddler>();
    const auto meddled = wheelWithSource(meddler);
    TestWindow window(meddled);
    for (int i = 0; i < 5; ++i) {
        meddled->setDelegate(meddler);
        window.tick(TestWindow::frame);
        window.drag({160, 108}, {160, 20}, 3);
    }
    EXPECT_GE(meddled->selectedRowInComponent(0), 0);
}

TEST_F(Wheel, WhoReloadsAndAsksBackHearsTheLastAnswer) {
    struct Asker : WheelSource {
        std::vector<NSInteger> counts;
        std::vector<CGFloat> widths;
        NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& wheel) override {
            wheel->reloadAllComponents();
            if (counts.size() < 2) counts.push_back(wheel->numberOfComponents());
            return WheelSource::numberOfComponentsInPickerView(wheel);
        }
        CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& wheel, NSInteger component) override {
            wheel->reloadAllComponents();
            if (widths.size() < 2) widths.push_back(wheel->rowSizeForComponent(component).width);
            return WheelSource::pickerView_widthForComponent(wheel, component);
        }
    };
    const auto asker = create<Asker>();
    const auto asked = wheelWithSource(asker);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(asked->rowSizeForComponent(0).width, 80);
    EXPECT_EQ(asker->counts, (std::vector<NSInteger>{0, 1}));
    EXPECT_EQ(asker->widths, (std::vector<CGFloat>{320, 80})) << "before the first answer its share of the wheel";
}

TEST_F(Wheel, AnAnswerThatTakesTheColumnsAwayEndsTheRequestAndTheQuestion) {
    struct Vanishing : WheelSource {
        bool vanishes = false;
        void vanish(const Ref<UIPickerView>& wheel) {
            if (!vanishes) return;
            rows = {};
            wheel->reloadAllComponents();
        }
        NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& wheel, NSInteger component) override {
            const NSInteger answer = WheelSource::pickerView_numberOfRowsInComponent(wheel, component);
            vanish(wheel);
            return answer;
        }
        CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& wheel, NSInteger component) override {
            vanish(wheel);
            return WheelSource::pickerView_widthForComponent(wheel, component);
        }
    };
    const auto vanishing = create<Vanishing>();
    const auto vanished = wheelWithSource(vanishing);
    vanishing->vanishes = true;
    vanished->selectRow_inComponent_animated(5, 0, false);
    vanishing->vanishes = false;
    vanishing->rows = {100};
    vanished->reloadAllComponents();
    EXPECT_EQ(vanished->selectedRowInComponent(0), 0) << "a request for a column that was gone";
    vanished->reloadAllComponents();
    vanishing->vanishes = true;
    EXPECT_EQ(vanished->rowSizeForComponent(0), CGSizeMake(0, 0));
}

TEST_F(Wheel, ADelegateThatTakesAColumnAwayWhileItGivesItsRowsIsAskedForNoMore) {
    NSInteger asked = 0;
    source->rows = {100, 100};
    source->title = [this, &asked](NSInteger row, NSInteger component) {
        if (component == 1) {
            ++asked;
            source->rows = {100};
            wheel->reloadAllComponents();
            wheel->numberOfComponents();
        }
        return std::to_string(row);
    };
    wheel->reloadAllComponents();
    wheel->layoutIfNeeded();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(wheel->viewForRow_forComponent(0, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(0, 1));
}

TEST_F(Wheel, ADataSourceThatDiesUnnoticedHasNoRows) {
    EXPECT_EQ(wheel->numberOfComponents(), 1);
    source = nullptr;
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 0);
}

TEST_F(Wheel, ADataSourceThatDiesLeavesAnEmptyWheel) {
    wheel->layoutIfNeeded();
    source = nullptr;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    wheel->layoutIfNeeded();
    EXPECT_EQ(viewsBelow(*wheel), 0U);
}

TEST_F(Wheel, AWheelRestoredFromACoderTurnsLikeAnyOther) {
    auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(10, 20, 320, 216), "frame");
    const auto restored = create<UIPickerView>(coder);
    ASSERT_TRUE(restored);
    restored->setDelegate(source);
    restored->setDataSource(source);
    EXPECT_EQ(restored->frame(), CGRectMake(10, 20, 320, 216));
    EXPECT_TRUE(restored->showsSelectionIndicator());
    EXPECT_TRUE(restored->viewForRow_forComponent(0, 0));
}

TEST(UIPickerView, a_delegate_that_says_nothing_leaves_everything_to_the_wheel) {
    class Silent : public NSObject, public UIPickerViewDelegate {};
    const auto source = create<WheelSource>();
    const auto silent = create<Silent>();
    const auto wheel = create<UIPickerView>(CGRectMake(0, 0, 320, 216));
    wheel->setDataSource(source);
    wheel->setDelegate(silent);
    EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(320, 32));
    const auto label = std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(0, 0));
    ASSERT_TRUE(label);
    EXPECT_FALSE(label->showsSomething());
    wheel->turnToRow_inComponent(3, 0);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 3);
}
