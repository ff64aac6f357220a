#include "QtImageScaler.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <span>

// Pixels lie in memory one behind the other, and registers hold several of them.
// NOLINTBEGIN(cppcoreguidelines-pro-bounds-pointer-arithmetic)
// NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast)
namespace gx::qt {

namespace {

// QPainter's own: places are parts of 65536, shares of neighbours parts of 256.
constexpr double fixedScale = 65536;
constexpr std::int32_t half = 32768;
// It moves images by one part of a place, so that places round down.
constexpr double nudge = 1 / fixedScale;
// Chosen: QPainter splits longer spans.
constexpr double longestSide = 1000;

// Four pixels, and what a register has of two of them: eight components in lanes of sixteen bits.
// Vectors of a fixed length are compiled to a register each, at every level of optimisation.
using Bytes [[gnu::vector_size(16)]] = std::uint8_t;
using Lanes = QtImageScaler::Lanes;
constexpr int pixelsOfBytes = 4;

/// Pixels are made four at a time.
int rounded(int width) { return (width + pixelsOfBytes - 1) / pixelsOfBytes * pixelsOfBytes; }

std::uint16_t shareOf(std::int32_t place) { return static_cast<std::uint16_t>((static_cast<std::uint32_t>(place) & 0xffffU) >> 8U); }

Bytes bytesAt(const QRgb* pixels) {
    Bytes bytes;
    std::memcpy(&bytes, pixels, sizeof(bytes));
    return bytes;
}

// Components and lanes begin with their lower bits.
constexpr bool isByteOrderSupported = std::endian::native == std::endian::little;
Lanes firstTwo(Bytes bytes) {
    return reinterpret_cast<Lanes>(__builtin_shufflevector(bytes, Bytes{}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
}
Lanes lastTwo(Bytes bytes) {
    return reinterpret_cast<Lanes>(__builtin_shufflevector(bytes, Bytes{}, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31));
}

/// Stores four pixels, which are sums of products whose shares are parts of 256.
void store(QRgb* to, Lanes first, Lanes last) {
    const Bytes bytes = __builtin_shufflevector(reinterpret_cast<Bytes>(first), reinterpret_cast<Bytes>(last), 1, 3, 5, 7, 9, 11, 13, 15,
                                                17, 19, 21, 23, 25, 27, 29, 31);
    std::memcpy(to, &bytes, sizeof(bytes));
}

/// Products of components and shares of 255, divided by that as QPainter rounds them.
Lanes shared(Lanes components, Lanes shares) {
    const Lanes products = components * shares;
    return (products + (products >> 8) + 128) >> 8;
}

/// Two pixels over two others.
Lanes over(Lanes upper, Lanes lower) {
    const Lanes alphas = __builtin_shufflevector(upper, upper, 3, 3, 3, 3, 7, 7, 7, 7);
    return upper + shared(lower, 255 - alphas);
}

/// Stores four pixels, as `store` takes them, over those that are there. `alpha` is of 255.
void storeOver(QRgb* to, Lanes first, Lanes last, Lanes alpha) {
    const Bytes lower = bytesAt(to);
    const Lanes left = over(shared(first >> 8, alpha), firstTwo(lower));
    const Lanes right = over(shared(last >> 8, alpha), lastTwo(lower));
    const Bytes bytes = __builtin_shufflevector(reinterpret_cast<Bytes>(left), reinterpret_cast<Bytes>(right), 0, 2, 4, 6, 8, 10, 12, 14,
                                                16, 18, 20, 22, 24, 26, 28, 30);
    std::memcpy(to, &bytes, sizeof(bytes));
}

/// A pixel and its right neighbour, each with its share.
Lanes product(const QRgb* pixels, Lanes shares) {
    std::uint64_t both = 0;
    std::memcpy(&both, pixels, sizeof(both));
    using Pairs [[gnu::vector_size(16)]] = std::uint64_t;
    return firstTwo(reinterpret_cast<Bytes>(Pairs{both, 0})) * shares;
}

/// Two pixels of the products for each of them.
Lanes sums(Lanes first, Lanes second) {
    return __builtin_shufflevector(first, second, 0, 1, 2, 3, 8, 9, 10, 11) +
           __builtin_shufflevector(first, second, 4, 5, 6, 7, 12, 13, 14, 15);
}

/// Rows of pixels begin at whole ones.
const QRgb* pixelsOf(const uchar* bytes) { return reinterpret_cast<const QRgb*>(bytes); }

} // namespace

void QtImageScaler::mixLines(const QRgb* first, const QRgb* second, std::size_t width, std::uint16_t share) {
    const Lanes shareOfSecond = Lanes{} + share;
    const Lanes shareOfFirst = 256 - shareOfSecond;
    QRgb* const line = line_.data() + 1;
    const auto mix = [=](std::size_t i) {
        const Bytes one = bytesAt(first + i);
        const Bytes other = bytesAt(second + i);
        store(line + i, firstTwo(one) * shareOfFirst + firstTwo(other) * shareOfSecond,
              lastTwo(one) * shareOfFirst + lastTwo(other) * shareOfSecond);
    };
    for (std::size_t i = 0; i + pixelsOfBytes <= width; i += pixelsOfBytes) mix(i);
    mix(width - pixelsOfBytes); // The last ones, some of them once more.
    line_.front() = line[0];
    line_[width + 1] = line[width - 1];
}

QRect QtImageScaler::place(const QImage& image, const QRectF& area) {
    step_ = {image.width() / area.width(), image.height() / area.height()};
    const bool isSupported = isByteOrderSupported && image.format() == QImage::Format_ARGB32_Premultiplied && step_.x() >= 1 &&
                             step_.x() < 2 && step_.y() > 0 && image.width() >= pixelsOfBytes && area.width() < longestSide &&
                             area.height() < longestSide;
    if (!isSupported) return {};
    // The pixels whose middles lie in the area.
    const int left = static_cast<int>(std::ceil(area.left() - 0.5));
    const int top = static_cast<int>(std::ceil(area.top() - 0.5));
    const int width = static_cast<int>(std::ceil(area.right() - 0.5)) - left;
    const int height = static_cast<int>(std::ceil(area.bottom() - 0.5)) - top;
    if (width <= 0 || height <= 0) return {};
    // The place in the image of an area's first pixel.
    first_ = {step_.x() * (left + 0.5) - (area.left() + nudge / step_.x()) * step_.x(),
              step_.y() * (top + 0.5) - (area.top() + nudge / step_.y()) * step_.y()};
    return {left, top, width, height};
}

void QtImageScaler::prepareColumns(int imageWidth, int width) {
    line_.resize(static_cast<std::size_t>(imageWidth) + 2);
    auto x = static_cast<std::int32_t>(first_.x() * fixedScale) - half;
    const auto advance = static_cast<std::int32_t>(step_.x() * fixedScale);
    columns_.assign(static_cast<std::size_t>(rounded(width)), Column{});
    for (Column& column : std::span(columns_).first(static_cast<std::size_t>(width))) {
        const std::uint16_t share = shareOf(x);
        const auto rest = static_cast<std::uint16_t>(256 - share);
        column.shares = Lanes{rest, rest, rest, rest, share, share, share, share};
        column.left = std::clamp(x >> 16, -1, imageWidth - 1) + 1;
        x += advance;
    }
}

template <typename Store>
void QtImageScaler::write(const QImage& image, const QRect& pixels, uchar* to, qsizetype lineLength, Store storeFour) {
    prepareColumns(image.width(), pixels.width());
    const uchar* const from = image.constBits();
    const qsizetype fromLength = image.bytesPerLine();
    const auto width = static_cast<std::size_t>(image.width());
    const int lowest = image.height() - 1;
    for (int i = 0; i < pixels.height(); ++i, to += lineLength) {
        const auto y = static_cast<std::int32_t>((first_.y() + step_.y() * i) * fixedScale) - half;
        mixLines(pixelsOf(from + fromLength * std::clamp(y >> 16, 0, lowest)),
                 pixelsOf(from + fromLength * std::clamp((y >> 16) + 1, 0, lowest)), width, shareOf(y));
        auto* pixel = reinterpret_cast<QRgb*>(to);
        const QRgb* const line = line_.data();
        const Column* const end = columns_.data() + columns_.size();
        for (const Column* column = columns_.data(); column != end; column += pixelsOfBytes, pixel += pixelsOfBytes) {
            const Lanes first = sums(product(line + column[0].left, column[0].shares), product(line + column[1].left, column[1].shares));
            const Lanes last = sums(product(line + column[2].left, column[2].shares), product(line + column[3].left, column[3].shares));
            storeFour(pixel, first, last);
        }
    }
}

QRect QtImageScaler::scale(const QImage& image, const QRectF& area) {
    const QRect pixels = place(image, area);
    if (pixels.isEmpty()) return {};
    const QSize made(rounded(pixels.width()), pixels.height());
    if (scaled_.width() < made.width() || scaled_.height() < made.height()) {
        scaled_ = QImage(scaled_.size().expandedTo(made), QImage::Format_ARGB32_Premultiplied);
    }
    write(image, pixels, scaled_.bits(), scaled_.bytesPerLine(), store);
    return pixels;
}

bool QtImageScaler::blend(const QImage& image, const QRectF& area, double opacity, QImage& onto, const QRect& clip) {
    const bool isPossible = onto.format() == QImage::Format_ARGB32_Premultiplied || onto.format() == QImage::Format_RGB32;
    if (!isPossible) return false;
    const QRect pixels = place(image, area);
    const QRect written(pixels.topLeft(), QSize(rounded(pixels.width()), pixels.height()));
    if (pixels.isEmpty() || !clip.contains(pixels) || !onto.rect().contains(written)) return false;
    // As QPainter rounds it.
    const int parts = static_cast<int>(std::clamp(opacity, 0.0, 1.0) * 256);
    const Lanes alpha = Lanes{} + static_cast<std::uint16_t>(parts * 255 >> 8);
    write(image, pixels, onto.scanLine(pixels.top()) + sizeof(QRgb) * static_cast<std::size_t>(pixels.left()), onto.bytesPerLine(),
          [alpha](QRgb* to, Lanes first, Lanes last) { storeOver(to, first, last, alpha); });
    return true;
}

} // namespace gx::qt
// NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
// NOLINTEND(cppcoreguidelines-pro-bounds-pointer-arithmetic)
