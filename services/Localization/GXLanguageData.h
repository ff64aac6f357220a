#pragma once

#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include "GXEnglish.h"
#include "GXLanguage.h"

namespace gx {

/// A language that is read from a text, for builds that get their languages while they run.
///
/// The text has one entry a line, in a fixed order: identifier, own name, decimal separator, plural
/// table, unit texts, names, and for each unit a line for each plural category.
class GXLanguageData {
public:
    /// The text from which another build reads the language.
    static std::string textOfLanguage(const GXLanguage& language);
    /// Nothing for a text that `textOfLanguage` does not write.
    static std::unique_ptr<GXLanguageData> dataFromText(std::string text);

    /// Lives as long as the data.
    const GXLanguage& language() const { return language_; }

    /// Holds other data as long as this is there.
    void setBefore(std::unique_ptr<GXLanguageData> before) { before_ = std::move(before); }

    GXLanguageData(const GXLanguageData&) = delete;
    GXLanguageData& operator=(const GXLanguageData&) = delete;

private:
    explicit GXLanguageData(std::string text) : text_(std::move(text)) {}
    /// Returns whether all entries are there.
    bool read();

    std::string text_;
    std::array<GXText, std::size(GXEnglish::unitTexts)> unitTexts_;
    std::array<GXAccessibilityNameText, GXAccessibilityNameCount> names_{};
    std::array<GXAccessibilityUnitText, GXAccessibilityUnitCount> units_{};
    GXLanguage language_{GXLanguage::Parts{}};
    std::unique_ptr<GXLanguageData> before_;
};

} // namespace gx
