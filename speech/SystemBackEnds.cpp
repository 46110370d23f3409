// SPDX-License-Identifier: LGPL-2.1-or-later
// The machine's speech, sound and media back ends. Their interfaces are in platform/, which
// does not link Qt's speech and multimedia modules, so their system() functions are here.
#include "SoundArithmetic_p.h"

#include "../platform/ZARNMediaFacts.h"
#include "../platform/ZARNSoundOutput.h"
#include "../platform/ZARNSpeechEngine.h"
#include "../platform/ZARNUserDefaults.h"

#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaFormat>
#include <QMediaPlayer>
#include <QMimeDatabase>
#include <QTextToSpeech>
#include <QtMultimediaVersion>

#include <alsa/asoundlib.h>

#include <algorithm>
#include <cmath>

namespace {

class SystemVoice;

// Every voice the system engine made, so it can say whether any of them speaks.
QList<const SystemVoice *> &systemVoices()
{
    static QList<const SystemVoice *> voices;
    return voices;
}

class SystemVoice final : public ZARNSpeechVoice
{
public:
    SystemVoice()
    {
        if (!QTextToSpeech::availableEngines().isEmpty()) {
            m_speech = std::make_unique<QTextToSpeech>();
            // A string counts as spoken from say() on, although the engine starts it later.
            QObject::connect(m_speech.get(), &QTextToSpeech::stateChanged, m_speech.get(), [this] { m_starting = false; });
        }
        systemVoices().append(this);
    }
    ~SystemVoice() override { systemVoices().removeOne(this); }

    bool isSpeaking() const override
    {
        return m_speech && (m_starting || m_speech->state() == QTextToSpeech::Speaking);
    }
    void startSpeakingString(const QString &text) override
    {
        if (!m_speech || text.trimmed().isEmpty())
            return;
        m_speech->say(text);
        m_starting = m_speech->state() != QTextToSpeech::Error;
    }
    void stopSpeaking() override
    {
        if (m_speech)
            m_speech->stop();
        m_starting = false;
    }

private:
    std::unique_ptr<QTextToSpeech> m_speech;
    bool m_starting = false;
};

class SystemSpeechEngine final : public ZARNSpeechEngine
{
public:
    std::unique_ptr<ZARNSpeechVoice> createVoice() override { return std::make_unique<SystemVoice>(); }
    bool isAnyVoiceSpeaking() const override
    {
        const auto &voices = systemVoices();
        return std::any_of(voices.begin(), voices.end(), [](const SystemVoice *voice) { return voice->isSpeaking(); });
    }
};

class SystemSound final : public ZARNSound
{
public:
    explicit SystemSound(const QString &path)
    {
        m_player.setAudioOutput(&m_output);
        m_player.setSource(QUrl::fromLocalFile(path));
        connect(&m_player, &QMediaPlayer::mediaStatusChanged, this, [this](QMediaPlayer::MediaStatus status) {
            if (status == QMediaPlayer::BufferedMedia || status == QMediaPlayer::LoadedMedia)
                reportDuration(double(m_player.duration()) / 1000.0);
            else if (status == QMediaPlayer::InvalidMedia)
                reportDuration(0.0);
        });
        connect(&m_player, &QMediaPlayer::errorOccurred, this, [this] { reportDuration(0.0); });
    }

    void play(float volume) override
    {
        m_output.setVolume(volume);
        m_player.play();
    }

private:
    void reportDuration(double seconds)
    {
        if (m_reported)
            return;
        m_reported = true;
        Q_EMIT durationKnown(seconds);
    }

    QAudioOutput m_output;
    QMediaPlayer m_player;
    bool m_reported = false;
};

// The volume of one channel of a mixer control, 0 to 1.
std::optional<float> channelVolume(snd_mixer_elem_t *control, snd_mixer_selem_channel_id_t channel)
{
    long minimum = 0;
    long maximum = 0;
    long value = 0;
    if (snd_mixer_selem_get_playback_volume_range(control, &minimum, &maximum) < 0 || maximum <= minimum
        || snd_mixer_selem_get_playback_volume(control, channel, &value) < 0)
        return std::nullopt;
    return float(value - minimum) / float(maximum - minimum);
}

// The "Master" control of a loaded mixer, else its first control with a playback volume.
snd_mixer_elem_t *outputVolumeControl(snd_mixer_t *mixer)
{
    snd_mixer_elem_t *first = nullptr;
    for (snd_mixer_elem_t *control = snd_mixer_first_elem(mixer); control; control = snd_mixer_elem_next(control)) {
        if (!snd_mixer_selem_has_playback_volume(control))
            continue;
        if (qstrcmp(snd_mixer_selem_get_name(control), "Master") == 0)
            return control;
        if (!first)
            first = control;
    }
    return first;
}

class SystemSoundOutput final : public ZARNSoundOutput
{
public:
    std::unique_ptr<ZARNSound> open(const QString &path) override
    {
        const QFileInfo file(path);
        if (!file.isFile() || !file.isReadable())
            return nullptr;
        const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
        if (!type.name().startsWith(QLatin1String("audio/")))
            return nullptr;
        return std::make_unique<SystemSound>(path);
    }

