#include <GXUIPickers/QtHost.h>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>

#include "QtImageLoader.h"
#include "QtTextEngine.h"
#include <GXUIPickers/UIHost.h>

namespace gx::qt {

namespace {

/// The application's fonts and timers are about to be destroyed.
void uninstall() {
    NSRunLoop::mainRunLoop()->setWakeHandler(nullptr);
    if (std::dynamic_pointer_cast<QtImageLoader>(UIImageLoader::shared())) UIImageLoader::setShared(nullptr);
    if (UITextEngine::shared() == QtTextEngine::shared()) UITextEngine::setShared(nullptr);
}

void pumpRunLoop(QGuiApplication& application) {
    // A timer fires once in a pass of the event loop. A queued call would run within the same pass,
    // so that work which queues itself again would let no events through.
    const QPointer<QTimer> timer = new QTimer(&application);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [] { NSRunLoop::mainRunLoop()->runPass(); });
    NSRunLoop::mainRunLoop()->setWakeHandler([timer] {
        if (timer) timer->start(0);
    });
}

} // namespace

void installQtHost(QGuiApplication& application, const QtHostOptions& options) {
    if (options.interfaceFamily) QtTextEngine::shared()->setInterfaceFamily(*options.interfaceFamily);
    UITextEngine::setShared(QtTextEngine::shared());
    UIImageLoader::setShared(std::make_shared<QtImageLoader>());
    NSLocale::setCurrentLocale(localeFromQLocale(options.locale.value_or(QLocale::system())));
    pumpRunLoop(application);
    qAddPostRoutine(uninstall);
}

Ref<NSLocale> localeFromQLocale(const QLocale& locale) {
    const bool hasLanguage = locale.language() != QLocale::C && locale.language() != QLocale::AnyLanguage;
    Ref<NSLocale> made = NSLocale::localeWithIdentifier(hasLanguage ? locale.name().toStdString() : "en");
    made->setDecimalSeparator(locale.decimalPoint().toStdString());
    made->setCharacterDirection(locale.textDirection() == Qt::RightToLeft ? NSLocaleLanguageDirection::RightToLeft
                                                                          : NSLocaleLanguageDirection::LeftToRight);
    return made;
}

QtFontLoading loadInterfaceFont(const std::vector<std::string>& files) {
    QtFontLoading loading;
    for (const std::string& file : files) {
        const int font = QFontDatabase::addApplicationFont(QString::fromStdString(file));
        const QStringList families = font < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(font);
        if (families.isEmpty()) {
            loading.unreadableFiles.push_back(file);
        } else if (loading.family.empty()) {
            loading.family = families.first().toStdString();
        }
    }
    if (loading) QtTextEngine::shared()->setInterfaceFamily(loading.family);
    return loading;
}

} // namespace gx::qt
