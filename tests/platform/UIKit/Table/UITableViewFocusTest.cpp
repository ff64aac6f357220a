// Which row of a table has the focus, and how it is marked.

#include <algorithm>

#include "FocusableView.h"
#include "NullCanvas.h"
#include "RecordingCanvas.h"
#include "TableKeysStage.h"
#include "WheelSource.h"

using namespace gx;
using Code = UIKey::Code;
using Path = std::optional<NSIndexPath>;

namespace {

struct UITableViewFocus : TableKeysStage {
    int fills() {
        NullCanvas canvas;
        window->draw(canvas);
        return canvas.fills;
    }
};

/// Row 1 holds a wheel with one column.
struct UITableViewFocusWithWheel : UITableViewFocus {
    Ref<WheelSource> wheelSource = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(wheelSource);

    UITableViewFocusWithWheel() {
        wheelSource->rows = {10};
        source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) {
            if (path.row != 1) return TableSource::usualCell(view, path);
            auto cell = create<UITableViewCell>(UITableViewCellStyleDefault, std::string("wheel"));
            cell->contentView()->addSubview(wheel);
            return cell;
        };
        wheel->setFrame(CGRectMake(0, 0, 320, 44));
        reload({20});
        press(Code::Tab);
    }
};

} // namespace

TEST_F(UITableViewFocus, TabFocusesTheFirstWholeRowInSight) {
    EXPECT_EQ(focused(), std::nullopt);
    table->setContentOffset({0, 50}); // Row 1 is cut.
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(focused(), Path({0, 2}));
    EXPECT_EQ(offset(), 50);
}

TEST_F(UITableViewFocus, NeedsARowThatCanBeTapped) {
    reload({0, 0});
    EXPECT_FALSE(table->becomeFirstResponder());
    reload({3});
    listener->refuses = [](NSIndexPath) { return true; };
    EXPECT_FALSE(table->becomeFirstResponder());
    listener->refuses = nullptr;
    EXPECT_TRUE(table->becomeFirstResponder());
}

TEST_F(UITableViewFocus, TakesARowAboveIfNoneBelowCanBeTapped) {
    reload({20});
    listener->refuses = [](NSIndexPath path) { return path.row > 3; };
    table->setContentOffset({0, 440});
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_EQ(focused(), Path({0, 3}));
    EXPECT_EQ(offset(), 132) << "and comes into sight";
}

TEST_F(UITableViewFocus, TakesASingleRow) {
    reload({1});
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(UITableViewFocus, DoesNotScrollWhenAnotherRowIsRevealed) {
    press(Code::Tab);
    table->setContentOffset({0, 440});
    window.tick(0);
    const auto label = table->cellForRowAtIndexPath({0, 12})->textLabel();
    label->revealDescendant(label->bounds());
    window.runUntilStill();
    EXPECT_EQ(offset(), 440) << "the focused row stays out of sight";
}

TEST_F(UITableViewFocus, MarksNothingWithoutRows) {
    reload({0});
    const int plain = fills();
    reload({100});
    press(Code::Tab);
    reload({0});
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(fills(), plain);
}

TEST_F(UITableViewFocus, IsMarkedFromAKeyToATouch) {
    const int plain = fills();
    table->becomeFirstResponder();
    EXPECT_EQ(fills(), plain) << "no key was used yet";
    press(Code::Down);
    EXPECT_EQ(fills(), plain + 5) << "a fill and four sides";
    window.down({160, 300});
    window.move({160, 310});
    window.up({160, 310});
    window.runUntilStill(); // The scroll indicator fades.
    EXPECT_EQ(fills(), plain);
}

TEST_F(UITableViewFocus, IsMarkedOnlyInTheFirstResponder) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    const int plain = fills();
    window->addSubview(field);
    press(Code::Tab);
    EXPECT_EQ(fills(), plain + 5);
    field->becomeFirstResponder();
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(fills(), plain);
}

TEST_F(UITableViewFocus, MovesToATappedRow) {
    window.tap({160, 110}); // row 2
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_FALSE(window->showsFocus());
    press(Code::Down);
    EXPECT_EQ(focused(), Path({0, 3}));
}

