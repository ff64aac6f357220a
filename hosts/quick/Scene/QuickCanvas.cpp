#include "QuickCanvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <GXUIPickers/UIFont.h>

namespace gx::quick {

namespace {

QColor colorOf(const UIColorComponents& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue),
                            static_cast<float>(color.alpha));
}

bool isWhole(double scale) { return std::fabs(scale - 1) < 1e-9; }

} // namespace

void QuickCanvas::begin(double pixelsPerPoint) {
    pixelsPerPoint_ = pixelsPerPoint > 0 ? pixelsPerPoint : 1;
    state_ = {};
    saved_.clear();
    pieces_.clear();
    texts_->setBytesInSight(this, textBytes_); // Of the frame before.
    textBytes_ = 0;
}

void QuickCanvas::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
}

void QuickCanvas::translate(CGFloat x, CGFloat y) {
    state_.x += x * state_.scaleX;
    state_.y += y * state_.scaleY;
}

void QuickCanvas::scale(CGFloat x, CGFloat y) {
    state_.scaleX *= x;
    state_.scaleY *= y;
}

double QuickCanvas::onPixel(double coordinate) const { return std::floor(coordinate * pixelsPerPoint_ + 0.5) / pixelsPerPoint_; }

/// `origin` is where the area's own origin lies, in the present state.
void QuickCanvas::add(QImage image, const QRectF& area, CGPoint origin) {
    QuickPiece piece;
    piece.image = std::move(image);
    piece.area = area;
    piece.x = state_.x + origin.x * state_.scaleX;
    piece.y = state_.y + origin.y * state_.scaleY;
    if (isWhole(state_.scaleX)) piece.x = onPixel(piece.x);
    if (isWhole(state_.scaleY)) piece.y = onPixel(piece.y);
    piece.scaleX = state_.scaleX;
    piece.scaleY = state_.scaleY;
    piece.alpha = state_.alpha;
    pieces_.push_back(std::move(piece));
}

void QuickCanvas::fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) {
    if (CGRectIsEmpty(rect) || !(state_.alpha * color.alpha > 0)) return;
    if (cornerRadius > 0) {
        const QSize pixels = QSizeF(rect.size.width * pixelsPerPoint_, rect.size.height * pixelsPerPoint_).toSize();
        if (pixels.isEmpty()) return;
        const double radius = cornerRadius * pixelsPerPoint_;
        add(pictures_->roundedRect(pixels, radius, radius, colorOf(color)), QRectF(0, 0, rect.size.width, rect.size.height), rect.origin);
        return;
    }
    add(QImage(), QRectF(0, 0, rect.size.width, rect.size.height), rect.origin);
    pieces_.back().color = colorOf(color);
}

void QuickCanvas::drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) {
    if (!(state_.alpha * color.alpha > 0)) return;
    const qt::QtTextEngine::Face& face = engine_->faceOfFont(font);
    const qt::QtTextImage* const drawn = texts_->imageOfText(text, face, font.pointSize() * pixelsPerPoint_, colorOf(color).rgba());
    if (drawn == nullptr || drawn->image.isNull()) return;
    textBytes_ += static_cast<std::size_t>(drawn->image.sizeInBytes());
    const double points = 1 / pixelsPerPoint_;
    const QRectF area(-drawn->penX * points, -drawn->baseline * points, drawn->image.width() * points, drawn->image.height() * points);
    add(drawn->image, area, {origin.x, origin.y + face.ascent * font.pointSize()});
    pieces_.back().hasClearEdge = true;
}

void QuickCanvas::drawImageInRect(const UIImage& image, CGRect rect) {
    if (CGRectIsEmpty(rect) || !(state_.alpha > 0)) return;
    add(pictures_->imageOfSize(image, rect.size.width * pixelsPerPoint_, rect.size.height * pixelsPerPoint_),
        QRectF(0, 0, rect.size.width, rect.size.height), rect.origin);
}

} // namespace gx::quick
