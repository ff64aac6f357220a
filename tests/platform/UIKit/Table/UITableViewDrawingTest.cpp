// How an insertion or a removal is drawn on its way.

#include "TableChangesStage.h"

using namespace gx;
using Paths = std::vector<NSIndexPath>;

namespace {

struct UITableViewDrawing : TableChangesStage {};

/// Does something whenever it is drawn.
class Acting : public UITableViewCell {
public:
    std::function<void()> whenDrawn;
    void drawRect(UIGraphicsContext&, CGRect) override { whenDrawn(); }
};

} // namespace

TEST_F(UITableViewDrawing, InsertionMakesRoom) {
    const auto before = drawn();
    insert(2, "new");
    auto now = drawn();
    for (const char* name : {"a", "b", "c", "d", "j"}) EXPECT_NEAR(now.at(name).baseline, before.at(name).baseline, 1e-9) << name;
    EXPECT_NEAR(now.at("new").bottom - now.at("new").top, 0, 1e-9);
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("b").baseline, before.at("b").baseline, 1e-9);
    EXPECT_NEAR(now.at("c").baseline, before.at("c").baseline + 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("j").baseline, before.at("j").baseline + 0.875 * 44, 1e-6) << "on its way out";
    EXPECT_NEAR(now.at("new").top, 88, 1e-6);
    EXPECT_NEAR(now.at("new").bottom, 88 + 0.875 * 44, 1e-6);
    window.runUntilStill();
    now = drawn();
    EXPECT_NEAR(now.at("c").baseline, before.at("c").baseline + 44, 1e-9);
    EXPECT_FALSE(now.contains("j"));
}

TEST_F(UITableViewDrawing, RemovalClosesTheGap) {
    const auto before = drawn();
    remove(2);
    auto now = drawn();
    for (const char* name : {"b", "c", "d", "j"}) EXPECT_NEAR(now.at(name).baseline, before.at(name).baseline, 1e-9) << name;
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("b").baseline, before.at("b").baseline, 1e-9);
    EXPECT_NEAR(now.at("d").baseline, before.at("d").baseline - 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("k").baseline, before.at("j").baseline + 0.125 * 44, 1e-6) << "no gap at the bottom";
    EXPECT_NEAR(now.at("c").top, 88, 1e-6);
    EXPECT_NEAR(now.at("c").bottom, 88 + 0.125 * 44, 1e-6);
    window.runUntilStill();
    now = drawn();
    EXPECT_FALSE(now.contains("c"));
    EXPECT_NEAR(now.at("d").baseline, before.at("c").baseline, 1e-9);
}

TEST_F(UITableViewDrawing, RemovalAtTheEndLeavesNoGapAtTheTop) {
    table->setContentOffset({0, 16 * 44}); // q to z
    window.tick(0);
    const auto before = drawn();
    remove(25);
    EXPECT_EQ(table->contentOffset().y, 15 * 44);
    auto now = drawn();
    EXPECT_NEAR(now.at("q").baseline, before.at("q").baseline, 1e-9);
    EXPECT_NEAR(now.at("z").baseline, before.at("z").baseline, 1e-9);
    runHalf();
    now = drawn();
    EXPECT_NEAR(now.at("q").baseline, before.at("q").baseline + 0.875 * 44, 1e-6);
    EXPECT_NEAR(now.at("p").baseline, before.at("q").baseline - 0.125 * 44, 1e-6);
    window.runUntilStill();
    EXPECT_EQ(shown(), "pqrstuvwxy");
}

TEST_F(UITableViewDrawing, IsFinalWithoutWindowOrAnimation) {
    insert(2, "new", false);
    EXPECT_NEAR(drawn().at("c").baseline - drawn().at("a").baseline, 3 * 44, 1e-9);
    table->removeFromSuperview();
    remove(2);
    PlacingCanvas canvas;
    table->layoutIfNeeded();
    table->renderInContext(canvas);
    EXPECT_NEAR(canvas.texts.at("c").baseline - canvas.texts.at("a").baseline, 2 * 44, 1e-9);
    EXPECT_FALSE(canvas.texts.contains("new"));
}

TEST_F(UITableViewDrawing, IsFinalWithReducedMotion) {
    window->setReducesMotion(true);
    insert(1, "new");
    EXPECT_EQ(drawn().at("b").baseline, 100) << "the third row, below two of 44 points, its text 12 below its top";
    remove(1);
    EXPECT_EQ(drawn().at("b").baseline, 56);
    EXPECT_FALSE(drawn().contains("new"));
}

