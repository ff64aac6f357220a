#include "NSObject.h"

namespace gx {

NSObject::~NSObject() = default;

bool NSObject::init() { return true; }

const Ref<NSBlockQueue>& NSBlockQueue::mainQueue() {
    static const Ref<NSBlockQueue> queue = std::make_shared<NSBlockQueue>();
    return queue;
}

void NSBlockQueue::performBlock(std::function<void()> block) {
    if (!block) return;
    const bool wasEmpty = !hasWork();
    queue_.push_back(std::move(block));
    if (wasEmpty) wake();
}

void NSBlockQueue::runPass() {
    if (next_ == running_.size()) {
        running_.clear();
        running_.swap(queue_);
        next_ = 0;
    }
    while (next_ < running_.size()) {
        const std::function<void()> block = std::move(running_[next_]);
        ++next_;
        block();
    }
    if (!queue_.empty()) wake();
}

bool NSBlockQueue::hasWork() const { return !queue_.empty() || next_ < running_.size(); }

void NSBlockQueue::setWakeHandler(std::function<void()> handler) {
    wakeHandler_ = std::move(handler);
    if (hasWork()) wake();
}

void NSBlockQueue::wake() const {
    const std::function<void()> handler = wakeHandler_; // It may be replaced while it runs.
    if (handler) handler();
}

} // namespace gx