    std::optional<ZARNChannelVolumes> channelVolumes() const override
    {
        snd_mixer_t *mixer = nullptr;
        if (snd_mixer_open(&mixer, 0) < 0)
            return std::nullopt;
        std::optional<ZARNChannelVolumes> volumes;
        if (snd_mixer_attach(mixer, "default") >= 0 && snd_mixer_selem_register(mixer, nullptr, nullptr) >= 0
            && snd_mixer_load(mixer) >= 0) {
            if (snd_mixer_elem_t *control = outputVolumeControl(mixer)) {
                const auto first = channelVolume(control, SND_MIXER_SCHN_FRONT_LEFT);
                const auto second = channelVolume(control, snd_mixer_selem_is_playback_mono(control)
                                                               ? SND_MIXER_SCHN_FRONT_LEFT
                                                               : SND_MIXER_SCHN_FRONT_RIGHT);
                if (first && second)
                    volumes = ZARNChannelVolumes{*first, *second};
            }
        }
        snd_mixer_close(mixer);
        return volumes;
    }

    quint32 alertVolume() const override
    {
        const QVariant stored = ZARNUserDefaults::objectForKey(QStringLiteral("com.apple.sound.beep.volume"));
        const double volume = stored.isValid() ? stored.toDouble() : 1.0;
        const auto level = quint32(std::lround(std::clamp(std::isnan(volume) ? 0.0 : volume, 0.0, 1.0) * 256.0));
        return level << 16 | level;
    }
};

// Four-character codes for the formats QMediaFormat knows.
quint32 formatCode(QMediaFormat::FileFormat format)
{
    using BrixelPrivate::fourCharacterCode;
    switch (format) {
    case QMediaFormat::WMA: return fourCharacterCode("WMA ");
    case QMediaFormat::AAC: return fourCharacterCode("AAC ");
    case QMediaFormat::Matroska: return fourCharacterCode("MKV ");
    case QMediaFormat::WMV: return fourCharacterCode("WMV ");
    case QMediaFormat::MP3: return fourCharacterCode("MP3 ");
    case QMediaFormat::Wave: return fourCharacterCode("WAVE");
    case QMediaFormat::Ogg: return fourCharacterCode("OggS");
    case QMediaFormat::MPEG4: return fourCharacterCode("mpg4");
    case QMediaFormat::AVI: return fourCharacterCode("VfW ");
    case QMediaFormat::QuickTime: return fourCharacterCode("MooV");
    case QMediaFormat::WebM: return fourCharacterCode("WebM");
    case QMediaFormat::Mpeg4Audio: return fourCharacterCode("M4A ");
    case QMediaFormat::FLAC: return fourCharacterCode("FLAC");
    case QMediaFormat::UnspecifiedFormat: break;
    }
    return 0;
}

// The MIME type of a file that holds sound in \a codec alone; empty when there is none.
const char *soundFileMimeType(QMediaFormat::AudioCodec codec)
{
    switch (codec) {
    case QMediaFormat::AudioCodec::MP3: return "audio/mpeg";
    case QMediaFormat::AudioCodec::AAC: return "audio/aac";
    case QMediaFormat::AudioCodec::AC3: return "audio/ac3";
    case QMediaFormat::AudioCodec::EAC3: return "audio/eac3";
    case QMediaFormat::AudioCodec::FLAC: return "audio/flac";
    case QMediaFormat::AudioCodec::Opus: return "audio/x-opus+ogg";
    case QMediaFormat::AudioCodec::Vorbis: return "audio/x-vorbis+ogg";
    case QMediaFormat::AudioCodec::Wave: return "audio/x-wav";
    case QMediaFormat::AudioCodec::WMA: return "audio/x-ms-wma";
    case QMediaFormat::AudioCodec::ALAC: return "audio/mp4";
    case QMediaFormat::AudioCodec::DolbyTrueHD:
    case QMediaFormat::AudioCodec::Unspecified: break;
    }
    return "";
}

class SystemMediaFacts final : public ZARNMediaFacts
{
public:
    QList<ZARNMediaEncoder> encoders() const override
    {
        // Qt lists the formats in an order that changes from run to run; a component's
        // identifier is its position, so the list is put in the enum's order.
        QList<QMediaFormat::FileFormat> formats = QMediaFormat().supportedFileFormats(QMediaFormat::Encode);
        std::sort(formats.begin(), formats.end());
        QList<ZARNMediaEncoder> result;
        for (QMediaFormat::FileFormat format : std::as_const(formats))
            result.append({QMediaFormat::fileFormatName(format), formatCode(format)});
        return result;
    }
    QStringList readableSoundFileTypes() const override
    {
        QMediaFormat formats;   // its queries are not const
        QList<QMimeType> types;
        for (QMediaFormat::FileFormat format : formats.supportedFileFormats(QMediaFormat::Decode))
            types.append(QMediaFormat(format).mimeType());
        // A file of a codec alone is readable too, although Qt 6.4's GStreamer back end does
        // not list its container (Ogg Vorbis sounds, for one).
        const QMimeDatabase database;
        for (QMediaFormat::AudioCodec codec : formats.supportedAudioCodecs(QMediaFormat::Decode))
            types.append(database.mimeTypeForName(QLatin1String(soundFileMimeType(codec))));
        QStringList suffixes;
        for (const QMimeType &type : types) {
            for (const QString &suffix : type.suffixes()) {
                if (!suffixes.contains(suffix))
                    suffixes.append(suffix);
            }
        }
        return suffixes;
    }
    quint32 versionCode() const override
    {
        return BrixelPrivate::versionCode(QTMULTIMEDIA_VERSION >> 16, (QTMULTIMEDIA_VERSION >> 8) & 0xff, QTMULTIMEDIA_VERSION & 0xff);
    }
};

} // namespace

ZARNSpeechEngine &ZARNSpeechEngine::system()
{
    static SystemSpeechEngine engine;
    return engine;
}

ZARNSoundOutput &ZARNSoundOutput::system()
{
    static SystemSoundOutput output;
    return output;
}

const ZARNMediaFacts &ZARNMediaFacts::system()
{
    static const SystemMediaFacts facts;
    return facts;
}
