#include "WebRegistry.h"

#include <map>

namespace gx::web {

namespace {

std::map<std::int32_t, std::unique_ptr<WebElement>>& elements() {
    static std::map<std::int32_t, std::unique_ptr<WebElement>> all;
    return all;
}

} // namespace

void WebRegistry::add(std::unique_ptr<WebElement> element) {
    const std::int32_t number = element->host().number();
    elements()[number] = std::move(element);
}

void WebRegistry::remove(std::int32_t number) { elements().erase(number); }

std::int32_t WebRegistry::count() { return static_cast<std::int32_t>(elements().size()); }

WebElement* WebRegistry::find(std::int32_t number) {
    const auto entry = elements().find(number);
    return entry == elements().end() ? nullptr : entry->second.get();
}

} // namespace gx::web
