#include "QtCanvas.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QString>

namespace gx::qt {

namespace {

QColor colorOf(const UIColorComponents& color, double alpha) {
    const auto component = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue), component(color.alpha * alpha));
}

/// The nearest whole pixel, clamped to `everywhere`. Halves go upward, so that neighbours meet.
int pixel(double coordinate) {
    if (std::isnan(coordinate)) return 0;
    return static_cast<int>(
        std::clamp(std::floor(coordinate + 0.5), static_cast<double>(everywhere.left()), static_cast<double>(everywhere.right())));
}

/// In whole pixels, at least one each way.
QRect snapped(const QRectF& area) {
    const int left = pixel(area.left());
    const int top = pixel(area.top());
    return {left, top, std::max(pixel(area.right()) - left, 1), std::max(pixel(area.bottom()) - top, 1)};
}

/// The resolution in which a text is set that is drawn at this scale: the frame's own, doubled or
/// halved as often as needed. So a row that shrinks little by little is drawn from one image.
double resolutionFor(double scale, double baseScale) {
    constexpr double rounding = 1e-9; // Of multiplied scales.
    return baseScale * std::exp2(std::ceil(std::log2(scale / baseScale) - rounding));
}

// In pixels. Rounded rectangles up to this size are kept as images: Qt fills them with several
// threads, which takes longer than the rows of a wheel. Chosen: a wide selection indicator, at two
// pixels a point.
constexpr qint64 largestKeptRect = qint64{96} << 10U;

bool isWhole(double scale) { return std::fabs(scale - 1) < 1e-9; }

} // namespace

QtCanvas::QtCanvas(Ref<QtTextEngine> engine, std::shared_ptr<QtTextImageCache> texts, std::shared_ptr<QtImageCache> pictures)
    : engine_(std::move(engine)), texts_(std::move(texts)), pictures_(std::move(pictures)) {}

QtCanvas::~QtCanvas() { texts_->setBytesInSight(this, 0); }

void QtCanvas::begin(QPainter& painter) {
    const bool isClipped = painter.hasClipping();
    QRectF clip = isClipped ? painter.clipBoundingRect() : QRectF();
    const QTransform device = painter.deviceTransform();
    takePainter(painter);
    beginState(device);
    if (isPlain(device)) clip = device.mapRect(clip);
    state_.clip = isClipped ? snapped(clip) : everywhere;
    paintedClip_ = state_.clip;
}

void QtCanvas::begin(QtFrame& frame, const QTransform& device) {
    frame_ = &frame;
    frame.begin(device);
    beginState(device);
    state_.clip = everywhere;
    if (!isPlain(device)) frame.markIncomplete();
}

void QtCanvas::beginState(const QTransform& device) {
    saved_.clear();
    state_ = {};
    baseScale_ = 1;
    textBytes_ = 0;
    if (!isPlain(device)) return;
    state_.scaleX = device.m11();
    state_.scaleY = device.m22();
    state_.x = device.dx();
    state_.y = device.dy();
    baseScale_ = std::max(std::fabs(device.m11()), std::fabs(device.m22()));
}

/// From here on the painter's units are device pixels, in which it copies images fastest.
void QtCanvas::takePainter(QPainter& painter) {
    painter_ = &painter;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QTransform device = painter.deviceTransform();
    isPainterPlain_ = isPlain(device);
    if (isPainterPlain_) painter.setWorldTransform(device.inverted() * painter.worldTransform());
    painter.setOpacity(1);
    paintedAlpha_ = 1;
}

void QtCanvas::end() {
    if (!painter_ && !frame_) return;
    if (painter_) painter_->restore();
    if (frame_) frame_->end();
    painter_ = nullptr;
    frame_ = nullptr;
    texts_->setBytesInSight(this, textBytes_);
}

void QtCanvas::paintFrame(QPainter& painter, const QtFrame& frame, const QRect& area, QImage* device) {
    takePainter(painter);
    device_ = device;
    paintedClip_ = everywhere;
    paintedArea_ = area;
    frame.forEachPieceIn(area, [this](const QtPiece& piece) { paint(piece); });
    paintedArea_ = everywhere;
    device_ = nullptr;
    painter.restore();
    painter_ = nullptr;
}

void QtCanvas::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
}

