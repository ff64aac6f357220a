#include "WebColumns.h"

#include "WebPage.h"
#include "WebText.h"

namespace gx::web {

std::optional<std::string> WebColumns::titleOfRow_ofColumn(double row, NSInteger column) const {
    const std::int32_t length = gx_page_row_title(number_, static_cast<std::int32_t>(column), row);
    return length < 0 ? std::nullopt : std::optional(sharedText().substr(0, static_cast<std::size_t>(length)));
}

} // namespace gx::web
