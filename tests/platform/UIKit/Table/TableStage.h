#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "TableSource.h"
#include "TestWindow.h"

/// A table of a hundred rows of 44 points, of which ten are in sight.
struct TableStage : testing::Test {
    gx::Ref<TableSource> source = gx::create<TableSource>();
    gx::Ref<gx::UITableView> table = tableWithSource(source);
    TestWindow window{table};

    std::string textOf(gx::NSIndexPath path) {
        const auto cell = table->cellForRowAtIndexPath(path);
        return cell ? cell->textLabel()->text().value_or("(nothing)") : "(no cell)";
    }
    void scrollTo(gx::CGFloat y) {
        table->setContentOffset({0, y});
        window.tick(0);
    }
    gx::NSInteger cellCount() const { return static_cast<gx::NSInteger>(table->subviews().size()); }
};

/// Gives heights, and notes which cells have left.
class HeightGiver : public gx::NSObject, public gx::UITableViewDelegate {
public:
    std::vector<gx::CGFloat> heights;
    int queries = 0;
    std::vector<gx::NSIndexPath> gone;
    std::function<void()> whenQueried;
    std::function<void(const gx::Ref<gx::UITableViewCell>&)> whenGone;

    gx::CGFloat tableView_heightForRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override {
        ++queries;
        if (whenQueried) whenQueried();
        const auto row = static_cast<std::size_t>(path.row);
        return row < heights.size() ? heights[row] : gx::UITableView::automaticDimension;
    }
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const gx::Ref<gx::UITableView>&, const gx::Ref<gx::UITableViewCell>& cell,
                                                          gx::NSIndexPath path) override {
        gone.push_back(path);
        if (whenGone) whenGone(cell);
    }
};
