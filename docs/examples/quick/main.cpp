// Shows AddWorkout.qml, or with --shots FOLDER writes a picture of each open entry, light and dark.

#include <iostream>

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTest>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption shots(QStringLiteral("shots"), QStringLiteral("Write pictures and end."), QStringLiteral("folder"));
    parser.addOption(shots);
    parser.process(application);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(GX_QML_FOLDER));
    engine.load(QUrl::fromLocalFile(QStringLiteral(GX_EXAMPLE_FOLDER "/AddWorkout.qml")));
    auto* const window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (window == nullptr) return 1;
    if (!parser.isSet(shots)) return QGuiApplication::exec();

    const QDir folder(parser.value(shots));
    bool isWritten = folder.mkpath(QStringLiteral("."));
    for (const bool isDark : {false, true}) {
        window->setProperty("dark", isDark);
        for (int entry = 0; isWritten && entry < window->property("entryCount").toInt(); ++entry) {
            window->setProperty("open", entry);
            // Layouts and the frames of a first look.
            QTest::qWait(100);
            const QString name =
                QStringLiteral("quick-%1-%2.png").arg(entry).arg(isDark ? QStringLiteral("dark") : QStringLiteral("light"));
            isWritten = window->grabWindow().save(folder.filePath(name));
        }
    }
    if (!isWritten) std::cerr << "Cannot write to " << folder.path().toStdString() << ".\n";
    return isWritten ? 0 : 1;
}
