#pragma once

#include <utility>

#include "TableStage.h"

/// A table whose rows can be tapped, unless the listener refuses one.
struct TableKeysStage : TableStage {
    gx::Ref<TableListener> listener = gx::create<TableListener>();

    TableKeysStage() {
        table->setDelegate(listener);
        window.tick(0);
    }
    void reload(std::vector<gx::NSInteger> rows) {
        source->rows = std::move(rows);
        table->reloadData();
        window.tick(0);
    }
    std::optional<gx::NSIndexPath> focused() { return table->indexPathForFocusedRow(); }
    bool press(gx::UIKey::Code code) {
        const bool isUsed = window.press(code);
        window.runUntilStill();
        return isUsed;
    }
    gx::CGFloat offset() const { return table->contentOffset().y; }
};
