#include "NSLayoutConstraint.h"

#include <functional>

#include <gtest/gtest.h>

#include "UIView.h"

using namespace gx;

namespace {

using Pin = std::pair<NSLayoutAttribute, CGFloat>;
constexpr auto left = NSLayoutAttribute::Left;
constexpr auto right = NSLayoutAttribute::Right;
constexpr auto top = NSLayoutAttribute::Top;
constexpr auto bottom = NSLayoutAttribute::Bottom;

/// A view that counts its frames and may do something when it gets one.
struct Placed : UIView {
    int frames = 0;
    std::function<void()> whenPlaced;
    void setFrame(CGRect frame) override {
        ++frames;
        UIView::setFrame(frame);
        const std::function<void()> action = whenPlaced;
        if (action) action();
    }
};

struct NSLayoutConstraintTest : testing::Test {
    Ref<UIView> holder = create<UIView>(CGRectMake(0, 0, 200, 100));
    Ref<Placed> view = create<Placed>(CGRectMake(1, 2, 30, 40));
    NSLayoutConstraint::Metrics metrics = {{"gap", 12.5}, {"gap_2", 3}, {"inset", -4}};

    NSLayoutConstraintTest() { holder->addSubview(view); }

    std::vector<Ref<NSLayoutConstraint>> constraints(const std::string& format) const {
        return NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views(format, 0, metrics,
                                                                                     {{"view", view}, {"none", nullptr}});
    }
    std::vector<Pin> pins(const std::string& format) const {
        std::vector<Pin> found;
        for (const auto& constraint : constraints(format)) found.emplace_back(constraint->attribute(), constraint->constant());
        return found;
    }
    CGRect frameAfter(const std::vector<std::string>& formats) {
        for (const std::string& format : formats) holder->addConstraints(constraints(format));
        holder->layoutIfNeeded();
        return view->frame();
    }
};

} // namespace

// Formats

TEST_F(NSLayoutConstraintTest, AFormatPinsTheSidesThatItNames) {
    EXPECT_EQ(pins("H:|[view]|"), (std::vector<Pin>{{left, 0}, {right, 0}}));
    EXPECT_EQ(pins("V:|[view]|"), (std::vector<Pin>{{top, 0}, {bottom, 0}}));
    EXPECT_EQ(pins("H:|[view]"), (std::vector<Pin>{{left, 0}}));
    EXPECT_EQ(pins("V:[view]|"), (std::vector<Pin>{{bottom, 0}}));
    EXPECT_EQ(pins("H:[view]"), std::vector<Pin>{});
}

TEST_F(NSLayoutConstraintTest, PinnedEdgesAreThoseOfAFormatWithoutDistances) {
    const auto pinned = NSLayoutConstraint::constraintsPinningView_toEdges(view, {left, right, bottom});
    std::vector<Pin> found;
    for (const auto& constraint : pinned) {
        EXPECT_EQ(constraint->firstItem(), view);
        found.emplace_back(constraint->attribute(), constraint->constant());
    }
    EXPECT_EQ(found, (std::vector<Pin>{{left, 0}, {right, 0}, {bottom, 0}}));
    EXPECT_TRUE(NSLayoutConstraint::constraintsPinningView_toEdges(nullptr, {left}).empty());
}

TEST_F(NSLayoutConstraintTest, AFormatWithoutADirectionIsHorizontal) {
    EXPECT_EQ(pins("|[view]|"), (std::vector<Pin>{{left, 0}, {right, 0}}));
}

TEST_F(NSLayoutConstraintTest, ADashAloneIsTheStandardDistance) {
    EXPECT_EQ(pins("H:|-[view]-|"), (std::vector<Pin>{{left, 8}, {right, 8}}));
    EXPECT_EQ(pins("V:|-[view]|"), (std::vector<Pin>{{top, 8}, {bottom, 0}}));
}

