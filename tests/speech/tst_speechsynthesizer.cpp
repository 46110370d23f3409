// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "speech/ZARNSpeechSynthesizer_p.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace {

// Times near 1.7e9 s are 2.4e-7 s apart, and a list adds up a few dozen of them.
constexpr double Tolerance = 2e-5;

QStringList texts(const QList<Utterance> &spoken)
{
    QStringList result;
    for (const Utterance &utterance : spoken)
        result.append(utterance.text);
    return result;
}

} // namespace

class TestSpeechSynthesizer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_engine = FakeSpeechEngine::install(); }
    void init()
    {
        m_clock = VirtualClock::install();
        m_engine->spoken.clear();
        m_engine->speakingTime = 0.55;
    }
    void cleanup() { ZARNClock::setCurrent(nullptr); }

    void pausesFromTheEndOfEachString_data();
    void pausesFromTheEndOfEachString();
    void everyPauseEndsAtARealisticEpoch();
    void emptyListLeavesARunningListAlone();
    void stopAndRestartWhileRunning();
    void directStringMixesIn();
    void sharedInstanceForwards();
    void timerDrivesTheListInRealTime();

private:
    // Runs the list in virtual time, the clock jumping to each firing; returns the firings.
    int runList(ZARNSpeechSynthesizer &synthesizer, int limit = 10000)
    {
        auto *d = ZARNSpeechSynthesizerPrivate::get(&synthesizer);
        int firings = 0;
        for (; synthesizer.isSpeakingList() && firings < limit; ++firings) {
            m_clock->time = d->nextFireDate;
            synthesizer.speakingStringsTimer();
        }
        return firings;
    }
    void fireAt(ZARNSpeechSynthesizer &synthesizer, double time)
    {
        m_clock->time = time;
        synthesizer.speakingStringsTimer();
    }

    FakeSpeechEngine *m_engine = nullptr;
    VirtualClock *m_clock = nullptr;
};

void TestSpeechSynthesizer::pausesFromTheEndOfEachString_data()
{
    QTest::addColumn<double>("interval");
    QTest::addColumn<double>("pause");

    // A string of 0.55 s is seen finished at the sixth look, 0.6 s after it started.
    QTest::newRow("default") << -1.0 << 1.8;
    QTest::newRow("other negative selects the default") << -0.25 << 1.8;
    QTest::newRow("NaN selects the default") << std::numeric_limits<double>::quiet_NaN() << 1.8;
    QTest::newRow("zero speaks back to back") << 0.0 << 0.0;
    QTest::newRow("given interval") << 0.75 << 0.75;
}

void TestSpeechSynthesizer::pausesFromTheEndOfEachString()
{
    QFETCH(double, interval);
    QFETCH(double, pause);

    ZARNSpeechSynthesizer synthesizer;
    const double start = m_clock->time;
    synthesizer.speakList({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}, interval);
    runList(synthesizer);

    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}));
    for (int i = 0; i < 3; ++i)
        QVERIFY2(std::abs(m_engine->spoken.at(i).start - (start + i * (0.6 + pause))) < Tolerance, qPrintable(QString::number(i)));
    // The list ends at the look that sees its last string finished.
    QVERIFY(std::abs(m_clock->time - (m_engine->spoken.last().start + 0.6)) < Tolerance);
}

void TestSpeechSynthesizer::everyPauseEndsAtARealisticEpoch()
{
    // Near 1.7e9 seconds a double steps by 2.4e-7 s, so the rest of a pause can round away;
    // the list must still go on and finish, whatever the start time and string length.
    for (int run = 0; run < 300; ++run) {
        m_engine->spoken.clear();
        m_engine->speakingTime = 0.3 + run * 0.00123;
        m_clock->time = 1.7e9 + run * 0.01371;
        ZARNSpeechSynthesizer synthesizer;
        synthesizer.speakList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, 1.8 + run * 1e-7);
        QVERIFY2(runList(synthesizer, 200) < 200, qPrintable(QStringLiteral("run %1 never finished").arg(run)));
        QCOMPARE(m_engine->spoken.size(), 3);
        QVERIFY(m_engine->spoken.at(2).start - m_engine->spoken.at(1).end >= 1.8 - Tolerance);
    }
}

