#pragma once

#include "FuzzWorld.h"
#include "UITableView.h"

/// An application's own cell, which does anything whenever the library calls it.
class FuzzCell : public gx::UITableViewCell {
public:
    FuzzWorld* world = nullptr;

    void setHighlighted(bool highlighted) override {
        gx::UITableViewCell::setHighlighted(highlighted);
        react(4);
    }
    void prepareForReuse() override {
        gx::UITableViewCell::prepareForReuse();
        react(8);
    }
    void layoutSubviews() override {
        gx::UITableViewCell::layoutSubviews();
        react(16);
    }
    void didMoveToWindow() override { react(8); }
    void finishAnimations() override { react(8); }
    void touchCancelled(const gx::UITouch& touch) override {
        gx::UITableViewCell::touchCancelled(touch);
        react(4);
    }

private:
    void react(unsigned odds) const {
        if (world) world->react(odds);
    }
};

/// Gives a table any counts, heights and cells, and reacts whenever it is called.
class FuzzTableSource : public gx::NSObject, public gx::UITableViewDataSource, public gx::UITableViewDelegate {
public:
    FuzzWorld* world = nullptr;
    gx::NSInteger sections = 1;
    gx::NSInteger rows = 30;
    gx::Ref<gx::UITableViewCell> lastCell;

    gx::NSInteger numberOfSectionsInTableView(const gx::Ref<gx::UITableView>&) override;
    gx::NSInteger tableView_numberOfRowsInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger) override;
    gx::Ref<gx::UITableViewCell> tableView_cellForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    std::optional<std::string> tableView_titleForHeaderInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger section) override;
    gx::CGFloat tableView_heightForRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override;
    bool tableView_shouldHighlightRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath) override;
    void tableView_didSelectRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath) override;
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const gx::Ref<gx::UITableView>&, const gx::Ref<gx::UITableViewCell>&,
                                                          gx::NSIndexPath) override;

private:
    void react(unsigned odds) const {
        if (world) world->react(odds);
    }
    gx::Ref<gx::UITableViewCell> oddCell(const gx::Ref<gx::UITableView>& table);
};
