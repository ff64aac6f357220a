#include "NSRunLoop.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace gx;

namespace {

struct NSRunLoopTest : testing::Test {
    Ref<NSRunLoop> loop = create<NSRunLoop>();
    std::string log;

    std::function<void()> note(const char* name) {
        return [this, name] { log += name; };
    }
};

} // namespace

TEST_F(NSRunLoopTest, APassRunsInOrderWhatWasQueued) {
    loop->performBlock(note("a"));
    loop->performBlock(note("b"));
    loop->performBlock(note("c"));
    EXPECT_EQ(log, "") << "nothing runs at once";
    loop->runPass();
    EXPECT_EQ(log, "abc");
}

TEST_F(NSRunLoopTest, ABlockRunsOnce) {
    loop->performBlock(note("a"));
    loop->runPass();
    loop->runPass();
    EXPECT_EQ(log, "a");
}

TEST_F(NSRunLoopTest, WhatABlockQueuesWaitsForTheNextPass) {
    loop->performBlock([this] {
        log += "a";
        loop->performBlock(note("x"));
    });
    loop->performBlock(note("b"));
    loop->runPass();
    EXPECT_EQ(log, "ab");
    EXPECT_TRUE(loop->hasWork());
    loop->runPass();
    EXPECT_EQ(log, "abx");
    EXPECT_FALSE(loop->hasWork());
}

TEST_F(NSRunLoopTest, ABlockThatQueuesItselfRunsOncePerPass) {
    int runs = 0;
    std::function<void()> again = [&] {
        ++runs;
        loop->performBlock(again);
    };
    loop->performBlock(again);
    loop->runPass();
    EXPECT_EQ(runs, 1);
    loop->runPass();
    EXPECT_EQ(runs, 2);
}

TEST_F(NSRunLoopTest, APassWithinABlockTakesOverWhatIsStillToRun) {
    loop->performBlock([this] {
        log += "a";
        loop->performBlock(note("x"));
        loop->runPass();
        log += "A";
    });
    loop->performBlock(note("b"));
    loop->performBlock(note("c"));
    loop->runPass();
    EXPECT_EQ(log, "abcA") << "each once, and what was queued meanwhile waits";
    loop->runPass();
    EXPECT_EQ(log, "abcAx");
}

TEST_F(NSRunLoopTest, AnEmptyBlockIsIgnored) {
    loop->performBlock(nullptr);
    EXPECT_FALSE(loop->hasWork());
    loop->runPass();
    EXPECT_FALSE(loop->hasWork());
}

TEST_F(NSRunLoopTest, ItHasWorkFromTheFirstBlockUntilThePass) {
    EXPECT_FALSE(loop->hasWork());
    bool duringTheFirst = false;
    bool duringTheLast = true;
    loop->performBlock([&] { duringTheFirst = loop->hasWork(); });
    loop->performBlock([&] { duringTheLast = loop->hasWork(); });
    EXPECT_TRUE(loop->hasWork());
    loop->runPass();
    EXPECT_TRUE(duringTheFirst);
    EXPECT_FALSE(duringTheLast);
    EXPECT_FALSE(loop->hasWork());
}

TEST_F(NSRunLoopTest, TheHandlerIsWokenWhenTheQueueStopsBeingEmpty) {
    int wakes = 0;
    loop->setWakeHandler([&] { ++wakes; });
    EXPECT_EQ(wakes, 0) << "nothing is queued";
    loop->performBlock(note("a"));
    EXPECT_EQ(wakes, 1);
    loop->performBlock(note("b"));
    EXPECT_EQ(wakes, 1) << "it was not empty";
    loop->runPass();
    EXPECT_EQ(wakes, 1);
    loop->performBlock(note("c"));
    EXPECT_EQ(wakes, 2);
}

TEST_F(NSRunLoopTest, WhatIsQueuedDuringAPassWakesTheHandlerByItsEnd) {
    bool isWoken = false;
    loop->setWakeHandler([&] { isWoken = true; });
    loop->performBlock([&] {
        isWoken = false;
        loop->performBlock(note("x"));
    });
    loop->performBlock(note("b"));
    loop->runPass();
    EXPECT_TRUE(isWoken);
    EXPECT_EQ(log, "b");
}

TEST_F(NSRunLoopTest, AHandlerThatComesLateIsWokenForWhatWaits) {
    loop->performBlock(note("a"));
    int wakes = 0;
    loop->setWakeHandler([&] { ++wakes; });
    EXPECT_EQ(wakes, 1);
}

TEST_F(NSRunLoopTest, AHandlerMayReplaceItself) {
    loop->setWakeHandler([this] {
        loop->setWakeHandler(nullptr);
        log += "woken";
    });
    loop->performBlock(note("a"));
    EXPECT_EQ(log, "woken");
    loop->runPass();
    loop->performBlock(note("b"));
    EXPECT_EQ(log, "wokena");
}

TEST_F(NSRunLoopTest, AHandlerMayRunThePassAtOnce) {
    loop->setWakeHandler([this] { loop->runPass(); });
    loop->performBlock(note("a"));
    EXPECT_EQ(log, "a");
    EXPECT_FALSE(loop->hasWork());
}

TEST_F(NSRunLoopTest, ABlockIsLetGoOnceItHasRun) {
    const auto held = std::make_shared<int>(1);
    loop->performBlock([held] { (void)*held; });
    EXPECT_EQ(held.use_count(), 2);
    loop->runPass();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NSRunLoopTest, TheMainLoopIsAlwaysTheSame) {
    ASSERT_TRUE(NSRunLoop::mainRunLoop());
    EXPECT_EQ(NSRunLoop::mainRunLoop(), NSRunLoop::mainRunLoop());
    NSRunLoop::mainRunLoop()->performBlock(note("m"));
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(log, "m");
}
