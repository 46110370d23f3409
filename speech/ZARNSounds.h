// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QList>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

/**
 * \file
 * Alert sounds at the user's alert volume, the output volume, the installed alert sounds and
 * the media framework's encoders and version.
 *
 * Sounds, volumes and media facts come from ZARNSoundOutput::current() and
 * ZARNMediaFacts::current(), so tests and applications can replace them.
 *
 * \code
 * const QStringList sounds = Brixel::ZARNSystemSoundPaths();
 * if (!sounds.isEmpty())
 *     Brixel::BXAlertSoundPlay(sounds.first());
 * \endcode
 */

namespace Brixel {

/// The louder of the default output's two channels, 0 to 1; 1.0 when the volumes cannot be read.
BRIXEL_EXPORT float BXSystemVolume();

/**
 * The user's alert volume: the user default "com.apple.sound.beep.volume" read afresh from the
 * settings (0 when it is not set), raised to 0 when negative or not a number, times BXSystemVolume().
 */
BRIXEL_EXPORT float BXAlertVolume();

/**
 * Starts playing the sound file at \a path at \a volume (0 to 1) and returns at once: true
 * when the file opened, false when it is missing, unreadable or not a sound. The player is
 * kept until the sound's duration plus 0.05 seconds have passed, then released.
 */
BRIXEL_EXPORT bool BXQTSoundPlay(const QString &path, float volume);

/**
 * Plays the sound file \a path at the alert volume. Returns false when \a path is not a
 * string (or is a null string); true without playing when the alert volume is muted; otherwise
 * plays it with BXQTSoundPlay() at the alert volume divided by full volume on both channels
 * (16777472.0) and returns true, whether or not the file could be played.
 */
BRIXEL_EXPORT bool BXAlertSoundPlay(const QVariant &path);

/**
 * The completion callback of a registered system sound. This platform has no registered
 * system sounds, so there is no completion routine or action to remove: it returns 0.
 */
BRIXEL_EXPORT int BXAlertSoundCompletionRoutine(quint32 sound);

/**
 * The installed alert sounds: the readable sound files (ZARNMediaFacts::readableSoundFileTypes())
 * of the default freedesktop sound theme's folder "sounds/freedesktop/stereo" under
 * /usr/share, sorted by file name with ZARNCompareLastPathComponent(). The same folders under
 * /usr/local/share and the user's data folder (~/.local/share) are read too, but their sounds
 * are only ever compared, by file name, with the full paths already listed, which never
 * match, so they are not listed. A folder that cannot be read is skipped.
 */
BRIXEL_EXPORT QStringList ZARNSystemSoundPaths();

/**
 * The media framework's movie-export components: one map per format it can encode, in the
 * order of QMediaFormat::FileFormat (the same in every run), with the keys "name" (QString),
 * "component" (QByteArray, the component's 4-byte identifier, its position from 1 in
 * big-endian order), "type" ('spit' as a number), "subtype" (the format's four-character code
 * as a number) and "manufacturer" ('QtMM' as a number).
 */
BRIXEL_EXPORT QList<QVariantMap> availableComponents();

/// The first of availableComponents() whose "subtype" equals \a subtype; an empty map if none.
BRIXEL_EXPORT QVariantMap componentWithSubType(quint32 subtype);

/// The progress callback of a movie export: writes the line "testMovieProgressProc" to the
/// log (qInfo) and returns 0.
BRIXEL_EXPORT int testMovieProgressProc();

/// The media framework's version (ZARNMediaFacts::versionCode()) as text, "6.4.2" for example.
BRIXEL_EXPORT QString ZARNQuickTimeVersionString();

} // namespace Brixel
