#include "LineBreaks.h"

#include <algorithm>
#include <cstddef>

#include "CodePoints.h"

using namespace gx;

namespace gallery {

namespace {

std::vector<CodePoint> codePointsOf(std::string_view text) {
    std::vector<CodePoint> points;
    for (std::size_t place = 0; place < text.size(); place = points.back().end) points.push_back(codePointAt(text, place));
    return points;
}

bool isOneOf(std::u32string_view set, char32_t code) { return set.find(code) != std::u32string_view::npos; }

// Kana, Chinese characters, and their punctuation. Korean has spaces between its words.
bool standsAlone(char32_t code) {
    return (code >= 0x3000 && code <= 0x30FF) || (code >= 0x3400 && code <= 0x9FFF) || (code >= 0xF900 && code <= 0xFAFF) ||
           (code >= 0xFF00 && code <= 0xFFEF);
}
// Words of other languages, in which a break is read as their end.
bool isKatakana(char32_t code) { return code >= 0x30A1 && code <= 0x30FF; }
bool mayBeginLine(char32_t code) {
    return !isOneOf(U"、。，．・：；？！）」』】〉》ー々ぁぃぅぇぉっゃゅょゎァィゥェォッャュョヮ%,.:;!?)…", code);
}
bool mayEndLine(char32_t code) { return !isOneOf(U"（「『【〈《(", code); }

bool isLetter(char32_t code) {
    return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code < 0x0530 && code != 0xD7 && code != 0xF7);
}
bool isVowel(char32_t code) {
    return isOneOf(U"aeiouyAEIOUYàáâãäåæèéêëìíîïòóôõöøùúûüýÿąęıœőűÀÁÂÃÄÅÆÈÉÊËÌÍÎÏÒÓÔÕÖØÙÚÛÜÝĄĘİŒ"
                   U"аеёиоуыэюяіїєАЕЁИОУЫЭЮЯІЇЄ",
                   code);
}
/// Two letters for one sound, which stay together.
bool areOneSound(char32_t first, char32_t second) {
    const bool endsInH = second == 'h' && isOneOf(U"cspt", first);
    const bool isPolish = second == 'z' && isOneOf(U"scrd", first);
    return endsInH || isPolish || (first == 'c' && second == 'k') || (first == 'q' && second == 'u') || second == U'ь' || second == U'ъ';
}

/// A consonant and the r or l that follows begin a syllable together: "fil-tre".
bool areOneOnset(char32_t first, char32_t second) {
    const bool isLiquid = second == 'r' || second == 'l';
    return isLiquid && isOneOf(U"bcdfgkptv", first) && !(second == 'l' && (first == 'd' || first == 't'));
}

/// A text that is not broken unless it is wider than a line.
struct Piece {
    std::string_view text;
    bool followsSpace = false;
};

std::vector<Piece> piecesOf(std::string_view text) {
    std::vector<Piece> pieces;
    const std::vector<CodePoint> characters = codePointsOf(text);
    bool followsSpace = false;
    for (std::size_t i = 0; i < characters.size();) {
        if (characters[i].code == ' ') {
            followsSpace = true;
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        for (; end < characters.size() && characters[end].code != ' '; ++end) {
            const char32_t before = characters[end - 1].code;
            const char32_t after = characters[end].code;
            const bool isHyphen = before == '-' && end >= i + 2 && isLetter(characters[end - 2].code) && isLetter(after);
            const bool isBetween = (standsAlone(before) || standsAlone(after)) && mayEndLine(before) && mayBeginLine(after);
            const bool isWord = isKatakana(before) && isKatakana(after);
            if (isHyphen || (isBetween && !isWord)) break;
        }
        pieces.push_back({text.substr(characters[i].start, characters[end - 1].end - characters[i].start), followsSpace});
        followsSpace = false;
        i = end;
    }
    return pieces;
}

bool endsInDigit(std::string_view text) { return !text.empty() && text.back() >= '0' && text.back() <= '9'; }

/// How many pieces a unit has from here on: one, or the characters of a short Chinese or Japanese
/// one. A longer run of them is a sentence.
std::size_t lengthOfUnit(const std::vector<Piece>& pieces, std::size_t first) {
    constexpr std::size_t longest = 3;
    std::size_t end = first + 1;
    while (end < pieces.size() && !pieces[end].followsSpace) ++end;
    return end - first <= longest ? end - first : 1;
}

/// A number and the unit behind it, joined where both fit in one line.
std::vector<Piece> joinNumbersAndUnits(const std::vector<Piece>& pieces, CGFloat room, const LineBreaks::WidthOf& widthOf) {
    std::vector<Piece> joined;
    bool isNumber = false; // A unit is no number, so "3 4 km" joins only its end.
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const Piece& piece = pieces[i];
        if (isNumber && piece.followsSpace && !endsInDigit(piece.text)) {
            const std::size_t length = lengthOfUnit(pieces, i);
            const std::string_view end = pieces[i + length - 1].text;
            const char* const start = joined.back().text.data();
            const std::string_view both(start, static_cast<std::size_t>(end.data() + end.size() - start));
            if (widthOf(both) <= room) {
                joined.back().text = both;
                isNumber = false;
                i += length - 1;
                continue;
            }
        }
        joined.push_back(piece);
        isNumber = endsInDigit(piece.text);
    }
    return joined;
}

/// Whether a new syllable may begin with a letter: at a consonant that a vowel follows.
bool beginsSyllable(const std::vector<CodePoint>& word, std::size_t at) {
    constexpr std::size_t fewest = 2; // Letters on either side.
    if (at < fewest || at + fewest > word.size()) return false;
    const auto code = [&word](std::size_t index) { return word[index].code; };
    const bool areLetters =
        std::all_of(word.begin() + static_cast<std::ptrdiff_t>(at - fewest), word.begin() + static_cast<std::ptrdiff_t>(at + fewest),
                    [](const CodePoint& character) { return isLetter(character.code); });
    const auto stayTogether = [](char32_t first, char32_t second) { return areOneSound(first, second) || areOneOnset(first, second); };
    if (!areLetters || isVowel(code(at)) || stayTogether(code(at - 1), code(at))) return false;
    const bool isPair = at + 2 < word.size() && stayTogether(code(at), code(at + 1));
    if (!isVowel(code(isPair ? at + 2 : at + 1))) return false;
    return std::any_of(word.begin(), word.begin() + static_cast<std::ptrdiff_t>(at),
                       [](const CodePoint& character) { return isVowel(character.code); });
}

struct Part {
    std::string line;
    std::size_t length = 0; ///< in the word, in bytes
};

/// The longest beginning of a word that fits, and at least one character.
Part beginningThatFits(std::string_view word, CGFloat width, const LineBreaks::WidthOf& widthOf) {
    const std::vector<CodePoint> characters = codePointsOf(word);
    std::size_t fitting = 1;
    while (fitting < characters.size() && widthOf(word.substr(0, characters[fitting].end)) <= width) ++fitting;
    for (std::size_t at = fitting; at > 1; --at) {
        if (at >= characters.size()) continue;
        const std::size_t length = characters[at].start;
        if (isOneOf(U"-_./", characters[at - 1].code)) return {std::string(word.substr(0, length)), length};
        if (!beginsSyllable(characters, at)) continue;
        std::string line = std::string(word.substr(0, length)) + "-";
        if (widthOf(line) <= width) return {std::move(line), length};
    }
    while (fitting > 1 && fitting < characters.size() && !mayBeginLine(characters[fitting].code)) --fitting;
    const std::size_t length = characters[fitting - 1].end;
    return {std::string(word.substr(0, length)), length};
}

} // namespace

std::vector<std::string> LineBreaks::linesOfText_width(std::string_view text, CGFloat width, const WidthOf& widthOf) {
    // So little too much comes from adding up fractions, and is no reason to break.
    constexpr CGFloat tolerance = 0.01;
    const CGFloat room = width + tolerance;
    std::vector<std::string> lines;
    for (const Piece& piece : joinNumbersAndUnits(piecesOf(text), room, widthOf)) {
        if (!lines.empty()) {
            const std::string longer = lines.back() + (piece.followsSpace ? " " : "") + std::string(piece.text);
            if (widthOf(longer) <= room) {
                lines.back() = longer;
                continue;
            }
        }
        std::string_view word = piece.text;
        while (widthOf(word) > room) {
            Part part = beginningThatFits(word, room, widthOf);
            lines.push_back(std::move(part.line));
            word.remove_prefix(part.length);
        }
        if (!word.empty()) lines.emplace_back(word);
    }
    return lines;
}

} // namespace gallery
