#pragma once

#include <QPointer>
#include <QWidget>

#include "UserFiles.h"

namespace gallery {

/// The user's files through the dialogs of the system.
class QtFiles : public UserFiles {
public:
    /// How the user chooses a file. Each returns the path, or nothing if the user dismisses the
    /// dialog.
    struct Dialogs {
        std::function<QString(QWidget* parent, const QString& suggestedName)> pathToSave;
        std::function<QString(QWidget* parent)> pathToOpen;
    };

    /// The dialogs open over `parent`, which may be absent.
    explicit QtFiles(QWidget* parent);
    QtFiles(QWidget* parent, Dialogs dialogs);

    void saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) override;
    void openText(const Done& done) override;

private:
    QPointer<QWidget> parent_;
    Dialogs dialogs_;
};

} // namespace gallery
