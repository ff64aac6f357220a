// What a wheel returns, what it queries and when, and where it puts its rows.

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "CastTo.h"
#include "PickerViewTest.h"
#include "UILabel.h"

// Selection

TEST_F(UIPickerViewTest, AComponentWithoutARequestIsAtRow0) { EXPECT_EQ(wheel->selectedRowInComponent(0), 0); }

TEST_F(UIPickerViewTest, ARequestIsClampedToTheRowsWhenItIsRead) {
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

TEST_F(UIPickerViewTest, AComponentWithoutRowsReturns0AndOneThatDoesNotExistMinus1) {
    source->rows = {0};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(0), 0);
    EXPECT_EQ(wheel->selectedRowInComponent(1), -1);
    EXPECT_EQ(wheel->selectedRowInComponent(-1), -1);
}

TEST_F(UIPickerViewTest, ARequestForAComponentThatDoesNotExistIsIgnored) {
    wheel->selectRow_inComponent_animated(5, 1, false);
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->selectedRowInComponent(1), 0);
}

TEST_F(UIPickerViewTest, AComponentThatComesBackKeepsItsRequest) {
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

TEST_F(UIPickerViewTest, ARequestByTheProgramIsNotReported) {
    wheel->selectRow_inComponent_animated(5, 0, false);
    wheel->layoutIfNeeded();
    EXPECT_TRUE(source->notices.empty());
}

TEST_F(UIPickerViewTest, ARequestWithAnimationButNoWindowIsShownAtOnce) {
    wheel->selectRow_inComponent_animated(50, 0, true);
    EXPECT_DOUBLE_EQ(CGRectGetMidY(rowRect(50, 0)), 108);
}

// Caching

TEST_F(UIPickerViewTest, CountsAreQueriedOnceUntilAReload) {
    wheel->layoutIfNeeded();
    source->forget();
    wheel->numberOfComponents();
    wheel->numberOfRowsInComponent(0);
    wheel->selectedRowInComponent(0);
    EXPECT_EQ(source->questions(), 0);
    source->rows = {7};
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 100) << "the count is cached";
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 7);
    EXPECT_EQ(source->componentQuestions, 1);
    EXPECT_EQ(source->rowQuestions, 1);
    EXPECT_EQ(source->widthQuestions, 0) << "widths are asked for when they are needed";
}

