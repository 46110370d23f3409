// SPDX-License-Identifier: LGPL-2.1-or-later
// Internal to Brixel's speech layer; not installed.
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QStringList>

namespace BrixelPrivate {

/// The alert volume word of full volume on both channels (256 in each half).
inline constexpr double FullAlertVolume = 16777472.0;

/// A four-character code as the number it stands for: 'spit' is 0x73706974.
constexpr quint32 fourCharacterCode(const char (&code)[5])
{
    return quint32(quint8(code[0])) << 24 | quint32(quint8(code[1])) << 16 | quint32(quint8(code[2])) << 8
        | quint32(quint8(code[3]));
}

/**
 * The sound files of \a systemFolder whose extension is one of \a fileTypes, merged with those
 * of \a localFolder and \a userFolder as ZARNSystemSoundPaths() documents, and sorted by name.
 */
BRIXEL_AUTOTEST_EXPORT QStringList systemSoundPaths(const QString &systemFolder, const QString &localFolder,
                                                    const QString &userFolder, const QStringList &fileTypes);

/// A binary-coded-decimal version word as text: 0x07138000 gives "7.1.3", 0x06028000 "6.0.2".
BRIXEL_AUTOTEST_EXPORT QString versionString(quint32 versionCode);

/// Qt's \a major, \a minor and \a patch version as a binary-coded-decimal version word; a
/// minor or patch number above 9 is written as 9, a major one above 99 as 99.
BRIXEL_AUTOTEST_EXPORT quint32 versionCode(int major, int minor, int patch);

} // namespace BrixelPrivate
