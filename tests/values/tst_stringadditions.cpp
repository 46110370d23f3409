// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSStringAdditions.h>

#include <QTest>

using namespace Qt::StringLiterals;

class TestStringAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void csvLine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("fields");

        QTest::newRow("plain and empty fields") << u"1,,3,"_s << QStringList{u"1"_s, u""_s, u"3"_s, u""_s};
        QTest::newRow("empty line is one field") << QString() << QStringList{QString()};
        QTest::newRow("characters below the comma are ordinary")
            << u" !#$%&'()*+\t,\u0001"_s << QStringList{u" !#$%&'()*+\t"_s, u"\u0001"_s};
        QTest::newRow("first field cannot be quoted") << u"\"a,b\",c"_s << QStringList{u"a"_s, u"b"_s, u"c"_s};
        QTest::newRow("later field keeps its commas") << u"x,\"a,b\",c"_s << QStringList{u"x"_s, u"a,b"_s, u"c"_s};
        QTest::newRow("doubled quote unquoted gives one") << u"a\"\"b,c\"\""_s << QStringList{u"a\"b"_s, u"c\""_s};
        QTest::newRow("doubled quote quoted stays doubled")
            << u",\"a\"\"b\","_s << QStringList{u""_s, u"a\"\"b"_s, u""_s};
        QTest::newRow("empty quoted field") << u"x,\"\",y"_s << QStringList{u"x"_s, u""_s, u"y"_s};
        QTest::newRow("closing quote at the end") << u"x,\"ab\""_s << QStringList{u"x"_s, u"ab"_s};
        QTest::newRow("quote not before a comma does not close")
            << u"x,\"a\"b,c"_s << QStringList{u"x"_s, u"a\"b,c"_s};
        QTest::newRow("line break ends and stays") << u"a,b\r\nc,d"_s << QStringList{u"a"_s, u"b\r"_s};
        QTest::newRow("line break inside quotes is kept")
            << u"x,\"a\nb\",c\nd"_s << QStringList{u"x"_s, u"a\nb"_s, u"c\n"_s};
    }

    void csvLine()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, fields);
        QCOMPARE(Brixel::CSVLineComponents(line), fields);
    }

    void fileExtension_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("withoutExtension");

        QTest::newRow("three letters, case kept") << u"report.TXT"_s << u"TXT"_s << u"report"_s;
        QTest::newRow("five characters") << u"a.mpeg4"_s << QString() << u"a.mpeg4"_s;
        QTest::newRow("notes keep their version") << u"notes.v2"_s << QString() << u"notes.v2"_s;
        QTest::newRow("punctuation") << u"file.a-b"_s << QString() << u"file.a-b"_s;
        QTest::newRow("empty") << QString() << QString() << QString();
        QTest::newRow("only the last extension") << u"/tmp/backup.tar.bz2"_s << u"bz2"_s << u"/tmp/backup.tar"_s;
        QTest::newRow("dot in a folder name") << u"/dir.name/file"_s << QString() << u"/dir.name/file"_s;
        QTest::newRow("hidden file") << u"/home/me/.conf"_s << QString() << u"/home/me/.conf"_s;
        QTest::newRow("trailing slash") << u"Pictures/album.albm/"_s << u"albm"_s << u"Pictures/album"_s;
        QTest::newRow("letters and digits of any script") << u"datei.ä\u0661ü"_s << u"ä\u0661ü"_s << u"datei"_s;
    }

    void fileExtension()
    {
        QFETCH(QString, path);
        QFETCH(QString, extension);
        QFETCH(QString, withoutExtension);
        QCOMPARE(Brixel::fileExtension(path), extension);
        QCOMPARE(Brixel::stringByDeletingFileExtension(path), withoutExtension);
    }

    void withoutCharacters_data()
    {
        QTest::addColumn<QString>("string");
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("expected");

        QTest::newRow("every occurrence of each") << u"(555) 12--3-"_s << u"() -"_s << u"555123"_s;
        QTest::newRow("empty set") << u"abc"_s << QString() << u"abc"_s;
    }

    void withoutCharacters()
    {
        QFETCH(QString, string);
        QFETCH(QString, set);
        QFETCH(QString, expected);
        QCOMPARE(Brixel::withoutCharactersInSet(string, set), expected);
        QCOMPARE(Brixel::withoutCharactersInSet(string, [&set](QChar c) { return set.contains(c); }), expected);
    }
};

QTEST_GUILESS_MAIN(TestStringAdditions)
#include "tst_stringadditions.moc"
