#include "QtImageLoader.h"

#include <cstring>
#include <string_view>

#include <QImage>
#include <QString>

namespace gx::qt {

double QtImageLoader::scaleOfFileName(const std::string& path) {
    std::string_view name(path);
    name.remove_prefix(name.find_last_of('/') + 1); // Without one this is 0.
    const std::size_t dot = name.find_last_of('.');
    if (dot != std::string_view::npos) name = name.substr(0, dot);
    if (name.size() < 3) return 1;
    const std::string_view suffix = name.substr(name.size() - 3);
    const bool tells = suffix[0] == '@' && suffix[1] >= '1' && suffix[1] <= '9' && suffix[2] == 'x';
    return tells ? suffix[1] - '0' : 1;
}

Ref<UIImage> QtImageLoader::imageWithContentsOfFile(const std::string& path) {
    const QImage image = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGBA8888);
    if (image.isNull()) return nullptr;
    const auto rowBytes = static_cast<std::size_t>(image.width()) * 4;
    std::vector<std::uint8_t> pixels(rowBytes * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(&pixels[rowBytes * static_cast<std::size_t>(y)], image.constScanLine(y), rowBytes);
    }
    return UIImage::imageWithPixels_width_height_scale(std::move(pixels), image.width(), image.height(), scaleOfFileName(path));
}

} // namespace gx::qt
