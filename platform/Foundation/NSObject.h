#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace gx {

using NSInteger = std::int64_t;
using NSUInteger = std::uint64_t;
/// Seconds.
using NSTimeInterval = double;

/// A shared, owning reference: how views, cells, formatters and services are held. May be empty.
template <class T>
using Ref = std::shared_ptr<T>;
/// A reference that does not own: how delegates and data sources are held. Lock it once for each call out.
template <class T>
using WeakRef = std::weak_ptr<T>;

/// The root of everything that is shared by reference.
///
/// Construction has two phases, because a class's set-up calls operations that its subclasses override:
/// the C++ constructor only gives members their defaults, then an initialiser (`init…`) runs through the
/// finished object. Make objects with `create<T>(…)`, which does both.
///
/// Protocols (delegates, data sources) are plain abstract classes and do not derive from this one, so a
/// class may adopt any number of them.
class NSObject : public std::enable_shared_from_this<NSObject> {
public:
    NSObject() = default;
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;
    virtual ~NSObject();

    /// Answers false to refuse construction; `create` then answers nothing.
    virtual bool init();

    /// Calls `selector` on a later pass of the main run loop or, with `waitUntilDone`, at once. The object
    /// is held weakly until then: if it is gone by the time, nothing happens.
    template <class T>
    void performSelectorOnMainThread_waitUntilDone(void (T::*selector)(), bool waitUntilDone) {
        static_assert(std::is_base_of_v<NSObject, T>);
        if (waitUntilDone) {
            (static_cast<T*>(this)->*selector)();
            return;
        }
        queueOnMainRunLoop([target = weak_from_this(), selector] {
            if (const std::shared_ptr<NSObject> object = target.lock()) (static_cast<T*>(object.get())->*selector)();
        });
    }

private:
    static void queueOnMainRunLoop(std::function<void()> block);
};

/// A reference to an object from inside it; empty while the object is being torn down or if it was not made by `create`.
template <class T>
Ref<T> refTo(T* object) {
    const Ref<NSObject> owner = object ? object->weak_from_this().lock() : nullptr;
    return owner ? Ref<T>(owner, object) : nullptr;
}

namespace detail {

template <class T, class... Arguments>
bool initialise(T& object, const Arguments&... arguments) {
    if constexpr (sizeof...(Arguments) == 0) {
        return object.init();
    } else if constexpr (requires { object.initWithFrame(arguments...); }) {
        return object.initWithFrame(arguments...);
    } else if constexpr (requires { object.initWithCoder(arguments...); }) {
        return object.initWithCoder(arguments...);
    } else if constexpr (requires { object.initWithFrame_rowHeight(arguments...); }) {
        return object.initWithFrame_rowHeight(arguments...);
    } else if constexpr (requires { object.initWithStyle_reuseIdentifier(arguments...); }) {
        return object.initWithStyle_reuseIdentifier(arguments...);
    } else if constexpr (requires { object.initWithStyle_isMetric_usingUnit(arguments...); }) {
        return object.initWithStyle_isMetric_usingUnit(arguments...);
    } else {
        static_assert(
            requires { object.initWithLocaleIdentifier(arguments...); }, "T has no initialiser that takes these arguments");
        return object.initWithLocaleIdentifier(arguments...);
    }
}

} // namespace detail

/// Makes a T and runs, through the object, the initialiser that fits the arguments:
///   `()` init, `(frame)` initWithFrame, `(coder)` initWithCoder, `(frame, rowHeight)` initWithFrame_rowHeight,
///   `(style, identifier)` initWithStyle_reuseIdentifier, `(style, isMetric, usingUnit)`
///   initWithStyle_isMetric_usingUnit, `(identifier)` initWithLocaleIdentifier.
/// Answers nothing if the initialiser refused.
template <class T, class... Arguments>
Ref<T> create(const Arguments&... arguments) {
    static_assert(std::is_base_of_v<NSObject, T>);
    auto object = std::make_shared<T>();
    if (!detail::initialise(*object, arguments...)) return nullptr;
    return object;
}

} // namespace gx
