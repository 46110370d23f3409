// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

/**
 * A sound file opened for playing.
 */
class BRIXEL_EXPORT ZARNSound : public QObject
{
    Q_OBJECT
public:
    ~ZARNSound() override;

    /// Starts playing at \a volume (0 silent, 1 full), without waiting for the sound to end.
    virtual void play(float volume) = 0;

Q_SIGNALS:
    /// Sent once after play(), when the length of the sound is known: \a seconds, or 0 when
    /// the file turned out not to be playable (no audio device, not a sound).
    void durationKnown(double seconds);

protected:
    ZARNSound();
};

/// The volumes of the two channels of the default output, each 0 to 1.
struct ZARNChannelVolumes
{
    /// The first (left) channel.
    float first = 0;
    /// The second (right) channel.
    float second = 0;
};

/**
 * The machine's sound output: plays files and reports the output and alert volumes.
 *
 * The library never plays or reads volumes directly; it asks ZARNSoundOutput::current(),
 * which is the system's unless an application or a test installs another one:
 *
 * \code
 * class Recorder : public ZARNSoundOutput { ... };
 * ZARNSoundOutput::setCurrent(std::make_unique<Recorder>());
 * \endcode
 */
class BRIXEL_EXPORT ZARNSoundOutput
{
public:
    virtual ~ZARNSoundOutput();

    /// Opens the sound file at \a path; null when the file is missing, unreadable or not a sound.
    virtual std::unique_ptr<ZARNSound> open(const QString &path) = 0;
    /// The volumes of the default output's two channels; empty when any step of asking fails.
    virtual std::optional<ZARNChannelVolumes> channelVolumes() const = 0;
    /// The alert volume as a word holding each channel's level (0 to 256) in its upper and
    /// lower half: 0x01000100 is full volume on both, below 1 the alert is muted.
    virtual quint32 alertVolume() const = 0;

    /// The one in use: the installed one, else the system's.
    static ZARNSoundOutput &current();
    /// Installs \a output; nullptr restores the system's.
    static void setCurrent(std::unique_ptr<ZARNSoundOutput> output);
    /**
     * The machine's: QMediaPlayer with a QAudioOutput plays files whose MIME type is an audio
     * type; the channel volumes are the ALSA mixer's "Master" (else first playback) control of
     * the "default" device; the alert volume is the user default
     * "com.apple.sound.beep.volume" (0 to 1) on both channels, full volume when it is not set.
     */
    static ZARNSoundOutput &system();
};
