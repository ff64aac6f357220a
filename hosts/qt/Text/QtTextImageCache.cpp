#include "QtTextImageCache.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include <QGlyphRun>
#include <QPainter>
#include <QPen>
#include <QRawFont>
#include <QString>
#include <QTextLayout>

#include "QtPlainBrush.h"

namespace gx::qt {

namespace {

// Chosen: a clear edge, so that an image drawn smaller or between pixels fades out and is not cut.
constexpr double margin = 2;
// A digit's image is copied to whole pixels only. It begins up to a pixel behind its place.
constexpr double digitMargin = 1;
// Estimated for an entry, in bytes beside its pixels.
constexpr std::size_t overhead = 256;

// Qt fills the outlines of larger text, and places it at any part of a pixel.
constexpr double highestGlyphSize = 64;
// Qt draws smaller text at quarters of a pixel.
constexpr int phaseCount = 4;

/// An image for ink at a scale, still empty; nothing if it would be too large.
std::optional<QtTextImage> imageForInk(const QRectF& ink, double scale, double edge = margin) {
    if (ink.isEmpty()) return QtTextImage{};
    const double left = std::floor(ink.left() * scale - edge);
    const double top = std::floor(ink.top() * scale - edge);
    const double width = std::ceil(ink.right() * scale + edge) - left;
    const double height = std::ceil(ink.bottom() * scale + edge) - top;
    const bool fits = width <= QtTextImageCache::largestSide && height <= QtTextImageCache::largestSide;
    if (!fits) return std::nullopt;
    QtTextImage made = {QImage(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied),
                        static_cast<int>(-left), static_cast<int>(-top)};
    made.image.fill(Qt::transparent);
    return made;
}

/// A painter on the image whose units are pixels of the face, with its origin on the baseline.
class TextPainter : public QPainter {
public:
    TextPainter(QtTextImage& onto, const QtTextEngine::Face& face, double scale, QRgb color, double shift = 0) : QPainter(&onto.image) {
        setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        translate(onto.penX + shift, onto.baseline);
        QPainter::scale(scale, scale);
        setFont(face.font);
        setPen(QPen(plainBrush(QColor::fromRgba(color)), 0));
    }
};

/// A text that is shaped once, to be measured and drawn.
class ShapedText {
public:
    ShapedText(const QString& text, const QFont& font) : layout_(text, font) {
        constexpr double unlimitedWidth = 1e6;
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        layout_.setTextOption(option);
        layout_.setCacheEnabled(true); // It would be shaped again to be measured and to be drawn.
        layout_.beginLayout();
        line_ = layout_.createLine();
        line_.setLineWidth(unlimitedWidth);
        layout_.endLayout();
    }
    /// What the glyphs cover, seen from the left end of the baseline.
    ///
    /// `QFontMetricsF::tightBoundingRect` leaves out parts of a text that needs several fonts: the
    /// tails of an Arabic word behind a number.
    QRectF ink() const {
        QRectF ink;
        for (const QGlyphRun& run : layout_.glyphRuns()) {
            const QRawFont glyphs = run.rawFont();
            const QList<quint32> indexes = run.glyphIndexes();
            const QList<QPointF> positions = run.positions();
            for (qsizetype i = 0; i < indexes.size(); ++i) ink |= glyphs.boundingRect(indexes[i]).translated(positions[i]);
        }
        return ink.translated(0, -line_.ascent());
    }
    /// Its baseline begins at the painter's origin.
    void draw(QPainter& painter) const { line_.draw(&painter, {0, -line_.ascent()}); }

private:
    QTextLayout layout_;
    QTextLine line_;
};

std::optional<QtTextImage> drawnText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color) {
    const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const double scale = pixelsPerEm / QtTextEngine::facePixelSize;
    const ShapedText shaped(string, face.font);
    std::optional<QtTextImage> drawn = imageForInk(shaped.ink(), scale);
    if (!drawn || drawn->image.isNull()) return drawn;
    TextPainter painter(*drawn, face, scale, color);
    shaped.draw(painter);
    return drawn;
}

/// Of an image of 32 bits a pixel, line by line without gaps.
std::size_t pixelCount(const QImage& image) { return static_cast<std::size_t>(image.sizeInBytes()) / sizeof(QRgb); }

/// One premultiplied pixel over another, as Qt blends them. Has no branches: most are clear or
/// opaque, in no order that a processor could foresee.
QRgb over(QRgb above, QRgb below) {
    constexpr QRgb everySecond = 0xff00ff; // Two components at a time.
    const QRgb rest = 255 - (above >> 24U);
    const auto part = [rest](QRgb components) {
        const QRgb product = components * rest;
        // Divided by 255, rounded.
        return (product + ((product >> 8U) & everySecond) + 0x800080) >> 8U & everySecond;
    };
    return above + part(below & everySecond) + (part(below >> 8U & everySecond) << 8U);
}

/// Puts a glyph over what the image shows, where the image is. Its columns from `clear` on show
/// nothing yet.
void addGlyph(QImage& image, const QImage& glyph, int left, int top, int clear) {
    // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast)
    const std::span glyphPixels(reinterpret_cast<const QRgb*>(glyph.constBits()), pixelCount(glyph));
    const std::span pixels(reinterpret_cast<QRgb*>(image.bits()), pixelCount(image));
    // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
    const auto glyphWidth = static_cast<std::size_t>(glyph.width());
    const auto width = static_cast<std::size_t>(image.width());
    const int first = std::max(0, -left);
    const int last = std::max(first, std::min(glyph.width(), image.width() - left));
    const auto count = static_cast<std::size_t>(last - first);
    const auto blended = static_cast<std::size_t>(std::clamp(clear - left, first, last) - first);
    const int bottom = std::min(glyph.height(), image.height() - top);
    for (int y = std::max(0, -top); y < bottom; ++y) {
        const std::span from = glyphPixels.subspan(static_cast<std::size_t>(y) * glyphWidth + static_cast<std::size_t>(first), count);
        const std::span to = pixels.subspan(static_cast<std::size_t>(top + y) * width + static_cast<std::size_t>(left + first), count);
        for (std::size_t x = 0; x < blended; ++x) to[x] = over(from[x], to[x]);
        for (std::size_t x = blended; x < count; ++x) to[x] = from[x];
    }
}

} // namespace