void QtCanvas::translate(CGFloat x, CGFloat y) {
    state_.x += x * state_.scaleX;
    state_.y += y * state_.scaleY;
}

void QtCanvas::scale(CGFloat x, CGFloat y) {
    state_.scaleX *= x;
    state_.scaleY *= y;
}

void QtCanvas::clipToRect(CGRect rect) {
    const QRectF area = mapped(rect);
    const QPoint first(pixel(area.left()), pixel(area.top()));
    const QSize size(pixel(area.right()) - first.x(), pixel(area.bottom()) - first.y());
    state_.clip = state_.clip.intersected(QRect(first, size));
}

void QtCanvas::multiplyAlpha(double alpha) { state_.alpha *= std::isnan(alpha) ? 0 : std::clamp(alpha, 0.0, 1.0); }

QRectF QtCanvas::mapped(CGRect rect) const {
    const double x = state_.x + rect.origin.x * state_.scaleX;
    const double y = state_.y + rect.origin.y * state_.scaleY;
    return QRectF(x, y, rect.size.width * state_.scaleX, rect.size.height * state_.scaleY).normalized();
}

/// Returns whether anything of the area is visible.
bool QtCanvas::isSeen(const QRectF& area) const {
    // Written so that NaN is never visible.
    return (painter_ != nullptr || frame_ != nullptr) && state_.alpha > 0 && !state_.clip.isEmpty() &&
           area.left() < state_.clip.right() + 1 && area.right() > state_.clip.left() && area.top() < state_.clip.bottom() + 1 &&
           area.bottom() > state_.clip.top();
}

void QtCanvas::prepareClip(const QRect& wanted) {
    const QRect clip = wanted.intersected(paintedArea_);
    if (clip == paintedClip_) return;
    if (clip == everywhere) {
        painter_->setClipping(false);
    } else {
        painter_->setClipRect(clip, Qt::ReplaceClip);
    }
    paintedClip_ = clip;
}

void QtCanvas::draw(QtPiece piece) {
    piece.clip = state_.clip;
    if (frame_) {
        frame_->add(std::move(piece));
    } else {
        paint(piece);
    }
}

void QtCanvas::paint(const QtPiece& piece) {
    if (device_ != nullptr && piece.hasClearEdge && piece.isScaled() &&
        scaler_.blend(piece.image, piece.area, piece.alpha, *device_, piece.clip.intersected(paintedArea_))) {
        return;
    }
    prepareClip(piece.clip);
    if (paintedAlpha_ != piece.alpha) painter_->setOpacity(paintedAlpha_ = piece.alpha);
    if (!piece.image.isNull()) {
        if (piece.isScaled()) {
            paintScaled(piece);
        } else {
            painter_->drawImage(QPoint(pixel(piece.area.left()), pixel(piece.area.top())), piece.image);
        }
        return;
    }
    const QRect area = piece.area.toRect();
    if (!(piece.radiusX > 0) || !(piece.radiusY > 0)) {
        painter_->fillRect(area.intersected(piece.clip), piece.color);
        return;
    }
    if (isPainterPlain_ && qint64{area.width()} * area.height() <= largestKeptRect) {
        painter_->drawImage(area.topLeft(), pictures_->roundedRect(area.size(), piece.radiusX, piece.radiusY, piece.color));
        return;
    }
    painter_->setRenderHint(QPainter::Antialiasing);
    painter_->setPen(Qt::NoPen);
    painter_->setBrush(piece.color);
    painter_->drawRoundedRect(area, piece.radiusX, piece.radiusY);
    painter_->setRenderHint(QPainter::Antialiasing, false);
}

void QtCanvas::paintScaled(const QtPiece& piece) {
    const QRect area = isPainterPlain_ && piece.hasClearEdge ? scaler_.scale(piece.image, piece.area) : QRect();
    if (area.isEmpty()) {
        painter_->drawImage(piece.area, piece.image);
    } else {
        painter_->drawImage(area.topLeft(), scaler_.result(), QRect(QPoint(), area.size()));
    }
}

