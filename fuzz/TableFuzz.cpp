// A table whose data source returns anything and changes at any time, within its callbacks too.

#include "FuzzHand.h"
#include "FuzzProperties.h"
#include "FuzzTableSource.h"
#include "FuzzViews.h"
#include "GXDurationPickerCell.h"
#include "NullCanvas.h"

using namespace gx;

namespace {

class World : public FuzzWorld {
public:
    explicit World(FuzzBytes& bytes)
        : FuzzWorld(bytes), bytes_(bytes), window_(newWindow()), scrollView_(create<UIScrollView>(CGRectMake(0, 0, 400, 400))),
          source_(newSource()), table_(newTable()) {
        scrollView_->setContentSize({400, 1000});
    }
    ~World() override {
        source_->world = nullptr;
        for (const WeakRef<FuzzCell>& entry : ownCells_) {
            if (const Ref<FuzzCell> cell = entry.lock()) cell->world = nullptr;
        }
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    void run() {
        actUntilBytesEnd();
        hand_.waitUntilStill();
        draw();
    }

private:
    static Ref<UIWindow> newWindow() { return create<UIWindow>(CGRectMake(0, 0, 400, 400)); }
    Ref<FuzzTableSource> newSource() {
        auto source = std::make_shared<FuzzTableSource>();
        source->world = this;
        return source;
    }
    Ref<UITableView> newTable() {
        auto table = create<UITableView>(bytes_.below(4) == 3 ? bytes_.rect() : CGRectMake(0, 0, 320, 300));
        table->registerClass_forCellReuseIdentifier<UITableViewCell>("cell");
        table->registerClass_forCellReuseIdentifier<GXDurationPickerCell>("picker");
        const auto newOwnCell = [this] {
            auto cell = create<FuzzCell>(UITableViewCellStyleValue1, std::optional<std::string>("own"));
            cell->world = this;
            ownCells_.push_back(cell);
            return cell;
        };
        table->registerClass_forCellReuseIdentifier(newOwnCell, "own");
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

    void act() override {
        // No strong reference: a callback may release the table, as an application may.
        const Ref<UITableView>& table = table_;
        switch (bytes_.below(28)) {
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
            return scrollTo(table);
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
        case 23:
            return table->layoutIfNeeded();
        case 24:
            return changeCell(table);
        case 25:
            return setWindowProperty(bytes_, window_);
        case 26:
            return bytes_.below(4) == 3 ? closeWindow() : setWindowProperty(bytes_, window_);
        default:
            table->becomeFirstResponder();
        }
    }
    /// The application or the user changes something in a row.
    void changeCell(const Ref<UITableView>& table) {
        const NSIndexPath row = {bytes_.below(2), bytes_.below(16)};
        const Ref<UITableViewCell> cell = table->cellForRowAtIndexPath(row);
        if (!cell) return;
        switch (bytes_.below(4)) {
        case 0:
            return setSomething(bytes_, cell.get());
        case 1:
            return cell->removeFromSuperview();
        case 2:
            if (const Ref<UIPickerView> wheel = wheelOf(cell)) wheel->becomeFirstResponder();
            return;
        default:
            if (const Ref<UIPickerView> wheel = wheelOf(cell)) wheel->turnToRow_inComponent(bytes_.below(16), 0);
        }
    }
    void closeWindow() {
        const Ref<UIWindow> closed = std::exchange(window_, newWindow());
        hand_.goTo(window_);
    }
    /// Either few enough for heights of their own, or too many.
    NSInteger manyRows() {
        if (bytes_.below(8) < 7) return bytes_.below(80);
        return bytes_.flag() ? std::numeric_limits<NSInteger>::max() - bytes_.byte() : -NSInteger{bytes_.byte()};
    }
    void insert(const Ref<UITableView>& table) {
        const std::vector<NSIndexPath> added = paths();
        if (bytes_.below(8) < 7 && source_->sections == 1) source_->rows = held(source_->rows) + static_cast<NSInteger>(added.size());
        table->insertRowsAtIndexPaths_animated(added, bytes_.flag());
    }
    void remove(const Ref<UITableView>& table) {
        const std::vector<NSIndexPath> removed = paths();
        if (bytes_.below(8) < 7 && source_->sections == 1) source_->rows -= static_cast<NSInteger>(removed.size());
        table->deleteRowsAtIndexPaths_animated(removed, bytes_.flag());
    }
    void scrollTo(const Ref<UITableView>& table) {
        const NSIndexPath row = path();
        table->scrollToRowAtIndexPath_animated(row, bytes_.flag());
    }
    static NSInteger held(NSInteger rows) { return rows > 300 || rows < 0 ? 100 : rows; }
    void ask(const Ref<UITableView>& present) {
        const Ref<UITableView> table = present;
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
            table->registerClass_forCellReuseIdentifier<UITableViewCell>("cell"); // Again.
            return table->setSeparatorColor(std::nullopt);
        default:
            return table->setHidden(bytes_.flag());
        }
    }
    void place(const Ref<UITableView>& table) {
        switch (bytes_.below(6)) {
        case 0:
            return table->setFrame(bytes_.rect());
        case 1:
            return table->setBounds(bytes_.rect());
        case 2:
            return window_->addSubview(scrollView_);
        case 3:
            return scrollView_->addSubview(table);
        case 4:
            return setSomething(bytes_, scrollView_.get());
        default:
            table->superview() ? table->removeFromSuperview() : window_->addSubview(table);
        }
    }
    void draw() {
        NullCanvas canvas;
        window_->draw(canvas);
    }

    FuzzBytes& bytes_;
    std::vector<WeakRef<FuzzCell>> ownCells_;
    Ref<UIWindow> window_;
    Ref<UIScrollView> scrollView_;
    FuzzHand hand_{bytes_, window_};
    Ref<FuzzTableSource> source_;
    Ref<UITableView> table_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    World(bytes).run();
    return 0;
}
