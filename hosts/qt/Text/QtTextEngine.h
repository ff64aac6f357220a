#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <QFont>
#include <QFontMetricsF>

#include "QtDigits.h"
#include "QtTextCache.h"
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UITextEngine.h>

namespace gx::qt {

/// Measures text with Qt's fonts.
///
/// - Supports: one line of text in any script that Qt can shape, with kerning and fallback fonts;
///   sizes in any fraction of a point; four weights; an interface family for fonts without one.
/// - Does not support: line breaks, letter spacing, font features, italics.
/// - Needs a QGuiApplication.
///
/// Qt rounds the size of a font to whole pixels, also one that is given in points. So each face is
/// opened once at a thousand pixels without hinting, and measuring and drawing scale from there:
/// 22.5 points are exactly that on every screen, and text is as wide as it was measured.
class GX_EXPORT QtTextEngine : public UITextEngine {
public:
    /// The pixel size in which faces are opened. Chosen: large enough that rounding does not
    /// matter.
    static constexpr int facePixelSize = 1000;

    /// A family in one weight, whatever the size. Lengths are for a font of one point.
    struct Face {
        /// Never used again for another face, so it can be part of keys.
        std::uint32_t identifier;
        QFont font;
        QFontMetricsF metrics;
        CGFloat ascent;
        CGFloat lineHeight;
        std::shared_ptr<QtDigits> digits; // Never empty.
    };

    /// The one that `installQtHost` gives to the library and that canvases draw with; never empty.
    static const Ref<QtTextEngine>& shared();

    /// The advance width of the text, and the ascent and descent of its font.
    CGSize sizeOfText_font(std::string_view text, const UIFont& font) override;

    /// The family of fonts that name none; empty for the application's own. Set it before the first
    /// view is made: texts on screen keep their places until they are laid out again.
    const std::string& interfaceFamily() const { return interfaceFamily_; }
    void setInterfaceFamily(std::string family);

    /// Valid until the next call, since the faces kept are few.
    const Face& faceOfFont(const UIFont& font);
    /// Drops all faces and measures; they are made again when they are needed.
    void purge();

    /// How many texts were measured and not found in the cache. Numbers are not in it.
    std::size_t measureCount() const { return measureCount_; }

private:
    struct NamedFace {
        std::string family;
        UIFontWeight weight;
        Face face;
    };

    std::string interfaceFamily_;
    std::vector<std::unique_ptr<NamedFace>> faces_;
    std::uint32_t nextIdentifier_ = 1;
    QtTextCache<double> advances_{highestAdvanceCount};
    std::size_t measureCount_ = 0;

    // Chosen as more texts than any screen shows; each costs about 150 bytes.
    static constexpr std::size_t highestAdvanceCount = 4096;
    // Chosen as more than any application uses; the bound is for one that makes up family names.
    static constexpr std::size_t highestFaceCount = 64;
};

} // namespace gx::qt
