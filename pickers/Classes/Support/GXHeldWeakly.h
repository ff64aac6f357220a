#pragma once

#include <cassert>

#include "NSObject.h"

namespace gx {

/// A weak reference to an object that is passed as a temporary.
///
/// `setDelegate(std::make_shared<…>())` makes a delegate that is gone before the next line, and is
/// never called. Debug builds stop here instead.
template <class T, class Object>
WeakRef<T> heldWeakly(const Ref<Object>& object) {
    assert((!object || object.use_count() > 1) && "A delegate is held weakly, and nothing else holds this one: keep a reference to it.");
    return object;
}

} // namespace gx
