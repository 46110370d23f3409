// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXXMLTree.h>
#include <Brixel/ZARNFileUtilities.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

class TestFileUtilities : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void uniquePath_data()
    {
        QTest::addColumn<QStringList>("existing"); // files, or folders when ending in "/"
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("keepExtension");
        QTest::addColumn<QString>("expected");

        const QStringList a{u"a.txt"_s};
        QTest::newRow("free path unchanged") << QStringList() << u"a.txt"_s << true << u"a.txt"_s;
        QTest::newRow("number before the extension") << a << u"a.txt"_s << true << u"a 1.txt"_s;
        QTest::newRow("number after the whole name") << a << u"a.txt"_s << false << u"a.txt 1"_s;
        QTest::newRow("taken numbers are skipped") << QStringList{u"a.txt"_s, u"a 1.txt"_s, u"a 3.txt"_s} << u"a.txt"_s
                                                   << true << u"a 2.txt"_s;
        QTest::newRow("last extension only") << QStringList{u"a.tar.gz"_s} << u"a.tar.gz"_s << true << u"a.tar 1.gz"_s;
        QTest::newRow("one-letter extension") << QStringList{u"a.b"_s} << u"a.b"_s << true << u"a 1.b"_s;
        QTest::newRow("leading dot is no extension") << QStringList{u".profile"_s} << u".profile"_s << true
                                                     << u".profile 1"_s;
        QTest::newRow("folder with trailing slash") << QStringList{u"b/"_s} << u"b/"_s << true << u"b 1"_s;
        QTest::newRow("doubled slashes")
            << QStringList{u"b/"_s, u"b/a.txt"_s} << u"b//a.txt"_s << true << u"b/a 1.txt"_s;
    }

    void uniquePath()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, path);
        QFETCH(bool, keepExtension);
        QFETCH(QString, expected);

        QTemporaryDir folder;
        for (const QString &name : existing) {
            if (name.endsWith(u'/'))
                QVERIFY(QDir(folder.path()).mkpath(name));
            else
                QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        }
        QCOMPARE(Brixel::ZARNUniqueFilePathAtPath(folder.filePath(path), keepExtension), folder.filePath(expected));
    }

    void uniquePathNeedsTwoComponents()
    {
        for (const QString &path : {QString(), u""_s, u"/"_s, u"file"_s, u"file//"_s})
            QVERIFY2(Brixel::ZARNUniqueFilePathAtPath(path, true).isNull(), qPrintable(path));
    }

    void uniquePathInUnreadableFolder()
    {
        if (geteuid() == 0)
            QSKIP("the superuser can list every folder");
        QTemporaryDir folder;
        const QString file = folder.filePath(u"a.txt"_s);
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        QVERIFY(QFile::setPermissions(folder.path(), QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(Brixel::ZARNUniqueFilePathAtPath(file, true).isNull());
        QCOMPARE(Brixel::ZARNUniqueFilePathAtPath(folder.filePath(u"b.txt"_s), true), folder.filePath(u"b.txt"_s));
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void fileNameOrders_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("listing"); // ZARNCompareDirectoryContents
        QTest::addColumn<int>("collated"); // ZARNCompareLastPathComponent

        const QString x1023(1023, u'x');
        QTest::newRow("numbers by value") << u"File 2"_s << u"File 10"_s << -1 << -1;
        QTest::newRow("final sigma folds") << u"\u03C2"_s << u"\u03A3"_s << 0 << 0;
        QTest::newRow("leading zeros") << u"File 01"_s << u"File 1"_s << 0 << 0;
        QTest::newRow("numbers wider than 64 bits")
            << u"n18446744073709551616"_s << u"n18446744073709551615"_s << 1 << 1;
        QTest::newRow("text after equal numbers") << u"a10b"_s << u"a010c"_s << -1 << -1;
        QTest::newRow("listing folds to lower case") << u"_"_s << u"A"_s << -1 << -1;
        QTest::newRow("punctuation counts") << u"a-b"_s << u"ab"_s << -1 << -1;
        QTest::newRow("width") << u"\uFF41"_s << u"a"_s << 1 << 0;
        QTest::newRow("composition") << u"\u00E9"_s << u"e\u0301"_s << 1 << 0;
        QTest::newRow("difference within 1024 units") << x1023 + u"ab"_s << x1023 + u"bb"_s << -1 << -1;
        QTest::newRow("difference beyond 1024 units") << x1023 + u"xa"_s << x1023 + u"xb"_s << -1 << 0;
        QTest::newRow("null") << QString() << u"a"_s << 0 << 0;
    }

    void fileNameOrders()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, listing);
        QFETCH(int, collated);
        QCOMPARE(Brixel::ZARNCompareDirectoryContents(a, b), listing);
        QCOMPARE(Brixel::ZARNCompareLastPathComponent(a, b), collated);
    }

    void xmlTreeAtPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("found"); // the id of the element found, "document" or empty for none

        QTest::newRow("deeper") << u"/root/item/name"_s << u"n1"_s;
        QTest::newRow("empty components") << u"root//item/"_s << u"1"_s;
        QTest::newRow("root alone") << u"/"_s << u"document"_s;
        QTest::newRow("null path") << QString() << u"document"_s;
        QTest::newRow("missing child") << u"/root/missing"_s << QString();
        QTest::newRow("beyond a leaf") << u"/root/item/name/more"_s << QString();
    }

    void xmlTreeAtPath()
    {
        QFETCH(QString, path);
        QFETCH(QString, found);

        // The processing instruction has the node name "item" too, and must be passed over.
        QDomDocument document;
        QVERIFY(document.setContent(
            u"<root><?item x?><title/><item id='1'><name id='n1'/></item><item id='2'/></root>"_s));
        const QDomNode node = Brixel::BXXMLTreeAtPath(document, path);
        const QString id = node.isDocument() ? u"document"_s : node.toElement().attribute(u"id"_s);
        QCOMPARE(id, found);
        QVERIFY(Brixel::BXXMLTreeAtPath(QDomNode(), path).isNull());
    }
};

QTEST_GUILESS_MAIN(TestFileUtilities)
#include "tst_fileutilities.moc"
