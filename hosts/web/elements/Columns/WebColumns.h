#pragma once

#include "ColumnsPropertyPicker.h"

namespace gx::web {

/// A wheel of the page's own columns: the page is asked for the title of each row that comes into
/// sight.
class WebColumns final : public elements::ColumnsPropertyPicker {
public:
    /// The page that is asked for titles knows the columns by this number.
    void setNumber(std::int32_t number) { number_ = number; }

    std::optional<std::string> titleOfRow_ofColumn(double row, NSInteger column) const override;

private:
    std::int32_t number_ = 0;
};

} // namespace gx::web