TEST_F(UIPickerViewTest, WhateverInvalidatesTheCacheIsQueriedAgain) {
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

TEST_F(UIPickerViewTest, AReloadIsLaidOutOnceAndBindsEachVisibleRowOnce) {
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

TEST_F(UIPickerViewTest, RowsShowTheDelegatesTitlesAfterAReload) {
    source->title = [](NSInteger row, NSInteger) { return "a" + std::to_string(row); };
    wheel->reloadAllComponents();
    const auto label = castTo<UILabel>(wheel->viewForRow_forComponent(1, 0));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(), "a1");
    source->title = [](NSInteger row, NSInteger) { return "b" + std::to_string(row); };
    wheel->reloadAllComponents();
    EXPECT_EQ(castTo<UILabel>(wheel->viewForRow_forComponent(1, 0))->text(), "b1");
}

// Places

TEST_F(UIPickerViewTest, ColumnsAre5ApartAndTogetherCentred) {
    source->rows = {10, 10, 10};
    wheel->reloadAllComponents();
    // 3 · 80 + 2 · 5 = 250, from 35 to 285.
    EXPECT_EQ(rowRect(0, 0), CGRectMake(35, 88, 80, 40));
    EXPECT_EQ(rowRect(0, 1), CGRectMake(120, 88, 80, 40));
    EXPECT_EQ(rowRect(0, 2), CGRectMake(205, 88, 80, 40));
    EXPECT_EQ(wheel->rowSizeForComponent(1), CGSizeMake(80, 40));
}

TEST_F(UIPickerViewTest, RowsFollowEachOtherByTheirHeightWhateverTheCylinderShows) {
    EXPECT_EQ(rowRect(1, 0), CGRectMake(120, 128, 80, 40));
    EXPECT_EQ(rowRect(2, 0), CGRectMake(120, 168, 80, 40));
    wheel->selectRow_inComponent_animated(50, 0, false);
    EXPECT_EQ(rowRect(49, 0), CGRectMake(120, 48, 80, 40));
}

TEST_F(UIPickerViewTest, ADelegateThatLeavesSizesToTheWheelGetsEqualSharesAndRowsOf32) {
    source->rows = {10, 10};
    source->width = source->height = UIPickerView::automaticDimension;
    wheel->reloadAllComponents();
    EXPECT_EQ(rowRect(0, 0), CGRectMake(0, 92, 157.5, 32)); // (320 − 5) / 2
    EXPECT_EQ(rowRect(0, 1), CGRectMake(162.5, 92, 157.5, 32));
}

TEST_F(UIPickerViewTest, InvalidSizesBecomeDefaults) {
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

TEST_F(UIPickerViewTest, OnlyVisibleRowsHaveViews) {
    EXPECT_TRUE(wheel->viewForRow_forComponent(2, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(20, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(-1, 0));
    EXPECT_FALSE(wheel->viewForRow_forComponent(0, 1));
}

TEST_F(UIPickerViewTest, WithoutBoundsThereAreNoViewsAndNoRowSize) {
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

TEST_F(UIPickerViewTest, AComponentThatDoesNotExistHasNoRowSize) {
    EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(80, 40));
    EXPECT_EQ(wheel->rowSizeForComponent(1), CGSizeMake(0, 0));
    EXPECT_EQ(wheel->rowSizeForComponent(-1), CGSizeMake(0, 0));
}

TEST_F(UIPickerViewTest, TheSameBoundsInvalidateNothing) {
    wheel->layoutIfNeeded();
    source->forget();
    wheel->setBounds(wheel->bounds());
    wheel->layoutIfNeeded();
    EXPECT_EQ(source->questions(), 0);
}

TEST_F(UIPickerViewTest, BeforeItsFirstLayoutAnAnimatedRequestArrivesAtOnce) {
    const auto window = create<UIWindow>(wheel->frame());
    window->addSubview(wheel);
    wheel->selectRow_inComponent_animated(50, 0, true);
    EXPECT_EQ(wheel->rowInSelectionIndicatorOfComponent(0), 50) << "there is no column yet that could move";
}

// Invalid counts and callbacks

TEST_F(UIPickerViewTest, NegativeCountsAre0) {
    source->rows = {-5};
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 0);
    source->componentAnswer = -3;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    wheel->layoutIfNeeded();
}

TEST_F(UIPickerViewTest, MoreColumnsThanTheHighestCountAreLeftOut) {
    source->componentAnswer = billion;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), UIPickerView::highestComponentCount);
    wheel->layoutIfNeeded();
}

TEST_F(UIPickerViewTest, HugeBoundsAndTinyRowsShowABoundedNumberOfRows) {
    source->rows = {billion};
    source->height = 1e-6;
    wheel->setFrame(CGRectMake(0, 0, 1e9, 1e9));
    wheel->layoutIfNeeded();
    EXPECT_LT(viewsBelow(*wheel), 250U);
}

TEST_F(UIPickerViewTest, ADataSourceMayCallBackDuringAQuery) {
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

TEST_F(UIPickerViewTest, ADataSourceThatReloadsAndQueriesGetsTheCachedCount) {
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
    EXPECT_EQ(asker->widths, (std::vector<CGFloat>{320, 80})) << "before the first width its share of the wheel";
}

TEST_F(UIPickerViewTest, AQueryThatRemovesTheColumnsEndsTheRequestAndTheQuery) {
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

TEST_F(UIPickerViewTest, ADelegateThatRemovesAColumnWhileItBindsRowsIsNotQueriedAgain) {
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

TEST_F(UIPickerViewTest, ADataSourceThatDiesHasNoRows) {
    EXPECT_EQ(wheel->numberOfComponents(), 1);
    source = nullptr;
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 0);
}

TEST_F(UIPickerViewTest, ADataSourceThatDiesLeavesAnEmptyWheel) {
    wheel->layoutIfNeeded();
    source = nullptr;
    wheel->reloadAllComponents();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    wheel->layoutIfNeeded();
    EXPECT_EQ(viewsBelow(*wheel), 0U);
}

TEST_F(UIPickerViewTest, AWheelRestoredFromACoderSpinsLikeAnyOther) {
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

TEST(UIPickerView, ADelegateWithDefaultsLeavesEverythingToTheWheel) {
    class Silent : public NSObject, public UIPickerViewDelegate {};
    const auto source = create<WheelSource>();
    const auto silent = create<Silent>();
    const auto wheel = create<UIPickerView>(CGRectMake(0, 0, 320, 216));
    wheel->setDataSource(source);
    wheel->setDelegate(silent);
    EXPECT_EQ(wheel->rowSizeForComponent(0), CGSizeMake(320, 32));
    const auto label = castTo<UILabel>(wheel->viewForRow_forComponent(0, 0));
    ASSERT_TRUE(label);
    EXPECT_FALSE(label->showsSomething());
    wheel->turnToRow_inComponent(3, 0);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 3);
}
