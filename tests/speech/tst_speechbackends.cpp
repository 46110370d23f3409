// SPDX-License-Identifier: LGPL-2.1-or-later
// The machine's own speech, sound and media back ends, where this machine has them.
#include "platform/ZARNMediaFacts.h"
#include "platform/ZARNSoundOutput.h"
#include "platform/ZARNSpeechEngine.h"
#include "speech/ZARNSounds.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextToSpeech>
#include <QtMultimedia/qtmultimediaversion.h>

using namespace Qt::StringLiterals;

class TestSpeechBackEnds : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // A machine without sound hardware gets an audio device all the same: a PulseAudio server of
    // the test's own, in a private runtime folder, whose only sink discards what it plays. It must
    // run before Qt Multimedia first looks for devices.
    void initTestCase()
    {
        const QString server = QStandardPaths::findExecutable(u"pulseaudio"_s);
        if (server.isEmpty() || !m_runtimeFolder.isValid())
            return;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeFolder.path()));
        qunsetenv("PULSE_SERVER");
        m_soundServer.start(server, {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s,
                                     u"--load=module-null-sink sink_name=brixel"_s,
                                     u"--load=module-native-protocol-unix"_s});
        const QString socket = m_runtimeFolder.filePath(u"pulse/native"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(socket) || m_soundServer.state() == QProcess::NotRunning, 10000);
    }

    void speechEngineSpeaksAndFinishes()
    {
        if (QTextToSpeech::availableEngines().isEmpty())
            QSKIP("no QTextToSpeech engine is installed (Debian: qt6-speech-flite-plugin)");
        ZARNSpeechEngine &engine = ZARNSpeechEngine::system();
        auto voice = engine.createVoice();
        voice->startSpeakingString(u"one"_s);
        QVERIFY(engine.isAnyVoiceSpeaking());
        QTRY_VERIFY_WITH_TIMEOUT(!voice->isSpeaking(), 20000);
        voice->startSpeakingString(u"two"_s);
        voice->stopSpeaking();
        QTRY_VERIFY_WITH_TIMEOUT(!engine.isAnyVoiceSpeaking(), 5000);
        // Qt's flite engine finishes a stop on its own thread; destroying the engine before that
        // thread is done can crash inside the plugin, so the voice lives on for a moment.
        QTest::qWait(500);
    }

    void soundOutputPlaysOnlySoundFiles()
    {
        ZARNSoundOutput &output = ZARNSoundOutput::system();
        QVERIFY(!output.open(u"/nonexistent/missing.wav"_s));
        QVERIFY(!output.open(QFINDTESTDATA("tst_speechbackends.cpp")));   // not a sound
        QVERIFY(!output.open(QDir::tempPath()));

        const QString bell = u"/usr/share/sounds/freedesktop/stereo/bell.oga"_s;
        if (!QFile::exists(bell))
            QSKIP("no freedesktop sound theme (Debian: sound-theme-freedesktop)");
        auto sound = output.open(bell);
        QVERIFY(sound);
        double duration = -1;
        connect(sound.get(), &ZARNSound::durationKnown, this, [&duration](double seconds) { duration = seconds; });
        sound->play(0.1f);
        QTRY_VERIFY_WITH_TIMEOUT(duration >= 0, 10000);
        if (QMediaDevices::defaultAudioOutput().isNull())
            QSKIP("no audio output device and no pulseaudio to make one, so the sound's length was not checked");
        QVERIFY2(duration > 0.1 && duration < 10, qPrintable(QString::number(duration)));
    }

    void volumesAndMediaFacts()
    {
        const ZARNMediaFacts &facts = ZARNMediaFacts::system();
        QCOMPARE(Brixel::ZARNQuickTimeVersionString(), QLatin1String(QTMULTIMEDIA_VERSION_STR));
        QVERIFY(facts.readableSoundFileTypes().contains(u"wav"_s));
        QVERIFY(!facts.encoders().isEmpty());
        for (const ZARNMediaEncoder &encoder : facts.encoders())
            QVERIFY(!encoder.name.isEmpty() && encoder.subtype != 0);

        const auto volumes = ZARNSoundOutput::system().channelVolumes();
        QCOMPARE(Brixel::BXSystemVolume(), volumes ? std::max(volumes->first, volumes->second) : 1.0f);
        if (!volumes)
            QSKIP("ALSA's \"default\" device has no mixer control with a playback volume here");
    }

private:
    QTemporaryDir m_runtimeFolder;
    QProcess m_soundServer;   // killed when the test ends
};

QTEST_MAIN(TestSpeechBackEnds)
#include "tst_speechbackends.moc"
