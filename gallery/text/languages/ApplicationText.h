#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace gallery {

// The files of this folder have the application's texts, one struct for each language of the
// pickers, all with the same texts in the same order.
//
// - Choices agree with the name of what they choose: "Metric" with "Units", "Full" with "Motion",
//   "High" with "Contrast", "Light" with "Look".
// - "Height" and "Weight" are those of a body. Weather is written as within a sentence.
// - "{0}" and "{1}" stand for names and numbers. French has a no-break space before a colon.
// - A "component" is a column of a wheel in the program's terms.

/// A text and the English one that is its key.
struct ApplicationText {
    std::string_view english;
    std::string_view text;

    /// Where both are the same.
    constexpr ApplicationText(const char* both) : english(both), text(both) {}
    constexpr ApplicationText(std::string_view anEnglish, std::string_view aText) : english(anEnglish), text(aText) {}
};

/// What the compiler checks of each language. Every check returns the index of the first bad entry,
/// or `complete`.
class ApplicationTextChecks {
public:
    static constexpr std::size_t complete = static_cast<std::size_t>(-1);

    /// The keys of `model` in its order, each with a text that has the places of its key, "{0}" and
    /// "{1}", once each.
    static constexpr std::size_t firstProblemOfTexts(std::span<const ApplicationText> texts, std::span<const ApplicationText> model) {
        for (std::size_t i = 0; i < std::max(texts.size(), model.size()); ++i) {
            if (i >= texts.size() || i >= model.size()) return i;
            if (texts[i].english != model[i].english || texts[i].text.empty()) return i;
            for (const std::string_view place : {"{0}", "{1}"}) {
                if (countOf(place, texts[i].text) != countOf(place, texts[i].english) || countOf(place, texts[i].text) > 1) return i;
            }
        }
        return complete;
    }

    static constexpr std::size_t firstRepeatedText(std::span<const ApplicationText> texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (texts[i].english == texts[j].english) return i;
            }
        }
        return complete;
    }

private:
    static constexpr std::size_t countOf(std::string_view place, std::string_view text) {
        std::size_t count = 0;
        for (std::size_t at = text.find(place); at != std::string_view::npos; at = text.find(place, at + 1)) ++count;
        return count;
    }
};

/// Fails to compile with the index of the first bad entry, which compilers show as its argument.
template <std::size_t firstProblem>
constexpr bool isComplete() {
    static_assert(firstProblem == ApplicationTextChecks::complete, "a text is missing, empty, repeated or in the wrong place");
    return true;
}

} // namespace gallery
