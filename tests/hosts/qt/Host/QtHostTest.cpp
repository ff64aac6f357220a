#include <gtest/gtest.h>

#include <vector>

#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include "QtHost.h"
#include "QtTextEngine.h"
#include "UIHost.h"
#include "UIViewWidget.h"

using namespace gx;
using gx::qt::installQtHost;
using gx::qt::loadInterfaceFont;
using gx::qt::localeFromQLocale;
using gx::qt::QtFontLoading;
using gx::qt::QtTextEngine;

namespace {

QGuiApplication& application() { return *qGuiApp; }

std::string objectForKey(const Ref<NSLocale>& locale, NSLocaleKey key) { return locale->objectForKey(key).value_or("(none)"); }

TEST(QtHost, GivesTheLibraryItsServices) {
    EXPECT_EQ(UITextEngine::shared(), QtTextEngine::shared());
    EXPECT_TRUE(UIImageLoader::shared());
    EXPECT_EQ(objectForKey(NSLocale::currentLocale(), NSLocaleIdentifier), "en_US");
}

TEST(QtHost, TakesOverLanguageSeparatorAndDirection) {
    const Ref<NSLocale> german = localeFromQLocale(QLocale("de_DE"));
    EXPECT_EQ(objectForKey(german, NSLocaleIdentifier), "de_DE");
    EXPECT_EQ(objectForKey(german, NSLocaleLanguageCode), "de");
    EXPECT_EQ(objectForKey(german, NSLocaleDecimalSeparator), ",");
    EXPECT_EQ(german->characterDirection(), NSLocaleLanguageDirection::LeftToRight);
    EXPECT_EQ(objectForKey(localeFromQLocale(QLocale("de_CH")), NSLocaleDecimalSeparator), ".");
    const Ref<NSLocale> arabic = localeFromQLocale(QLocale("ar_EG"));
    EXPECT_EQ(arabic->characterDirection(), NSLocaleLanguageDirection::RightToLeft);
    EXPECT_EQ(objectForKey(arabic, NSLocaleDecimalSeparator), "\u066b");
}

TEST(QtHost, ALocaleWithoutALanguageIsEnglish) {
    const Ref<NSLocale> locale = localeFromQLocale(QLocale::c());
    EXPECT_EQ(objectForKey(locale, NSLocaleIdentifier), "en");
    EXPECT_EQ(objectForKey(locale, NSLocaleDecimalSeparator), ".");
}

TEST(QtHost, InstallsTheGivenOrTheSystemsLocale) {
    installQtHost(application(), {.locale = QLocale("de_DE"), .interfaceFamily = std::nullopt});
    EXPECT_EQ(objectForKey(NSLocale::currentLocale(), NSLocaleDecimalSeparator), ",");
    installQtHost(application());
    EXPECT_EQ(objectForKey(NSLocale::currentLocale(), NSLocaleDecimalSeparator), QLocale::system().decimalPoint().toStdString());
    installQtHost(application(), {.locale = QLocale("en_US"), .interfaceFamily = std::nullopt});
    EXPECT_EQ(objectForKey(NSLocale::currentLocale(), NSLocaleDecimalSeparator), ".");
}

TEST(QtHost, SetsTheInterfaceFamilyOnlyIfOneIsGiven) {
    const std::string before = QtTextEngine::shared()->interfaceFamily();
    EXPECT_EQ(before, "Inter"); // From the font files.
    installQtHost(application(), {.locale = QLocale("en_US"), .interfaceFamily = "Inter Medium"});
    EXPECT_EQ(QtTextEngine::shared()->interfaceFamily(), "Inter Medium");
    installQtHost(application(), {.locale = QLocale("en_US"), .interfaceFamily = before});
    EXPECT_EQ(QtTextEngine::shared()->interfaceFamily(), "Inter");
}

TEST(QtHost, QueuedWorkRunsInQtsEventLoop) {
    std::vector<int> ran;
    NSRunLoop::mainRunLoop()->performBlock([&ran] {
        ran.push_back(1);
        NSRunLoop::mainRunLoop()->performBlock([&ran] { ran.push_back(3); });
    });
    NSRunLoop::mainRunLoop()->performBlock([&ran] { ran.push_back(2); });
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(QTest::qWaitFor([&ran] { return ran.size() == 3; }));
    EXPECT_EQ(ran, (std::vector<int>{1, 2, 3}));
    EXPECT_FALSE(NSRunLoop::mainRunLoop()->hasWork());
}

TEST(QtHost, WorkThatQueuesItselfLetsEventsThrough) {
    bool goesOn = true;
    int passes = 0;
    std::function<void()> again = [&] {
        ++passes;
        if (goesOn) NSRunLoop::mainRunLoop()->performBlock(again);
    };
    again();
    bool isPosted = false;
    bool isTimed = false;
    QMetaObject::invokeMethod(
        &application(), [&isPosted] { isPosted = true; }, Qt::QueuedConnection);
    QTimer::singleShot(1, &application(), [&isTimed] { isTimed = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isPosted && isTimed; }));
    goesOn = false;
    EXPECT_TRUE(QTest::qWaitFor([] { return !NSRunLoop::mainRunLoop()->hasWork(); }));
    EXPECT_GT(passes, 1);
}

TEST(QtHost, AWidgetWarnsWithoutIt) {
    static QStringList warnings;
    warnings.clear();
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { warnings.append(text); });
    UITextEngine::setShared(nullptr);
    const gx::qt::UIViewWidget without;
    UITextEngine::setShared(QtTextEngine::shared());
    const gx::qt::UIViewWidget with;
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings, QStringList("UIViewWidget: call gx::qt::installQtHost before the first view. Without it texts have wrong widths."));
}

TEST(QtHost, RunsWorkQueuedBeforeItWasInstalled) {
    NSRunLoop::mainRunLoop()->setWakeHandler(nullptr);
    bool ran = false;
    NSRunLoop::mainRunLoop()->performBlock([&ran] { ran = true; });
    installQtHost(application(), {.locale = QLocale("en_US"), .interfaceFamily = std::nullopt});
    EXPECT_FALSE(ran);
    EXPECT_TRUE(QTest::qWaitFor([&ran] { return ran; }));
}

TEST(QtHost, ReturnsTheUnreadableFontFiles) {
    const QtFontLoading loading = loadInterfaceFont({"absent.otf", "absent too.otf"});
    EXPECT_FALSE(loading);
    EXPECT_EQ(loading.family, "");
    EXPECT_EQ(loading.unreadableFiles, (std::vector<std::string>{"absent.otf", "absent too.otf"}));
    EXPECT_EQ(QtTextEngine::shared()->interfaceFamily(), "Inter");
    EXPECT_FALSE(loadInterfaceFont({}));
}

} // namespace
