// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeBackEnds.h"

#include "platform/ZARNLocalizedString.h"
#include "speech/SpokenEdit_p.h"
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
        m_engine = FakeSpeechEngine::install();
        m_clock = VirtualClock::install();
    }
    void init()
    {
        m_clock->time += 100;   // whatever spoke before is finished
        m_engine->spoken.clear();
    }

    void speaksWholeReplacements_data();
    void speaksWholeReplacements();
    void waitsInOrderWhileAnythingSpeaks();
    void readsLocalizedWords();
    void rejectedEditSaysNothing();
    void editBetween_data();
    void editBetween();

private:
    QStringList spokenTexts() const
    {
        QStringList result;
        for (const Utterance &utterance : m_engine->spoken)
            result.append(utterance.text);
        return result;
    }

    FakeSpeechEngine *m_engine = nullptr;
    VirtualClock *m_clock = nullptr;
};

void TestSpeakingTextField::speaksWholeReplacements_data()
{
    QTest::addColumn<bool>("speaks");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QStringList>("expected");

    const QString none;
    QTest::newRow("digit") << true << QStringLiteral("5") << none << QStringList{QStringLiteral("5")};
    QTest::newRow("full stop and comma as words")
        << true << QStringLiteral(".,") << none << QStringList{QStringLiteral("point"), QStringLiteral("comma")};
    QTest::newRow("letter ignored") << true << QStringLiteral("a7") << none << QStringList{QStringLiteral("7")};
    QTest::newRow("deletion says nothing") << true << QStringLiteral("1\b") << none << QStringList{QStringLiteral("1")};
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
    field.setSpeakableCharacters(QStringLiteral("0123456789.,"));
    field.setSpeaks(speaks);
    field.setText(QStringLiteral("x"));   // set by the program: never spoken
    for (const QChar character : typed) {
        if (character == u'\b')
            QTest::keyClick(&field, Qt::Key_Backspace);
        else
            QTest::keyClicks(&field, QString(character));
        m_clock->time += 1;                 // each text is said before the next is typed
    }
    if (!pasted.isNull()) {
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keySequence(&field, QKeySequence::Paste);
    }
    QCOMPARE(spokenTexts(), expected);
    QVERIFY(field.itemsToSpeak().isEmpty());
}

void TestSpeakingTextField::waitsInOrderWhileAnythingSpeaks()
{
    ZARNSpeakingTextField field;
    field.setSpeakableCharacters(QStringLiteral("0123456789"));
    field.setSpeaks(true);
    QVERIFY(&ZARNSpeakingTextField::speechSynthesizer() != &ZARNSpeechSynthesizer::speechSynthesizer());

    ZARNSpeechSynthesizer::speakString(QStringLiteral("queue"));   // another voice speaks
    QTest::keyClicks(&field, QStringLiteral("123"));
    QCOMPARE(field.itemsToSpeak(), QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")}));

    m_clock->time += 1;
    QTRY_COMPARE(spokenTexts(), QStringList({QStringLiteral("queue"), QStringLiteral("1")}));
    m_clock->time += 1;
    QTRY_COMPARE(spokenTexts().size(), 3);
    m_clock->time += 1;
    QTRY_COMPARE(spokenTexts().last(), QStringLiteral("3"));
    QVERIFY(field.itemsToSpeak().isEmpty());

    field.addItemToSpeak(QString());
    QVERIFY(field.itemsToSpeak().isEmpty());
    field.setSpeakableCharacters(QString());
    QVERIFY(!field.speakableCharacters().isNull());
}

void TestSpeakingTextField::readsLocalizedWords()
{
    QVERIFY(Brixel::ZARNLoadTranslations(QLocale(QLocale::German)));
    ZARNSpeakingTextField field;
    field.setSpeakableCharacters(QStringLiteral(".,"));
    field.setSpeaks(true);
    QTest::keyClicks(&field, QStringLiteral("."));
    m_clock->time += 1;
    QTest::keyClicks(&field, QStringLiteral(","));
    Brixel::ZARNLoadTranslations(QLocale(QLocale::English));
    QCOMPARE(spokenTexts(), QStringList({QStringLiteral("Punkt"), QStringLiteral("Komma")}));
}

void TestSpeakingTextField::rejectedEditSaysNothing()
{
    ZARNSpeakingTextField field;
    field.setValidator(new QIntValidator(0, 9, &field));
    field.setSpeakableCharacters(QStringLiteral("0123456789"));
    field.setSpeaks(true);
    QTest::keyClicks(&field, QStringLiteral("4"));
    m_clock->time += 1;
    QTest::keyClicks(&field, QStringLiteral("2"));   // "42" is beyond the validator's range
    QCOMPARE(field.text(), QStringLiteral("4"));
    QCOMPARE(spokenTexts(), QStringList({QStringLiteral("4")}));
}

void TestSpeakingTextField::editBetween_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<ZARNRange>("range");
    QTest::addColumn<QString>("replacement");

    QTest::newRow("typed at the end") << QStringLiteral("1") << QStringLiteral("12") << 2 << ZARNRange{1, 0} << QStringLiteral("2");
    QTest::newRow("typed a repeated character") << QStringLiteral("15") << QStringLiteral("155") << 2 << ZARNRange{1, 0} << QStringLiteral("5");
    QTest::newRow("pasted over a selection") << QStringLiteral("xaby") << QStringLiteral("x12y") << 3 << ZARNRange{1, 2} << QStringLiteral("12");
    QTest::newRow("deleted") << QStringLiteral("123") << QStringLiteral("13") << 1 << ZARNRange{1, 1} << QString();
    QTest::newRow("cursor elsewhere") << QStringLiteral("abc") << QStringLiteral("abXc") << 0 << ZARNRange{2, 0} << QStringLiteral("X");
}

void TestSpeakingTextField::editBetween()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, cursor);
    QFETCH(ZARNRange, range);
    QFETCH(QString, replacement);

    const auto edit = BrixelPrivate::editBetween(before, after, cursor);
    QCOMPARE(edit.range, range);
    QCOMPARE(edit.replacement, replacement);
}

QTEST_MAIN(TestSpeakingTextField)
#include "tst_speakingtextfield.moc"