void QtCanvas::fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) {
    const QRect area = snapped(mapped(rect));
    if (!isSeen(area)) return;
    QtPiece piece;
    piece.area = area;
    piece.color = colorOf(color, state_.alpha); // The colour has the alpha.
    piece.radiusX = std::min(cornerRadius * std::fabs(state_.scaleX), 0.5 * area.width());
    piece.radiusY = std::min(cornerRadius * std::fabs(state_.scaleY), 0.5 * area.height());
    draw(std::move(piece));
}

/// The image fills the area, both in device pixels.
void QtCanvas::drawMapped(const QImage& image, const QRectF& area, bool hasClearEdge) {
    if (image.isNull() || !isSeen(area)) return;
    const bool isMirrored = state_.scaleX < 0 || state_.scaleY < 0;
    QtPiece piece;
    piece.image = isMirrored ? image.mirrored(state_.scaleX < 0, state_.scaleY < 0) : image;
    piece.area = area;
    piece.alpha = state_.alpha;
    piece.hasClearEdge = hasClearEdge;
    draw(std::move(piece));
}

void QtCanvas::drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) {
    const double scale = std::max(std::fabs(state_.scaleX), std::fabs(state_.scaleY));
    const bool isShown = (painter_ != nullptr || frame_ != nullptr) && state_.alpha > 0 && std::isfinite(scale) && scale > 0;
    if (!isShown) return;
    const double resolution = resolutionFor(scale, baseScale_);
    const QtTextEngine::Face& face = engine_->faceOfFont(font);
    const QRgb rgba = colorOf(color, 1).rgba();
    const QtTextImage* drawn = texts_->imageOfText(text, face, font.pointSize() * resolution, rgba);
    if (!drawn) {
        drawTextDirectly(text, face, font.pointSize(), rgba, origin);
        return;
    }
    if (drawn->image.isNull()) return;
    textBytes_ += static_cast<std::size_t>(drawn->image.sizeInBytes());
    // From the pixels of the image to those of the device.
    const double shareX = state_.scaleX / resolution;
    const double shareY = state_.scaleY / resolution;
    double penX = state_.x + origin.x * state_.scaleX;
    double baseline = state_.y + (origin.y + face.ascent * font.pointSize()) * state_.scaleY;
    if (isWhole(shareX)) penX = std::floor(penX + 0.5);
    if (isWhole(shareY)) baseline = std::floor(baseline + 0.5);
    const QRectF area(penX - drawn->penX * shareX, baseline - drawn->baseline * shareY, drawn->image.width() * shareX,
                      drawn->image.height() * shareY);
    drawMapped(drawn->image, area.normalized(), true);
}

/// For text that is too large for an image.
void QtCanvas::drawTextDirectly(std::string_view text, const QtTextEngine::Face& face, double size, QRgb color, CGPoint origin) {
    // What it covers is not worth measuring: the painter leaves out what is outside the clip.
    if (!isSeen(QRectF(everywhere))) return;
    if (frame_) return frame_->markIncomplete();
    prepareClip(state_.clip);
    if (paintedAlpha_ != state_.alpha) painter_->setOpacity(paintedAlpha_ = state_.alpha);
    const QTransform before = painter_->worldTransform();
    const double em = size / QtTextEngine::facePixelSize;
    painter_->translate(state_.x + origin.x * state_.scaleX, state_.y + (origin.y + face.ascent * size) * state_.scaleY);
    painter_->scale(em * state_.scaleX, em * state_.scaleY);
    painter_->setRenderHint(QPainter::Antialiasing);
    painter_->setFont(face.font);
    painter_->setPen(QColor::fromRgba(color));
    painter_->drawText(QPointF(0, 0), QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    painter_->setRenderHint(QPainter::Antialiasing, false);
    painter_->setWorldTransform(before);
}

void QtCanvas::drawImageInRect(const UIImage& image, CGRect rect) {
    QRectF area = mapped(rect);
    if (!isSeen(area)) return;
    const QImage picture = pictures_->imageOfSize(image, area.width(), area.height());
    // Pixel by pixel where the sizes agree but for what adding up fractions leaves.
    constexpr double tolerance = 1e-6;
    if (std::fabs(area.width() - picture.width()) < tolerance && std::fabs(area.height() - picture.height()) < tolerance) {
        area = QRectF(area.topLeft(), QSizeF(picture.size()));
    }
    drawMapped(picture, area);
}

} // namespace gx::qt
