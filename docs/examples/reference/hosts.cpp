// Examples of the reference: views on a Qt screen.

#include <GXUIPickers/GXUIPickers.h>
#include <GXUIPickers/QtHost.h>
#include <GXUIPickers/QtViewImage.h>
#include <GXUIPickers/UIViewWidget.h>
#include <gtest/gtest.h>

#include <QApplication>

using namespace gx;

namespace {

TEST(ReferenceExamples, Hosts) {
    int count = 1;
    char name[] = "example";
    char* arguments[] = {name, nullptr};
    // [qt::QtHostOptions qt::QtFontLoading]
    /// - Call `installQtHost` after the application object was made and before the first view.
    /// - The locale is read once: it does not follow a change while the application runs.
    /// - It is no language: set that of the texts by `GXLocalization::setLanguage`.
    /// - Without a font, offscreen pictures have wrong widths and no message: load one.
    QApplication application(count, arguments);
    qt::QtHostOptions options;
    options.locale = QLocale("de_DE");
    qt::installQtHost(application, options);
    EXPECT_EQ(NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator), ",");

    const qt::QtFontLoading loading = qt::loadInterfaceFont({"no such file.otf"});
    EXPECT_FALSE(loading);
    EXPECT_EQ(loading.unreadableFiles.size(), 1U);
    // [qt::QtHostOptions qt::QtFontLoading]

    // [qt::UIViewWidget]
    /// - `installQtHost` comes first.
    /// - The widget holds its root view strongly; a view has one widget at a time.
    /// - A widget that is hidden ends all spins and reports them.
    qt::UIViewWidget widget;
    const auto picker = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216));
    widget.setRootView(picker);
    EXPECT_EQ(widget.sizeHint(), QSize(320, 216));
    EXPECT_EQ(widget.uiWindow(), picker->window());
    // [qt::UIViewWidget]
}

} // namespace
