#include "QtImageCache.h"

#include <algorithm>

#include <QPainter>

#include "QtPlainBrush.h"

namespace gx::qt {

namespace {

QImage converted(const UIImage& image) {
    if (image.pixels().empty()) return {}; // A picture of another host's.
    const int width = image.pixelWidth();
    const QImage borrowed(image.pixels().data(), width, image.pixelHeight(), static_cast<qsizetype>(width) * 4, QImage::Format_RGBA8888);
    return borrowed.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

std::size_t bytesOf(const std::vector<QImage>& images) {
    std::size_t bytes = 0;
    for (const QImage& image : images) bytes += static_cast<std::size_t>(image.sizeInBytes());
    return bytes;
}

} // namespace

const std::shared_ptr<QtImageCache>& QtImageCache::shared() {
    static const auto cache = std::make_shared<QtImageCache>();
    return cache;
}

QImage QtImageCache::halved(std::vector<QImage>& halvings, double pixelWidth, double pixelHeight) {
    std::size_t level = 0;
    while (true) {
        const QImage& present = halvings[level];
        const int width = present.width() / 2;
        const int height = present.height() / 2;
        if (width < 1 || height < 1 || width < pixelWidth || height < pixelHeight) return present;
        ++level;
        if (level < halvings.size()) continue;
        ++conversionCount_;
        halvings.push_back(present.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

QImage QtImageCache::imageOfSize(const UIImage& image, double pixelWidth, double pixelHeight) {
    const WeakRef<const NSObject> picture = image.weak_from_this();
    if (picture.expired()) {
        ++conversionCount_;
        std::vector<QImage> halvings = {converted(image)};
        return halved(halvings, pixelWidth, pixelHeight);
    }
    // A new picture may have the address of an expired one.
    auto entry = std::find_if(entries_.begin(), entries_.end(),
                              [&image](const Entry& known) { return known.address == &image && !known.picture.expired(); });
    if (entry == entries_.end()) {
        ++conversionCount_;
        entries_.push_front({picture, &image, {converted(image)}});
        byteCount_ += bytesOf(entries_.front().halvings);
        trim();
    } else {
        entries_.splice(entries_.begin(), entries_, entry);
    }
    std::vector<QImage>& halvings = entries_.front().halvings;
    const std::size_t before = bytesOf(halvings);
    QImage result = halved(halvings, pixelWidth, pixelHeight);
    const std::size_t after = bytesOf(halvings);
    byteCount_ += after - before;
    if (after != before) trim();
    return result;
}

void QtImageCache::forget(std::list<Entry>::iterator entry) {
    byteCount_ -= bytesOf(entry->halvings);
    entries_.erase(entry);
}

void QtImageCache::trim() {
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        const auto present = entry++;
        if (present->picture.expired()) forget(present);
    }
    while (byteCount_ > capacity_ && entries_.size() > 1) forget(std::prev(entries_.end()));
}

void QtImageCache::purge() {
    rounded_.clear();
    entries_.clear();
    byteCount_ = 0;
}

QImage QtImageCache::roundedRect(QSize size, double radiusX, double radiusY, const QColor& color) {
    const auto known = std::find_if(rounded_.begin(), rounded_.end(), [&](const Rounded& rounded) {
        return rounded.size == size && rounded.radiusX == radiusX && rounded.radiusY == radiusY && rounded.color == color.rgba64();
    });
    if (known != rounded_.end()) return known->image;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plainBrush(color));
    painter.drawRoundedRect(image.rect(), radiusX, radiusY);
    painter.end();
    if (rounded_.size() >= highestRoundedCount) rounded_.erase(rounded_.begin());
    rounded_.push_back({size, radiusX, radiusY, color.rgba64(), image});
    return image;
}

} // namespace gx::qt
