#include "QtDigits.h"

#include <algorithm>

#include <QRawFont>
#include <QString>

namespace gx::qt {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }
std::size_t valueOf(char digit) { return static_cast<std::size_t>(digit - '0'); }

} // namespace

double QtDigits::advanceOf(std::string_view digits) {
    return metrics_.horizontalAdvance(QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size())));
}

const QtDigits::Places* QtDigits::placesOf(std::string_view text) {
    if (!isAdditive_ || text.empty() || text.size() > highestLength || !std::all_of(text.begin(), text.end(), isDigit)) return nullptr;
    const auto single = [this](const char& digit) {
        double& known = singles_[valueOf(digit)];
        if (known == unknown) known = advanceOf({&digit, 1});
        return known;
    };
    // Advances are whole parts of a pixel, of which doubles have exact sums.
    double x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0) {
            double& pair = pairs_[valueOf(text[i - 1]) * 10 + valueOf(text[i])];
            if (pair == unknown) pair = advanceOf(text.substr(i - 1, 2));
            x += pair - single(text[i]);
        }
        places_.x[i] = x;
    }
    places_.count = text.size();
    places_.advance = x + single(text.back());
    if (text.size() > 2 && widthChecks_ < highestCheckCount) {
        ++widthChecks_;
        isAdditive_ = places_.advance == advanceOf(text);
        if (!isAdditive_) return nullptr;
    }
    return &places_;
}

void QtDigits::openGlyphs() {
    glyphs_.emplace();
    const QRawFont font = QRawFont::fromFont(font_);
    const QList<quint32> indexes = font.glyphIndexesForString(QStringLiteral("0123456789"));
    constexpr qsizetype count = 10;
    if (indexes.size() != count || indexes.contains(0)) return;
    for (const quint32 index : indexes) {
        Glyph& glyph = glyphs_->emplace_back();
        glyph.run.setRawFont(font);
        glyph.run.setGlyphIndexes({index});
        glyph.run.setPositions({QPointF()});
    }
}

bool QtDigits::canCompose() {
    if (canCompose_ && !glyphs_) openGlyphs();
    return canCompose_ && !glyphs_->empty();
}

const QGlyphRun& QtDigits::glyphOf(char digit) { return (*glyphs_)[valueOf(digit)].run; }

const QRectF& QtDigits::inkOf(char digit) {
    Glyph& glyph = (*glyphs_)[valueOf(digit)];
    if (glyph.ink.isEmpty()) glyph.ink = glyph.run.rawFont().boundingRect(glyph.run.glyphIndexes().first());
    return glyph.ink;
}

} // namespace gx::qt
