// What a screen reader finds in a table: headings, lists and their items.

#include <set>

#include "TableStage.h"
#include "UIAccessibilityChanges.h"
#include "WheelSource.h"

using namespace gx;
using Role = UIAccessibilityRole;
using Texts = std::vector<std::string>;

namespace {

/// Rows that belong to the one above, and rows that nobody can tap.
class PartSource : public TableSource {
public:
    std::set<std::pair<NSInteger, NSInteger>> parts;
    bool tableView_isRowPartOfRowAbove(const Ref<UITableView>&, NSIndexPath path) override {
        return parts.count({path.section, path.row}) > 0;
    }
};

class Taps : public NSObject, public UITableViewDelegate {
public:
    std::vector<NSIndexPath> tapped;
    std::optional<NSIndexPath> untappable;
    bool tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override { return path != untappable; }
    void tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override { tapped.push_back(path); }
};

/// A table of 440 points with sections of rows of 44 points.
struct UITableViewAccessibility : testing::Test {
    Ref<PartSource> source = create<PartSource>();
    Ref<Taps> taps = create<Taps>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};

    UITableViewAccessibility() {
        table->setDelegate(taps);
        show({100});
    }
    void show(std::vector<NSInteger> rows, std::vector<std::optional<std::string>> titles = {}) {
        source->rows = std::move(rows);
        source->titles = std::move(titles);
        table->reloadData();
        window.runUntilStill();
    }
    UIAccessibilityElements top() { return outermostAccessibilityElements(table->accessibilityElements()); }
    Ref<UIAccessibilityElement> list(std::size_t index = 0) {
        UIAccessibilityElements lists;
        for (const auto& element : top()) {
            if (element->role() == Role::List) lists.push_back(element);
        }
        return lists.at(index);
    }
    Ref<UIAccessibilityElement> focused() { return window->focusedAccessibilityElement(); }
};

std::string textOf(const Ref<UIAccessibilityElement>& element) {
    const Role role = element->role();
    return (role == Role::List       ? "list "
            : role == Role::Heading  ? "heading "
            : role == Role::ListItem ? "item "
                                     : "other ") +
           element->label().value_or("(unnamed)");
}

Texts textsOf(const UIAccessibilityElements& elements) {
    Texts texts;
    for (const auto& element : elements) texts.push_back(textOf(element));
    return texts;
}

} // namespace

TEST_F(UITableViewAccessibility, EachSectionIsAListBelowItsHeading) {
    show({3, 2, 30, 4, 0}, {"Time", std::nullopt, "Heart", "Weather", "None"});
    EXPECT_EQ(textsOf(top()), (Texts{"heading Time", "list Time", "list (unnamed)", "heading Heart", "list Heart", "heading Weather",
                                     "list Weather", "heading None"}))
        << "also those out of sight";
    EXPECT_EQ(list(0)->childCount(), 3);
    EXPECT_EQ(list(2)->childCount(), 30);
    table->setAccessibilityLabel("Workout");
    EXPECT_EQ(textOf(list(1)), "list Workout");
    const auto heading = top().at(0);
    EXPECT_EQ(heading->frame(), CGRectMake(0, 0, 320, 28));
    EXPECT_EQ(list()->frame(), CGRectMake(0, 28, 320, 3 * 44));
    EXPECT_FALSE(heading->isFocusable());
    EXPECT_FALSE(list()->isFocusable());
    const auto last = list(3);
    show({3});
    EXPECT_FALSE(last->exists());
    EXPECT_EQ(last->label(), std::nullopt);
    EXPECT_EQ(last->childCount(), 0);
    EXPECT_FALSE(heading->exists());
}

TEST_F(UITableViewAccessibility, ItemsKnowTheirPlaceAndTheirList) {
    const auto third = list()->child(2);
    ASSERT_TRUE(third);
    EXPECT_EQ(third->role(), Role::ListItem);
    EXPECT_EQ(third->label(), "0.2");
    EXPECT_EQ(third->place(), (UIAccessibilityPlace{2, 100}));
    EXPECT_TRUE(third->container()->isSameAs(*list()));
    EXPECT_EQ(list()->indexOfChild(*third), 2);
    EXPECT_TRUE(third->isSameAs(*table->accessibilityElements().at(2)));
    EXPECT_EQ(list()->child(100), nullptr);
    EXPECT_EQ(list()->child(-1), nullptr);
    EXPECT_EQ(third->frame(), CGRectMake(0, 88, 320, 44));
}

