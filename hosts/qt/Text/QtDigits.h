#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRectF>

#include <GXUIPickers/GXExport.h>

namespace gx::qt {

/// Where the digits of a number lie in one face, without shaping the number.
///
/// Shaping takes most of the time that a new row needs. But a digit is only moved by the one before
/// it, so the ten digits and their hundred pairs tell the place of each, to the bit. They are
/// shaped when they are first needed.
///
/// Fonts may do otherwise: a face in which one of the first numbers is not as wide as shaped is not
/// used from then on. Lengths are in pixels of the face.
class GX_EXPORT QtDigits {
public:
    static constexpr std::size_t highestLength = 20; // Of any 64-bit number.

    explicit QtDigits(const QFont& font) : font_(font), metrics_(font) {}

    /// What an entry has for each digit.
    struct Places {
        std::size_t count = 0;
        std::array<double, highestLength> x{};
        double advance = 0;
    };
    /// Nothing for a text with other characters, one that is empty or too long, and for a face that
    /// sets numbers otherwise. The result is valid until the next call.
    const Places* placesOf(std::string_view text);
    /// One digit, to draw without shaping it, and what it covers, seen from the left end of its
    /// baseline. Only where `canCompose` is true.
    const QGlyphRun& glyphOf(char digit);
    const QRectF& inkOf(char digit);

    /// Whether images of numbers may be made of those of their digits, as far as is known. Once it
    /// is set to false it stays so.
    bool canCompose();
    /// Returns whether an image made of several digits is still to be compared with one of the
    /// whole text; true for the first ones.
    bool takeImageCheck() { return places_.count > 1 && imageChecks_ < highestImageCheckCount && ++imageChecks_ > 0; }
    void forbidComposing() { canCompose_ = false; }

private:
    // Chosen: enough that most digits were among them, and little beside the numbers of a wheel.
    static constexpr int highestCheckCount = 8;
    // Chosen: what differs does so in every number.
    static constexpr int highestImageCheckCount = 1;
    static constexpr double unknown = -1; // No advance of a digit is negative.

    double advanceOf(std::string_view digits);
    void openGlyphs();

    QFont font_;
    QFontMetricsF metrics_;
    Places places_;
    std::array<double, 10> singles_ = filled<10>();
    std::array<double, 100> pairs_ = filled<100>();
    /// Made when the first one is needed; empty in a font without digits.
    struct Glyph {
        QGlyphRun run;
        QRectF ink;
    };
    std::optional<std::vector<Glyph>> glyphs_;
    int widthChecks_ = 0;
    int imageChecks_ = 0;
    bool isAdditive_ = true;
    bool canCompose_ = true;

    template <std::size_t count>
    static std::array<double, count> filled() {
        std::array<double, count> values{};
        values.fill(unknown);
        return values;
    }
};

} // namespace gx::qt
