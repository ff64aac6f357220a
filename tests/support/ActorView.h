#pragma once

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "UIWindow.h"

/// Notes the touches that reach it, moves while `movesOn`, and calls a function at each event.
struct ActorView : gx::UIView {
    std::string log;
    gx::UITouch last;
    gx::UIScroll lastScroll;
    bool takesTouches = true;
    bool usesScrolls = true;
    std::vector<gx::NSTimeInterval> times;
    bool movesOn = false;
    std::function<void()> whenBegan, whenCancelled, whenEnded, whenScrolled, whenAdvanced, whenLaidOut;

    bool touchBegan(const gx::UITouch& touch) override {
        note("began ", touch, whenBegan);
        return takesTouches;
    }
    void touchMoved(const gx::UITouch& touch) override { note("moved ", touch, nullptr); }
    void touchEnded(const gx::UITouch& touch) override { note("ended ", touch, whenEnded); }
    void touchCancelled(const gx::UITouch& touch) override { note("cancelled ", touch, whenCancelled); }
    bool scrolled(const gx::UIScroll& scroll) override {
        lastScroll = scroll;
        run(whenScrolled);
        return usesScrolls;
    }
    bool advanceToTime(gx::NSTimeInterval time) override {
        times.push_back(time);
        run(whenAdvanced);
        return movesOn;
    }
    void layoutSubviews() override {
        gx::UIView::layoutSubviews();
        run(whenLaidOut);
    }

private:
    static void run(std::function<void()> action) { // A copy: it may be replaced while it runs.
        if (action) action();
    }
    void note(const char* what, const gx::UITouch& touch, std::function<void()> action) {
        log += what + std::to_string(touch.identifier) + " ";
        last = touch;
        run(std::move(action));
    }
};

/// A window of 200 by 200 points with two views side by side.
struct WindowOfActors : testing::Test {
    gx::Ref<gx::UIWindow> window = gx::create<gx::UIWindow>(gx::CGRectMake(0, 0, 200, 200));
    gx::Ref<ActorView> actor = gx::create<ActorView>(gx::CGRectMake(10, 10, 100, 100));
    gx::Ref<ActorView> other = gx::create<ActorView>(gx::CGRectMake(110, 110, 50, 50));

    WindowOfActors() {
        window->addSubview(actor);
        window->addSubview(other);
        window->tick(0);
    }
    using Times = std::vector<gx::NSTimeInterval>;
};
