// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

/// A file format the media framework can write.
struct ZARNMediaEncoder
{
    /// The format's name as the framework gives it, for example "WAV".
    QString name;
    /// The format as a four-character code, for example 'WAVE'.
    quint32 subtype = 0;
};

/**
 * What the media framework offers: the formats it writes, the sound files it reads and its
 * version.
 *
 * The library asks ZARNMediaFacts::current(), which is the system's unless an application or a
 * test installs another one with setCurrent().
 */
class BRIXEL_EXPORT ZARNMediaFacts
{
public:
    virtual ~ZARNMediaFacts();

    /// The formats the framework can encode, in its order.
    virtual QList<ZARNMediaEncoder> encoders() const = 0;
    /// File name extensions (without the dot, lower case) of the sound files it can decode.
    virtual QStringList readableSoundFileTypes() const = 0;
    /// The framework's version as a binary-coded-decimal word: major version in the top byte,
    /// minor and bug-fix digits in the next byte's two halves (0x06428000 for 6.4.2).
    virtual quint32 versionCode() const = 0;

    /// The one in use: the installed one, else the system's.
    static const ZARNMediaFacts &current();
    /// Installs \a facts; nullptr restores the system's.
    static void setCurrent(std::unique_ptr<ZARNMediaFacts> facts);
    /**
     * Qt Multimedia's: QMediaFormat's encodable file formats, the files of its decodable
     * file formats and of its decodable audio codecs alone (Ogg Vorbis, MP3, ...), and the version
     * Brixel was built with (a digit above 9 is written as 9).
     */
    static const ZARNMediaFacts &system();
};
