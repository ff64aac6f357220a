// The gallery as a Qt application. All that it shows is in MainScreen, which knows no toolkit.

#include <iostream>
#include <span>

#include <QApplication>

#include "CommandLineArguments.h"
#include "MainScreen.h"
#include "QtClicks.h"
#include "QtFiles.h"
#include "QtPictures.h"
#include "QtRecording.h"
#include <GXUIPickers/QtHost.h>
#include <GXUIPickers/UIViewWidget.h>

using namespace gx;
using namespace gallery;

namespace {

enum ExitCode { Done = 0, CannotWrite = 1, CannotStart = 2, NoDisplay = 3 };

constexpr const char* fontPackage = "fonts-inter";
constexpr const char* fontFolder = "/usr/share/fonts/opentype/inter/";

/// Whether a window can open. Only X11 and Wayland may lack a display.
bool hasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

/// The interface family of all views, in the four weights that `UIFontWeight` knows.
bool loadFonts() {
    const std::string folder = fontFolder;
    const auto loading = qt::loadInterfaceFont(
        {folder + "Inter-Regular.otf", folder + "Inter-Medium.otf", folder + "Inter-SemiBold.otf", folder + "Inter-Bold.otf"});
    if (loading) return true;
    std::cerr << "gallery: the font Inter was not found in " << fontFolder << ".\n"
              << "Install it with: apt-get install " << fontPackage << "\n";
    return false;
}

int report(const std::string& problem) {
    std::cerr << "gallery: " << problem << "\n";
    return CannotWrite;
}

int replay(const CommandLineArguments& arguments) {
    const ReplayResult result = replayFile(*arguments.recordingToPlay, arguments.pictureFolder);
    std::cout << result.values;
    return result.problem ? report(*result.problem) : Done;
}

int showWindow(const Ref<MainScreen>& screen, const CommandLineArguments& arguments, const RecordingStart& start, QtClicks* clicks) {
    constexpr CGSize usualSize = {900, 640};
    const CGSize size = arguments.size.value_or(usualSize);
    qt::UIViewWidget widget;
    widget.setWindowTitle("GXUIPickers");
    widget.setMinimumSize(320, 320);
    widget.resize(static_cast<int>(size.width), static_cast<int>(size.height));
    widget.setRootView(screen);
    std::shared_ptr<UserFiles> files = std::make_shared<QtFiles>(&widget);
    std::unique_ptr<QtRecording> recording;
    if (arguments.recordingToWrite) {
        std::string error;
        recording = QtRecording::begin(*arguments.recordingToWrite, widget, start, error);
        if (!recording) return report(error);
        files = recording->recorded(files);
    }
    screen->setStyleAction([&widget](std::optional<UIUserInterfaceStyle> style) { widget.setUserInterfaceStyle(style); });
    if (clicks) widget.setWheelTickHandler([&widget, clicks] { clicks->click(widget.now()); });
    screen->entry()->setFiles(files);
    widget.show();
    const int result = QApplication::exec();
    screen->setStyleAction(nullptr);
    screen->entry()->setFiles(nullptr);
    if (recording && !recording->isComplete()) return report("The recording could not be written to its end.");
    return result;
}

} // namespace

int main(int argc, char** argv) {
    std::string error;
    const auto all = std::span(argv, static_cast<std::size_t>(argc));
    const auto words = all.subspan(all.empty() ? 0 : 1);
    const auto arguments = CommandLineArguments::parse({words.begin(), words.end()}, error);
    const std::string program = CommandLineArguments::programName(all.empty() ? nullptr : all.front());
    if (!arguments) {
        std::cerr << "gallery: " << error << "\n\n" << CommandLineArguments::usage(program);
        return CannotStart;
    }
    if (arguments->showsHelp) {
        std::cout << CommandLineArguments::usage(program);
        return Done;
    }
    if (arguments->showsVersion) {
        std::cout << "GXUIPickers gallery " << GX_VERSION << "\n";
        return Done;
    }
    if (arguments->pictureFolder || arguments->recordingToPlay) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        std::cerr << "gallery: there is no display to open a window on; neither DISPLAY nor WAYLAND_DISPLAY is set.\n"
                     "Pictures can be drawn without one: "
                  << program << " --shots DIR\n";
        return NoDisplay;
    }

    QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName("org.gxuipickers.Gallery"); // Names the icon.
    qt::installQtHost(application);
    if (!loadFonts()) return CannotStart;
    if (arguments->recordingToPlay) return replay(*arguments);

    if (arguments->locale) NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(*arguments->locale));
    RecordingStart start = RecordingStart::withCurrentLocale();
    start.textScale = arguments->textScale;
    start.isContrastHigh = arguments->isContrastHigh;
    start.page = arguments->page.value_or(start.page);
    const std::unique_ptr<QtClicks> clicks = arguments->pictureFolder ? nullptr : QtClicks::make();
    start.offersClicks = clicks != nullptr;
    const Ref<MainScreen> screen = start.makeScreen();
    if (!screen) {
        std::cerr << "gallery: there is no page " << start.page << ". The pages are:\n";
        const auto anyScreen = create<MainScreen>(CGRectZero); // The names are its own.
        for (const std::string& name : anyScreen->pageNames()) std::cerr << "  " << name << "\n";
        return CannotStart;
    }
    if (!arguments->pictureFolder) return showWindow(screen, *arguments, start, clicks.get());
    const auto problem = writePictures(screen, *arguments);
    return problem ? report(*problem) : Done;
}