void TestSpeechSynthesizer::emptyListLeavesARunningListAlone()
{
    ZARNSpeechSynthesizer synthesizer;
    synthesizer.speakList({QStringLiteral("one"), QStringLiteral("two")}, 0.0);
    fireAt(synthesizer, m_clock->time);
    synthesizer.speakList({});
    QVERIFY(synthesizer.isSpeakingList());
    runList(synthesizer);
    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

void TestSpeechSynthesizer::stopAndRestartWhileRunning()
{
    ZARNSpeechSynthesizer synthesizer;
    synthesizer.speakList({QStringLiteral("a"), QStringLiteral("b")}, 0.0);
    fireAt(synthesizer, m_clock->time);
    QVERIFY(synthesizer.voiceIsSpeaking());

    synthesizer.speakList({QStringLiteral("x"), QStringLiteral("y")}, 0.0);
    QVERIFY(!synthesizer.voiceIsSpeaking());   // starting a list stops the voice
    runList(synthesizer);
    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("a"), QStringLiteral("x"), QStringLiteral("y")}));

    synthesizer.speakList({QStringLiteral("p"), QStringLiteral("q")});
    fireAt(synthesizer, m_clock->time + 5);
    synthesizer.stop();
    QVERIFY(!synthesizer.isSpeakingList());
    QVERIFY(!synthesizer.voiceIsSpeaking());
    synthesizer.speakingStringsTimer();        // a late firing after stop does nothing
    QCOMPARE(m_engine->spoken.size(), 4);
    synthesizer.stop();                        // stopping an idle queue only stops the voice
    QVERIFY(!synthesizer.isSpeakingList());
}

void TestSpeechSynthesizer::directStringMixesIn()
{
    ZARNSpeechSynthesizer synthesizer;
    synthesizer.speakList({QStringLiteral("one"), QStringLiteral("two")}, 0.0);
    fireAt(synthesizer, m_clock->time);
    m_clock->time += 0.2;
    synthesizer.speak(QStringLiteral("direct"));
    QVERIFY(synthesizer.isSpeakingList());
    runList(synthesizer);

    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("one"), QStringLiteral("direct"), QStringLiteral("two")}));
    QVERIFY(m_engine->spoken.at(2).start >= m_engine->spoken.at(1).end);
}

void TestSpeechSynthesizer::sharedInstanceForwards()
{
    ZARNSpeechSynthesizer *shared = ZARNSpeechSynthesizer::sharedSpeechSynthesizer();
    QCOMPARE(ZARNSpeechSynthesizer::sharedSpeechSynthesizer(), shared);
    ZARNSpeechSynthesizer::speakString(QStringLiteral("now"));
    QVERIFY(ZARNSpeechSynthesizer::isSpeaking());
    QVERIFY(!shared->isSpeakingList());

    ZARNSpeechSynthesizer::speakStrings({QStringLiteral("one")});
    QVERIFY(shared->isSpeakingList());
    ZARNSpeechSynthesizer::stopSpeaking();
    QVERIFY(!shared->isSpeakingList());
    QVERIFY(!ZARNSpeechSynthesizer::speechSynthesizer().isSpeaking());
    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("now")}));
}

void TestSpeechSynthesizer::timerDrivesTheListInRealTime()
{
    ZARNClock::setCurrent(nullptr);
    m_engine->speakingTime = 0.05;
    ZARNSpeechSynthesizer synthesizer;
    synthesizer.speakList({QStringLiteral("one"), QStringLiteral("two")}, 0.05);
    QTRY_VERIFY_WITH_TIMEOUT(!synthesizer.isSpeakingList(), 5000);
    QCOMPARE(texts(m_engine->spoken), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    QVERIFY(m_engine->spoken.at(1).start - m_engine->spoken.at(0).end >= 0.05 - 0.001);
}

QTEST_GUILESS_MAIN(TestSpeechSynthesizer)
#include "tst_speechsynthesizer.moc"
