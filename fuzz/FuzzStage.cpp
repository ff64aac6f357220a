#include "FuzzStage.h"

#include "FuzzProperties.h"
#include "NullCanvas.h"
#include "UIHost.h"

using namespace gx;

FuzzStage::FuzzStage(FuzzBytes& bytes, UIWindowHost& host)
    : bytes_(bytes), host_(host), windows_{newWindow(), newWindow()}, scrollView_(create<UIScrollView>(CGRectMake(0, 0, 380, 380))),
      table_(create<UITableView>(CGRectMake(0, 0, 360, 300))), hand_(bytes, windows_[0]) {
    scrollView_->setContentSize({380, 1200});
    windows_[0]->addSubview(scrollView_);
}

FuzzStage::~FuzzStage() {
    for (const Ref<UIWindow>& window : windows_) window->setHost(nullptr);
}

Ref<UIWindow> FuzzStage::newWindow() const {
    const auto window = create<UIWindow>(CGRectMake(0, 0, 400, 400));
    window->setHost(&host_);
    return window;
}

void FuzzStage::closeWindow(Ref<UIWindow>& window) {
    window->setHost(nullptr);
    // Only then: it tells views, which may do anything to the new one.
    const Ref<UIWindow> closed = std::exchange(window, newWindow());
    hand_.goTo(window);
}

void FuzzStage::place(const Ref<UIView>& view, const Ref<UIView>& other) {
    switch (bytes_.below(8)) {
    case 0:
    case 1:
        return someWindow()->addSubview(view);
    case 2:
        return scrollView_->addSubview(view);
    case 3:
        return scrollView_->insertSubview_atIndex(table_, bytes_.integer());
    case 4:
        if (other) other->addSubview(view);
        return;
    case 5:
        return someWindow()->addSubview(scrollView_);
    case 6:
        return someWindow()->insertSubview_atIndex(table_, bytes_.integer());
    default:
        return view->removeFromSuperview();
    }
}

void FuzzStage::setTableSource(const Ref<FuzzListener>& source) {
    table_->setDataSource(source);
    table_->setDelegate(source);
}

void FuzzStage::change(const Ref<UIView>& view) {
    switch (bytes_.below(12)) {
    case 0:
    case 1:
        return hand_.goTo(someWindow());
    case 2:
        return closeWindow(someWindow());
    case 3:
        return someWindow()->cancelTouchesWithin(view);
    case 4: {
        const CGRect rect = bytes_.rect();
        return scrollView_->scrollRectToVisible_animated(rect, bytes_.flag());
    }
    case 5:
        return scrollView_->setContentSize(bytes_.rect().size);
    case 6:
        return bytes_.flag() ? scrollView_->setHidden(bytes_.flag()) : table_->setHidden(bytes_.flag());
    case 7:
        return table_->reloadData();
    case 8: {
        const NSIndexPath path = {0, bytes_.below(6)};
        return table_->scrollToRowAtIndexPath_animated(path, bytes_.flag());
    }
    default:
        return setWindowProperty(bytes_, someWindow());
    }
}

void FuzzStage::draw() {
    NullCanvas canvas;
    for (const Ref<UIWindow>& window : std::array(windows_)) window->draw(canvas);
}

void FuzzStage::end() {
    for (std::size_t i = 0; i < windows_.size(); ++i) {
        hand_.goTo(windows_[i]);
        hand_.waitUntilStill();
        windows_[i]->finishAnimations();
    }
    draw();
}
