#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "GXLocalization.h"
#include "GXStyleSheet.h"
#include "MainScreen.h"
#include "NSLocale.h"
#include "NSRunLoop.h"
#include "TestWindow.h"
#include "UIScrollView.h"
#include "UITextEngine.h"

/// A gallery in a window, with fingers.
class GalleryTest : public testing::Test {
protected:
    gx::Ref<gallery::MainScreen> screen;
    std::unique_ptr<TestWindow> window;

    void TearDown() override {
        window = nullptr;
        screen = nullptr;
        gx::GXStyleSheet::setGlobalStyleSheet(nullptr);
        gx::NSLocale::setCurrentLocale(nullptr);
        gx::GXLocalization::setSharedLocalization(nullptr);
        gx::UITextEngine::setShared(nullptr);
    }

    void open(gx::CGFloat width, gx::CGFloat height) {
        screen = gx::create<gallery::MainScreen>(gx::CGRectMake(0, 0, width, height));
        window = std::make_unique<TestWindow>(screen);
        settle();
    }
    void show(const std::string& page, gx::CGFloat width = 390, gx::CGFloat height = 844) {
        open(width, height);
        const auto index = screen->indexOfPage(page);
        ASSERT_TRUE(index) << page;
        screen->showPage(*index);
        settle();
    }
    void settle() {
        gx::NSRunLoop::mainRunLoop()->runPass();
        window->runUntilStill();
    }

    gx::CGPoint middleOf(const gx::Ref<gx::UIView>& view, gx::CGRect part) {
        return view->convertPoint_toView({CGRectGetMidX(part), CGRectGetMidY(part)}, window->ref());
    }
    gx::CGPoint middleOf(const gx::Ref<gx::UIView>& view) { return middleOf(view, view->bounds()); }
    void tap(const gx::Ref<gx::UIView>& view) {
        window->tap(middleOf(view));
        settle();
    }
    /// Brings the control into sight first, as a user would.
    void tapSegment(const gx::Ref<gallery::SegmentedControl>& segments, std::size_t index) {
        bringIntoSight(segments);
        window->tap(middleOf(segments, segments->frameOfSegment(index)));
        settle();
    }
    void bringIntoSight(const gx::Ref<gx::UIView>& view) {
        const auto& scroll = screen->scroll();
        if (!view->isDescendantOfView(scroll)) return;
        const gx::CGRect inContent = scroll->content()->convertRect_fromView(view->bounds(), view);
        scroll->setOffset(CGRectGetMidY(inContent) - 0.5 * scroll->bounds().size.height);
        (*window)->layoutIfNeeded();
    }
    /// Drags a column of the page's wheel by whole rows; positive ones are further down the list.
    void turn(gx::NSInteger component, int rows) {
        const auto wheel = screen->page()->demo().wheel;
        bringIntoSight(wheel);
        const auto row = wheel->viewForRow_forComponent(wheel->selectedRowInComponent(component), component);
        ASSERT_TRUE(row);
        const gx::CGPoint from = middleOf(row);
        // A drag begins when the finger has moved further than the slop, which is 6 points on a
        // wheel of this library.
        const double slop = rows > 0 ? 6 : -6;
        const double way = rows * wheel->rowSizeForComponent(component).height + slop;
        window->drag(from, {from.x, from.y - way});
        settle();
    }
    /// "words | facts", newest first.
    std::vector<std::string> log() {
        std::vector<std::string> lines;
        for (const auto& notice : screen->page()->log()->notices()) lines.push_back(notice.words + " | " + notice.facts);
        return lines;
    }

    /// Every view that can be seen lies within its parent, but for what is scrolled. The inside of
    /// a wheel is the wheel's own business.
    static void expectInsideParents(const gx::Ref<gx::UIView>& view) {
        if (std::dynamic_pointer_cast<gx::UIPickerView>(view)) return;
        for (const auto& below : view->subviews()) {
            if (below->isHidden()) continue;
            EXPECT_GE(CGRectGetMinX(below->frame()), 0);
            EXPECT_LE(CGRectGetMaxX(below->frame()), view->bounds().size.width);
            if (!std::dynamic_pointer_cast<gx::UIScrollView>(view)) {
                EXPECT_GE(CGRectGetMinY(below->frame()), 0);
                EXPECT_LE(CGRectGetMaxY(below->frame()), view->bounds().size.height);
            }
            expectInsideParents(below);
        }
    }
    static void expectApart(const std::vector<gx::Ref<gx::UIView>>& views) {
        for (std::size_t i = 0; i < views.size(); ++i) {
            EXPECT_FALSE(CGRectIsEmpty(views[i]->frame()));
            for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(CGRectIntersectsRect(views[i]->frame(), views[j]->frame()));
        }
    }
};
