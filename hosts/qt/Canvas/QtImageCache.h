#pragma once

#include <list>
#include <memory>
#include <vector>

#include <QColor>
#include <QImage>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIImage.h>

namespace gx::qt {

/// Pictures as Qt draws them, each converted once and halved as often as it is drawn smaller.
///
/// It takes any `UIImage`, releases pictures that are not referenced any longer, and is bounded by
/// bytes, but for the picture used last. A picture without any reference is converted each time.
class GX_EXPORT QtImageCache {
public:
    /// Chosen: enough for a screen full of icons or two photographs.
    static constexpr std::size_t defaultCapacity = std::size_t{32} << 20U;

    explicit QtImageCache(std::size_t byteCapacity = defaultCapacity) : capacity_(byteCapacity) {}

    /// The one that canvases share; never empty.
    static const std::shared_ptr<QtImageCache>& shared();

    /// The whole picture, at least of this size or in its full size, but less than twice as large
    /// in both directions: smooth scaling reads four pixels for each new one and must not skip
    /// others.
    QImage imageOfSize(const UIImage& image, double pixelWidth, double pixelHeight);

    /// A rectangle with round corners, whose radii are in pixels too. The last few are kept.
    QImage roundedRect(QSize size, double radiusX, double radiusY, const QColor& color);

    std::size_t byteCount() const { return byteCount_; }
    std::size_t pictureCount() const { return entries_.size(); }
    /// How many pictures were converted or halved.
    std::size_t conversionCount() const { return conversionCount_; }
    void purge();

private:
    struct Entry {
        WeakRef<const NSObject> picture;
        const UIImage* address; // Compared only, and only while the picture lives.
        std::vector<QImage> halvings;
    };
    struct Rounded {
        QSize size;
        double radiusX;
        double radiusY;
        QRgba64 color; // As exact as fills of it.
        QImage image;
    };
    QImage halved(std::vector<QImage>& halvings, double pixelWidth, double pixelHeight);
    void forget(std::list<Entry>::iterator entry);
    void trim();

    std::size_t capacity_;
    std::size_t byteCount_ = 0;
    std::size_t conversionCount_ = 0;
    std::list<Entry> entries_; // The one used last comes first.
    std::vector<Rounded> rounded_;

    // Chosen: the indicator and the marks of the keys and the pointer, in two looks.
    static constexpr std::size_t highestRoundedCount = 8;
};

} // namespace gx::qt
