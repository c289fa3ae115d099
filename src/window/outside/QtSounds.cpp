// The thread of the sounds.
#include "window/outside/QtSounds.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <QCoreApplication>
#include <QThread>

#include "window/outside/SoundMixer.h"
#include "window/outside/mModules.h"

namespace {

constexpr int LeaveAfterMs = 500;  // a device that hangs must not keep the program from ending

QtMessageHandler otherHandler = nullptr;

// The sound library reports a missing device or server as it meets it. Nobody misses what isn't there,
// so what comes from its threads stays out of the terminal; the program's own thread reports as ever.
void WithoutSoundMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const QCoreApplication* application = QCoreApplication::instance();
    const bool ownThread = !application || QThread::currentThread() == application->thread();
    if (ownThread || type == QtFatalMsg) otherHandler(type, context, message);
}

}  // namespace

// In the thread of the sounds, where the module is loaded and its mixer lives.
class QtSounds::Mixer : public QObject {
public:
    ~Mixer() override { delete module_; }

    void Play(const QString& wave) {
        if (!std::exchange(sought_, true)) module_ = mModules::Load("tarnival-sounds.so");
        if (auto* mixer = qobject_cast<SoundMixer*>(module_)) mixer->Play(wave);
    }

private:
    QObject* module_ = nullptr;
    bool sought_ = false;
};

QtSounds::QtSounds() = default;

QtSounds::~QtSounds() {
    if (!thread_) return;
    thread_->quit();
    if (thread_->wait(LeaveAfterMs)) return;
    // A thread that hangs in the sound library ends with the process, and holds a lock that the library's own
    // clearing up would wait for: this process ends without that.
    (void)thread_.release();
    on_exit(
        [](int status, void*) {
            std::fflush(nullptr);
            _exit(status);
        },
        nullptr);
}

void QtSounds::Play(const std::string& wave) {
    if (!thread_) {
        if (!otherHandler) otherHandler = qInstallMessageHandler(WithoutSoundMessages);
        thread_ = std::make_unique<QThread>();
        thread_->setObjectName(QStringLiteral("sounds"));
        mixer_ = new Mixer;
        mixer_->moveToThread(thread_.get());
        QObject::connect(thread_.get(), &QThread::finished, mixer_, &QObject::deleteLater);
        thread_->start();
    }
    QMetaObject::invokeMethod(
        mixer_, [mixer = mixer_, name = QString::fromStdString(wave)] { mixer->Play(name); },
        Qt::QueuedConnection);
}