TEST_F(UITableViewFocus, IsRevealedByTab) {
    press(Code::Tab);
    window.scrollPoints({160, 200}, 1000);
    window.runUntilStill();
    table->resignFirstResponder();
    press(Code::Tab);
    EXPECT_EQ(focused(), Path({0, 0}));
    EXPECT_EQ(offset(), 0);
}

TEST_F(UITableViewFocus, FollowsItsRowThroughChanges) {
    press(Code::Tab);
    for (int i = 0; i < 5; ++i) press(Code::Down);
    source->rows = {102};
    // The old row 5 is row 6 before the second one is inserted.
    table->insertRowsAtIndexPaths_animated({{0, 0}, {0, 6}}, false);
    EXPECT_EQ(focused(), Path({0, 7}));
    source->rows = {100};
    table->deleteRowsAtIndexPaths_animated({{0, 2}, {0, 9}}, true);
    EXPECT_EQ(focused(), Path({0, 6}));
    table->reloadRowsAtIndexPaths({{0, 6}});
    EXPECT_EQ(focused(), Path({0, 6}));
}

TEST_F(UITableViewFocus, MovesToTheRowThatReplacesItsOwn) {
    reload({6});
    press(Code::Tab);
    press(Code::Down);
    press(Code::Down);
    source->rows = {3};
    table->deleteRowsAtIndexPaths_animated({{0, 0}, {0, 2}, {0, 3}}, false); // 1, 4 and 5 stay.
    EXPECT_EQ(focused(), Path({0, 1})) << "the old row 4";
    press(Code::End);
    source->rows = {2};
    table->deleteRowsAtIndexPaths_animated({{0, 2}}, false);
    EXPECT_EQ(focused(), Path({0, 1})) << "the last one that is left";
}

TEST_F(UITableViewFocus, IsClampedByAReload) {
    reload({5, 5});
    press(Code::Tab);
    press(Code::End);
    reload({5, 5});
    EXPECT_EQ(focused(), Path({1, 4}));
    reload({5, 4});
    EXPECT_EQ(focused(), Path({1, 3}));
    reload({5, 0});
    EXPECT_EQ(focused(), Path({0, 4}));
    reload({0, 3});
    EXPECT_EQ(focused(), Path({1, 0})) << "there are none above";
    reload({});
    EXPECT_EQ(focused(), std::nullopt);
    EXPECT_FALSE(press(Code::Down));
    EXPECT_FALSE(press(Code::Return));
}

TEST_F(UITableViewFocusWithWheel, TabGoesIntoTheRowAndBack) {
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_TRUE(press(Code::Tab));
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_TRUE(press(Code::Down));
    EXPECT_EQ(wheel->selectedRowInComponent(0), 1);
    EXPECT_EQ(focused(), Path({0, 0})) << "keys in a row are not for the rows";
    EXPECT_FALSE(press(Code::Return));
    EXPECT_TRUE(listener->taps.empty());
    EXPECT_TRUE(press(Code::BackTab));
    EXPECT_TRUE(table->isFirstResponder());
}

TEST_F(UITableViewFocusWithWheel, ReturnsToTheTableWhenTheRowIsRemoved) {
    press(Code::Tab);
    source->cell = nullptr;
    source->rows = {19};
    table->deleteRowsAtIndexPaths_animated({{0, 1}}, true);
    EXPECT_TRUE(table->isFirstResponder());
    window.runUntilStill();
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(focused(), Path({0, 0}));
}

TEST_F(UITableViewFocusWithWheel, ReturnsToTheTableWhenTheRowLeaves) {
    press(Code::Tab);
    window.scrollPoints({20, 400}, 200);
    window.runUntilStill();
    EXPECT_TRUE(table->isFirstResponder());
    EXPECT_EQ(offset(), 200);
}

TEST_F(UITableViewFocus, MarkMovesWithItsRow) {
    table->becomeFirstResponder();
    press(Code::Home);
    press(Code::Down);
    ASSERT_EQ(focused(), (NSIndexPath{0, 1}));
    ++source->rows[0];
    table->insertRowsAtIndexPaths_animated({{0, 0}}, true);
    ASSERT_EQ(focused(), (NSIndexPath{0, 2}));
    const auto marks = [this] {
        RecordingCanvas canvas;
        window->draw(canvas);
        return canvas.painted();
    };
    window.tick(0); // The change begins.
    // Final at once, but drawn where it was: the mark still lies over the second place.
    const auto onTheWay = marks();
    EXPECT_NE(std::find_if(onTheWay.begin(), onTheWay.end(), [](const auto& call) { return call.starts_with("fill 0 44 320 44 "); }),
              onTheWay.end());
    window.runUntilStill();
    const auto there = marks();
    EXPECT_NE(std::find_if(there.begin(), there.end(), [](const auto& call) { return call.starts_with("fill 0 88 320 44 "); }),
              there.end());
}

