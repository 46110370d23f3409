// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "platform/ZARNLocalizedString.h"
#include "speech/ZARNSpeakingTextField.h"
#include "speech/ZARNSpeechSynthesizer.h"

#include <QApplication>
#include <QClipboard>
#include <QIntValidator>
#include <QTest>

using namespace Qt::StringLiterals;

class TestSpeakingTextField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_engine = install<FakeSpeechEngine>();
        m_clock = install<VirtualClock, ZARNClock>();
    }
    void init()
    {
        m_clock->time += 100;   // whatever spoke before is finished
        m_engine->spoken.clear();
    }

    void speaksWholeReplacements_data()
    {
        QTest::addColumn<bool>("speaks");
        QTest::addColumn<QString>("typed");   // "<" moves the cursor left, "\b" deletes
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QStringList>("expected");

        const QString none;
        QTest::newRow("digit") << true << u"5"_s << none << QStringList{u"5"_s};
        QTest::newRow("full stop and comma as words")
            << true << u".,"_s << none << QStringList{u"point"_s, u"comma"_s};
        QTest::newRow("letter ignored") << true << u"a7"_s << none << QStringList{u"7"_s};
        // "x12" becomes "x1212": the paste is "21", although "12" could be the text added.
        QTest::newRow("paste between digits") << true << u"12<"_s << u"21"_s
                                              << QStringList{u"1"_s, u"2"_s};
        QTest::newRow("deletion says nothing") << true << u"1\b"_s << none << QStringList{u"1"_s};
        QTest::newRow("rejected by the validator") << true << u"4242"_s << none << QStringList{u"4"_s};
        QTest::newRow("switched off") << false << u"5"_s << none << QStringList{};
        QTest::newRow("paste found as written") << true << none << u"12"_s << QStringList{u"12"_s};
        QTest::newRow("paste not found as written") << true << none << u"21"_s << QStringList{};
    }

    void speaksWholeReplacements()
    {
        QFETCH(bool, speaks);
        QFETCH(QString, typed);
        QFETCH(QString, pasted);
        QFETCH(QStringList, expected);

        ZARNSpeakingTextField field;
        QVERIFY(!field.speaks());   // silent until switched on
        field.setSpeakableCharacters(u"0123456789.,"_s);
        field.setSpeaks(speaks);
        if (typed.startsWith(u'4'))
            field.setValidator(new QIntValidator(0, 9, &field));
        else
            field.setText(u"x"_s);   // set by the program: never spoken
        for (const QChar character : typed) {
            if (character == u'\b')
                QTest::keyClick(&field, Qt::Key_Backspace);
            else if (character == u'<')
                QTest::keyClick(&field, Qt::Key_Left);
            else
                QTest::keyClicks(&field, QString(character));
            m_clock->time += 1;                   // each text is said before the next is typed
        }
        if (!pasted.isNull()) {
            QGuiApplication::clipboard()->setText(pasted);
            QTest::keySequence(&field, QKeySequence::Paste);
        }
        QCOMPARE(m_engine->texts(), expected);
    }

    void waitsInOrderWhileAnythingSpeaks()
    {
        ZARNSpeakingTextField field;
        field.setSpeakableCharacters(u"0123456789.,"_s);
        field.setSpeaks(true);
        QVERIFY(&ZARNSpeakingTextField::speechSynthesizer() != &ZARNSpeechSynthesizer::speechSynthesizer());

        ZARNSpeechSynthesizer::speakString(u"queue"_s);   // another voice speaks
        QVERIFY(Brixel::ZARNLoadTranslations(QLocale(QLocale::German)));
        QTest::keyClicks(&field, u"1.,"_s);
        Brixel::ZARNLoadTranslations(QLocale(QLocale::English));
        QCOMPARE(field.itemsToSpeak(), QStringList({u"1"_s, u"Punkt"_s, u"Komma"_s}));

        for (int spoken = 2; spoken <= 4; ++spoken) {
            m_clock->time += 1;
            QTRY_COMPARE(m_engine->spoken.size(), spoken);
        }
        QCOMPARE(m_engine->texts(), QStringList({u"queue"_s, u"1"_s, u"Punkt"_s,
                                                 u"Komma"_s}));
        field.addItemToSpeak(QString());
        field.setSpeakableCharacters(QString());
        QVERIFY(field.itemsToSpeak().isEmpty());
        QVERIFY(!field.speakableCharacters().isNull());
    }

private:
    FakeSpeechEngine *m_engine = nullptr;
    VirtualClock *m_clock = nullptr;
};

QTEST_MAIN(TestSpeakingTextField)
#include "tst_speakingtextfield.moc"
