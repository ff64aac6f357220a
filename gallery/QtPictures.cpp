#include "QtPictures.h"

#include <filesystem>
#include <system_error>

#include <QImage>

#include "NSRunLoop.h"
#include "QtViewImage.h"

using namespace gx;

namespace gallery {

namespace {

/// A phone of the usual width, and a window that shows nine pickers and the beginning of a tenth.
constexpr CGFloat phoneWidth = 390;
constexpr CGSize desktopSize = {1200, 800};

/// "Heart rate" becomes "heart-rate".
std::string fileName(std::string name) {
    for (char& letter : name) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
        if (letter == ' ') letter = '-';
    }
    return name;
}

bool draw(const Ref<GalleryScreen>& screen, CGSize size, double scale, UIUserInterfaceStyle style, const std::filesystem::path& file) {
    screen->setStyle(style);
    const QImage image = qt::imageOfView(screen, size, scale, style);
    return !image.isNull() && image.save(QString::fromStdString(file.string()), "PNG");
}

} // namespace

std::optional<std::string> writePictures(const Ref<GalleryScreen>& screen, const GalleryArguments& arguments) {
    const std::filesystem::path folder = *arguments.pictureFolder;
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) return "The folder " + folder.string() + " cannot be made: " + error.message() + ".";

    const auto only = arguments.page ? screen->indexOfPage(*arguments.page) : std::nullopt;
    const auto cannotWrite = [](const std::filesystem::path& file) { return "The picture " + file.string() + " cannot be written."; };

    for (std::size_t i = 0; i < screen->pageNames().size(); ++i) {
        if (only && *only != i) continue;
        screen->showPage(i);
        if (i == 0) {
            NSRunLoop::mainRunLoop()->runPass(); // What pickers do a moment after they were made.
            const auto file = folder / "gallery.png";
            if (!draw(screen, arguments.size.value_or(desktopSize), arguments.scale, UIUserInterfaceStyle::Light, file)) {
                return cannotWrite(file);
            }
            continue;
        }
        // Laid out as wide as it will be drawn before it is turned: without rows in sight there is nothing to turn.
        screen->setFrame({{}, arguments.size.value_or(CGSizeMake(phoneWidth, phoneWidth))});
        screen->layoutIfNeeded();
        constexpr int turns = 3;
        for (int turn = 0; turn < turns; ++turn) {
            screen->page()->turnForPicture();
            NSRunLoop::mainRunLoop()->runPass();
        }
        const CGSize size = arguments.size.value_or(screen->sizeThatFits({phoneWidth, 0}));
        for (const auto style : {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark}) {
            const char* look = style == UIUserInterfaceStyle::Light ? "-light.png" : "-dark.png";
            const auto file = folder / (fileName(screen->pageNames()[i]) + look);
            if (!draw(screen, size, arguments.scale, style, file)) return cannotWrite(file);
        }
    }
    return std::nullopt;
}

} // namespace gallery
