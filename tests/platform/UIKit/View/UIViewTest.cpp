// A view's properties: each setter holds its value to the range, returns if nothing changes,
// stores, tells, and asks for a frame.

#include "UIView.h"

#include <limits>

#include <gtest/gtest.h>

#include "UIWindow.h"

using namespace gx;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct TintNoting : UIView {
    std::vector<UIColor> seen;
    void tintColorDidChange() override { seen.push_back(tintColor()); }
};

struct UIViewTest : testing::Test {
    Ref<UIWindow> window = create<UIWindow>(CGRectMake(0, 0, 300, 300));
    Ref<UIView> view = create<UIView>(CGRectMake(10, 20, 100, 50));
    double now = 0;

    UIViewTest() {
        window->addSubview(view);
        window->tick(now);
    }
    /// Whether the change makes the window ask for a frame.
    template <class Change>
    bool repaints(const Change& change) {
        while (window->tick(++now)) {
        }
        change();
        return window->tick(++now);
    }
};

const UIColor red = UIColor::colorWithHex(0xFF0000);
const UIColor green = UIColor::colorWithHex(0x00FF00);

} // namespace

TEST_F(UIViewTest, ANewViewIsVisibleOpaqueAndTakesTouches) {
    const auto fresh = create<UIView>();
    EXPECT_EQ(fresh->frame(), CGRectZero);
    EXPECT_EQ(fresh->bounds(), CGRectZero);
    EXPECT_FALSE(fresh->superview());
    EXPECT_FALSE(fresh->window());
    EXPECT_TRUE(fresh->subviews().empty());
    EXPECT_TRUE(fresh->constraints().empty());
    EXPECT_EQ(fresh->alpha(), 1);
    EXPECT_FALSE(fresh->isHidden());
    EXPECT_FALSE(fresh->clipsToBounds());
    EXPECT_TRUE(fresh->isUserInteractionEnabled());
    EXPECT_TRUE(fresh->translatesAutoresizingMaskIntoConstraints());
    EXPECT_EQ(fresh->backgroundColor(), std::nullopt);
    EXPECT_EQ(fresh->tintColor(), UIColor::systemBlueColor());
    EXPECT_EQ(fresh->cornerRadius(), 0);
    EXPECT_EQ(fresh->tag(), 0);
    EXPECT_TRUE(fresh->showsSomething());
}

TEST_F(UIViewTest, InitRunsInitWithFrameOfTheSubclass) {
    struct Noting : UIView {
        CGRect given = CGRectNull;
        bool initWithFrame(CGRect frame) override {
            given = frame;
            return UIView::initWithFrame(frame);
        }
    };
    EXPECT_EQ(create<Noting>()->given, CGRectZero);
    EXPECT_EQ(create<Noting>(CGRectMake(1, 2, 3, 4))->given, CGRectMake(1, 2, 3, 4));
}

// Alpha

TEST_F(UIViewTest, AlphaIsClampedToZeroToOne) {
    view->setAlpha(0.25);
    EXPECT_EQ(view->alpha(), 0.25);
    view->setAlpha(1.5);
    EXPECT_EQ(view->alpha(), 1);
    view->setAlpha(-0.5);
    EXPECT_EQ(view->alpha(), 0);
    view->setAlpha(inf);
    EXPECT_EQ(view->alpha(), 1);
    view->setAlpha(notANumber);
    EXPECT_EQ(view->alpha(), 0);
}

TEST_F(UIViewTest, AnotherAlphaRequestsAFrameAndTheSameDoesNot) {
    EXPECT_TRUE(repaints([this] { view->setAlpha(0.5); }));
    EXPECT_FALSE(repaints([this] { view->setAlpha(0.5); }));
    EXPECT_TRUE(repaints([this] { view->setAlpha(1); }));
    EXPECT_FALSE(repaints([this] { view->setAlpha(7); })) << "held to 1, which it is";
}

// Hidden, clipping, corners, colours

TEST_F(UIViewTest, HidingRequestsAFrameOnce) {
    EXPECT_TRUE(repaints([this] { view->setHidden(true); }));
    EXPECT_TRUE(view->isHidden());
    EXPECT_FALSE(repaints([this] { view->setHidden(true); }));
    EXPECT_TRUE(repaints([this] { view->setHidden(false); }));
    EXPECT_FALSE(view->isHidden());
}

TEST_F(UIViewTest, ClippingRequestsAFrameOnce) {
    EXPECT_TRUE(repaints([this] { view->setClipsToBounds(true); }));
    EXPECT_TRUE(view->clipsToBounds());
    EXPECT_FALSE(repaints([this] { view->setClipsToBounds(true); }));
}

TEST_F(UIViewTest, ACornerRadiusIsNeverBelowZero) {
    EXPECT_TRUE(repaints([this] { view->setCornerRadius(6); }));
    EXPECT_EQ(view->cornerRadius(), 6);
    EXPECT_FALSE(repaints([this] { view->setCornerRadius(6); }));
    view->setCornerRadius(-1);
    EXPECT_EQ(view->cornerRadius(), 0);
    view->setCornerRadius(notANumber);
    EXPECT_EQ(view->cornerRadius(), 0);
    EXPECT_FALSE(repaints([this] { view->setCornerRadius(-3); }));
}

