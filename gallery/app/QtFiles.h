#pragma once

#include <QPointer>
#include <QWidget>

#include "GalleryFiles.h"

namespace gallery {

/// The user's files through the dialogs of the system.
class QtFiles : public GalleryFiles {
public:
    /// How the user chooses a file: answers its path, or nothing if the user thinks better of it.
    struct Dialogs {
        std::function<QString(QWidget* parent, const QString& suggestedName)> pathToSave;
        std::function<QString(QWidget* parent)> pathToOpen;
    };

    /// `parent` is what the dialogs stand over; it may be absent.
    explicit QtFiles(QWidget* parent);
    QtFiles(QWidget* parent, Dialogs dialogs);

    void saveText_name(const std::string& text, const std::string& suggestedName, const Done& done) override;
    void openText(const Done& done) override;

private:
    QPointer<QWidget> parent_;
    Dialogs dialogs_;
};

} // namespace gallery
