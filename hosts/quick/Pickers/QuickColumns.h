#pragma once

#include <functional>

#include "ColumnsPropertyPicker.h"

namespace gx::quick {

/// A wheel of an application's own columns, with a function for the titles.
class QuickColumns final : public elements::ColumnsPropertyPicker {
public:
    using Title = std::function<std::optional<std::string>(double row, NSInteger column)>;
    void setTitle(Title title) { title_ = std::move(title); }

    std::optional<std::string> titleOfRow_ofColumn(double row, NSInteger column) const override {
        return title_ ? title_(row, column) : std::nullopt;
    }

private:
    Title title_;
};

} // namespace gx::quick
