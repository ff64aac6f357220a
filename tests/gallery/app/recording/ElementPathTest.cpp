#include "ElementPath.h"

#include <cmath>

#include <gtest/gtest.h>

#include "EventPlayer.h"
#include "EventRecorder.h"

using namespace gallery;
using namespace gx;

namespace {

using Path = std::vector<NSInteger>;

struct ElementPathTest : testing::Test {
    std::unique_ptr<EventPlayer> player = EventPlayer::playerOfStart({});
    UIWindow& window() { return *player->window(); }
    /// Every element of the tree below one.
    static void collect(const Ref<UIAccessibilityElement>& element, UIAccessibilityElements& found) {
        found.push_back(element);
        for (NSInteger i = 0; i < element->childCount(); ++i) collect(element->child(i), found);
    }
    UIAccessibilityElements all() {
        UIAccessibilityElements found;
        for (const auto& top : outermostAccessibilityElements(window().accessibilityElements())) collect(top, found);
        return found;
    }
};

} // namespace

TEST_F(ElementPathTest, LeadsBackToEachElementOfTheScreen) {
    window().tick(1);
    const UIAccessibilityElements elements = all();
    std::vector<Path> paths;
    for (const auto& element : elements) {
        const Path path = ElementPath::ofElement(*element);
        const auto found = ElementPath::elementAt(window(), path);
        ASSERT_TRUE(found) << element->label().value_or("no label");
        EXPECT_TRUE(found->isSameAs(*element)) << element->label().value_or("no label");
        paths.push_back(path);
    }
    EXPECT_GT(paths.size(), 20U) << "buttons, headings, lists and rows";
    std::sort(paths.begin(), paths.end());
    EXPECT_EQ(std::adjacent_find(paths.begin(), paths.end()), paths.end()) << "each has its own";
    EXPECT_TRUE(std::any_of(paths.begin(), paths.end(), [](const Path& path) { return path.size() == 2; }));
}

TEST_F(ElementPathTest, NothingIsAtAPathThatDoesNotExist) {
    for (const Path& path : {Path{}, Path{-1}, Path{1000}, Path{0, 1000}, Path{0, -1}}) {
        EXPECT_FALSE(ElementPath::elementAt(window(), path));
    }
}

TEST_F(ElementPathTest, IsEmptyForAnElementThatTheWindowDoesNotOffer) {
    const auto alone = create<UIView>(CGRectMake(0, 0, 10, 10));
    EXPECT_EQ(ElementPath::ofElement(UIAccessibilityElement(alone, UIAccessibilityRole::Button)), Path{});
    window().addSubview(alone);
    EXPECT_EQ(ElementPath::ofElement(UIAccessibilityElement(alone, UIAccessibilityRole::Button)), Path{}) << "it has no label";
}

TEST_F(ElementPathTest, ActionsAreWrittenWithTheirElement) {
    std::vector<std::string> lines;
    EventRecorder recorder(
        player->window(), [] { return 0; }, [&lines](const std::string& line) { lines.push_back(line); });
    window().tick(1);
    const auto first = ElementPath::elementAt(window(), {0});
    using Kind = UIAccessibilityAction::Kind;
    recorder.performAction_onElement({Kind::Focus, 0, 2}, first);
    recorder.performAction_onElement({Kind::SetNumber, HUGE_VAL, 3}, nullptr);
    recorder.performAction_onElement({Kind::SetNumber, NAN, 4}, first);
    EXPECT_EQ(lines,
              (std::vector<std::string>{R"({"time":2.0,"event":"action","action":"focus","element":[0]})",
                                        R"({"time":3.0,"event":"action","action":"setNumber","element":[],"number":1000000000000.0})"}));
}
