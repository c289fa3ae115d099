// What plays the sounds: a module of its own, so that the sound library is loaded with the first sound and
// not before the splash.
#pragma once

#include <QString>
#include <QtPlugin>

/// Made, used and deleted in one thread.
class SoundMixer {
public:
    virtual ~SoundMixer() = default;
    /// Starts the wave resource of that name beside those that play; one that isn't there is ignored.
    virtual void Play(const QString& wave) = 0;
};

Q_DECLARE_INTERFACE(SoundMixer, "tarnival.SoundMixer")
