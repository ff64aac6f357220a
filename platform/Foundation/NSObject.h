#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "GXExport.h"

namespace gx {

/// A count, an index or an identifier: 64 bits on every machine.
using NSInteger = std::int64_t;
/// 64 bits without a sign.
using NSUInteger = std::uint64_t;
/// Seconds.
using NSTimeInterval = double;

/// A shared, owning reference. Views, cells, formatters and services are held so. May be empty.
template <class T>
using Ref = std::shared_ptr<T>;
/// A reference that does not own. Delegates and data sources are held so. Lock it once for each
/// call.
template <class T>
using WeakRef = std::weak_ptr<T>;

/// Blocks that wait until the present call has returned: what a run loop runs.
///
/// It is part of no run loop, so that objects can queue calls without knowing one. Applications use
/// `NSRunLoop`, which has the rules.
class GX_EXPORT NSBlockQueue {
public:
    /// What `NSRunLoop::mainRunLoop()` runs.
    static const Ref<NSBlockQueue>& mainQueue();

    /// Queues a block for the next pass; an empty one is ignored.
    void performBlock(std::function<void()> block);
    /// Runs what was queued before the call, in order.
    void runPass();
    /// Whether a pass would do anything.
    bool hasWork() const;
    /// Called whenever the queue stops being empty. One handler; an empty one calls nothing.
    void setWakeHandler(std::function<void()> handler);

private:
    void wake() const;

    std::vector<std::function<void()>> queue_;
    std::vector<std::function<void()>> running_;
    std::size_t next_ = 0;
    std::function<void()> wakeHandler_;
};

/// Stands for a class in `isKindOfClass`: one for each class that may be asked about, known by its
/// address.
struct NSClass {
    const char* name; ///< of the class, for debugging
};

/// The root of everything that is shared by reference.
///
/// Construction has two phases, because the set-up of a class calls operations that its subclasses
/// override: the C++ constructor only gives members their defaults, then an initialiser (`init…`)
/// runs through the finished object. Make objects with `create<T>(…)`, which does both.
///
/// Protocols (delegates, data sources) are plain abstract classes and do not derive from this one,
/// so a class may adopt any number of them.
class GX_EXPORT NSObject : public std::enable_shared_from_this<NSObject> {
public:
    NSObject() = default;
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;
    virtual ~NSObject();

    /// Returns false to refuse construction; `create` then returns nothing.
    virtual bool init();

    /// Whether the object is of the class that `kind` stands for, or of one derived from it. It
    /// asks the object and needs no RTTI. A class that may be asked about has a static member
    /// `kind` and overrides this.
    virtual bool isKindOfClass(const NSClass& /*kind*/) const { return false; }

    /// Calls `selector` in the next pass of the main run loop or, with `waitUntilDone`, at once.
    ///
    /// The object is held weakly until then: if it is gone by the time, nothing happens.
    template <class T>
    void performSelectorOnMainThread_waitUntilDone(void (T::*selector)(), bool waitUntilDone) {
        static_assert(std::is_base_of_v<NSObject, T>);
        if (waitUntilDone) {
            (static_cast<T*>(this)->*selector)();
            return;
        }
        NSBlockQueue::mainQueue()->performBlock([target = weak_from_this(), selector] {
            if (const std::shared_ptr<NSObject> object = target.lock()) (static_cast<T*>(object.get())->*selector)();
        });
    }
};

/// A reference to an object from inside it.
///
/// Empty while the object is being torn down, or if it was not made by `create`.
template <class T>
Ref<T> refTo(T* object) {
    const Ref<NSObject> owner = object ? object->weak_from_this().lock() : nullptr;
    return owner ? Ref<T>(owner, object) : nullptr;
}

/// The object as a T, or nothing if it is none.
template <class T, class Object>
Ref<T> asKindOf(const Ref<Object>& object) {
    return object && object->isKindOfClass(T::kind) ? std::static_pointer_cast<T>(object) : nullptr;
}

/// How an object without arguments is made. Classes that take arguments have overloads beside them.
inline bool initialise(NSObject& object) { return object.init(); }

/// Whether `create<T>` takes these arguments: an overload of `initialise` fits them.
template <class T, class... Arguments>
concept Creatable = requires(T& object, const Arguments&... arguments) {
    { initialise(object, arguments...) } -> std::same_as<bool>;
};

/// Makes a T and runs, through the object, the initialiser that fits the arguments.
///
/// Which one that is stands beside the class that has it, as an overload of `initialise` in the
/// namespace of that class. It serves all subclasses, also those that hide the initialiser's name:
///
///     class Gauge : public gx::UIView {
///     public:
///         virtual bool initWithRange(double lowest, double highest);
///     };
///     inline bool initialise(Gauge& gauge, double lowest, double highest) {
///         return gauge.initWithRange(lowest, highest);
///     }
///
///     const gx::Ref<Gauge> gauge = gx::create<Gauge>(0.0, 10.0);
///
/// Returns nothing if the initialiser refused.
template <class T, class... Arguments>
Ref<T> create(const Arguments&... arguments) {
    static_assert(std::is_base_of_v<NSObject, T>, "create<T> makes objects: T derives from gx::NSObject");
    static_assert(Creatable<T, Arguments...>,
                  "T has no initialiser for these arguments: there is no initialise(T&, arguments...) beside it");
    auto object = std::make_shared<T>();
    if constexpr (Creatable<T, Arguments...>) {
        if (!initialise(*object, arguments...)) return nullptr;
    }
    return object;
}

} // namespace gx
