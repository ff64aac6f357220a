#include "NSObject.h"

#include <string>

#include <gtest/gtest.h>

#include "CGGeometry.h"
#include "NSCoder.h"
#include "NSRunLoop.h"

using namespace gx;

namespace {

/// Has every initialiser and notes which of them ran with what.
struct Everything : NSObject {
    std::string ran;

    bool init() override {
        ran = "init";
        return NSObject::init();
    }
    virtual bool initWithFrame(CGRect frame) {
        ran = "frame " + std::to_string(static_cast<int>(frame.size.width));
        return true;
    }
    virtual bool initWithFrame_rowHeight(CGRect frame, CGFloat height) {
        ran = "frame " + std::to_string(static_cast<int>(frame.size.width)) + " height " + std::to_string(static_cast<int>(height));
        return true;
    }
    virtual bool initWithCoder(const Ref<NSCoder>& coder) {
        ran = coder ? "coder" : "no coder";
        return true;
    }
    virtual bool initWithStyle_reuseIdentifier(NSInteger style, const std::string& identifier) {
        ran = "style " + std::to_string(style) + " " + identifier;
        return true;
    }
    virtual bool initWithStyle_isMetric_usingUnit(NSInteger style, bool isMetric, bool usesUnit) {
        ran = "style " + std::to_string(style) + (isMetric ? " metric" : " imperial") + (usesUnit ? " unit" : " bare");
        return true;
    }
    virtual bool initWithLocaleIdentifier(const std::string& identifier) {
        ran = "locale " + identifier;
        return true;
    }
};

// How they are made stands beside them.
bool initialise(Everything& object, CGRect frame) { return object.initWithFrame(frame); }
bool initialise(Everything& object, CGRect frame, CGFloat height) { return object.initWithFrame_rowHeight(frame, height); }
bool initialise(Everything& object, const Ref<NSCoder>& coder) { return object.initWithCoder(coder); }
bool initialise(Everything& object, NSInteger style, const std::string& identifier) {
    return object.initWithStyle_reuseIdentifier(style, identifier);
}
bool initialise(Everything& object, NSInteger style, bool isMetric, bool usesUnit) {
    return object.initWithStyle_isMetric_usingUnit(style, isMetric, usesUnit);
}
bool initialise(Everything& object, const std::string& identifier) { return object.initWithLocaleIdentifier(identifier); }

/// Its set-up calls an operation that its subclass overrides.
struct Base : NSObject {
    std::string name;
    bool init() override {
        if (!NSObject::init()) return false;
        setUp();
        return true;
    }
    virtual void setUp() { name = "base"; }
};
struct Derived : Base {
    void setUp() override {
        Base::setUp();
        name += " derived";
    }
};

/// Refuses unless its frame is wide enough, and counts its destructions.
struct Choosy : NSObject {
    static inline int destroyed = 0;
    ~Choosy() override { ++destroyed; }
    virtual bool initWithFrame(CGRect frame) { return frame.size.width >= 10; }
};

bool initialise(Choosy& object, CGRect frame) { return object.initWithFrame(frame); }

struct Counter : NSObject {
    int count = 0;
    Ref<Counter> seen;
    void increment() { ++count; }
    void look() { seen = refTo(this); }
};
struct SubCounter : Counter {};

} // namespace

namespace application {

/// As an application has it: a class of its own namespace with an initialiser of its own.
struct Gauge : NSObject {
    double lowest = 0, highest = 0;
    virtual bool initWithRange(double low, double high) {
        lowest = low;
        highest = high;
        return low <= high;
    }
};
bool initialise(Gauge& gauge, double lowest, double highest) { return gauge.initWithRange(lowest, highest); }

/// Hides the initialiser's name, and has another one beside it.
struct HidingGauge : Gauge {
    std::string initWithRange;
};
bool initialise(HidingGauge& gauge, const std::string& range) {
    gauge.initWithRange = range;
    return gauge.init();
}

/// Overrides it, without an overload beside it.
struct WideGauge : Gauge {
    bool initWithRange(double low, double high) override { return Gauge::initWithRange(low - 1, high + 1); }
};

} // namespace application

TEST(NSObject, CreateRunsAnInitialiserOfTheApplication) {
    using namespace application;
    const Ref<Gauge> gauge = create<Gauge>(2, 5.5);
    ASSERT_TRUE(gauge);
    EXPECT_EQ(gauge->lowest, 2);
    EXPECT_EQ(gauge->highest, 5.5);
    EXPECT_FALSE(create<Gauge>(3, 2)) << "refused";
    EXPECT_EQ(create<WideGauge>(2, 5)->lowest, 1) << "through the object";
}

TEST(NSObject, AHiddenInitialiserIsStillFound) {
    using namespace application;
    const Ref<HidingGauge> gauge = create<HidingGauge>(2, 5);
    ASSERT_TRUE(gauge);
    EXPECT_EQ(gauge->highest, 5);
    EXPECT_EQ(gauge->initWithRange, "");
    EXPECT_EQ(create<HidingGauge>("2 to 5")->initWithRange, "2 to 5");
}