TEST_F(NSLayoutConstraintTest, DistancesAreNumbersWithOrWithoutBrackets) {
    EXPECT_EQ(pins("H:|-5-[view]-(12)-|"), (std::vector<Pin>{{left, 5}, {right, 12}}));
    EXPECT_EQ(pins("V:|-(0)-[view]-2.25-|"), (std::vector<Pin>{{top, 0}, {bottom, 2.25}}));
    EXPECT_EQ(pins("H:|-0.1-[view]"), (std::vector<Pin>{{left, 0.1}}));
    EXPECT_EQ(pins("H:|-999999999-[view]"), (std::vector<Pin>{{left, 999999999}}));
}

TEST_F(NSLayoutConstraintTest, DistancesMayBeNamesOfMetrics) {
    EXPECT_EQ(pins("H:|-gap-[view]-(gap_2)-|"), (std::vector<Pin>{{left, 12.5}, {right, 3}}));
    EXPECT_EQ(pins("H:|-inset-[view]"), (std::vector<Pin>{{left, -4}})) << "outside the holder";
}

TEST_F(NSLayoutConstraintTest, AConstraintNamesItsViewAndHoldsItWeakly) {
    auto made = constraints("H:|[view]");
    ASSERT_EQ(made.size(), 1U);
    EXPECT_EQ(made[0]->firstItem(), view);
    view->removeFromSuperview();
    view = nullptr;
    EXPECT_FALSE(made[0]->firstItem());
}

TEST_F(NSLayoutConstraintTest, AnyOtherFormatGivesNoConstraints) {
    for (const char* format : {"",
                               "|",
                               "H:",
                               "H:||",
                               "V:view",
                               "H:|view|",
                               "H:|[view",
                               "H:|view]|",
                               "H:view]",
                               "H:view]|",
                               "V:view]-|",
                               "view]|",
                               "H:|-view]|",
                               "H:|-5-view]|",
                               "H:[view]-5|",
                               "H:|[]|",
                               "H:|[view]||",
                               "H:|[view]| ",
                               " H:|[view]|",
                               "H:|--[view]|",
                               "H:|-[view]-",
                               "H:|-5[view]|",
                               "H:|5-[view]|",
                               "H:|-(5-[view]|",
                               "H:|-5)-[view]|",
                               "H:|-()-[view]|",
                               "H:|-5.-[view]|",
                               "H:|-.5-[view]|",
                               "H:|-1,5-[view]|",
                               "H:|--5-[view]|",
                               "H:|-1234567890-[view]|",
                               "H:|->=5-[view]|",
                               "H:|-5",
                               "H:[view]-unknown-|",
                               "H:|[vi{ew]|",
                               "H:|-unknown-[view]|",
                               "H:|[view(100)]|",
                               "H:[view][view]",
                               "H:|[view]-[view]|",
                               "X:|[view]|",
                               "V|[view]|",
                               "h:|[view]|",
                               "H:|[unknown]|",
                               "H:|[none]|",
                               "H:|[vi\xC3\xA9w]|"}) {
        EXPECT_TRUE(constraints(format).empty()) << format;
    }
}

// Placing

TEST_F(NSLayoutConstraintTest, TwoOppositePinsGivePlaceAndSize) {
    EXPECT_EQ(frameAfter({"H:|-10-[view]-20-|", "V:|[view]|"}), CGRectMake(10, 0, 170, 100));
}

TEST_F(NSLayoutConstraintTest, OnePinMovesTheViewAndKeepsItsSize) {
    EXPECT_EQ(frameAfter({"H:[view]-20-|", "V:|-5-[view]"}), CGRectMake(150, 5, 30, 40));
}

TEST_F(NSLayoutConstraintTest, ADirectionWithoutPinsIsLeftAlone) { EXPECT_EQ(frameAfter({"H:|[view]|"}), CGRectMake(0, 2, 200, 40)); }

TEST_F(NSLayoutConstraintTest, ALaterPinOfTheSameEdgeWins) {
    EXPECT_EQ(frameAfter({"H:|-10-[view]-10-|", "H:|-30-[view]"}), CGRectMake(30, 2, 160, 40));
}

TEST_F(NSLayoutConstraintTest, PinsFurtherApartThanTheHolderGiveNoNegativeSize) {
    EXPECT_EQ(frameAfter({"H:|-150-[view]-150-|"}), CGRectMake(150, 2, 0, 40));
}

