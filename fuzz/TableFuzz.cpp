// A table whose data source answers anything and changes at any time, within its own answers too.

#include "FuzzHand.h"
#include "NSArithmetic.h"
#include "NullCanvas.h"
#include "UIHost.h"
#include "UITableView.h"

using namespace gx;

namespace {

class World;

class Source : public NSObject, public UITableViewDataSource, public UITableViewDelegate {
public:
    World* world = nullptr;
    NSInteger sections = 1;
    NSInteger rows = 30;

    NSInteger numberOfSectionsInTableView(const Ref<UITableView>&) override;
    NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) override;
    Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) override;
    std::optional<std::string> tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) override;
    CGFloat tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) override;
    bool tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) override;
    void tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) override;
    void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>&, NSIndexPath) override;
};

class World {
public:
    explicit World(FuzzBytes& bytes)
        : bytes_(bytes), window_(create<UIWindow>(CGRectMake(0, 0, 400, 400))), source_(newSource()), table_(newTable()) {}
    ~World() { source_->world = nullptr; }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    void run() {
        for (int left = 120; left > 0 && !bytes_.isEmpty(); --left) act();
        hand_.waitUntilStill();
        draw();
    }
    /// Within a call of the table, one time in `odds`.
    void react(unsigned odds) {
        if (depth_ >= 3 || reactions_ >= 100 || bytes_.below(odds) != odds - 1) return;
        ++reactions_;
        ++depth_;
        for (unsigned left = bytes_.below(4); left > 0; --left) act();
        --depth_;
    }
    FuzzBytes& bytes() { return bytes_; }

private:
    Ref<Source> newSource() {
        auto source = std::make_shared<Source>();
        source->world = this;
        return source;
    }
    Ref<UITableView> newTable() {
        auto table = create<UITableView>(bytes_.below(4) == 3 ? bytes_.rect() : CGRectMake(0, 0, 320, 300));
        table->registerClass_forCellReuseIdentifier<UITableViewCell>("cell");
        table->setDataSource(source_);
        if (bytes_.flag()) table->setDelegate(source_);
        window_->addSubview(table);
        return table;
    }
    NSIndexPath path() {
        const NSInteger section = bytes_.below(4) == 3 ? bytes_.integer() : bytes_.below(3);
        return {section, bytes_.integer()};
    }
    std::vector<NSIndexPath> paths() {
        std::vector<NSIndexPath> result;
        for (unsigned left = bytes_.below(6); left > 0; --left) result.push_back({bytes_.below(3), bytes_.below(40)});
        if (bytes_.below(8) == 7) result.push_back(path());
        return result;
    }

