// The sound module: voices on the machine's sound device.
#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QHash>
#include <QMediaDevices>
#include <QTimer>

#include "window/outside/SoundMixer.h"

namespace {

constexpr int Rate = 44100;      // of all waves of the program: 16 bits, one channel
constexpr int HeaderBytes = 44;  // of a plain wave file
constexpr int MostVoices = 16;   // more at once would only be noise
constexpr int TailBytes = Rate / 5 * 2;
constexpr int StartsWithinMs = 1000;  // a busy device may be that late to begin

QAudioFormat WaveFormat() {
    QAudioFormat format;
    format.setSampleRate(Rate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

// The samples of a wave, with silence behind them: a device that stops early then cuts off nothing.
QByteArray Samples(const QString& wave) {
    QFile file(QStringLiteral(":/sounds/%1.wav").arg(wave));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll().mid(HeaderBytes) + QByteArray(TailBytes, '\0');
}

}  // namespace

class DeviceMixer : public QObject, public SoundMixer {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tarnival.SoundMixer")
    Q_INTERFACES(SoundMixer)
public:
    DeviceMixer() {
        // Qt's player of videos, which comes with the sound, would look for devices that decode and encode
        // them, and the libraries of those that are missing say so on the terminal.
        for (const char* devices :
             {"QT_FFMPEG_DECODING_HW_DEVICE_TYPES", "QT_FFMPEG_ENCODING_HW_DEVICE_TYPES"}) {
            if (!qEnvironmentVariableIsSet(devices)) qputenv(devices, ",");
        }
        // Newer versions of Qt ask PipeWire, whose library tells on the terminal that it is not there.
        constexpr const char* Log = "PIPEWIRE_DEBUG";
        if (!qEnvironmentVariableIsSet(Log)) qputenv(Log, "0");
    }
    void Play(const QString& wave) override {
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull() || voices_ >= MostVoices) return;
        if (!waves_.contains(wave)) waves_.insert(wave, Samples(wave));
        const QByteArray& samples = waves_[wave];
        if (samples.isEmpty()) return;

        auto* sink = new QAudioSink(device, WaveFormat(), this);
        auto* source = new QBuffer(sink);
        source->setData(samples);
        source->open(QIODevice::ReadOnly);
        ++voices_;
        // A voice ends by the clock, whatever the device reports or fails to report.
        const int length = static_cast<int>(samples.size() * 1000 / (Rate * 2));
        QTimer::singleShot(length + StartsWithinMs, sink, [this, sink] {
            --voices_;
            sink->stop();
            sink->deleteLater();
        });
        sink->start(source);
    }

private:
    QHash<QString, QByteArray> waves_;
    int voices_ = 0;
};

#include "DeviceMixer.moc"
