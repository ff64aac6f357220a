#include "QtFiles.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>

#include "Translations.h"
#include "WorkoutFile.h"

namespace gallery {

namespace {

QString title(const char* english) { return QString::fromStdString(Translations::text(english)); }

QString filter() { return title("Workouts") + QStringLiteral(" (*.json)"); }

QtFiles::Dialogs systemDialogs() {
    return {[](QWidget* parent, const QString& suggestedName) {
                QFileDialog dialog(parent, title("Save"), QString(), filter());
                dialog.setAcceptMode(QFileDialog::AcceptSave);
                dialog.setDefaultSuffix(QStringLiteral("json"));
                dialog.selectFile(suggestedName);
                return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
            },
            [](QWidget* parent) { return QFileDialog::getOpenFileName(parent, title("Open"), QString(), filter()); }};
}

UserFiles::Outcome failure(const char* english, const QString& path, const QString& reason) {
    return {QFileInfo(path).fileName().toStdString(), "", Translations::filled(english, reason.toStdString())};
}

} // namespace

QtFiles::QtFiles(QWidget* parent) : QtFiles(parent, systemDialogs()) {}

QtFiles::QtFiles(QWidget* parent, Dialogs dialogs) : parent_(parent), dialogs_(std::move(dialogs)) {}

void QtFiles::saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) {
    const QString path = dialogs_.pathToSave(parent_, QString::fromStdString(suggestedName));
    if (path.isEmpty()) return;
    // Written beside the file and moved into its place only when it is complete.
    QSaveFile file(path);
    const QByteArray bytes = QByteArray::fromStdString(text);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten) return done(failure("The file could not be written: {0}", path, file.errorString()));
    done({QFileInfo(path).fileName().toStdString(), "", ""});
}

void QtFiles::openText(const Done& done) {
    const QString path = dialogs_.pathToOpen(parent_);
    if (path.isEmpty()) return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return done(failure("The file could not be read: {0}", path, file.errorString()));
    // One byte more than a workout may have shows that a file is too long.
    const QByteArray bytes = file.read(static_cast<qint64>(WorkoutFile::longest) + 1);
    if (file.error() != QFileDevice::NoError) return done(failure("The file could not be read: {0}", path, file.errorString()));
    done({QFileInfo(path).fileName().toStdString(), bytes.toStdString(), ""});
}

} // namespace gallery
