// SPDX-License-Identifier: LGPL-2.1-or-later
// The machine's own speech, sound and media back ends, where this machine has them.
#include "platform/ZARNMediaFacts.h"
#include "platform/ZARNSoundOutput.h"
#include "platform/ZARNSpeechEngine.h"
#include "speech/SoundArithmetic_p.h"
#include "speech/ZARNSounds.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QTemporaryDir>
#include <QTest>
#include <QTextToSpeech>
#include <QtEndian>

namespace {

// Writes a WAV file of \a seconds of silence, 8 kHz mono 16-bit.
void writeSilence(const QString &path, double seconds)
{
    const quint32 dataSize = quint32(8000 * seconds) * 2;
    QByteArray header("RIFF....WAVEfmt ....", 20);
    qToLittleEndian<quint32>(36 + dataSize, header.data() + 4);
    qToLittleEndian<quint32>(16, header.data() + 16);
    QByteArray format(16, '\0');
    qToLittleEndian<quint16>(1, format.data());          // PCM
    qToLittleEndian<quint16>(1, format.data() + 2);      // mono
    qToLittleEndian<quint32>(8000, format.data() + 4);
    qToLittleEndian<quint32>(16000, format.data() + 8);
    qToLittleEndian<quint16>(2, format.data() + 12);
    qToLittleEndian<quint16>(16, format.data() + 14);
    QByteArray data("data....", 8);
    qToLittleEndian<quint32>(dataSize, data.data() + 4);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(header + format + data + QByteArray(int(dataSize), '\0'));
}

} // namespace

class TestSpeechBackEnds : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void speechEngineSpeaksAndFinishes();
    void soundOutputPlaysOnlySoundFiles();
    void outputVolumes();
    void mediaFacts();
};

void TestSpeechBackEnds::speechEngineSpeaksAndFinishes()
{
    if (QTextToSpeech::availableEngines().isEmpty())
        QSKIP("no QTextToSpeech engine is installed (Debian: qt6-speech-flite-plugin)");
    ZARNSpeechEngine &engine = ZARNSpeechEngine::system();
    auto voice = engine.createVoice();
    voice->startSpeakingString(QStringLiteral("one"));
    QVERIFY(voice->isSpeaking());
    QVERIFY(engine.isAnyVoiceSpeaking());
    QTRY_VERIFY_WITH_TIMEOUT(!voice->isSpeaking(), 20000);
    voice->startSpeakingString(QStringLiteral("two"));
    voice->stopSpeaking();
    QTRY_VERIFY_WITH_TIMEOUT(!engine.isAnyVoiceSpeaking(), 5000);
}

void TestSpeechBackEnds::soundOutputPlaysOnlySoundFiles()
{
    QTemporaryDir folder;
    const QString wave = folder.filePath(QStringLiteral("silence.wav"));
    writeSilence(wave, 0.3);
    const QString text = folder.filePath(QStringLiteral("notes.wav.txt"));
    QFile file(text);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not a sound");
    file.close();

    ZARNSoundOutput &output = ZARNSoundOutput::system();
    QVERIFY(!output.open(folder.filePath(QStringLiteral("missing.wav"))));
    QVERIFY(!output.open(text));
    QVERIFY(!output.open(folder.path()));

    auto sound = output.open(wave);
    QVERIFY(sound);
    double duration = -1;
    connect(sound.get(), &ZARNSound::durationKnown, this, [&duration](double seconds) { duration = seconds; });
    sound->play(0.1f);
    QTRY_VERIFY_WITH_TIMEOUT(duration >= 0, 10000);
    if (QMediaDevices::defaultAudioOutput().isNull())
        QSKIP("no audio output device: QMediaDevices lists none, so the sound's length was not checked");
    QVERIFY2(qAbs(duration - 0.3) < 0.05, qPrintable(QString::number(duration)));
}

void TestSpeechBackEnds::outputVolumes()
{
    const auto volumes = ZARNSoundOutput::system().channelVolumes();
    const float system = Brixel::BXSystemVolume();
    if (!volumes) {
        QCOMPARE(system, 1.0f);
        QSKIP("ALSA's \"default\" device has no mixer control with a playback volume here");
    }
    QCOMPARE(system, std::max(volumes->first, volumes->second));
    QVERIFY(system >= 0.0f && system <= 1.0f);
}

void TestSpeechBackEnds::mediaFacts()
{
    const ZARNMediaFacts &facts = ZARNMediaFacts::system();
    QCOMPARE(BrixelPrivate::versionString(facts.versionCode()).section(u'.', 0, 0), QStringLiteral("6"));
    QVERIFY(facts.readableSoundFileTypes().contains(QStringLiteral("wav")));
    for (const ZARNMediaEncoder &encoder : facts.encoders()) {
        QVERIFY(!encoder.name.isEmpty());
        QVERIFY(encoder.subtype != 0);
    }
}

QTEST_MAIN(TestSpeechBackEnds)
#include "tst_speechbackends.moc"
