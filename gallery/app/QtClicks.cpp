#include "QtClicks.h"

#ifdef GX_HAS_QT_MULTIMEDIA

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>

#include "WheelClick.h"

namespace gallery {

namespace {

/// What the sound device reads.
class ClickStream : public QIODevice {
public:
    ClickStream() { open(QIODevice::ReadOnly); }

    WheelClick& clicks() { return clicks_; }
    bool isSequential() const override { return true; }
    /// It never ends.
    qint64 bytesAvailable() const override { return qint64{1} << 20; }

protected:
    qint64 readData(char* data, qint64 size) override {
        std::array<std::int16_t, 256> samples{};
        const std::span<char> bytesWanted(data, static_cast<std::size_t>(size));
        constexpr auto sampleSize = static_cast<qint64>(sizeof(std::int16_t));
        const qint64 whole = size - size % sampleSize;
        for (qint64 done = 0; done < whole;) {
            const auto count = static_cast<std::size_t>(std::min<qint64>(samples.size(), (whole - done) / sampleSize));
            clicks_.read({samples.data(), count});
            const std::size_t bytes = count * sizeof(std::int16_t);
            std::memcpy(bytesWanted.subspan(static_cast<std::size_t>(done)).data(), samples.data(), bytes);
            done += static_cast<qint64>(bytes);
        }
        return whole;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    WheelClick clicks_;
};

/// One stream from the first click on until the program ends.
///
/// Qt's own effects of short sounds open a stream for each: of twenty clicks two were heard (Qt
/// 6.4, PulseAudio). Closing a stream while the program runs has ended it there.
class StreamedClicks : public QtClicks {
public:
    explicit StreamedClicks(const QAudioDevice& device) : sink_(device, format()) { sink_.setBufferSize(bufferSize); }

    void click(double time) override {
        if (!stream_.clicks().isHeardAt(time)) return;
        stream_.clicks().add();
        if (sink_.state() == QAudio::StoppedState) sink_.start(&stream_);
    }

    static QAudioFormat format() {
        QAudioFormat format;
        format.setSampleRate(WheelClick::samplesPerSecond);
        format.setChannelCount(1);
        format.setSampleFormat(QAudioFormat::Int16);
        return format;
    }

private:
    /// In bytes. Measured: with half of it a busy machine plays nothing; more comes later than is
    /// felt as at once.
    static constexpr qsizetype bufferSize = 8192;

    ClickStream stream_;
    QAudioSink sink_;
};

} // namespace

std::unique_ptr<QtClicks> QtClicks::make() {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !device.isFormatSupported(StreamedClicks::format())) return nullptr;
    return std::make_unique<StreamedClicks>(device);
}

} // namespace gallery

#else

namespace gallery {

std::unique_ptr<QtClicks> QtClicks::make() { return nullptr; }

} // namespace gallery

#endif
