#pragma once

#include <cstring>
#include <memory>
#include <typeinfo>

/// The object as the class that the test knows it to be.
///
/// Nothing if it is of another class. Without RTTI that is not looked at: tests of what an object
/// is use `isExactly`.
template <class T, class U>
std::shared_ptr<T> castTo(const std::shared_ptr<U>& object) {
#ifdef __cpp_rtti
    return std::dynamic_pointer_cast<T>(object);
#else
    return std::static_pointer_cast<T>(object);
#endif
}

/// Whether the object is of class T and of no subclass.
///
/// Without RTTI it is if it has the table of virtual functions that a T has; T and U begin with the
/// same base then.
template <class T, class U>
bool isExactly(const U& object) {
#ifdef __cpp_rtti
    return typeid(object) == typeid(T);
#else
    const T model;
    const void* ofModel = nullptr;
    const void* ofObject = nullptr;
    std::memcpy(&ofModel, static_cast<const void*>(&model), sizeof ofModel);
    std::memcpy(&ofObject, static_cast<const void*>(&object), sizeof ofObject);
    return ofModel == ofObject;
#endif
}