TEST_F(UIViewTest, ABackgroundRequestsAFrameOnce) {
    EXPECT_TRUE(repaints([this] { view->setBackgroundColor(red); }));
    EXPECT_EQ(view->backgroundColor(), red);
    EXPECT_FALSE(repaints([this] { view->setBackgroundColor(UIColor::colorWithHex(0xFF0000)); }));
    EXPECT_TRUE(repaints([this] { view->setBackgroundColor(std::nullopt); }));
    EXPECT_EQ(view->backgroundColor(), std::nullopt);
    EXPECT_FALSE(repaints([this] { view->setBackgroundColor(std::nullopt); }));
}

TEST_F(UIViewTest, TagAndInteractionAndMaskAreKeptAndChangeNothingOnScreen) {
    EXPECT_FALSE(repaints([this] {
        view->setTag(-12);
        view->setUserInteractionEnabled(false);
        view->setTranslatesAutoresizingMaskIntoConstraints(false);
    }));
    EXPECT_EQ(view->tag(), -12);
    EXPECT_FALSE(view->isUserInteractionEnabled());
    EXPECT_FALSE(view->translatesAutoresizingMaskIntoConstraints());
}

TEST_F(UIViewTest, FramesBoundsAndCentresRequestAFrameWhenTheyChange) {
    EXPECT_TRUE(repaints([this] { view->setFrame(CGRectMake(11, 20, 100, 50)); }));
    EXPECT_FALSE(repaints([this] { view->setFrame(CGRectMake(11, 20, 100, 50)); }));
    EXPECT_TRUE(repaints([this] { view->setBounds(CGRectMake(0, 5, 100, 50)); }));
    EXPECT_FALSE(repaints([this] { view->setBounds(CGRectMake(0, 5, 100, 50)); }));
    EXPECT_TRUE(repaints([this] { view->setCenter({100, 100}); }));
    EXPECT_FALSE(repaints([this] { view->setCenter({100, 100}); }));
}

TEST_F(UIViewTest, AViewWithoutAWindowRequestsNoFrame) {
    view->removeFromSuperview();
    EXPECT_FALSE(repaints([this] { view->setAlpha(0.5); }));
}

// Tint

TEST_F(UIViewTest, ATintIsInheritedByAllWithoutTheirOwn) {
    const auto inner = create<UIView>();
    view->addSubview(inner);
    window->setTintColor(red);
    EXPECT_EQ(view->tintColor(), red);
    EXPECT_EQ(inner->tintColor(), red);
    view->setTintColor(green);
    EXPECT_EQ(inner->tintColor(), green);
    EXPECT_EQ(window->tintColor(), red);
    view->setTintColor(std::nullopt);
    EXPECT_EQ(inner->tintColor(), red);
    window->setTintColor(std::nullopt);
    EXPECT_EQ(inner->tintColor(), UIColor::systemBlueColor());
}

TEST_F(UIViewTest, EachViewWithAnotherTintIsNotifiedOnce) {
    const auto tinted = create<TintNoting>();
    const auto below = create<TintNoting>();
    const auto own = create<TintNoting>();
    view->addSubview(tinted);
    tinted->addSubview(below);
    tinted->addSubview(own);
    own->setTintColor(green);
    EXPECT_EQ(own->seen, std::vector<UIColor>{green});
    own->seen.clear();
    window->setTintColor(red);
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{red});
    EXPECT_EQ(below->seen, std::vector<UIColor>{red});
    EXPECT_EQ(own->seen, std::vector<UIColor>{}) << "it has its own";
}

TEST_F(UIViewTest, ATintThatChangesNothingNotifiesNoView) {
    const auto tinted = create<TintNoting>();
    view->addSubview(tinted);
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{}) << "blue before and after";
    tinted->setTintColor(UIColor::systemBlueColor());
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{});
    window->setTintColor(red);
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{}) << "blue is its own now";
    tinted->setTintColor(std::nullopt);
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{red});
}

TEST_F(UIViewTest, AnotherTintRequestsAFrame) {
    EXPECT_TRUE(repaints([this] { view->setTintColor(red); }));
    EXPECT_FALSE(repaints([this] { view->setTintColor(red); }));
}

TEST_F(UIViewTest, AViewThatComesUnderATintIsNotified) {
    window->setTintColor(red);
    const auto tinted = create<TintNoting>();
    view->addSubview(tinted);
    EXPECT_EQ(tinted->seen, std::vector<UIColor>{red});
    tinted->removeFromSuperview();
    EXPECT_EQ(tinted->seen, (std::vector<UIColor>{red, UIColor::systemBlueColor()}));
}