TEST_F(UITableViewAccessibility, ItemsOutOfSightHaveLabelsAndShowNothing) {
    const std::size_t cells = table->subviews().size();
    const auto last = list()->child(99);
    EXPECT_EQ(last->label(), "0.99");
    EXPECT_EQ(last->isExpanded(), std::nullopt);
    EXPECT_TRUE(last->exists());
    EXPECT_GT(CGRectGetMinY(last->frame()), 440);
    EXPECT_EQ(table->contentOffset().y, 0);
    EXPECT_EQ(table->subviews().size(), cells);
    for (NSInteger i = 0; i < 100; ++i) EXPECT_EQ(list()->child(i)->label(), "0." + std::to_string(i));
    window.runUntilStill();
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 0})->textLabel()->text(), "0.0") << "the cells in sight are as they were";
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 99}), nullptr);
    table->setContentOffset({0, 1000});
    window.runUntilStill();
    for (const NSIndexPath path : table->indexPathsForVisibleRows()) {
        EXPECT_EQ(table->cellForRowAtIndexPath(path)->textLabel()->text(), "0." + std::to_string(path.row));
    }
}

TEST_F(UITableViewAccessibility, ACellThatIsInSightIsNotReadForAnotherRow) {
    const auto first = table->cellForRowAtIndexPath({0, 0});
    source->cell = [first](const Ref<UITableView>&, NSIndexPath) { return first; };
    EXPECT_EQ(list()->child(99)->label(), std::nullopt);
    EXPECT_EQ(first->textLabel()->text(), "0.0");
    EXPECT_FALSE(first->isHidden());
}

TEST_F(UITableViewAccessibility, FocusingAnItemBringsItIntoSight) {
    const auto item = list()->child(60);
    EXPECT_TRUE(item->isFocusable());
    EXPECT_FALSE(item->isFocused());
    EXPECT_TRUE(item->focus());
    EXPECT_TRUE(item->isFocused());
    EXPECT_TRUE(window->showsFocus());
    window.runUntilStill();
    EXPECT_EQ(table->indexPathForFocusedRow(), (NSIndexPath{0, 60}));
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 60}));
    ASSERT_TRUE(focused());
    EXPECT_TRUE(focused()->isSameAs(*item));
    window.press(UIKey::Code::Down);
    EXPECT_EQ(focused()->label(), "0.61");
    EXPECT_FALSE(item->isFocused());
    taps->untappable = NSIndexPath{0, 5};
    EXPECT_FALSE(list()->child(5)->isFocusable());
    EXPECT_FALSE(list()->child(5)->focus());
}

TEST_F(UITableViewAccessibility, ActivatingAnItemTapsItsRowOnce) {
    list()->child(60)->activateAtTime(window.now);
    EXPECT_EQ(taps->tapped, (std::vector<NSIndexPath>{{0, 60}}));
    window.runUntilStill();
    EXPECT_TRUE(table->cellForRowAtIndexPath({0, 60}));
    EXPECT_TRUE(table->isFirstResponder());
    taps->untappable = NSIndexPath{0, 5};
    list()->child(5)->activateAtTime(window.now);
    table->setUserInteractionEnabled(false);
    list()->child(6)->activateAtTime(window.now);
    EXPECT_EQ(taps->tapped.size(), 1U);
    const auto item = list()->child(7);
    table->setUserInteractionEnabled(true);
    table->removeFromSuperview();
    item->activateAtTime(window.now);
    EXPECT_EQ(taps->tapped.size(), 1U) << "no window, no tap";
}

TEST_F(UITableViewAccessibility, ExpandedIsWhatTheCellSays) {
    const auto item = list()->child(3);
    EXPECT_EQ(item->isExpanded(), std::nullopt);
    table->cellForRowAtIndexPath({0, 3})->setAccessibilityExpanded(true);
    EXPECT_EQ(item->isExpanded(), true);
}

