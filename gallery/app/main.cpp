// The gallery as a Qt application. All that it shows is in MainScreen, which knows no toolkit.

#include <iostream>
#include <span>

#include <QApplication>

#include "CommandLineArguments.h"
#include "MainScreen.h"
#include "QtFiles.h"
#include "QtPictures.h"
#include <GXUIPickers/GXLocalization.h>
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

/// Units follow the language, and numbers its decimal separator.
void setLocale(const std::optional<std::string>& name) {
    if (name) NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(*name));
    const auto identifier = NSLocale::currentLocale()->objectForKey(NSLocaleIdentifier);
    GXLocalization::sharedLocalization()->setLanguage(identifier.value_or("en"));
}

int showWindow(const Ref<MainScreen>& screen, const CommandLineArguments& arguments) {
    constexpr CGSize usualSize = {900, 640};
    const CGSize size = arguments.size.value_or(usualSize);
    qt::UIViewWidget widget;
    widget.setWindowTitle("GXUIPickers");
    widget.setMinimumSize(320, 320);
    widget.resize(static_cast<int>(size.width), static_cast<int>(size.height));
    widget.setRootView(screen);
    screen->setStyleAction([&widget](std::optional<UIUserInterfaceStyle> style) { widget.setUserInterfaceStyle(style); });
    screen->entry()->setFiles(std::make_shared<QtFiles>(&widget));
    widget.show();
    const int result = QApplication::exec();
    screen->setStyleAction(nullptr);
    screen->entry()->setFiles(nullptr);
    return result;
}

} // namespace

int main(int argc, char** argv) {
    std::string error;
    const auto words = std::span(argv, static_cast<std::size_t>(argc)).subspan(argc > 0 ? 1 : 0);
    const auto arguments = CommandLineArguments::parse({words.begin(), words.end()}, error);
    if (!arguments) {
        std::cerr << "gallery: " << error << "\n\n" << CommandLineArguments::usage();
        return CannotStart;
    }
    if (arguments->showsHelp) {
        std::cout << CommandLineArguments::usage();
        return Done;
    }
    if (arguments->pictureFolder) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay()) {
        std::cerr << "gallery: there is no display to open a window on; neither DISPLAY nor WAYLAND_DISPLAY is set.\n"
                     "Pictures can be drawn without one: gallery --shots DIR\n";
        return NoDisplay;
    }

    QApplication application(argc, argv);
    qt::installQtHost(application);
    if (!loadFonts()) return CannotStart;
    setLocale(arguments->locale);

    const auto screen = create<MainScreen>(CGRectZero);
    Settings settings = screen->settings();
    settings.textScale = arguments->textScale;
    settings.contrast = arguments->isContrastHigh ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal;
    screen->setSettings(settings);
    if (arguments->page) {
        const auto index = screen->indexOfPage(*arguments->page);
        if (!index) {
            std::cerr << "gallery: there is no page " << *arguments->page << ". The pages are:\n";
            for (const std::string& name : screen->pageNames()) std::cerr << "  " << name << "\n";
            return CannotStart;
        }
        screen->showPage(*index);
    }
    if (!arguments->pictureFolder) return showWindow(screen, *arguments);
    if (const auto problem = writePictures(screen, *arguments)) {
        std::cerr << "gallery: " << *problem << "\n";
        return CannotWrite;
    }
    return Done;
}
