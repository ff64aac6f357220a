#pragma once

#include <functional>
#include <string>
#include <vector>

#include "UILabel.h"
#include "UITableView.h"

/// A data source for a table: sections with a number of rows each, in cells that are titled by
/// section and row.
class TableSource : public gx::NSObject, public gx::UITableViewDataSource {
public:
    std::vector<gx::NSInteger> rows = {100};
    std::vector<std::optional<std::string>> titles;
    /// What is returned for a row instead of the usual cell.
    std::function<gx::Ref<gx::UITableViewCell>(const gx::Ref<gx::UITableView>&, gx::NSIndexPath)> cell;
    std::function<void()> whenCounted;
    std::vector<gx::NSIndexPath> queried;
    int countQueries = 0;

    static constexpr const char* identifier = "row";

    gx::NSInteger numberOfSectionsInTableView(const gx::Ref<gx::UITableView>&) override {
        if (whenCounted) whenCounted();
        return static_cast<gx::NSInteger>(rows.size());
    }
    gx::NSInteger tableView_numberOfRowsInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger section) override {
        ++countQueries;
        return rows[static_cast<std::size_t>(section)];
    }
    gx::Ref<gx::UITableViewCell> tableView_cellForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override {
        queried.push_back(path);
        return cell ? cell(table, path) : usualCell(table, path);
    }
    std::optional<std::string> tableView_titleForHeaderInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger section) override {
        const auto index = static_cast<std::size_t>(section);
        return index < titles.size() ? titles[index] : std::nullopt;
    }

    static gx::Ref<gx::UITableViewCell> usualCell(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) {
        auto shown = table->dequeueReusableCellWithIdentifier(identifier);
        if (shown) shown->textLabel()->setText(std::to_string(path.section) + "." + std::to_string(path.row));
        return shown;
    }
};

/// Notes which rows were tapped, and can refuse some.
class TableListener : public gx::NSObject, public gx::UITableViewDelegate {
public:
    std::vector<gx::NSIndexPath> taps;
    std::function<bool(gx::NSIndexPath)> refuses;
    std::function<void()> whenQueried;
    std::function<void()> whenTapped;
    int queries = 0;

    bool tableView_shouldHighlightRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override {
        ++queries;
        if (whenQueried) whenQueried();
        return !refuses || !refuses(path);
    }
    void tableView_didSelectRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override {
        taps.push_back(path);
        if (whenTapped) whenTapped();
    }
};

/// A table of 320 by 440 points, ten rows, with this source.
inline gx::Ref<gx::UITableView> tableWithSource(const gx::Ref<TableSource>& source) {
    auto table = gx::create<gx::UITableView>(gx::CGRectMake(0, 0, 320, 440));
    table->registerClass_forCellReuseIdentifier<gx::UITableViewCell>(TableSource::identifier);
    table->setDataSource(source);
    return table;
}