TEST_F(UITableViewAccessibility, APartOfTheRowAboveIsNoItemAndWhatItHoldsBelongsToThatRow) {
    const auto wheelSource = create<WheelSource>();
    wheelSource->rows = {100, 100};
    const auto wheel = wheelWithSource(wheelSource);
    wheel->setAccessibilityLabel("Number");
    const auto inserted = create<UITableViewCell>(CGRectMake(0, 0, 320, 44));
    wheel->setFrame(inserted->bounds());
    inserted->contentView()->addSubview(wheel);
    source->cell = [inserted](const Ref<UITableView>&, NSIndexPath path) -> Ref<UITableViewCell> {
        if (path.row == 3) return inserted;
        auto cell = create<UITableViewCell>(CGRectMake(0, 0, 320, 44));
        cell->textLabel()->setText(std::to_string(path.row));
        return cell;
    };
    source->parts = {{0, 3}};
    show({12});
    EXPECT_EQ(list()->childCount(), 11);
    const auto above = list()->child(2);
    const auto below = list()->child(3);
    EXPECT_EQ(above->label(), "2");
    EXPECT_EQ(below->label(), "4");
    EXPECT_EQ(below->place(), (UIAccessibilityPlace{3, 11}));
    EXPECT_EQ(list()->indexOfChild(*below), 3);
    ASSERT_EQ(above->childCount(), 2);
    EXPECT_EQ(above->child(0)->role(), Role::Adjustable);
    EXPECT_TRUE(above->child(0)->container()->isSameAs(*above));
    EXPECT_EQ(above->child(2), nullptr);
    EXPECT_EQ(above->indexOfChild(*above->child(1)), 1);
    EXPECT_EQ(below->childCount(), 0);
    EXPECT_EQ(textsOf(top()), Texts{"list (unnamed)"});
    wheel->becomeFirstResponder();
    ASSERT_TRUE(focused());
    EXPECT_EQ(focused()->label(), "Number");
    EXPECT_TRUE(focused()->container()->isSameAs(*above)) << "it knows where it is";
}

TEST_F(UITableViewAccessibility, LongTablesAreReadWithFewQueries) {
    show(std::vector<NSInteger>(200, 1'000'000));
    EXPECT_EQ(textsOf(top()), Texts{"list (unnamed)"}) << "of so many sections those in sight";
    EXPECT_EQ(list()->childCount(), 1'000'000);
    source->queried.clear();
    const auto item = list()->child(777'777);
    EXPECT_EQ(item->label(), "0.777777");
    EXPECT_EQ(item->place(), (UIAccessibilityPlace{777'777, 1'000'000}));
    EXPECT_EQ(source->queried, (std::vector<NSIndexPath>{{0, 777'777}}));
}

TEST_F(UITableViewAccessibility, ChangesOfTheListAreFound) {
    using Kind = UIAccessibilityChanges::Change::Kind;
    UIAccessibilityChanges changes;
    const auto take = [&] {
        std::vector<Kind> kinds;
        for (const auto& change : changes.takeChanges(*window)) kinds.push_back(change.kind);
        return kinds;
    };
    show({5});
    EXPECT_EQ(take(), std::vector<Kind>{Kind::Elements});
    EXPECT_EQ(take(), std::vector<Kind>{});
    table->becomeFirstResponder();
    EXPECT_EQ(take(), std::vector<Kind>{Kind::Focus});
    window.press(UIKey::Code::Down);
    EXPECT_EQ(take(), std::vector<Kind>{Kind::Focus});
    source->rows = {6};
    table->insertRowsAtIndexPaths_animated({{0, 5}}, false);
    EXPECT_EQ(take(), std::vector<Kind>{Kind::Elements});
    table->cellForRowAtIndexPath({0, 1})->setAccessibilityExpanded(false);
    EXPECT_EQ(take(), std::vector<Kind>{Kind::Expanded});
    show({100});
    take();
    table->setContentOffset({0, 100});
    window.runUntilStill();
    EXPECT_EQ(take(), std::vector<Kind>{}) << "scrolling changes nothing";
}

TEST_F(UITableViewAccessibility, ElementsOutliveTheTable) {
    const auto item = list()->child(3);
    const auto whole = list();
    table->removeFromSuperview();
    table = nullptr;
    EXPECT_FALSE(item->exists());
    EXPECT_EQ(item->label(), std::nullopt);
    EXPECT_EQ(item->container(), nullptr);
    EXPECT_EQ(item->place(), std::nullopt);
    EXPECT_EQ(item->childCount(), 0);
    EXPECT_FALSE(item->focus());
    EXPECT_TRUE(CGRectIsNull(item->frame()));
    item->activateAtTime(1);
    EXPECT_EQ(whole->childCount(), 0);
    EXPECT_EQ(whole->child(0), nullptr);
    EXPECT_EQ(whole->indexOfChild(*item), -1);
}
