// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/ZARNMediaFacts.h"
#include "platform/ZARNSoundOutput.h"
#include "platform/ZARNUserDefaults.h"
#include "speech/SoundArithmetic_p.h"
#include "speech/ZARNSounds.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <optional>

namespace {

const QString AlertVolumeKey = QStringLiteral("com.apple.sound.beep.volume");

struct Played
{
    QString path;
    float volume = 0;
};

class FakeSound final : public ZARNSound
{
public:
    FakeSound(QString path, double duration, QList<Played> &played)
        : m_path(std::move(path)), m_duration(duration), m_played(played) {}
    void play(float volume) override
    {
        m_played.append({m_path, volume});
        Q_EMIT durationKnown(m_duration);
    }

private:
    QString m_path;
    double m_duration;
    QList<Played> &m_played;
};

class FakeSoundOutput final : public ZARNSoundOutput
{
public:
    std::unique_ptr<ZARNSound> open(const QString &path) override
    {
        if (path.endsWith(QLatin1String("missing.wav")))
            return nullptr;
        auto sound = std::make_unique<FakeSound>(path, duration, played);
        lastSound = sound.get();
        return sound;
    }
    std::optional<ZARNChannelVolumes> channelVolumes() const override { return volumes; }
    quint32 alertVolume() const override { return alert; }

    std::optional<ZARNChannelVolumes> volumes;
    quint32 alert = 0x01000100;
    double duration = 0.2;
    QList<Played> played;
    QPointer<ZARNSound> lastSound;
};

class FakeMediaFacts final : public ZARNMediaFacts
{
public:
    QList<ZARNMediaEncoder> encoders() const override
    {
        return {{QStringLiteral("WAV"), BrixelPrivate::fourCharacterCode("WAVE")},
                {QStringLiteral("MP3"), BrixelPrivate::fourCharacterCode("MP3 ")}};
    }
    QStringList readableSoundFileTypes() const override { return {}; }
    quint32 versionCode() const override { return 0x07138000; }
};

using Volumes = std::optional<ZARNChannelVolumes>;

void writeFile(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

Q_DECLARE_METATYPE(Volumes)

class TestSounds : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        auto output = std::make_unique<FakeSoundOutput>();
        m_output = output.get();
        ZARNSoundOutput::setCurrent(std::move(output));
        ZARNMediaFacts::setCurrent(std::make_unique<FakeMediaFacts>());
    }
    void init() { m_output->played.clear(); }
    void cleanupTestCase()
    {
        ZARNUserDefaults::removeObjectForKey(AlertVolumeKey);
        ZARNSoundOutput::setCurrent(nullptr);
        ZARNMediaFacts::setCurrent(nullptr);
    }

    void volumes_data();
    void volumes();
    void alertSoundPlay_data();
    void alertSoundPlay();
    void playerLivesForTheSoundAndATail();
    void onlySystemFolderSoundsAreListed();
    void versionStrings_data();
    void versionStrings();
    void componentsAndVersionFromTheMediaFacts();

private:
    FakeSoundOutput *m_output = nullptr;
};

void TestSounds::volumes_data()
{
    QTest::addColumn<Volumes>("channels");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<float>("system");
    QTest::addColumn<float>("alert");

    QTest::newRow("louder second channel") << Volumes(ZARNChannelVolumes{0.25f, 0.5f}) << QVariant(0.5) << 0.5f << 0.25f;
    QTest::newRow("louder first channel") << Volumes(ZARNChannelVolumes{0.75f, 0.5f}) << QVariant(1.0) << 0.75f << 0.75f;
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
    if (stored.isValid())
        ZARNUserDefaults::setObject(stored, AlertVolumeKey);
    else
        ZARNUserDefaults::removeObjectForKey(AlertVolumeKey);
    QCOMPARE(Brixel::BXSystemVolume(), system);
    QCOMPARE(Brixel::BXAlertVolume(), alert);
}

void TestSounds::alertSoundPlay_data()
{
    QTest::addColumn<QVariant>("path");
    QTest::addColumn<quint32>("alertVolume");
    QTest::addColumn<bool>("result");
    QTest::addColumn<float>("played");   // -1: nothing played

    const QVariant sound(QStringLiteral("/sounds/Blow.wav"));
    QTest::newRow("full volume") << sound << 0x01000100u << true << 1.0f;
    QTest::newRow("half volume") << sound << 0x00800080u << true << 0.5f;
    QTest::newRow("muted") << sound << 0u << true << -1.0f;
    QTest::newRow("missing file") << QVariant(QStringLiteral("/sounds/missing.wav")) << 0x01000100u << true << -1.0f;
    QTest::newRow("no path") << QVariant() << 0x01000100u << false << -1.0f;
    QTest::newRow("null string") << QVariant(QString()) << 0x01000100u << false << -1.0f;
    QTest::newRow("a number") << QVariant(42) << 0x01000100u << false << -1.0f;
}

