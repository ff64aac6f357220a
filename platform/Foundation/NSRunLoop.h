#pragma once

#include <functional>

#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// The queue of the interface thread: work that has to wait until the present call has returned.
///
/// Invariant: a pass runs only what was queued before it. To call an operation of an object later
/// use `NSObject::performSelectorOnMainThread_waitUntilDone`.
///
/// A host pumps it with `runPass`, once for each round of its own event loop. Without a host, a
/// test or an application calls `runPass` itself.
class GX_EXPORT NSRunLoop : public NSObject {
public:
    /// The one queue of the interface thread; never empty.
    static const Ref<NSRunLoop>& mainRunLoop();

    /// Queues `block` for the next pass. An empty block is ignored.
    void performBlock(std::function<void()> block);
    /// Runs, in order, what was queued before the call. What the blocks queue waits for the next
    /// call.
    ///
    /// A block may call `runPass` itself, as a nested event loop does: that takes over what is
    /// still to run or, after the last block, runs what came since.
    void runPass();
    /// Whether a pass would do anything.
    bool hasWork() const;

    /// Called whenever the queue stops being empty, so that a host can schedule a pass. One host at
    /// a time.
    void setWakeHandler(std::function<void()> handler);

private:
    Ref<NSBlockQueue> queue_ = std::make_shared<NSBlockQueue>();
};

} // namespace gx
