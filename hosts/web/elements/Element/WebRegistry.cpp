#include "WebRegistry.h"

#include <algorithm>
#include <vector>

namespace gx::web {

namespace {

using Elements = std::vector<std::unique_ptr<WebElement>>;

/// In the order of their numbers.
Elements& elements() {
    static Elements all;
    return all;
}

/// The first element whose number is not lower.
Elements::iterator placeOf(std::int32_t number) {
    return std::partition_point(elements().begin(), elements().end(),
                                [number](const std::unique_ptr<WebElement>& element) { return element->host().number() < number; });
}

bool isAt(Elements::iterator place, std::int32_t number) { return place != elements().end() && (*place)->host().number() == number; }

} // namespace

void WebRegistry::add(std::unique_ptr<WebElement> element) {
    const std::int32_t number = element->host().number();
    remove(number);
    elements().push_back(std::move(element));
    // The page's numbers grow, so it nearly always is at its place.
    for (auto place = elements().end() - 1; place != elements().begin() && number < (*(place - 1))->host().number(); --place)
        place->swap(*(place - 1));
}

void WebRegistry::remove(std::int32_t number) {
    const auto place = placeOf(number);
    if (!isAt(place, number)) return;
    // It ends after it has left the list.
    const std::unique_ptr<WebElement> removed = std::move(*place);
    elements().erase(place);
}

std::int32_t WebRegistry::count() { return static_cast<std::int32_t>(elements().size()); }

WebElement* WebRegistry::find(std::int32_t number) {
    const auto place = placeOf(number);
    return isAt(place, number) ? place->get() : nullptr;
}

} // namespace gx::web