void TestSounds::alertSoundPlay()
{
    QFETCH(QVariant, path);
    QFETCH(quint32, alertVolume);
    QFETCH(bool, result);
    QFETCH(float, played);

    m_output->alert = alertVolume;
    QCOMPARE(Brixel::BXAlertSoundPlay(path), result);
    QCOMPARE(m_output->played.size(), played < 0 ? 0 : 1);
    if (played >= 0)
        QCOMPARE(m_output->played.first().volume, played);
}

void TestSounds::playerLivesForTheSoundAndATail()
{
    m_output->duration = 0.2;
    QVERIFY(Brixel::BXQTSoundPlay(QStringLiteral("/sounds/Blow.wav"), 0.5f));
    QVERIFY(m_output->lastSound);
    QTest::qWait(150);
    QVERIFY(m_output->lastSound);
    QTRY_VERIFY_WITH_TIMEOUT(!m_output->lastSound, 2000);
    QVERIFY(!Brixel::BXQTSoundPlay(QStringLiteral("/sounds/missing.wav"), 0.5f));
    QCOMPARE(Brixel::BXAlertSoundCompletionRoutine(7), 0);
}

void TestSounds::onlySystemFolderSoundsAreListed()
{
    QTemporaryDir root;
    for (const char *folder : {"system", "local", "user"})
        QVERIFY(QDir(root.path()).mkdir(QLatin1String(folder)));
    const QString system = root.filePath(QStringLiteral("system"));
    for (const char *name : {"Blow.wav", "Basso.WAV", "notes.txt", "Tink.oga"})
        writeFile(system + u'/' + QLatin1String(name));
    for (const char *name : {"local/Blow.wav", "local/Extra.wav", "user/Mine.oga"})
        writeFile(root.filePath(QLatin1String(name)));
    const QStringList types{QStringLiteral("wav"), QStringLiteral("oga")};

    QCOMPARE(BrixelPrivate::systemSoundPaths(system, root.filePath(QStringLiteral("local")),
                                             root.filePath(QStringLiteral("user")), types),
             QStringList({system + QStringLiteral("/Basso.WAV"), system + QStringLiteral("/Blow.wav"),
                          system + QStringLiteral("/Tink.oga")}));
    QCOMPARE(BrixelPrivate::systemSoundPaths(root.filePath(QStringLiteral("absent")),
                                             root.filePath(QStringLiteral("local")), system, types),
             QStringList());
}

void TestSounds::versionStrings_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("text");

    QTest::newRow("minor and bug fix") << 0x07138000u << QStringLiteral("7.1.3");
    QTest::newRow("minor 0") << 0x06028000u << QStringLiteral("6.0.2");
    QTest::newRow("Qt 6.4.2") << BrixelPrivate::versionCode(6, 4, 2) << QStringLiteral("6.4.2");
    QTest::newRow("minor above 9 is written as 9") << BrixelPrivate::versionCode(6, 12, 0) << QStringLiteral("6.9.0");
}

void TestSounds::versionStrings()
{
    QFETCH(quint32, code);
    QFETCH(QString, text);
    QCOMPARE(BrixelPrivate::versionString(code), text);
}

void TestSounds::componentsAndVersionFromTheMediaFacts()
{
    const QList<QVariantMap> components = Brixel::availableComponents();
    QCOMPARE(components.size(), 2);
    const QVariantMap mp3 = Brixel::componentWithSubType(BrixelPrivate::fourCharacterCode("MP3 "));
    QCOMPARE(mp3, components.at(1));
    QCOMPARE(mp3.value(QStringLiteral("name")).toString(), QStringLiteral("MP3"));
    QCOMPARE(mp3.value(QStringLiteral("component")).toByteArray(), QByteArray("\0\0\0\2", 4));
    QCOMPARE(mp3.value(QStringLiteral("type")).toUInt(), 0x73706974u);
    QCOMPARE(mp3.value(QStringLiteral("manufacturer")).toUInt(), BrixelPrivate::fourCharacterCode("QtMM"));
    QVERIFY(Brixel::componentWithSubType(BrixelPrivate::fourCharacterCode("none")).isEmpty());

    QCOMPARE(Brixel::ZARNQuickTimeVersionString(), QStringLiteral("7.1.3"));
    QTest::ignoreMessage(QtInfoMsg, "testMovieProgressProc");
    QCOMPARE(Brixel::testMovieProgressProc(), 0);
}

QTEST_GUILESS_MAIN(TestSounds)
#include "tst_sounds.moc"
