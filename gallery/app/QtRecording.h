#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include <QShortcut>
#include <QTimer>

#include "EventRecorder.h"
#include "Recording.h"
#include <GXUIPickers/UIViewWidget.h>

namespace gallery {

/// Writes all that comes to a widget into a file, until it is destroyed.
///
/// F12 marks the present frame. Each line is in the file at once, so that a recording is whole up
/// to the event that ended the program.
class QtRecording {
public:
    /// Begins, before the widget is shown. The recording has to go before the widget. Returns
    /// nothing if the file cannot be written, with the reason in `error`.
    static std::unique_ptr<QtRecording> begin(const std::string& path, gx::qt::UIViewWidget& widget, const RecordingStart& start,
                                              std::string& error);
    ~QtRecording();
    QtRecording(const QtRecording&) = delete;
    QtRecording& operator=(const QtRecording&) = delete;

    std::shared_ptr<UserFiles> recorded(std::shared_ptr<UserFiles> files) const;
    /// Whether everything could be written so far.
    bool isComplete() const { return file_.good(); }

private:
    QtRecording(const std::string& path, gx::qt::UIViewWidget& widget);
    void write(const std::string& line);

    gx::qt::UIViewWidget& widget_;
    std::ofstream file_;
    std::shared_ptr<EventRecorder> recorder_;
    QTimer passTimer_;
    QShortcut markKey_;
};

/// What a replay has found.
struct ReplayResult {
    /// What the screen shows at the end, as JSON.
    std::string values;
    /// A sentence for the user; nothing for success.
    std::optional<std::string> problem;
};
/// Plays a recording without a window. Pictures of its marks and of the end go into the folder, if
/// there is one. A file with a wrong line plays nothing.
ReplayResult replayFile(const std::string& path, const std::optional<std::string>& pictureFolder);

} // namespace gallery