TEST(NSObject, OnlyArgumentsThatAnInitialiserTakesCreateAnObject) {
    using application::Gauge;
    static_assert(Creatable<Gauge>);
    static_assert(Creatable<Gauge, int, double>);
    static_assert(!Creatable<Gauge, int>);
    static_assert(!Creatable<Gauge, double, double, double>);
    static_assert(!Creatable<Gauge, const char*, double>);
    static_assert(!Creatable<Counter, CGRect>);
    EXPECT_TRUE(create<Gauge>()) << "init is everybody's";
}

TEST(NSObject, CreateRunsTheInitialiserThatFitsTheArguments) {
    EXPECT_EQ(create<Everything>()->ran, "init");
    EXPECT_EQ(create<Everything>(CGRectMake(0, 0, 30, 40))->ran, "frame 30");
    EXPECT_EQ(create<Everything>(CGRectMake(0, 0, 30, 40), 17)->ran, "frame 30 height 17");
    EXPECT_EQ(create<Everything>(CGRectMake(0, 0, 30, 40), 17.0)->ran, "frame 30 height 17");
    EXPECT_EQ(create<Everything>(create<NSCoder>())->ran, "coder");
    EXPECT_EQ(create<Everything>(Ref<NSCoder>())->ran, "no coder");
    EXPECT_EQ(create<Everything>(3, "cell")->ran, "style 3 cell");
    EXPECT_EQ(create<Everything>(3, std::string("cell"))->ran, "style 3 cell");
    EXPECT_EQ(create<Everything>(2, true, false)->ran, "style 2 metric bare");
    EXPECT_EQ(create<Everything>(2, false, true)->ran, "style 2 imperial unit");
    EXPECT_EQ(create<Everything>("de_DE")->ran, "locale de_DE");
}

TEST(NSObject, AnInitialiserRunsThroughTheFinishedObject) { EXPECT_EQ(create<Derived>()->name, "base derived"); }

TEST(NSObject, CreateReturnsNothingIfTheInitialiserRefused) {
    Choosy::destroyed = 0;
    EXPECT_FALSE(create<Choosy>(CGRectMake(0, 0, 9, 9)));
    EXPECT_EQ(Choosy::destroyed, 1);
    EXPECT_TRUE(create<Choosy>(CGRectMake(0, 0, 10, 9)));
}

TEST(NSObject, ARefusalOfTheSuperclassIsHandedOn) {
    struct Refusing : Choosy {
        bool ranOn = false;
        bool initWithFrame(CGRect frame) override {
            if (!Choosy::initWithFrame(frame)) return false;
            ranOn = true;
            return true;
        }
    };
    EXPECT_FALSE(create<Refusing>(CGRectZero));
    const Ref<Refusing> made = create<Refusing>(CGRectMake(0, 0, 10, 0));
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->ranOn);
}

TEST(NSObject, AReferenceFromInsideSharesTheOwner) {
    const Ref<Counter> object = create<Counter>();
    const Ref<Counter> inside = refTo(object.get());
    EXPECT_EQ(inside, object);
    EXPECT_EQ(object.use_count(), 2);
}

TEST(NSObject, AReferenceToNothingOrToAnObjectWithoutAnOwnerIsEmpty) {
    EXPECT_FALSE(refTo(static_cast<Counter*>(nullptr)));
    Counter local;
    EXPECT_FALSE(refTo(&local));
}

TEST(NSObject, AReferenceFromTheDestructorIsEmpty) {
    struct Dying : NSObject {
        explicit Dying(bool* isEmpty) : isEmpty_(isEmpty) {}
        ~Dying() override { *isEmpty_ = refTo(this) == nullptr; }
        bool* isEmpty_;
    };
    bool isEmpty = false;
    std::make_shared<Dying>(&isEmpty).reset();
    EXPECT_TRUE(isEmpty);
}

TEST(NSObject, ASelectorRunsAtOnceWhenItIsWaitedFor) {
    const Ref<Counter> object = create<Counter>();
    object->performSelectorOnMainThread_waitUntilDone(&Counter::increment, true);
    EXPECT_EQ(object->count, 1);
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(object->count, 1);
}

TEST(NSObject, ASelectorThatIsNotWaitedForRunsInTheNextPass) {
    const Ref<Counter> object = create<Counter>();
    object->performSelectorOnMainThread_waitUntilDone(&Counter::increment, false);
    object->performSelectorOnMainThread_waitUntilDone(&Counter::increment, false);
    EXPECT_EQ(object->count, 0);
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(object->count, 2);
}

TEST(NSObject, AQueuedSelectorDoesNotKeepItsObjectAlive) {
    Ref<Counter> object = create<Counter>();
    const WeakRef<Counter> weak = object;
    object->performSelectorOnMainThread_waitUntilDone(&Counter::increment, false);
    object = nullptr;
    EXPECT_TRUE(weak.expired());
    EXPECT_TRUE(NSRunLoop::mainRunLoop()->hasWork());
    NSRunLoop::mainRunLoop()->runPass(); // Its object is gone: nothing to run it on.
    EXPECT_FALSE(NSRunLoop::mainRunLoop()->hasWork());
}

TEST(NSObject, ASelectorOfASuperclassRunsOnASubclass) {
    const Ref<SubCounter> object = create<SubCounter>();
    object->performSelectorOnMainThread_waitUntilDone(&Counter::look, false);
    NSRunLoop::mainRunLoop()->runPass();
    EXPECT_EQ(object->seen, object);
    object->seen = nullptr;
}
