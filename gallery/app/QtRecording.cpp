#include "QtRecording.h"

#include <filesystem>
#include <iterator>
#include <system_error>

#include <QImage>

#include "EventPlayer.h"
#include <GXUIPickers/NSRunLoop.h>
#include <GXUIPickers/QtViewImage.h>

using namespace gx;

namespace gallery {

QtRecording::QtRecording(const std::string& path, qt::UIViewWidget& widget)
    : widget_(widget), file_(path, std::ios::binary | std::ios::trunc), markKey_(QKeySequence(Qt::Key_F12), &widget) {
    recorder_ = std::make_shared<EventRecorder>(
        widget.uiWindow(), [&widget] { return widget.now(); }, [this](const std::string& line) { write(line); });
    // As the host does it, by way of the recorder.
    passTimer_.setSingleShot(true);
    QObject::connect(&passTimer_, &QTimer::timeout, &widget, [recorder = recorder_] { recorder->runPass(); });
    NSRunLoop::mainRunLoop()->setWakeHandler([this] { passTimer_.start(0); });
    if (NSRunLoop::mainRunLoop()->hasWork()) passTimer_.start(0);
    QObject::connect(&markKey_, &QShortcut::activated, &widget, [recorder = recorder_] { recorder->markPicture(); });
    widget.setWindowInput(recorder_);
}

QtRecording::~QtRecording() {
    NSRunLoop::mainRunLoop()->setWakeHandler(nullptr);
    widget_.setWindowInput(nullptr);
}

void QtRecording::write(const std::string& line) { file_ << line << '\n' << std::flush; }

std::unique_ptr<QtRecording> QtRecording::begin(const std::string& path, qt::UIViewWidget& widget, const RecordingStart& start,
                                                std::string& error) {
    std::unique_ptr<QtRecording> recording(new QtRecording(path, widget));
    RecordingStart first = start;
    first.size = widget.uiWindow()->bounds().size;
    first.scale = widget.devicePixelRatioF();
    first.isDark = widget.userInterfaceStyle() == UIUserInterfaceStyle::Dark;
    recording->write(first.line());
    if (recording->isComplete()) return recording;
    error = "The recording " + path + " cannot be written.";
    return nullptr;
}

std::shared_ptr<UserFiles> QtRecording::recorded(std::shared_ptr<UserFiles> files) const {
    return std::make_shared<RecordedFiles>(std::move(files), recorder_);
}

namespace {

/// More than a day of moving wheels. A longer file is no recording.
constexpr std::uintmax_t longestRecording = std::uintmax_t{1} << 28U;

std::optional<std::string> textOfFile(const std::string& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    if (error || size > longestRecording || !file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace

ReplayResult replayFile(const std::string& path, const std::optional<std::string>& pictureFolder) {
    const std::optional<std::string> text = textOfFile(path);
    if (!text) return {"", "The recording " + path + " cannot be read."};
    std::string error;
    const auto recording = Recording::recordingOfText(*text, error);
    if (!recording) return {"", path + ", " + error + "."};
    const auto player = EventPlayer::playerOfStart(recording->start);
    if (!player) return {"", path + ", line 1: there is no page " + recording->start.page + "."};

    ReplayResult result;
    const auto draw = [&](const std::string& name) {
        if (!pictureFolder || result.problem) return;
        const std::filesystem::path file = std::filesystem::path(*pictureFolder) / (name + ".png");
        const QImage image = qt::imageOfWindow(player->window(), recording->start.scale);
        if (!image.save(QString::fromStdString(file.string()), "PNG")) {
            result.problem = "The picture " + file.string() + " cannot be written.";
        }
    };
    if (pictureFolder) {
        std::error_code failure;
        std::filesystem::create_directories(*pictureFolder, failure);
        if (failure) return {"", "The folder " + *pictureFolder + " cannot be made: " + failure.message() + "."};
    }
    player->play(*recording, draw);
    draw("end");
    result.values = valuesOfScreen(*player->screen());
    return result;
}

} // namespace gallery
