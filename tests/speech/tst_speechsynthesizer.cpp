// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "speech/ZARNSpeechSynthesizer_p.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

// Times near 1.7e9 s are 2.4e-7 s apart, and a list adds up a few dozen of them.
constexpr double Tolerance = 2e-5;

class TestSpeechSynthesizer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_engine = install<FakeSpeechEngine>(); }
    void init()
    {
        m_clock = install<VirtualClock, ZARNClock>();
        m_engine->spoken.clear();
        m_engine->speakingTime = 0.55;
    }
    void cleanup() { ZARNClock::setCurrent(nullptr); }

    void pausesFromTheEndOfEachString_data()
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

    void pausesFromTheEndOfEachString()
    {
        QFETCH(double, interval);
        QFETCH(double, pause);

        ZARNSpeechSynthesizer synthesizer;
        const double start = m_clock->time;
        synthesizer.speakList({u"one"_s, u"two"_s, u"three"_s}, interval);
        runList(synthesizer);

        QCOMPARE(m_engine->texts(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
        for (int i = 0; i < 3; ++i)
            QVERIFY(std::abs(m_engine->spoken.at(i).start - (start + i * (0.6 + pause))) < Tolerance);
        // The list ends at the look that sees its last string finished.
        QVERIFY(std::abs(m_clock->time - (m_engine->spoken.last().start + 0.6)) < Tolerance);
    }

    void everyPauseEndsAtARealisticEpoch()
    {
        // Near 1.7e9 s the rest of a pause can be too short to move the time; the list must still
        // go on and finish, whatever the start time and string length.
        for (int run = 0; run < 300; ++run) {
            m_engine->spoken.clear();
            m_engine->speakingTime = 0.3 + run * 0.00123;
            m_clock->time = 1.7e9 + run * 0.01371;
            ZARNSpeechSynthesizer synthesizer;
            synthesizer.speakList({u"a"_s, u"b"_s, u"c"_s}, 1.8 + run * 1e-7);
            QVERIFY2(runList(synthesizer, 200) < 200, qPrintable(u"run %1 never finished"_s.arg(run)));
            QCOMPARE(m_engine->spoken.size(), 3);
            QVERIFY(m_engine->spoken.at(2).start - m_engine->spoken.at(1).end >= 1.8 - Tolerance);
        }
    }

    void runningListMeetsOtherCalls()
    {
        ZARNSpeechSynthesizer synthesizer;
        synthesizer.speakList({u"a"_s, u"b"_s}, 0.0);
        synthesizer.speakingStringsTimer();
        synthesizer.speakList({});                       // an empty list leaves it alone
        m_clock->time += 0.05;                           // before the list's next look
        synthesizer.speak(u"direct"_s);     // mixes in; the list waits for it
        runList(synthesizer);
        QCOMPARE(m_engine->texts(), QStringList({u"a"_s, u"direct"_s, u"b"_s}));
        QVERIFY(m_engine->spoken.at(2).start >= m_engine->spoken.at(1).end);

        synthesizer.speakList({u"c"_s, u"d"_s});
        synthesizer.speakingStringsTimer();
        synthesizer.speakList({u"x"_s});    // a new list stops the running one at once
        QVERIFY(!synthesizer.voiceIsSpeaking());
        synthesizer.speakingStringsTimer();
        synthesizer.stop();
        QVERIFY(!synthesizer.isSpeakingList());
        QVERIFY(!synthesizer.voiceIsSpeaking());
        synthesizer.speakingStringsTimer();              // a late firing after stop does nothing
        QCOMPARE(m_engine->texts().mid(3), QStringList({u"c"_s, u"x"_s}));
    }

    void sharedInstanceForwards()
    {
        ZARNSpeechSynthesizer *shared = ZARNSpeechSynthesizer::sharedSpeechSynthesizer();
        ZARNSpeechSynthesizer::speakStrings({u"one"_s});
        ZARNSpeechSynthesizer::speakString(u"now"_s);   // leaves the list alone
        QVERIFY(shared == ZARNSpeechSynthesizer::sharedSpeechSynthesizer() && shared->isSpeakingList());
        QVERIFY(ZARNSpeechSynthesizer::isSpeaking());
        ZARNSpeechSynthesizer::stopSpeaking();
        QVERIFY(!shared->isSpeakingList() && !ZARNSpeechSynthesizer::speechSynthesizer().isSpeaking());
        ZARNSpeechSynthesizer::speakStrings({u"two"_s}, 0.5);
        QVERIFY(shared->isSpeakingList());
        ZARNSpeechSynthesizer::stopSpeaking();
    }

    void timerDrivesTheListInRealTime()
    {
        ZARNClock::setCurrent(nullptr);
        m_engine->speakingTime = 0.05;
        ZARNSpeechSynthesizer synthesizer;
        synthesizer.speakList({u"one"_s, u"two"_s}, 0.05);
        QTRY_VERIFY_WITH_TIMEOUT(!synthesizer.isSpeakingList(), 5000);
        QCOMPARE(m_engine->texts(), QStringList({u"one"_s, u"two"_s}));
        QVERIFY(m_engine->spoken.at(1).start - m_engine->spoken.at(0).end >= 0.05 - 0.001);
    }

private:
    // Runs the list in virtual time, the clock jumping to each firing; returns the firings.
    int runList(ZARNSpeechSynthesizer &synthesizer, int limit = 10000)
    {
        int firings = 0;
        for (; synthesizer.isSpeakingList() && firings < limit; ++firings) {
            m_clock->time = ZARNSpeechSynthesizerPrivate::get(&synthesizer)->nextFireDate;
            synthesizer.speakingStringsTimer();
        }
        return firings;
    }

    FakeSpeechEngine *m_engine = nullptr;
    VirtualClock *m_clock = nullptr;
};

QTEST_GUILESS_MAIN(TestSpeechSynthesizer)
#include "tst_speechsynthesizer.moc"