TEST_F(UIViewTest, AViewThatMovesBetweenTwoTintsIsNotifiedOfTheLast) {
    window->setTintColor(red);
    const auto other = create<UIView>();
    window->addSubview(other);
    const auto tinted = create<TintNoting>();
    view->addSubview(tinted);
    other->addSubview(tinted);
    ASSERT_FALSE(tinted->seen.empty());
    EXPECT_EQ(tinted->tintColor(), red);
    EXPECT_EQ(tinted->seen.back(), red) << "the last it was told";
}

TEST_F(UIViewTest, ATintNotifiesAllThoughOneOfThemLeaves) {
    struct Leaving : TintNoting {
        void tintColorDidChange() override {
            TintNoting::tintColorDidChange();
            if (tintColor() == red) removeFromSuperview();
        }
    };
    const auto leaving = create<Leaving>();
    const auto staying = create<TintNoting>();
    view->addSubview(leaving);
    view->addSubview(staying);
    window->setTintColor(red);
    EXPECT_EQ(leaving->seen, (std::vector<UIColor>{red, UIColor::systemBlueColor()}));
    EXPECT_EQ(staying->seen, std::vector<UIColor>{red});
}

TEST_F(UIViewTest, AViewThatASiblingRemovesIsNotNotifiedOfTheTintThere) {
    struct Taker : UIView {
        WeakRef<UIView> victim;
        void tintColorDidChange() override {
            if (const Ref<UIView> view = victim.lock()) view->removeFromSuperview();
        }
    };
    const auto taker = create<Taker>();
    const auto taken = create<TintNoting>();
    view->addSubview(taker);
    view->addSubview(taken);
    taker->victim = taken;
    window->setTintColor(red);
    // It saw red until it was taken away, and blue since; it was not notified of the red yet.
    EXPECT_EQ(taken->seen, std::vector<UIColor>{UIColor::systemBlueColor()});
}

// Restoring

TEST_F(UIViewTest, ACoderRestoresWhatItHas) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(1, 2, 30, 40), "frame");
    coder->encodeCGRect_forKey(CGRectMake(5, 6, 30, 40), "bounds");
    coder->encodeBool_forKey(true, "hidden");
    coder->encodeBool_forKey(false, "userInteractionEnabled");
    coder->encodeBool_forKey(true, "clipsToBounds");
    coder->encodeDouble_forKey(0.5, "alpha");
    coder->encodeInteger_forKey(77, "tag");
    coder->encodeInteger_forKey(0xFF0000, "backgroundColor");
    coder->encodeInteger_forKey(0x00FF00, "tintColor");
    const auto restored = create<UIView>(coder);
    EXPECT_EQ(restored->frame(), CGRectMake(1, 2, 30, 40));
    EXPECT_EQ(restored->bounds(), CGRectMake(5, 6, 30, 40));
    EXPECT_TRUE(restored->isHidden());
    EXPECT_FALSE(restored->isUserInteractionEnabled());
    EXPECT_TRUE(restored->clipsToBounds());
    EXPECT_EQ(restored->alpha(), 0.5);
    EXPECT_EQ(restored->tag(), 77);
    EXPECT_EQ(restored->backgroundColor(), red);
    EXPECT_EQ(restored->tintColor(), green);
}

TEST_F(UIViewTest, ACodersBoundsGiveTheSizeWhereItHasNoFrame) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(5, 6, 30, 40), "bounds");
    const auto restored = create<UIView>(coder);
    EXPECT_EQ(restored->frame(), CGRectMake(0, 0, 30, 40));
    EXPECT_EQ(restored->bounds(), CGRectMake(5, 6, 30, 40));
}

TEST_F(UIViewTest, WithoutACoderOrItsKeysAllDefaultsHold) {
    for (const auto& restored : {create<UIView>(Ref<NSCoder>()), create<UIView>(create<NSCoder>())}) {
        EXPECT_EQ(restored->frame(), CGRectZero);
        EXPECT_EQ(restored->bounds(), CGRectZero);
        EXPECT_FALSE(restored->isHidden());
        EXPECT_TRUE(restored->isUserInteractionEnabled());
        EXPECT_FALSE(restored->clipsToBounds());
        EXPECT_EQ(restored->alpha(), 1);
        EXPECT_EQ(restored->tag(), 0);
        EXPECT_EQ(restored->backgroundColor(), std::nullopt);
        EXPECT_EQ(restored->tintColor(), UIColor::systemBlueColor());
    }
}

TEST_F(UIViewTest, RestoredValuesAreClamped) {
    const auto coder = create<NSCoder>();
    coder->encodeDouble_forKey(4, "alpha");
    EXPECT_EQ(create<UIView>(coder)->alpha(), 1);
}

TEST_F(UIViewTest, CreatingFromACoderDoesNotAwakeTheView) {
    struct Sleeper : UIView {
        int awakenings = 0;
        void awakeFromNib() override { ++awakenings; }
    };
    const auto restored = create<Sleeper>(create<NSCoder>());
    EXPECT_EQ(restored->awakenings, 0);
    restored->awakeFromNib();
    EXPECT_EQ(restored->awakenings, 1);
}
