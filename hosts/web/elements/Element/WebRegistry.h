#pragma once

#include <memory>
#include <utility>

#include "WebElement.h"

namespace gx::web {

/// All elements of the page, by the numbers that the page gave them.
class WebRegistry {
public:
    /// Replaces an element of that number.
    static void add(std::unique_ptr<WebElement> element);
    static void remove(std::int32_t number);
    static std::int32_t count();
    /// Nothing for a number that is not known.
    static WebElement* find(std::int32_t number);
};

/// Calls with the element in its surroundings, and returns its result; a default one without an
/// element of that number.
template <class Call>
auto visit(std::int32_t number, Call call) {
    using Result = decltype(call(std::declval<WebElement&>()));
    WebElement* element = WebRegistry::find(number);
    if (!element) return Result();
    const WebElement::Visit visit(*element);
    return call(*element);
}

} // namespace gx::web