// How it is marked, to the point

namespace {

/// Rows without cells, separators and a background: what is drawn is the mark alone.
struct UITableViewFocusMark : UITableViewFocus {
    using Calls = std::vector<std::string>;

    UITableViewFocusMark() {
        source->cell = [](const Ref<UITableView>&, NSIndexPath) { return nullptr; };
        table->setSeparatorColor(std::nullopt);
        table->setTintColor(UIColor::blackColor());
        reload({4});
        press(Code::Tab);
    }
    Calls marks() {
        EXPECT_TRUE(window->showsFocus());
        RecordingCanvas canvas;
        table->renderInContext(canvas);
        return canvas.painted();
    }
};

} // namespace

TEST_F(UITableViewFocusMark, IsAFillWithAnOutlineInsideTheRow) {
    EXPECT_EQ(marks(), (Calls{"fill 0 0 320 44 with 0 0 0 0.14", "fill 0 0 320 2 with 0 0 0 1", "fill 0 42 320 2 with 0 0 0 1",
                              "fill 0 2 2 40 with 0 0 0 1", "fill 318 2 2 40 with 0 0 0 1"}));
    press(Code::Down);
    table->setFrame(CGRectMake(5, 7, 200, 440));
    window.tick(0);
    EXPECT_EQ(marks(), (Calls{"fill 0 44 200 44 with 0 0 0 0.14", "fill 0 44 200 2 with 0 0 0 1", "fill 0 86 200 2 with 0 0 0 1",
                              "fill 0 46 2 40 with 0 0 0 1", "fill 198 46 2 40 with 0 0 0 1"}));
}

TEST_F(UITableViewFocusMark, HasNoSidesInARowThatItsEdgesFill) {
    table->setRowHeight(4);
    window.tick(0);
    EXPECT_EQ(marks(), (Calls{"fill 0 0 320 4 with 0 0 0 0.14", "fill 0 0 320 2 with 0 0 0 1", "fill 0 2 320 2 with 0 0 0 1"}));
    table->setRowHeight(3);
    window.tick(0);
    EXPECT_EQ(marks(), (Calls{"fill 0 0 320 3 with 0 0 0 0.14", "fill 0 0 320 2 with 0 0 0 1", "fill 0 1 320 2 with 0 0 0 1"}));
    table->setRowHeight(5);
    window.tick(0);
    EXPECT_EQ(marks(), (Calls{"fill 0 0 320 5 with 0 0 0 0.14", "fill 0 0 320 2 with 0 0 0 1", "fill 0 3 320 2 with 0 0 0 1",
                              "fill 0 2 2 1 with 0 0 0 1", "fill 318 2 2 1 with 0 0 0 1"}));
}

TEST_F(UITableViewFocusMark, GrowsWithAnInsertedRow) {
    source->rows = {5};
    table->insertRowsAtIndexPaths_animated({{0, 0}}, true);
    window.tick(TestWindow::frame); // The clock starts.
    window.run(0.125);              // Half the time leaves an eighth of the way.
    EXPECT_EQ(marks(), (Calls{"fill 0 38.5 320 44 with 0 0 0 0.14", "fill 0 38.5 320 2 with 0 0 0 1", "fill 0 80.5 320 2 with 0 0 0 1",
                              "fill 0 40.5 2 40 with 0 0 0 1", "fill 318 40.5 2 40 with 0 0 0 1"}));
    window.press(Code::Up); // To the new row.
    EXPECT_EQ(marks(), (Calls{"fill 0 0 320 38.5 with 0 0 0 0.14", "fill 0 0 320 2 with 0 0 0 1", "fill 0 36.5 320 2 with 0 0 0 1",
                              "fill 0 2 2 34.5 with 0 0 0 1", "fill 318 2 2 34.5 with 0 0 0 1"}));
}
