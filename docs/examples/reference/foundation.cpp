// Examples of the reference: numbers, objects and geometry.
//
// What stands between two marks with a class's name is shown on its page, and the lines with ///
// above it as its pitfalls. Each example is a test.

#include <GXUIPickers/GXUIPickers.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace gx;

namespace {

TEST(ReferenceExamples, Geometry) {
    // [CGPoint CGSize CGRect]
    /// - A side may be negative: read edges with `CGRectGetMinX` and its kin, not from `origin`.
    /// - `CGRectEqualToRect` compares areas, `==` compares members.
    /// - The right and bottom edges do not belong to a rectangle.
    const CGRect row = CGRectMake(10, 20, 300, 40);
    EXPECT_EQ(CGRectGetMaxX(row), 310);
    EXPECT_TRUE(CGRectContainsPoint(row, CGPointMake(10, 20)));
    EXPECT_FALSE(CGRectContainsPoint(row, CGPointMake(310, 20)));

    const CGRect backwards = {CGPointMake(310, 60), CGSizeMake(-300, -40)};
    EXPECT_TRUE(CGRectEqualToRect(row, backwards)); // The same area …
    EXPECT_FALSE(row == backwards);                 // … written in another way.
    // [CGPoint CGSize CGRect]
}

TEST(ReferenceExamples, Numbers) {
    // [NSNumber]
    /// - An empty handle is no zero: it is false as `bool`, but reads as 0.
    /// - Two boxes of one number are not identical. Range setters of pickers compare identity, so a
    ///   new box with the same number reloads the wheel.
    /// - There is no `==`: compare the values that you read.
    const NSNumber metres = NSNumber::numberWithDouble(5300.7);
    EXPECT_EQ(metres.integerValue(), 5300); // Toward zero.
    EXPECT_EQ(metres.doubleValue(), 5300.7);

    const NSNumber notSet;
    EXPECT_FALSE(notSet);
    EXPECT_EQ(notSet.integerValue(), 0);

    EXPECT_EQ(NSNumber::numberWithDouble(1e30).intValue(), 2147483647); // Saturates.
    EXPECT_EQ(NSNumber::numberWithDouble(std::nan("")).integerValue(), 0);
    EXPECT_FALSE(NSNumber::numberWithInt(5).isIdenticalTo(NSNumber::numberWithInt(5)));
    // [NSNumber]
}

// [NSObject NSClass]
/// - `create<T>` returns nothing if the initialiser refused: check it where that can be.
/// - In a C++ constructor the object is not finished: no operation that a subclass overrides
///   reaches the subclass, and `refTo(this)` is empty. Set up in an initialiser.
/// - A class that can be asked for needs its own `kind`; without one `asKindOf` finds its base.
class Gauge : public NSObject {
public:
    static const NSClass kind;
    bool isKindOfClass(const NSClass& asked) const override { return &asked == &kind || NSObject::isKindOfClass(asked); }

    virtual bool initWithHighest(double highest) {
        highest_ = highest;
        return highest > 0;
    }
    double highest() const { return highest_; }

private:
    double highest_ = 0;
};
const NSClass Gauge::kind = {"Gauge"};
/// How `create` makes a gauge: `(highest)`.
bool initialise(Gauge& gauge, double highest) { return gauge.initWithHighest(highest); }
// [NSObject NSClass]

TEST(ReferenceExamples, Objects) {
    // [NSObject NSClass]
    const Ref<Gauge> gauge = create<Gauge>(10.0);
    EXPECT_EQ(gauge->highest(), 10);
    EXPECT_EQ(create<Gauge>(-1.0), nullptr); // Refused.

    const Ref<NSObject> object = gauge;
    EXPECT_EQ(asKindOf<Gauge>(object), gauge);
    // [NSObject NSClass]
}

TEST(ReferenceExamples, RunLoops) {
    // [NSRunLoop NSBlockQueue]
    /// - Nothing runs by itself: without a host, call `runPass`.
    /// - A block keeps what it captures alive until it has run. Capture a `WeakRef` for an object
    ///   that may go before.
    /// - A block that queues itself again waits for the next pass, so a pass always ends.
    int passes = 0;
    const Ref<NSRunLoop> loop = NSRunLoop::mainRunLoop();
    loop->performBlock([&passes] { ++passes; });
    EXPECT_EQ(passes, 0); // Not before this call has returned.
    loop->runPass();
    EXPECT_EQ(passes, 1);
    EXPECT_FALSE(loop->hasWork());
    // [NSRunLoop NSBlockQueue]
}

TEST(ReferenceExamples, Coders) {
    // [NSCoder]
    /// - `create<T>(coder)` does not call `awakeFromNib`: call it once all views are connected.
    /// - A misspelt key is no error; it reads as 0, false or nothing.
    const Ref<NSCoder> coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(0, 0, 320, 216), "frame");
    coder->encodeDouble_forKey(0.5, "alpha");
    const Ref<UIView> view = create<UIView>(coder);
    EXPECT_EQ(view->bounds().size.width, 320);
    EXPECT_EQ(view->alpha(), 0.5);
    EXPECT_EQ(coder->decodeIntegerForKey("tag"), 0); // There is none.
    // [NSCoder]
}

TEST(ReferenceExamples, IndexPaths) {
    // [NSIndexPath]
    /// - The row comes first in the name, the section first in the braces: `{section, row}`.
    /// - A path names a place, not a thing: after an insertion above, it is another row's.
    const NSIndexPath path = NSIndexPath::indexPathForRow_inSection(2, 0);
    EXPECT_EQ(path, (NSIndexPath{0, 2}));
    EXPECT_LT(path, (NSIndexPath{1, 0})); // From top to bottom.
    // [NSIndexPath]
}

TEST(ReferenceExamples, Locales) {
    const Ref<NSLocale> before = NSLocale::currentLocale();
    // [NSLocale]
    /// - It changes nothing on screen: call `reloadData` of pickers afterwards.
    /// - It is not the language of the texts: that is `GXLocalization::setLanguage`.
    /// - The separator may be more than one byte long.
    const Ref<NSLocale> german = NSLocale::localeWithIdentifier("de_DE");
    EXPECT_EQ(german->objectForKey(NSLocaleDecimalSeparator), ",");
    EXPECT_TRUE(NSLocale::localeWithIdentifier("he")->isRightToLeft());

    german->setDecimalSeparator("."); // This user prefers it.
    NSLocale::setCurrentLocale(german);
    EXPECT_EQ(NSLocale::currentLocale(), german);
    // [NSLocale]
    NSLocale::setCurrentLocale(before);
}

} // namespace
