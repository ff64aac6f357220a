#include "TextWalk.h"

#include <gtest/gtest.h>

using namespace gallery;
using namespace gx;

using Found = std::set<std::string>;

namespace {

Ref<UILabel> labelWithText_size(const char* text, CGPoint origin, double share) {
    auto label = create<UILabel>(CGRectZero);
    label->setText(text);
    const CGSize needed = label->sizeThatFits({});
    label->setFrame({origin, {share * needed.width, needed.height}});
    return label;
}

} // namespace

// That the walk finds what it looks for.

TEST(TextWalkTest, ItFindsTextsThatAreCut) {
    const auto view = create<UIView>(CGRectMake(0, 0, 500, 500));
    view->addSubview(labelWithText_size("whole", {0, 0}, 1));
    view->addSubview(labelWithText_size("narrow", {0, 100}, 0.9));
    const auto hidden = labelWithText_size("hidden", {0, 200}, 0.5);
    hidden->setHidden(true);
    view->addSubview(hidden);
    const auto lines = create<Paragraph>(CGRectMake(0, 300, 60, 30));
    lines->setText("several words in one line");
    view->addSubview(lines);
    EXPECT_EQ(TextWalk::problemsIn(view), (Found{"cut: narrow", "cut: several words in one line"}));
    EXPECT_EQ(TextWalk::textsIn(view), (Found{"whole", "narrow", "several words in one line"}));
    lines->setFrame(CGRectMake(0, 300, 60, 150));
    EXPECT_EQ(TextWalk::problemsIn(view), Found{"cut: narrow"});
}

TEST(TextWalkTest, ItFindsWordsThatAreTornWithoutAHyphen) {
    const auto view = create<UIView>(CGRectMake(0, 0, 500, 500));
    const auto torn = create<Paragraph>(CGRectMake(0, 0, 20, 400));
    torn->setText("strengths");
    view->addSubview(torn);
    EXPECT_EQ(TextWalk::problemsIn(view), Found{"cut: strengths"});
}

TEST(TextWalkTest, ItFindsTextsOutsideAndOnTopOfEachOther) {
    const auto view = create<UIView>(CGRectMake(0, 0, 500, 500));
    const auto inside = create<UIView>(CGRectMake(450, 0, 100, 40)); // Ends at 550.
    inside->addSubview(labelWithText_size("out", {0, 0}, 1));
    view->addSubview(inside);
    view->addSubview(labelWithText_size("one", {0, 100}, 1));
    view->addSubview(labelWithText_size("two", {5, 105}, 1));
    EXPECT_EQ(TextWalk::problemsIn(view), (Found{"outside: out", "covered: one and two"}));
}
