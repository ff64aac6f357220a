// The entry of the tests on Qt: an application without a screen, drawing with one fixed family of
// fonts.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <QApplication>

#include "QtHost.h"

// Of the Debian package fonts-inter.
#ifndef GX_TEST_FONT_FOLDER
#define GX_TEST_FONT_FOLDER "/usr/share/fonts/opentype/inter"
#endif

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv); // Takes over the user's C locale.
    const bool isCommaExpected = qEnvironmentVariableIsSet("GX_EXPECT_DECIMAL_COMMA");
    if (isCommaExpected && std::strcmp(std::localeconv()->decimal_point, ",") != 0) {
        std::fprintf(stderr, "The tests were to run with a decimal comma, but the C locale has none.\n");
        return 1;
    }
    std::vector<std::string> files;
    for (const char* weight : {"Regular", "Medium", "SemiBold", "Bold"}) {
        files.push_back(std::string(GX_TEST_FONT_FOLDER "/Inter-") + weight + ".otf");
    }
    const gx::qt::QtFontLoading loading = gx::qt::loadInterfaceFont(files);
    for (const std::string& file : loading.unreadableFiles) std::fprintf(stderr, "Cannot read the font %s.\n", file.c_str());
    if (!loading.unreadableFiles.empty()) {
        std::fprintf(stderr, "The tests need Debian's package fonts-inter, or its files in GX_TEST_FONT_FOLDER.\n");
        return 1;
    }
    gx::qt::installQtHost(application, {.locale = QLocale("en_US"), .interfaceFamily = std::nullopt});
    const int result = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() > 0) return result;
    std::fprintf(stderr, "No tests were found.\n");
    return 1;
}
