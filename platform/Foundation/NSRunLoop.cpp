#include "NSRunLoop.h"

namespace gx {

const Ref<NSRunLoop>& NSRunLoop::mainRunLoop() {
    static const Ref<NSRunLoop> loop = [] {
        auto made = create<NSRunLoop>();
        made->queue_ = NSBlockQueue::mainQueue();
        return made;
    }();
    return loop;
}

void NSRunLoop::performBlock(std::function<void()> block) { queue_->performBlock(std::move(block)); }

void NSRunLoop::runPass() { queue_->runPass(); }

bool NSRunLoop::hasWork() const { return queue_->hasWork(); }

void NSRunLoop::setWakeHandler(std::function<void()> handler) { queue_->setWakeHandler(std::move(handler)); }

} // namespace gx
