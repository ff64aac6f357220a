#pragma once

#include <algorithm>
#include <map>

#include "TableStage.h"

/// Notes where texts are drawn in the window, and what the clips around them leave visible.
class PlacingCanvas : public gx::UIGraphicsContext {
public:
    struct Place {
        gx::CGFloat top;    ///< of the innermost clip
        gx::CGFloat bottom; ///< and its end
        gx::CGFloat baseline;
    };
    std::map<std::string, Place> texts;

    void saveState() override { states_.push_back(now_); }
    void restoreState() override {
        now_ = states_.back();
        states_.pop_back();
    }
    void translate(gx::CGFloat, gx::CGFloat y) override { now_.y += y; }
    void scale(gx::CGFloat, gx::CGFloat) override {}
    void clipToRect(gx::CGRect rect) override {
        now_.top = std::max(now_.top, now_.y + rect.origin.y);
        now_.bottom = std::min(now_.bottom, now_.y + rect.origin.y + rect.size.height);
    }
    void multiplyAlpha(double) override {}

protected:
    void fillRectWithComponents(gx::CGRect, const gx::UIColorComponents&, gx::CGFloat) override {}
    void drawTextWithComponents(std::string_view text, const gx::UIFont&, const gx::UIColorComponents&, gx::CGPoint origin) override {
        texts[std::string(text)] = {now_.top, now_.bottom, now_.y + origin.y};
    }
    void drawImageInRect(const gx::UIImage&, gx::CGRect) override {}

private:
    struct State {
        gx::CGFloat y = 0;
        gx::CGFloat top = -1e9;
        gx::CGFloat bottom = 1e9;
    };
    State now_;
    std::vector<State> states_;
};

/// Rows are named a to z; ten of 44 points are in sight.
struct TableChangesStage : TableStage {
    std::vector<std::string> names;

    TableChangesStage() {
        for (char name = 'a'; name <= 'z'; ++name) names.emplace_back(1, name);
        source->cell = [this](const gx::Ref<gx::UITableView>& view, gx::NSIndexPath path) { return namedCell(view, path); };
        count();
        table->reloadData();
        window.tick(0);
        source->queried.clear();
    }
    gx::Ref<gx::UITableViewCell> namedCell(const gx::Ref<gx::UITableView>& view, gx::NSIndexPath path) const {
        auto cell = view->dequeueReusableCellWithIdentifier(TableSource::identifier);
        cell->textLabel()->setText(names[static_cast<std::size_t>(path.row)]);
        return cell;
    }
    void count() { source->rows = {static_cast<gx::NSInteger>(names.size())}; }
    void insert(gx::NSInteger row, const std::string& name, bool animated = true) {
        names.insert(names.begin() + static_cast<std::ptrdiff_t>(row), name);
        count();
        table->insertRowsAtIndexPaths_animated({{0, row}}, animated);
    }
    void remove(gx::NSInteger row, bool animated = true) {
        names.erase(names.begin() + static_cast<std::ptrdiff_t>(row));
        count();
        table->deleteRowsAtIndexPaths_animated({{0, row}}, animated);
    }
    std::string shown() {
        std::string text;
        for (const gx::NSIndexPath path : table->indexPathsForVisibleRows()) {
            text += *table->cellForRowAtIndexPath(path)->textLabel()->text();
        }
        return text;
    }
    /// How far from the top of the window each row is drawn, by its text.
    std::map<std::string, PlacingCanvas::Place> drawn() {
        PlacingCanvas canvas;
        window->draw(canvas);
        return canvas.texts;
    }
    /// Half the time leaves an eighth of the way.
    void runHalf() {
        window.tick(TestWindow::frame); // The clock starts.
        window.run(0.125);
    }
};
