#include "QtClicks.h"

#ifdef GX_HAS_QT_MULTIMEDIA

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTemporaryFile>
#include <QUrl>

#include "WheelClick.h"

namespace gallery {

namespace {

class SoundEffectClicks : public QtClicks {
public:
    /// Returns whether the sound could be written to where the effect reads it.
    bool load() {
        const std::string wave = WheelClick::waveFile();
        if (!file_.open() || file_.write(wave.data(), static_cast<qint64>(wave.size())) < 0 || !file_.flush()) return false;
        effect_.setSource(QUrl::fromLocalFile(file_.fileName()));
        return true;
    }
    void click(double time) override {
        if (click_.isHeardAt(time)) effect_.play();
    }

private:
    QTemporaryFile file_;
    QSoundEffect effect_;
    WheelClick click_;
};

} // namespace

std::unique_ptr<QtClicks> QtClicks::make() {
    if (QMediaDevices::defaultAudioOutput().isNull()) return nullptr;
    auto clicks = std::make_unique<SoundEffectClicks>();
    if (!clicks->load()) return nullptr;
    return clicks;
}

} // namespace gallery

#else

namespace gallery {

std::unique_ptr<QtClicks> QtClicks::make() { return nullptr; }

} // namespace gallery

#endif
