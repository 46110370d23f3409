// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "platform/ZARNMediaFacts.h"
#include "platform/ZARNSoundOutput.h"
#include "platform/ZARNUserDefaults.h"
#include "speech/SoundArithmetic_p.h"
#include "speech/ZARNSounds.h"

#include <QDir>
#include <QPointer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using BrixelPrivate::fourCharacterCode;
using Volumes = std::optional<ZARNChannelVolumes>;

// Plays any path but one ending in "missing.wav", for 0.2 seconds.
struct FakeSoundOutput final : ZARNSoundOutput
{
    struct Sound final : ZARNSound
    {
        explicit Sound(QList<float> &played) : played(played) {}
        void play(float volume) override { played.append(volume); Q_EMIT durationKnown(0.2); }
        QList<float> &played;
    };
    std::unique_ptr<ZARNSound> open(const QString &path) override
    {
        auto sound = path.endsWith(QLatin1String("missing.wav")) ? nullptr : std::make_unique<Sound>(played);
        lastSound = sound.get();
        return sound;
    }
    Volumes channelVolumes() const override { return volumes; }
    quint32 alertVolume() const override { return alert; }

    Volumes volumes;
    quint32 alert = 0x01000100;
    QList<float> played;
    QPointer<ZARNSound> lastSound;
};

struct FakeMediaFacts final : ZARNMediaFacts
{
    QList<ZARNMediaEncoder> encoders() const override
    {
        return {{u"WAV"_s, fourCharacterCode("WAVE")}, {u"MP3"_s, fourCharacterCode("MP3 ")}};
    }
    QStringList readableSoundFileTypes() const override { return {}; }
    quint32 versionCode() const override { return 0x07138000; }
};

} // namespace

Q_DECLARE_METATYPE(Volumes)

