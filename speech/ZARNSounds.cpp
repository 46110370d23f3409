// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSounds.h"

#include "SoundArithmetic_p.h"

#include "../platform/ZARNMediaFacts.h"
#include "../platform/ZARNSoundOutput.h"
#include "../platform/ZARNUserDefaults.h"
#include "../values/ZARNFileUtilities.h"

#include <QDir>
#include <QSettings>
#include <QTimer>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {

// The sound's player lives this long after the sound's own length, in seconds.
constexpr double PlayerTail = 0.05;

// The sound files of one folder as full paths; none when the folder cannot be read.
QStringList soundFilesIn(const QString &folder, const QStringList &fileTypes)
{
    const QDir directory(folder);
    QStringList paths;
    const QStringList names = directory.entryList(QDir::Files | QDir::Readable);
    for (const QString &name : names) {
        if (fileTypes.contains(QFileInfo(name).suffix(), Qt::CaseInsensitive))
            paths.append(directory.filePath(name));
    }
    return paths;
}

// Adds the sounds of a later folder: a sound of the same file name replaces an entry, any
// other is appended. It never changes the list, and that is intended: it compares a file name
// with full paths, which never match, and appends only when the position reached lies beyond
// the list's end, which it never does. Applications rely on the list holding the system
// folder's sounds only.
void mergeSounds(QStringList &result, const QStringList &paths)
{
    for (const QString &path : paths) {
        const QString name = QFileInfo(path).fileName();
        qsizetype position = 0;
        for (; position < result.size(); ++position) {
            if (name.compare(result.at(position), Qt::CaseInsensitive) == 0)
                result[position] = path;
        }
        if (result.size() < position)
            result.append(path);
    }
}

} // namespace

namespace BrixelPrivate {

QStringList systemSoundPaths(const QString &systemFolder, const QString &localFolder, const QString &userFolder,
                             const QStringList &fileTypes)
{
    QStringList result = soundFilesIn(systemFolder, fileTypes);
    mergeSounds(result, soundFilesIn(localFolder, fileTypes));
    mergeSounds(result, soundFilesIn(userFolder, fileTypes));
    std::sort(result.begin(), result.end(), [](const QString &a, const QString &b) {
        return Brixel::ZARNCompareLastPathComponent(a, b) < 0;
    });
    return result;
}

QString versionString(quint32 versionCode)
{
    const int major = int(versionCode >> 24);
    const int minorAndBugFix = int((versionCode >> 16) & 0xff);
    if (minorAndBugFix > 9)
        return QString::asprintf("%i.%i.%i", major, minorAndBugFix >> 4, minorAndBugFix & 0xf);
    return QString::asprintf("%i.0.%i", major, minorAndBugFix);
}

quint32 versionCode(int major, int minor, int patch)
{
    const auto digit = [](int value, int largest) { return quint32(std::clamp(value, 0, largest)); };
    const quint32 majorDigits = digit(major, 99) / 10 << 4 | digit(major, 99) % 10;
    // 0x80 marks a final release, as in the framework's own version words.
    return majorDigits << 24 | digit(minor, 9) << 20 | digit(patch, 9) << 16 | 0x8000;
}

} // namespace BrixelPrivate

namespace Brixel {

float BXSystemVolume()
{
    const auto volumes = ZARNSoundOutput::current().channelVolumes();
    return volumes ? std::max(volumes->first, volumes->second) : 1.0f;
}

float BXAlertVolume()
{
    QSettings().sync();
    const float stored = ZARNUserDefaults::objectForKey(QStringLiteral("com.apple.sound.beep.volume")).toFloat();
    // Written so that NaN, too, counts as no volume.
    return (stored > 0.0f ? stored : 0.0f) * BXSystemVolume();
}

bool BXQTSoundPlay(const QString &path, float volume)
{
    std::unique_ptr<ZARNSound> sound = ZARNSoundOutput::current().open(path);
    if (!sound)
        return false;
    ZARNSound *const playing = sound.release();
    QObject::connect(playing, &ZARNSound::durationKnown, playing, [playing](double seconds) {
        const double milliseconds = std::ceil(((seconds > 0.0 ? seconds : 0.0) + PlayerTail) * 1000.0);
        QTimer::singleShot(int(std::min(milliseconds, 2147483647.0)), playing, &QObject::deleteLater);
    });
    playing->play(volume);
    return true;
}

bool BXAlertSoundPlay(const QVariant &path)
{
    if (path.typeId() != QMetaType::QString || path.toString().isNull())
        return false;
    const quint32 alertVolume = ZARNSoundOutput::current().alertVolume();
    if (alertVolume < 1)
        return true;
    BXQTSoundPlay(path.toString(), float(alertVolume / BrixelPrivate::FullAlertVolume));
    return true;
}

int BXAlertSoundCompletionRoutine(quint32)
{
    return 0;
}

QStringList ZARNSystemSoundPaths()
{
    const QString theme = QStringLiteral("/sounds/freedesktop/stereo/");
    return BrixelPrivate::systemSoundPaths(QStringLiteral("/usr/share") + theme, QStringLiteral("/usr/local/share") + theme,
                                           QDir::homePath() + QStringLiteral("/.local/share") + theme,
                                           ZARNMediaFacts::current().readableSoundFileTypes());
}

QList<QVariantMap> availableComponents()
{
    QList<QVariantMap> components;
    for (const ZARNMediaEncoder &encoder : ZARNMediaFacts::current().encoders()) {
        QByteArray identifier(4, '\0');
        qToBigEndian(quint32(components.size() + 1), identifier.data());
        components.append({{QStringLiteral("name"), encoder.name},
                           {QStringLiteral("component"), identifier},
                           {QStringLiteral("type"), BrixelPrivate::fourCharacterCode("spit")},
                           {QStringLiteral("subtype"), encoder.subtype},
                           {QStringLiteral("manufacturer"), BrixelPrivate::fourCharacterCode("QtMM")}});
    }
    return components;
}

QVariantMap componentWithSubType(quint32 subtype)
{
    const QList<QVariantMap> components = availableComponents();
    const auto found = std::find_if(components.begin(), components.end(), [subtype](const QVariantMap &component) {
        return component.value(QStringLiteral("subtype")).toUInt() == subtype;
    });
    return found == components.end() ? QVariantMap() : *found;
}

int testMovieProgressProc()
{
    qInfo("testMovieProgressProc");
    return 0;
}

QString ZARNQuickTimeVersionString()
{
    return BrixelPrivate::versionString(ZARNMediaFacts::current().versionCode());
}

} // namespace Brixel
