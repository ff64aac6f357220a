// Shows Main.qml. With an argument nobody is there: it prints the window's title and ends.

#include <iostream>

#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <GXUIPickers/QuickPickers.h>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    gx::quick::registerPickers(); // Once, before the first document.

    QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/Main.qml")));
    if (engine.rootObjects().isEmpty()) return 1; // The console says what is wrong with it.
    if (argc > 1) {
        std::cout << engine.rootObjects().constFirst()->property("title").toString().toStdString() << "\n";
        return 0;
    }
    return QGuiApplication::exec();
}
