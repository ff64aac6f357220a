#include "QtTextImageCache.h"

#include <cmath>
#include <optional>

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <QTextLayout>

namespace gx::qt {

namespace {

// Chosen: a clear edge, so that an image drawn smaller or between pixels fades out and is not cut.
constexpr double margin = 2;
// Estimated for an entry, in bytes beside its pixels.
constexpr std::size_t overhead = 256;

/// What the glyphs cover, seen from the left end of the baseline.
///
/// `QFontMetricsF::tightBoundingRect` leaves out parts of a text that needs several fonts: the
/// tails of an Arabic word behind a number.
QRectF inkOfText(const QString& text, const QFont& font) {
    constexpr double unlimitedWidth = 1e6;
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(unlimitedWidth);
    layout.endLayout();
    QRectF ink;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont glyphs = run.rawFont();
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i) ink |= glyphs.boundingRect(indexes[i]).translated(positions[i]);
    }
    return ink.translated(0, -line.ascent());
}

std::optional<QtTextImage> drawnText(const QString& text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color) {
    const double scale = pixelsPerEm / QtTextEngine::facePixelSize;
    const QRectF ink = inkOfText(text, face.font);
    if (ink.isEmpty()) return QtTextImage{};
    const double left = std::floor(ink.left() * scale - margin);
    const double top = std::floor(ink.top() * scale - margin);
    const double width = std::ceil(ink.right() * scale + margin) - left;
    const double height = std::ceil(ink.bottom() * scale + margin) - top;
    const bool fits = width <= QtTextImageCache::largestSide && height <= QtTextImageCache::largestSide;
    if (!fits) return std::nullopt;
    QtTextImage drawn = {QImage(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied),
                         static_cast<int>(-left), static_cast<int>(-top)};
    drawn.image.fill(Qt::transparent);
    QPainter painter(&drawn.image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(drawn.penX, drawn.baseline);
    painter.scale(scale, scale);
    painter.setFont(face.font);
    painter.setPen(QColor::fromRgba(color));
    painter.drawText(QPointF(0, 0), text);
    return drawn;
}

} // namespace

const std::shared_ptr<QtTextImageCache>& QtTextImageCache::shared() {
    static const auto cache = std::make_shared<QtTextImageCache>();
    return cache;
}

const QtTextImage* QtTextImageCache::imageOfText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color) {
    const QtTextKey key = {text, face.identifier, color, pixelsPerEm};
    if (const QtTextImage* known = cache_.find(key)) {
        ++hitCount_;
        return known;
    }
    ++missCount_;
    const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    std::optional<QtTextImage> drawn = drawnText(string, face, pixelsPerEm, color);
    if (!drawn) return nullptr;
    const std::size_t cost = static_cast<std::size_t>(drawn->image.sizeInBytes()) + text.size() + overhead;
    return &cache_.insert(key, std::move(*drawn), cost);
}

} // namespace gx::qt
