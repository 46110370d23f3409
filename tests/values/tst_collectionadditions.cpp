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
constexpr qsizetype Minimum32 = -2147483647 - 1;
}

class TestCollectionAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lookUps()
    {
        QCOMPARE(Brixel::objectsAtIndexes(letters, {3, 0}), (QStringList{u"a"_s, u"b"_s}));
        QCOMPARE(Brixel::objectsAtIndexes(letters, {}), QStringList{});
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::objectsAtIndexes(letters, {0, 4}));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::objectsAtIndexes(letters, {-1}));

        QCOMPARE(Brixel::indexesOfObjects(letters, {u"c"_s, u"b"_s}), (ZARNIndexSet{1, 2})); // first equal element
        QCOMPARE(Brixel::indexesOfObjects(letters, {u"a"_s, u"x"_s}), (ZARNIndexSet{0, ZARNNotFound}));

        QStringList list = letters;
        Brixel::replaceObject(list, u"b"_s, u"x"_s);
        QCOMPARE(list, (QStringList{u"a"_s, u"x"_s, u"c"_s, u"b"_s}));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::replaceObject(list, u"absent"_s, u"y"_s));
        QCOMPARE(list, (QStringList{u"a"_s, u"x"_s, u"c"_s, u"b"_s}));
    }

    void insertObjects_data()
    {
        QTest::addColumn<qsizetype>("index");
        QTest::addColumn<QList<int>>("expected");

        QTest::newRow("front") << qsizetype(0) << QList<int>{2, 3, 1, 4};
        QTest::newRow("at the count appends") << qsizetype(2) << QList<int>{1, 4, 2, 3};
        QTest::newRow("past the count does nothing") << qsizetype(3) << QList<int>{1, 4};
        QTest::newRow("negative does nothing") << qsizetype(-1) << QList<int>{1, 4};
    }

    void insertObjects()
    {
        QFETCH(qsizetype, index);
        QFETCH(QList<int>, expected);
        QList<int> numbers{1, 4};
        Brixel::insertObjects(numbers, {2, 3}, index);
        QCOMPARE(numbers, expected);

        numbers = {1, 4};
        Brixel::insertObjects(numbers, numbers, 1);
        QCOMPARE(numbers, (QList<int>{1, 1, 4, 4}));
    }

    void removeByIdentity()
    {
        const auto one = std::make_shared<QString>(u"one"_s);
        const auto two = std::make_shared<QString>(u"two"_s);
        const auto otherOne = std::make_shared<QString>(u"one"_s);
        QList<std::shared_ptr<QString>> list{one, two, one, otherOne, two};

        Brixel::removeObjectsInArray_Optimized(list, {std::make_shared<QString>(u"two"_s)});
        QCOMPARE(list.size(), 5); // equal but not identical: nothing goes
        Brixel::removeObjectsInArray_Optimized(list, {one});
        QCOMPARE(list, (QList<std::shared_ptr<QString>>{two, otherOne, two}));
        Brixel::removeObjectsInArray_Optimized(list, list);
        QVERIFY(list.isEmpty());

        QObject a, b;
        QList<QObject *> objects{&a, nullptr, &b, &a};
        Brixel::removeObjectsInArray_Optimized(objects, {&a, nullptr});
        QCOMPARE(objects, QList<QObject *>{&b});
    }

    void indexSetFromRowNumbers_data()
    {
        QTest::addColumn<QVariantList>("rowNumbers");
        QTest::addColumn<ZARNIndexSet>("expected");

        QTest::newRow("sorted, duplicates once") << QVariantList{5, 2, 5} << ZARNIndexSet{2, 5};
        QTest::newRow("fractions truncate toward zero") << QVariantList{1.9, -2.7, 0.5f} << ZARNIndexSet{-2, 0, 1};
        QTest::newRow("no 32-bit value") << QVariantList{std::nan(""), 3e9, -1e300} << ZARNIndexSet{Minimum32};
        QTest::newRow("just inside 32 bits")
            << QVariantList{2147483647.9, -2147483648.9} << ZARNIndexSet{Minimum32, 2147483647};
        QTest::newRow("wide integer keeps low bits") << QVariantList{qlonglong(0x100000003)} << ZARNIndexSet{3};
        QTest::newRow("text and others") << QVariantList{u"7"_s, u"x"_s, true} << ZARNIndexSet{0, 1, 7};
    }

    void indexSetFromRowNumbers()
    {
        QFETCH(QVariantList, rowNumbers);
        QFETCH(ZARNIndexSet, expected);
        QCOMPARE(Brixel::indexSetFromRowNumbers(rowNumbers), expected);
    }
};

QTEST_GUILESS_MAIN(TestCollectionAdditions)
#include "tst_collectionadditions.moc"