const QImage* QtTextImageCache::imageOfDigit(char digit, int phase, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color,
                                             QPoint& pen) {
    const std::array name = {digit, static_cast<char>('a' + phase)};
    const QtTextKey key = {{name.data(), name.size()}, face.identifier, color, pixelsPerEm};
    const QtTextImage* known = digits_.find(key);
    if (!known) {
        // Within the phase, so that no rounding leads to another one.
        const double shift = static_cast<double>(phase) / phaseCount + 0.5 / (phaseCount * 16);
        const double scale = pixelsPerEm / QtTextEngine::facePixelSize;
        std::optional<QtTextImage> drawn = imageForInk(face.digits->inkOf(digit), scale, digitMargin);
        if (drawn && !drawn->image.isNull())
            TextPainter(*drawn, face, scale, color, shift).drawGlyphRun(QPointF(0, 0), face.digits->glyphOf(digit));
        if (!drawn) return nullptr;
        const std::size_t cost = static_cast<std::size_t>(drawn->image.sizeInBytes()) + overhead;
        known = &digits_.insert(key, std::move(*drawn), cost);
    }
    pen = {known->penX, known->baseline};
    return &known->image;
}

/// A number as `drawnText` draws it, of the images of its digits. Nothing for other texts, and
/// where Qt draws numbers otherwise.
std::optional<QtTextImage> QtTextImageCache::composedText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm,
                                                          QRgb color) {
    if (pixelsPerEm >= highestGlyphSize || !face.digits->canCompose()) return std::nullopt;
    const QtDigits::Places* const places = face.digits->placesOf(text);
    if (!places) return std::nullopt;
    const double scale = pixelsPerEm / QtTextEngine::facePixelSize;
    QRectF ink;
    for (std::size_t i = 0; i < places->count; ++i) ink |= face.digits->inkOf(text[i]).translated(places->x[i], 0);
    std::optional<QtTextImage> made = imageForInk(ink, scale);
    if (!made || made->image.isNull()) return std::nullopt;
    int clear = 0;
    for (std::size_t i = 0; i < places->count; ++i) {
        // As Qt rounds a place: to sixty-fourths downward, and from the last one of a phase upward.
        const auto sixtyFourths = static_cast<int>(std::floor(places->x[i] * scale * 64)) + 1;
        const int quarters = sixtyFourths / (64 / phaseCount);
        QPoint pen;
        const QImage* const glyph = imageOfDigit(text[i], quarters % phaseCount, face, pixelsPerEm, color, pen);
        if (!glyph) return std::nullopt;
        const int left = made->penX + quarters / phaseCount - pen.x();
        addGlyph(made->image, *glyph, left, made->baseline - pen.y(), clear);
        clear = std::max(clear, left + glyph->width());
    }
    return made;
}

const std::shared_ptr<QtTextImageCache>& QtTextImageCache::shared() {
    static const auto cache = std::make_shared<QtTextImageCache>();
    return cache;
}

void QtTextImageCache::setBytesInSight(const void* canvas, std::size_t bytes) {
    const auto known = std::find_if(canvases_.begin(), canvases_.end(), [canvas](const Canvas& entry) { return entry.canvas == canvas; });
    if (known != canvases_.end() && known->bytes == bytes) return;
    if (known == canvases_.end()) {
        if (bytes == 0) return;
        canvases_.push_back({canvas, bytes});
    } else if (bytes == 0) {
        canvases_.erase(known);
    } else {
        known->bytes = bytes;
    }
    bound();
}

void QtTextImageCache::bound() {
    std::size_t inSight = 0;
    for (const Canvas& canvas : canvases_) inSight += canvas.bytes;
    cache_.setCapacity(std::min(highestBound_, std::max(smallestBound, keptScreens * inSight)));
}

const QtTextImage* QtTextImageCache::imageOfText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color) {
    const QtTextKey key = {text, face.identifier, color, pixelsPerEm};
    if (const QtTextImage* known = cache_.find(key)) {
        ++hitCount_;
        return known;
    }
    ++missCount_;
    std::optional<QtTextImage> drawn = composedText(text, face, pixelsPerEm, color);
    if (!drawn || face.digits->takeImageCheck()) {
        std::optional<QtTextImage> whole = drawnText(text, face, pixelsPerEm, color);
        if (drawn && whole && drawn->image != whole->image) face.digits->forbidComposing();
        drawn = std::move(whole);
    }
    if (!drawn) return nullptr;
    const std::size_t cost = static_cast<std::size_t>(drawn->image.sizeInBytes()) + text.size() + overhead;
    return &cache_.insert(key, std::move(*drawn), cost);
}

} // namespace gx::qt