TEST_F(UITableViewDrawing, FinishesWhenMotionIsReduced) {
    insert(1, "new");
    runHalf();
    EXPECT_LT(drawn().at("b").baseline, 100);
    window->setReducesMotion(true);
    window.tick(TestWindow::frame);
    EXPECT_EQ(drawn().at("b").baseline, 100);
}

TEST_F(UITableViewDrawing, FinishesWhenTheTableLeavesItsWindow) {
    remove(2);
    table->removeFromSuperview();
    table->layoutIfNeeded();
    PlacingCanvas canvas;
    table->renderInContext(canvas);
    EXPECT_FALSE(canvas.texts.contains("c"));
    EXPECT_NEAR(canvas.texts.at("d").baseline - canvas.texts.at("a").baseline, 2 * 44, 1e-9);
}

TEST_F(UITableViewDrawing, FinishesWhenTheTableIsHidden) {
    insert(1, "new");
    runHalf();
    EXPECT_LT(drawn().at("b").baseline, 100);
    table->setHidden(true);
    table->setHidden(false);
    EXPECT_EQ(drawn().at("b").baseline, 100);
    window.tick(0);
    EXPECT_FALSE(window.tick(0));
}

TEST_F(UITableViewDrawing, MovesHeadersBelowAnInsertion) {
    source->rows = {2, 5};
    source->titles = {std::nullopt, "header"};
    table->reloadData();
    window.tick(0);
    const CGFloat before = drawn()["header"].baseline;
    source->rows = {3, 5};
    table->insertRowsAtIndexPaths_animated({{0, 0}}, true);
    EXPECT_EQ(drawn()["header"].baseline, before) << "not moved yet";
    runHalf();
    EXPECT_NEAR(drawn()["header"].baseline, before + 38.5, 1e-6) << "seven eighths of 44";
    window.runUntilStill();
    EXPECT_EQ(drawn()["header"].baseline, before + 44);
}

TEST_F(UITableViewDrawing, DoesNotAnimateMoreThanAScreen) {
    const auto insertMany = [this](std::size_t many) {
        Paths paths;
        names.insert(names.begin(), many, "new");
        count();
        for (NSInteger row = 0; row < static_cast<NSInteger>(many); ++row) paths.push_back({0, row});
        table->insertRowsAtIndexPaths_animated(paths, true);
        window.tick(0);
        return window.tick(TestWindow::frame);
    };
    EXPECT_TRUE(insertMany(10)) << "440 points move";
    window.runUntilStill();
    EXPECT_FALSE(insertMany(11)) << "484 do not";
}

TEST_F(UITableViewDrawing, ShowsRowsWithoutCellsAsGaps) {
    source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) -> Ref<UITableViewCell> {
        const std::string& name = names[static_cast<std::size_t>(path.row)];
        if (name == "gap") return nullptr;
        auto cell = view->dequeueReusableCellWithIdentifier("row");
        cell->textLabel()->setText(name);
        return cell;
    };
    insert(1, "gap");
    runHalf();
    EXPECT_NEAR(drawn().at("b").baseline - drawn().at("a").baseline, 44 + 38.5, 1e-6) << "seven eighths of 44";
    window.runUntilStill();
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 1}), nullptr);
    insert(0, "new"); // The gap moves with the others.
    window.runUntilStill();
    EXPECT_EQ(table->cellForRowAtIndexPath({0, 2}), nullptr);
    EXPECT_EQ(drawn().at("b").baseline - drawn().at("a").baseline, 88);
    remove(2);
    runHalf();
    EXPECT_NEAR(drawn().at("b").baseline - drawn().at("a").baseline, 44 + 5.5, 1e-6);
    window.runUntilStill();
    EXPECT_EQ(drawn().at("b").baseline - drawn().at("a").baseline, 44);
}

TEST_F(UITableViewDrawing, MayEndTheChange) {
    source->cell = [this](const Ref<UITableView>& view, NSIndexPath path) -> Ref<UITableViewCell> {
        const std::string& name = names[static_cast<std::size_t>(path.row)];
        if (name == "c") {
            auto acting = create<Acting>();
            acting->whenDrawn = [this] { table->removeFromSuperview(); };
            return acting;
        }
        auto cell = view->dequeueReusableCellWithIdentifier("row");
        cell->textLabel()->setText(name);
        return cell;
    };
    table->reloadData();
    window.tick(0);
    remove(2);
    runHalf();
    drawn();
    EXPECT_EQ(table->window(), nullptr);
    table->layoutIfNeeded();
    PlacingCanvas canvas;
    table->renderInContext(canvas);
    EXPECT_EQ(canvas.texts.at("d").baseline - canvas.texts.at("a").baseline, 88) << "it has arrived";
}
