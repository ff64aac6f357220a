#pragma once

#include <functional>
#include <map>
#include <string>
#include <tuple>

#include <GXUIPickers/UITextEngine.h>

namespace gx::web {

/// Measures texts by the page's own canvas, and keeps what it has measured.
class WebTextEngine final : public UITextEngine {
public:
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override;

    /// The page's font for texts in the system font.
    void setSystemFont(std::int32_t font) { systemFont_ = font; }
    /// For fonts that have come late: everything is measured again.
    void forgetMeasures() {
        sizes_.clear();
        count_ = 0;
    }

private:
    /// Chosen: all texts of a page full of pickers, in some hundred kilobytes.
    static constexpr std::size_t highestCount = 4000;

    struct Key {
        std::int32_t font;
        CGFloat size;
        auto asTuple() const { return std::tie(font, size); }
        friend bool operator<(const Key& one, const Key& other) { return one.asTuple() < other.asTuple(); }
    };
    std::map<Key, std::map<std::string, CGSize, std::less<>>> sizes_;
    std::size_t count_ = 0;
    std::int32_t systemFont_ = 0;
};

} // namespace gx::web
