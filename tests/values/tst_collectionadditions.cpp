// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXNSArrayAdditions.h>
#include <Brixel/BXNSMutableArrayAdditions.h>
#include <Brixel/NSArray_Category.h>
#include <Brixel/NSIndexSet_Category.h>

#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ZARNIndexSet)

namespace {
const QStringList letters{u"a"_s, u"b"_s, u"c"_s, u"b"_s};
}

class TestCollectionAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void objectsAtIndexes_data();
    void objectsAtIndexes();
    void indexesOfObjects_data();
    void indexesOfObjects();
    void insertObjects_data();
    void insertObjects();
    void insertListIntoItself();
    void removeByIdentity();
    void replaceObject();
    void indexSetFromRowNumbers_data();
    void indexSetFromRowNumbers();
};

void TestCollectionAdditions::objectsAtIndexes_data()
{
    QTest::addColumn<ZARNIndexSet>("indexes");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("throws");

    QTest::newRow("ascending order") << ZARNIndexSet{2, 0} << QStringList{u"a"_s, u"c"_s} << false;
    QTest::newRow("empty set") << ZARNIndexSet{} << QStringList{} << false;
    QTest::newRow("last element") << ZARNIndexSet{3} << QStringList{u"b"_s} << false;
    QTest::newRow("one past the end") << ZARNIndexSet{0, 4} << QStringList{} << true;
    QTest::newRow("negative") << ZARNIndexSet{-1} << QStringList{} << true;
    QTest::newRow("not-found index") << ZARNIndexSet{ZARNNotFound} << QStringList{} << true;
}

void TestCollectionAdditions::objectsAtIndexes()
{
    QFETCH(ZARNIndexSet, indexes);
    QFETCH(QStringList, expected);
    QFETCH(bool, throws);
    if (throws)
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, ::objectsAtIndexes(letters, indexes));
    else
        QCOMPARE(::objectsAtIndexes(letters, indexes), expected);
}

void TestCollectionAdditions::indexesOfObjects_data()
{
    QTest::addColumn<QStringList>("objects");
    QTest::addColumn<ZARNIndexSet>("expected");

    QTest::newRow("found") << QStringList{u"c"_s, u"a"_s} << ZARNIndexSet{0, 2};
    QTest::newRow("first of equal elements") << QStringList{u"b"_s} << ZARNIndexSet{1};
    QTest::newRow("absent adds the not-found index") << QStringList{u"a"_s, u"x"_s} << ZARNIndexSet{0, ZARNNotFound};
    QTest::newRow("none") << QStringList{} << ZARNIndexSet{};
}

void TestCollectionAdditions::indexesOfObjects()
{
    QFETCH(QStringList, objects);
    QFETCH(ZARNIndexSet, expected);
    QCOMPARE(::indexesOfObjects(letters, objects), expected);
}

void TestCollectionAdditions::insertObjects_data()
{
    QTest::addColumn<qsizetype>("index");
    QTest::addColumn<QList<int>>("expected");

    QTest::newRow("front") << qsizetype(0) << QList<int>{2, 3, 1, 4};
    QTest::newRow("middle") << qsizetype(1) << QList<int>{1, 2, 3, 4};
    QTest::newRow("at the count appends") << qsizetype(2) << QList<int>{1, 4, 2, 3};
    QTest::newRow("past the count does nothing") << qsizetype(3) << QList<int>{1, 4};
    QTest::newRow("negative does nothing") << qsizetype(-1) << QList<int>{1, 4};
}

void TestCollectionAdditions::insertObjects()
{
    QFETCH(qsizetype, index);
    QFETCH(QList<int>, expected);
    QList<int> numbers{1, 4};
    ::insertObjects(numbers, {2, 3}, index);
    QCOMPARE(numbers, expected);
}

void TestCollectionAdditions::insertListIntoItself()
{
    QList<int> numbers{1, 4};
    ::insertObjects(numbers, numbers, 1);
    QCOMPARE(numbers, (QList<int>{1, 1, 4, 4}));
}

void TestCollectionAdditions::removeByIdentity()
{
    const auto one = std::make_shared<QString>(u"one"_s);
    const auto two = std::make_shared<QString>(u"two"_s);
    const auto otherOne = std::make_shared<QString>(u"one"_s);
    QList<std::shared_ptr<QString>> list{one, two, one, otherOne, two};

    removeObjectsInArray_Optimized(list, {std::make_shared<QString>(u"two"_s)});
    QCOMPARE(list.size(), 5); // equal but not identical: nothing goes

    removeObjectsInArray_Optimized(list, {one});
    QCOMPARE(list, (QList<std::shared_ptr<QString>>{two, otherOne, two}));

    removeObjectsInArray_Optimized(list, {});
    QCOMPARE(list.size(), 3);

    removeObjectsInArray_Optimized(list, list);
    QVERIFY(list.isEmpty());

    QObject a, b;
    QList<QObject *> objects{&a, nullptr, &b, &a};
    removeObjectsInArray_Optimized(objects, {&a, nullptr});
    QCOMPARE(objects, QList<QObject *>{&b});
}

void TestCollectionAdditions::replaceObject()
{
    QStringList list = letters;
    ::replaceObject(list, u"b"_s, u"x"_s);
    QCOMPARE(list, (QStringList{u"a"_s, u"x"_s, u"c"_s, u"b"_s}));

    QVERIFY_THROWS_EXCEPTION(std::out_of_range, ::replaceObject(list, u"absent"_s, u"y"_s));
    QCOMPARE(list, (QStringList{u"a"_s, u"x"_s, u"c"_s, u"b"_s}));
}

void TestCollectionAdditions::indexSetFromRowNumbers_data()
{
    QTest::addColumn<QVariantList>("rowNumbers");
    QTest::addColumn<ZARNIndexSet>("expected");

    QTest::newRow("empty") << QVariantList{} << ZARNIndexSet{};
    QTest::newRow("sorted, duplicates once") << QVariantList{5, 2, 5} << ZARNIndexSet{2, 5};
    QTest::newRow("fractions truncate toward zero") << QVariantList{1.9, -2.7, 0.5f} << ZARNIndexSet{-2, 0, 1};
    QTest::newRow("not a number") << QVariantList{std::nan("")} << ZARNIndexSet{-2147483647 - 1};
    QTest::newRow("beyond 32 bits as a double") << QVariantList{3e9, -1e300} << ZARNIndexSet{-2147483647 - 1};
    QTest::newRow("largest 32-bit double") << QVariantList{2147483647.9} << ZARNIndexSet{2147483647};
    QTest::newRow("wide integer keeps low bits") << QVariantList{qlonglong(0x100000003)} << ZARNIndexSet{3};
    QTest::newRow("numeric text and others") << QVariantList{u"7"_s, u"x"_s, true} << ZARNIndexSet{0, 1, 7};
}

void TestCollectionAdditions::indexSetFromRowNumbers()
{
    QFETCH(QVariantList, rowNumbers);
    QFETCH(ZARNIndexSet, expected);
    QCOMPARE(::indexSetFromRowNumbers(rowNumbers), expected);
}

QTEST_GUILESS_MAIN(TestCollectionAdditions)
#include "tst_collectionadditions.moc"