class TestSounds : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_output = install<FakeSoundOutput, ZARNSoundOutput>();
        install<FakeMediaFacts, ZARNMediaFacts>();
    }
    void cleanupTestCase() { ZARNUserDefaults::removeObjectForKey(u"com.apple.sound.beep.volume"_s); }

    void volumes_data()
    {
        QTest::addColumn<Volumes>("channels");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<float>("system");
        QTest::addColumn<float>("alert");

        QTest::newRow("louder second channel") << Volumes({0.25f, 0.5f}) << QVariant(0.5) << 0.5f << 0.25f;
        QTest::newRow("louder first channel") << Volumes({0.75f, 0.5f}) << QVariant(1.0) << 0.75f << 0.75f;
        QTest::newRow("unreadable output is full") << Volumes() << QVariant(0.5) << 1.0f << 0.5f;
        QTest::newRow("negative alert volume") << Volumes() << QVariant(-0.5) << 1.0f << 0.0f;
        QTest::newRow("no stored alert volume") << Volumes() << QVariant() << 1.0f << 0.0f;
        QTest::newRow("NaN alert volume") << Volumes() << QVariant(std::nan("")) << 1.0f << 0.0f;
    }

    void volumes()
    {
        QFETCH(Volumes, channels);
        QFETCH(QVariant, stored);
        QFETCH(float, system);
        QFETCH(float, alert);

        m_output->volumes = channels;
        ZARNUserDefaults::setObject(stored, u"com.apple.sound.beep.volume"_s);
        QCOMPARE(Brixel::BXSystemVolume(), system);
        QCOMPARE(Brixel::BXAlertVolume(), alert);
    }

    void alertSoundPlay_data()
    {
        QTest::addColumn<QVariant>("path");
        QTest::addColumn<quint32>("alertVolume");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QList<float>>("played");

        const QVariant sound(u"/sounds/Blow.wav"_s);
        QTest::newRow("full volume") << sound << 0x01000100u << true << QList<float>{1.0f};
        QTest::newRow("half volume") << sound << 0x00800080u << true << QList<float>{0.5f};
        QTest::newRow("muted") << sound << 0u << true << QList<float>{};
        QTest::newRow("missing file") << QVariant(u"/missing.wav"_s) << 0x01000100u << true << QList<float>{};
        QTest::newRow("no path") << QVariant() << 0x01000100u << false << QList<float>{};
        QTest::newRow("null string") << QVariant(QString()) << 0x01000100u << false << QList<float>{};
        QTest::newRow("a number") << QVariant(42) << 0x01000100u << false << QList<float>{};
    }

    void alertSoundPlay()
    {
        QFETCH(QVariant, path);
        QFETCH(quint32, alertVolume);
        QFETCH(bool, result);
        QFETCH(QList<float>, played);

        m_output->played.clear();
        m_output->alert = alertVolume;
        QCOMPARE(Brixel::BXAlertSoundPlay(path), result);
        QCOMPARE(m_output->played, played);
    }

    void playerLivesForTheSoundAndATail()
    {
        QVERIFY(Brixel::BXQTSoundPlay(u"/sounds/Blow.wav"_s, 0.5f));
        QTest::qWait(200);   // the sound's length
        QVERIFY(m_output->lastSound);
        QTRY_VERIFY_WITH_TIMEOUT(!m_output->lastSound, 2000);
    }

    void onlySystemFolderSoundsAreListed()
    {
        QTemporaryDir root;
        const QDir folder(root.path());
        for (const QString &name : {u"system"_s, u"local"_s, u"user"_s})
            QVERIFY(folder.mkdir(name));
        for (const QString &name : {u"system/Blow.wav"_s, u"system/Basso.WAV"_s, u"system/notes.txt"_s,
                                    u"system/Tink.oga"_s, u"local/Blow.wav"_s, u"local/Extra.wav"_s,
                                    u"user/Mine.oga"_s})
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        const auto paths = [&folder](const QString &systemFolder) {
            return BrixelPrivate::systemSoundPaths(folder.filePath(systemFolder), folder.filePath(u"local"_s),
                                                   folder.filePath(u"user"_s), {u"wav"_s, u"oga"_s});
        };
        QCOMPARE(paths(u"system"_s), QStringList({folder.filePath(u"system/Basso.WAV"_s),
                                                  folder.filePath(u"system/Blow.wav"_s),
                                                  folder.filePath(u"system/Tink.oga"_s)}));
        QCOMPARE(paths(u"absent"_s), QStringList());
    }

    void versionStrings()
    {
        QCOMPARE(Brixel::ZARNQuickTimeVersionString(), u"7.1.3"_s);
        QCOMPARE(BrixelPrivate::versionString(0x06028000), u"6.0.2"_s);
        QCOMPARE(BrixelPrivate::versionString(BrixelPrivate::versionCode(6, 4, 2)), u"6.4.2"_s);
        QCOMPARE(BrixelPrivate::versionString(BrixelPrivate::versionCode(12, 10, 1)), u"18.9.1"_s);   // BCD 0x12
    }

    void componentsFromTheMediaFacts()
    {
        const QVariantMap mp3 = Brixel::componentWithSubType(fourCharacterCode("MP3 "));
        QCOMPARE(mp3, Brixel::availableComponents().value(1));
        QCOMPARE(mp3, QVariantMap({{u"name"_s, u"MP3"_s}, {u"component"_s, QByteArray("\0\0\0\2", 4)},
                                   {u"type"_s, 0x73706974u}, {u"subtype"_s, fourCharacterCode("MP3 ")},
                                   {u"manufacturer"_s, fourCharacterCode("QtMM")}}));
        QVERIFY(Brixel::componentWithSubType(fourCharacterCode("none")).isEmpty());
        QTest::ignoreMessage(QtInfoMsg, "testMovieProgressProc");
        QCOMPARE(Brixel::testMovieProgressProc(), 0);
    }

private:
    FakeSoundOutput *m_output = nullptr;
};

QTEST_GUILESS_MAIN(TestSounds)
#include "tst_sounds.moc"
