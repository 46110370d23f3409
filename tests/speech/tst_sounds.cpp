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
        return {{QStringLiteral("WAV"), fourCharacterCode("WAVE")}, {QStringLiteral("MP3"), fourCharacterCode("MP3 ")}};
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
    void cleanupTestCase() { ZARNUserDefaults::removeObjectForKey(QStringLiteral("com.apple.sound.beep.volume")); }

    void volumes_data();
    void volumes();
    void alertSoundPlay_data();
    void alertSoundPlay();
    void playerLivesForTheSoundAndATail();
    void onlySystemFolderSoundsAreListed();
    void versionStrings();
    void componentsFromTheMediaFacts();

private:
    FakeSoundOutput *m_output = nullptr;
};

void TestSounds::volumes_data()
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

void TestSounds::volumes()
{
    QFETCH(Volumes, channels);
    QFETCH(QVariant, stored);
    QFETCH(float, system);
    QFETCH(float, alert);

    m_output->volumes = channels;
    ZARNUserDefaults::setObject(stored, QStringLiteral("com.apple.sound.beep.volume"));
    QCOMPARE(Brixel::BXSystemVolume(), system);
    QCOMPARE(Brixel::BXAlertVolume(), alert);
}

void TestSounds::alertSoundPlay_data()
{
    QTest::addColumn<QVariant>("path");
    QTest::addColumn<quint32>("alertVolume");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QList<float>>("played");

    const QVariant sound(QStringLiteral("/sounds/Blow.wav"));
    QTest::newRow("full volume") << sound << 0x01000100u << true << QList<float>{1.0f};
    QTest::newRow("half volume") << sound << 0x00800080u << true << QList<float>{0.5f};
    QTest::newRow("muted") << sound << 0u << true << QList<float>{};
    QTest::newRow("missing file") << QVariant(QStringLiteral("/missing.wav")) << 0x01000100u << true << QList<float>{};
    QTest::newRow("no path") << QVariant() << 0x01000100u << false << QList<float>{};
    QTest::newRow("null string") << QVariant(QString()) << 0x01000100u << false << QList<float>{};
    QTest::newRow("a number") << QVariant(42) << 0x01000100u << false << QList<float>{};
}

void TestSounds::alertSoundPlay()
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

void TestSounds::playerLivesForTheSoundAndATail()
{
    QVERIFY(Brixel::BXQTSoundPlay(QStringLiteral("/sounds/Blow.wav"), 0.5f));
    QTest::qWait(200);   // the sound's length
    QVERIFY(m_output->lastSound);
    QTRY_VERIFY_WITH_TIMEOUT(!m_output->lastSound, 2000);
}

void TestSounds::onlySystemFolderSoundsAreListed()
{
    QTemporaryDir root;
    const QDir folder(root.path());
    for (const char *name : {"system", "local", "user"})
        QVERIFY(folder.mkdir(QLatin1String(name)));
    for (const char *name : {"system/Blow.wav", "system/Basso.WAV", "system/notes.txt", "system/Tink.oga", "local/Blow.wav",
                             "local/Extra.wav", "user/Mine.oga"})
        QVERIFY(QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    const auto paths = [&folder](const char *systemFolder) {
        return BrixelPrivate::systemSoundPaths(folder.filePath(QLatin1String(systemFolder)), folder.filePath(QStringLiteral("local")),
                                               folder.filePath(QStringLiteral("user")), {QStringLiteral("wav"), QStringLiteral("oga")});
    };
    QCOMPARE(paths("system"), QStringList({folder.filePath(QStringLiteral("system/Basso.WAV")),
                                           folder.filePath(QStringLiteral("system/Blow.wav")),
                                           folder.filePath(QStringLiteral("system/Tink.oga"))}));
    QCOMPARE(paths("absent"), QStringList());
}

void TestSounds::versionStrings()
{
    QCOMPARE(Brixel::ZARNQuickTimeVersionString(), QStringLiteral("7.1.3"));
    QCOMPARE(BrixelPrivate::versionString(0x06028000), QStringLiteral("6.0.2"));
    QCOMPARE(BrixelPrivate::versionString(BrixelPrivate::versionCode(6, 4, 2)), QStringLiteral("6.4.2"));
    QCOMPARE(BrixelPrivate::versionString(BrixelPrivate::versionCode(12, 10, 1)), QStringLiteral("18.9.1"));   // BCD 0x12
}

void TestSounds::componentsFromTheMediaFacts()
{
    const QVariantMap mp3 = Brixel::componentWithSubType(fourCharacterCode("MP3 "));
    QCOMPARE(mp3, Brixel::availableComponents().value(1));
    QCOMPARE(mp3, QVariantMap({{QStringLiteral("name"), QStringLiteral("MP3")},
                               {QStringLiteral("component"), QByteArray("\0\0\0\2", 4)},
                               {QStringLiteral("type"), 0x73706974u},
                               {QStringLiteral("subtype"), fourCharacterCode("MP3 ")},
                               {QStringLiteral("manufacturer"), fourCharacterCode("QtMM")}}));
    QVERIFY(Brixel::componentWithSubType(fourCharacterCode("none")).isEmpty());
    QTest::ignoreMessage(QtInfoMsg, "testMovieProgressProc");
    QCOMPARE(Brixel::testMovieProgressProc(), 0);
}

QTEST_GUILESS_MAIN(TestSounds)
#include "tst_sounds.moc"
