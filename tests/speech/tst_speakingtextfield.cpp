// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "platform/ZARNLocalizedString.h"
#include "speech/ZARNSpeakingTextField.h"
#include "speech/ZARNSpeechSynthesizer.h"

#include <QApplication>
#include <QClipboard>
#include <QIntValidator>
#include <QTest>

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

    void speaksWholeReplacements_data();
    void speaksWholeReplacements();
    void waitsInOrderWhileAnythingSpeaks();

private:
    FakeSpeechEngine *m_engine = nullptr;
    VirtualClock *m_clock = nullptr;
};

void TestSpeakingTextField::speaksWholeReplacements_data()
{
    QTest::addColumn<bool>("speaks");
    QTest::addColumn<QString>("typed");   // "<" moves the cursor left, "\b" deletes
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QStringList>("expected");

    const QString none;
    QTest::newRow("digit") << true << QStringLiteral("5") << none << QStringList{QStringLiteral("5")};
    QTest::newRow("full stop and comma as words")
        << true << QStringLiteral(".,") << none << QStringList{QStringLiteral("point"), QStringLiteral("comma")};
    QTest::newRow("letter ignored") << true << QStringLiteral("a7") << none << QStringList{QStringLiteral("7")};
    // "x12" becomes "x1212": the paste is "21", although "12" could be the text added.
    QTest::newRow("paste between digits") << true << QStringLiteral("12<") << QStringLiteral("21")
                                          << QStringList{QStringLiteral("1"), QStringLiteral("2")};
    QTest::newRow("deletion says nothing") << true << QStringLiteral("1\b") << none << QStringList{QStringLiteral("1")};
    QTest::newRow("rejected by the validator") << true << QStringLiteral("4242") << none << QStringList{QStringLiteral("4")};
    QTest::newRow("switched off") << false << QStringLiteral("5") << none << QStringList{};
    QTest::newRow("paste found as written") << true << none << QStringLiteral("12") << QStringList{QStringLiteral("12")};
    QTest::newRow("paste not found as written") << true << none << QStringLiteral("21") << QStringList{};
}

void TestSpeakingTextField::speaksWholeReplacements()
{
    QFETCH(bool, speaks);
    QFETCH(QString, typed);
    QFETCH(QString, pasted);
    QFETCH(QStringList, expected);

    ZARNSpeakingTextField field;
    QVERIFY(!field.speaks());   // silent until switched on
    field.setSpeakableCharacters(QStringLiteral("0123456789.,"));
    field.setSpeaks(speaks);
    if (typed.startsWith(u'4'))
        field.setValidator(new QIntValidator(0, 9, &field));
    else
        field.setText(QStringLiteral("x"));   // set by the program: never spoken
    for (const QChar character : typed) {
        const auto key = character == u'\b' ? Qt::Key_Backspace : character == u'<' ? Qt::Key_Left : Qt::Key_unknown;
        if (key == Qt::Key_unknown)
            QTest::keyClicks(&field, QString(character));
        else
            QTest::keyClick(&field, key);
        m_clock->time += 1;                   // each text is said before the next is typed
    }
    if (!pasted.isNull()) {
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keySequence(&field, QKeySequence::Paste);
    }
    QCOMPARE(m_engine->texts(), expected);
}

void TestSpeakingTextField::waitsInOrderWhileAnythingSpeaks()
{
    ZARNSpeakingTextField field;
    field.setSpeakableCharacters(QStringLiteral("0123456789.,"));
    field.setSpeaks(true);
    QVERIFY(&ZARNSpeakingTextField::speechSynthesizer() != &ZARNSpeechSynthesizer::speechSynthesizer());

    ZARNSpeechSynthesizer::speakString(QStringLiteral("queue"));   // another voice speaks
    QVERIFY(Brixel::ZARNLoadTranslations(QLocale(QLocale::German)));
    QTest::keyClicks(&field, QStringLiteral("1.,"));
    Brixel::ZARNLoadTranslations(QLocale(QLocale::English));
    QCOMPARE(field.itemsToSpeak(), QStringList({QStringLiteral("1"), QStringLiteral("Punkt"), QStringLiteral("Komma")}));

    for (int spoken = 2; spoken <= 4; ++spoken) {
        m_clock->time += 1;
        QTRY_COMPARE(m_engine->spoken.size(), spoken);
    }
    QCOMPARE(m_engine->texts(), QStringList({QStringLiteral("queue"), QStringLiteral("1"), QStringLiteral("Punkt"),
                                             QStringLiteral("Komma")}));
    field.addItemToSpeak(QString());
    field.setSpeakableCharacters(QString());
    QVERIFY(field.itemsToSpeak().isEmpty());
    QVERIFY(!field.speakableCharacters().isNull());
}

QTEST_MAIN(TestSpeakingTextField)
#include "tst_speakingtextfield.moc"