TEST_F(NSLayoutConstraintTest, AViewWithoutAPlaceIsPlacedByItsPins) {
    view->setFrame(CGRectNull);
    EXPECT_EQ(frameAfter({"H:|[view]|", "V:|[view]|"}), CGRectMake(0, 0, 200, 100));
}

TEST_F(NSLayoutConstraintTest, PinsFollowTheSizeAndTheOriginOfTheHoldersBounds) {
    EXPECT_EQ(frameAfter({"H:|[view]|", "V:[view]-10-|"}), CGRectMake(0, 50, 200, 40));
    holder->setFrame(CGRectMake(0, 0, 300, 200));
    holder->layoutIfNeeded();
    EXPECT_EQ(view->frame(), CGRectMake(0, 150, 300, 40));
    holder->setBounds(CGRectMake(7, 9, 100, 100));
    holder->layoutIfNeeded();
    EXPECT_EQ(view->frame(), CGRectMake(7, 59, 100, 40));
}

TEST_F(NSLayoutConstraintTest, AllPinsOfAViewPlaceItOnceThroughItsSetFrame) {
    view->frames = 0;
    frameAfter({"H:|[view]|", "V:|[view]|"});
    EXPECT_EQ(view->frames, 1);
}

TEST_F(NSLayoutConstraintTest, AddingConstraintsInvalidatesTheLayoutAndSkipsEmptyOnes) {
    holder->layoutIfNeeded();
    auto made = constraints("H:|[view]|");
    made.insert(made.begin(), nullptr);
    holder->addConstraints(made);
    EXPECT_EQ(holder->constraints().size(), 2U);
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 30, 40)) << "not at once";
    holder->layoutIfNeeded();
    EXPECT_EQ(view->frame(), CGRectMake(0, 2, 200, 40));
}

TEST_F(NSLayoutConstraintTest, ConstraintsMoveAViewWhateverItsMaskSays) {
    view->setTranslatesAutoresizingMaskIntoConstraints(true);
    EXPECT_EQ(frameAfter({"H:|[view]|"}), CGRectMake(0, 2, 200, 40));
}

TEST_F(NSLayoutConstraintTest, ARemovedViewTakesItsConstraintsWithIt) {
    const auto other = create<UIView>();
    holder->addSubview(other);
    holder->addConstraints(constraints("H:|[view]|"));
    holder->addConstraints(NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views("V:|[other]|", 0, {}, {{"other", other}}));
    view->removeFromSuperview();
    ASSERT_EQ(holder->constraints().size(), 2U);
    EXPECT_EQ(holder->constraints()[0]->firstItem(), other);
    holder->addSubview(view);
    holder->layoutIfNeeded();
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 30, 40));
}

TEST_F(NSLayoutConstraintTest, AConstraintOnAViewThatIsGoneMovesNothing) {
    auto stranger = create<UIView>(CGRectMake(0, 0, 50, 50));
    holder->addConstraints(
        NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views("H:|[view]|", 0, {}, {{"view", stranger}}));
    holder->addSubview(view);
    stranger = nullptr;
    EXPECT_EQ(frameAfter({"H:|-5-[view]"}), CGRectMake(5, 2, 30, 40));
}

TEST_F(NSLayoutConstraintTest, AConstraintOnAViewFurtherDownMovesNothing) {
    const auto middle = create<UIView>(CGRectMake(0, 0, 50, 50));
    holder->addSubview(middle);
    middle->addSubview(view);
    EXPECT_EQ(frameAfter({"H:|[view]|"}), CGRectMake(1, 2, 30, 40));
}

TEST_F(NSLayoutConstraintTest, AViewThatLeavesWhenItIsPlacedLeavesTheOthersTheirPlaces) {
    const auto other = create<UIView>();
    holder->addSubview(other);
    holder->addConstraints(constraints("H:|[view]|"));
    holder->addConstraints(
        NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views("H:|-5-[other]-5-|", 0, {}, {{"other", other}}));
    view->whenPlaced = [this] {
        view->whenPlaced = nullptr;
        view->removeFromSuperview();
    };
    holder->layoutIfNeeded();
    EXPECT_EQ(other->frame(), CGRectMake(5, 0, 190, 0));
}
