#include "QtPictures.h"

#include <filesystem>
#include <system_error>

#include <QImage>

#include "QtFiles.h"
#include <GXUIPickers/NSRunLoop.h>
#include <GXUIPickers/QtViewImage.h>

using namespace gx;

namespace gallery {

namespace {

/// A phone of the usual size, and a window that shows nine pickers and the beginning of a tenth.
constexpr CGSize phoneSize = {390, 844};
constexpr CGSize desktopSize = {1200, 800};

/// "Heart rate" becomes "heart-rate".
std::string fileName(std::string name) {
    for (char& letter : name) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
        if (letter == ' ') letter = '-';
    }
    return name;
}

/// Draws one picture after the other into a folder, until one cannot be written.
class Album {
public:
    Album(const Ref<MainScreen>& screen, std::filesystem::path folder, double scale)
        : screen_(screen), folder_(std::move(folder)), scale_(scale) {}

    void addPicture(const std::string& name, CGSize size, UIUserInterfaceStyle style) {
        if (problem_) return;
        Settings settings = screen_->settings();
        settings.style = style;
        screen_->setSettings(settings);
        const QImage image = qt::imageOfView(screen_, size, scale_, style);
        const std::filesystem::path file = folder_ / (name + ".png");
        const bool isWritten = !image.isNull() && image.save(QString::fromStdString(file.string()), "PNG");
        if (!isWritten) problem_ = "The picture " + file.string() + " cannot be written.";
    }
    void addBothLooks(const std::string& name, CGSize size) {
        addPicture(name + "-light", size, UIUserInterfaceStyle::Light);
        addPicture(name + "-dark", size, UIUserInterfaceStyle::Dark);
    }
    const std::optional<std::string>& problem() const { return problem_; }

private:
    Ref<MainScreen> screen_;
    std::filesystem::path folder_;
    double scale_;
    std::optional<std::string> problem_;
};

void layOut(const Ref<MainScreen>& screen, CGSize size) {
    screen->setFrame({{}, size});
    screen->layoutIfNeeded();
}

/// The table as it opens, and with each of its pickers.
void addEntry(Album& album, const Ref<MainScreen>& screen, const std::optional<CGSize>& asked) {
    const auto& entry = screen->entry();
    entry->setFiles(std::make_shared<QtFiles>(nullptr)); // For its buttons.
    layOut(screen, asked.value_or(phoneSize));
    album.addBothLooks("add-workout", asked.value_or(phoneSize));
    for (std::size_t i = 0; i < entry->measurementCount(); ++i) {
        entry->openMeasurement_animated(i, false);
        NSRunLoop::mainRunLoop()->runPass(); // Pickers finish their set-up in a later pass.
        album.addBothLooks("add-workout-" + fileName(entry->measurement(i)->name()), asked.value_or(phoneSize));
    }
    entry->openMeasurement_animated(0, false);
    layOut(screen, asked.value_or(desktopSize));
    album.addBothLooks("add-workout-desktop", asked.value_or(desktopSize));
    entry->openMeasurement_animated(std::nullopt, false);
    entry->setFiles(nullptr);
}

void addPickerPage(Album& album, const Ref<MainScreen>& screen, const std::optional<CGSize>& asked) {
    // Laid out as wide as it will be drawn, since a wheel needs visible rows before it can be
    // turned.
    layOut(screen, asked.value_or(phoneSize));
    constexpr int turns = 3;
    for (int turn = 0; turn < turns; ++turn) {
        screen->page()->turnForPicture();
        NSRunLoop::mainRunLoop()->runPass();
    }
    album.addBothLooks(fileName(screen->page()->name()), asked.value_or(screen->sizeThatFits({phoneSize.width, 0})));
}

} // namespace

std::optional<std::string> writePictures(const Ref<MainScreen>& screen, const CommandLineArguments& arguments) {
    const std::filesystem::path folder = *arguments.pictureFolder;
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) return "The folder " + folder.string() + " cannot be made: " + error.message() + ".";

    Album album(screen, folder, arguments.scale);
    const auto only = arguments.page ? screen->indexOfPage(*arguments.page) : std::nullopt;
    for (std::size_t i = 0; i < screen->pageNames().size(); ++i) {
        if (only && *only != i) continue;
        screen->showPage(i);
        if (i == MainScreen::entryPage) {
            addEntry(album, screen, arguments.size);
        } else if (i == MainScreen::settingsPage) {
            layOut(screen, arguments.size.value_or(phoneSize));
            album.addBothLooks("settings", arguments.size.value_or(screen->sizeThatFits({phoneSize.width, 0})));
        } else if (i == MainScreen::overviewPage) {
            layOut(screen, arguments.size.value_or(desktopSize));
            NSRunLoop::mainRunLoop()->runPass();
            album.addPicture("gallery", arguments.size.value_or(desktopSize), UIUserInterfaceStyle::Light);
        } else {
            addPickerPage(album, screen, arguments.size);
        }
    }
    return album.problem();
}

} // namespace gallery
