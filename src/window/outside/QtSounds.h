// The program's sounds on the machine's sound device.
#pragma once

#include <memory>

#include "engine/outside/windowlayer.h"

class QThread;

/// All work with the device is done in a thread of its own, which starts with the first sound: looking for
/// a device, or a sound server that is slow to answer, never holds up the table. A machine without a
/// device stays silent and says nothing.
class QtSounds : public SoundPlayer {
public:
    QtSounds();
    ~QtSounds() override;
    QtSounds(const QtSounds&) = delete;
    QtSounds& operator=(const QtSounds&) = delete;

    /// Sounds play over each other. A name that is no wave of the program is ignored.
    void Play(const std::string& wave) override;

private:
    class Mixer;

    std::unique_ptr<QThread> thread_;
    Mixer* mixer_ = nullptr;  // owned by the thread, which deletes it as it ends
};