    void act() {
        const Ref<UITableView> table = table_;
        switch (bytes_.below(24)) {
        case 0:
            return table->reloadData();
        case 1:
            return table->reloadRowsAtIndexPaths(paths());
        case 2:
        case 3:
            return insert(table);
        case 4:
        case 5:
            return remove(table);
        case 6:
            return table->scrollToRowAtIndexPath_animated(path(), bytes_.flag());
        case 7:
        case 8:
        case 9:
            return hand_.touch();
        case 10:
            return hand_.scroll();
        case 11:
            return hand_.press();
        case 12:
        case 13:
        case 14:
            return hand_.wait();
        case 15:
            draw();
            return hand_.hear();
        case 16:
            return ask(table);
        case 17:
            return set(table);
        case 18:
            return place(table);
        case 19:
            source_->rows = manyRows();
            return;
        case 20:
            source_->sections = bytes_.below(32) == 31 ? bytes_.integer() : bytes_.below(5) - NSInteger{1};
            return;
        case 21:
            source_->world = nullptr;
            source_ = newSource();
            if (bytes_.flag()) table->setDataSource(source_);
            if (bytes_.flag()) table->setDelegate(source_);
            return;
        case 22:
            table->removeFromSuperview();
            table_ = newTable();
            return;
        default:
            return table->layoutIfNeeded();
        }
    }
    /// Either few enough to be asked for heights each, or more than the table asks for.
    NSInteger manyRows() {
        if (bytes_.below(8) < 7) return bytes_.below(80);
        return bytes_.flag() ? std::numeric_limits<NSInteger>::max() - bytes_.byte() : -NSInteger{bytes_.byte()};
    }
    void insert(const Ref<UITableView>& table) {
        const std::vector<NSIndexPath> added = paths();
        if (bytes_.below(8) < 7 && source_->sections == 1)
            source_->rows = held(wrappingAdd(source_->rows, static_cast<NSInteger>(added.size())));
        table->insertRowsAtIndexPaths_animated(added, bytes_.flag());
    }
    void remove(const Ref<UITableView>& table) {
        const std::vector<NSIndexPath> removed = paths();
        if (bytes_.below(8) < 7 && source_->sections == 1) source_->rows -= static_cast<NSInteger>(removed.size());
        table->deleteRowsAtIndexPaths_animated(removed, bytes_.flag());
    }
    void scrollTo(const Ref<UITableView>& table, NSIndexPath path) { table->scrollToRowAtIndexPath_animated(path, bytes_.flag()); }
    static NSInteger held(NSInteger rows) { return rows > 300 || rows < 0 ? 100 : rows; }
    void ask(const Ref<UITableView>& table) {
        const NSIndexPath any = path();
        table->numberOfRowsInSection(any.section);
        table->rectForRowAtIndexPath(any);
        table->indexPathForRowAtPoint(bytes_.point());
        table->indexPathForCell(table->cellForRowAtIndexPath(any));
        table->indexPathsForVisibleRows();
        table->dequeueReusableCellWithIdentifier("cell");
    }
    void set(const Ref<UITableView>& table) {
        switch (bytes_.below(6)) {
        case 0:
            return table->setRowHeight(bytes_.number());
        case 1:
            return table->setSectionHeaderHeight(bytes_.number());
        case 2:
            return table->setDelegate({});
        case 3:
            return table->setDataSource({});
        case 4:
            return table->setSeparatorColor(std::nullopt);
        default:
            return table->setHidden(bytes_.flag());
        }
    }
    void place(const Ref<UITableView>& table) {
        switch (bytes_.below(4)) {
        case 0:
            return table->setFrame(bytes_.rect());
        case 1:
            return table->setBounds(bytes_.rect());
        case 2:
            return window_->settle();
        default:
            table->superview() ? table->removeFromSuperview() : window_->addSubview(table);
        }
    }
    void draw() {
        NullCanvas canvas;
        window_->draw(canvas);
    }

    FuzzBytes& bytes_;
    Ref<UIWindow> window_;
    FuzzHand hand_{bytes_, window_};
    Ref<Source> source_;
    Ref<UITableView> table_;
    int depth_ = 0;
    int reactions_ = 0;
};

NSInteger Source::numberOfSectionsInTableView(const Ref<UITableView>&) {
    if (world) world->react(8);
    return sections;
}
NSInteger Source::tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) {
    if (world) world->react(16);
    return rows;
}
Ref<UITableViewCell> Source::tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath) {
    if (world) world->react(16);
    if (world && world->bytes().below(16) == 15) return world->bytes().flag() ? create<UITableViewCell>() : nullptr;
    return table->dequeueReusableCellWithIdentifier("cell");
}
std::optional<std::string> Source::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    if (section % 2) return std::nullopt;
    return "header";
}
CGFloat Source::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    if (path.row > 0 || !world) return 20 + static_cast<CGFloat>(path.row % 3) * 15;
    world->react(16);
    return world ? world->bytes().number() : 0;
}
bool Source::tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    if (world) world->react(4);
    return true;
}
void Source::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    if (world) world->react(1);
}
void Source::tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>&, NSIndexPath) {
    if (world) world->react(16);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    World(bytes).run();
    return 0;
}
