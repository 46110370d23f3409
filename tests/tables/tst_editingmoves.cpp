// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tables/EditingMoves_p.h"

#include <QTest>

#include <climits>

using BrixelPrivate::Cell;
using BrixelPrivate::TextMovement;

Q_DECLARE_METATYPE(BrixelPrivate::TextMovement)

namespace {

QString describe(const std::optional<Cell> &cell)
{
    return cell ? QStringLiteral("(%1, %2)").arg(cell->row).arg(cell->column) : QStringLiteral("none");
}

} // namespace

class TestEditingMoves : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void target_data();
    void target();
};

void TestEditingMoves::target_data()
{
    QTest::addColumn<TextMovement>("movement");
    QTest::addColumn<Cell>("from");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<Cell>>("editable");
    QTest::addColumn<QString>("expected");

    // Tables of three columns.
    const auto Tab = TextMovement::Tab, Backtab = TextMovement::Backtab, Return = TextMovement::Return;
    const QList<Cell> scattered{{0, 2}, {1, 0}, {2, 1}, {3, 2}};
    QTest::newRow("tab: first editable cell after") << Tab << Cell{1, 0} << 4 << scattered << "(2, 1)";
    QTest::newRow("tab: wraps to the first") << Tab << Cell{3, 2} << 4 << scattered << "(0, 2)";
    QTest::newRow("backtab: first editable cell before") << Backtab << Cell{2, 1} << 4 << scattered << "(1, 0)";
    QTest::newRow("backtab: wraps to the last") << Backtab << Cell{0, 2} << 4 << scattered << "(3, 2)";
    QTest::newRow("return: wraps in the column") << Return << Cell{3, 2} << 4 << scattered << "(0, 2)";
    QTest::newRow("tab: only editable cell returns to itself") << Tab << Cell{2, 1} << 4 << QList<Cell>{{2, 1}} << "(2, 1)";
    QTest::newRow("return: only editable cell returns to itself") << Return << Cell{2, 1} << 4 << QList<Cell>{{2, 1}} << "(2, 1)";
    QTest::newRow("nothing editable") << Tab << Cell{2, 1} << 4 << QList<Cell>{} << "none";
    QTest::newRow("empty table") << Tab << Cell{0, 0} << 0 << scattered << "none";
    QTest::newRow("negative rows") << Backtab << Cell{0, 0} << -4 << scattered << "none";
    // The editor's row may be gone: a hit there answers "nowhere".
    QTest::newRow("hit in a removed row") << Tab << Cell{7, 0} << 4 << QList<Cell>{{7, 1}, {1, 0}} << "none";
    QTest::newRow("tab: extreme indexes") << Tab << Cell{INT_MAX, INT_MAX} << 4 << scattered << "(0, 2)";
    QTest::newRow("backtab: extreme indexes") << Backtab << Cell{INT_MIN, INT_MIN} << 4 << scattered << "(3, 2)";
    QTest::newRow("return: extreme row") << Return << Cell{INT_MAX, 1} << 4 << scattered << "(2, 1)";
    QTest::newRow("return: column out of range") << Return << Cell{1, 3} << 4 << scattered << "none";
}

void TestEditingMoves::target()
{
    QFETCH(TextMovement, movement);
    QFETCH(Cell, from);
    QFETCH(int, rows);
    QFETCH(QList<Cell>, editable);
    QFETCH(QString, expected);

    const auto isEditable = [&editable](Cell cell) { return editable.contains(cell); };
    QCOMPARE(describe(BrixelPrivate::nextEditableCell(movement, from, rows, 3, isEditable)), expected);
}

QTEST_APPLESS_MAIN(TestEditingMoves)
#include "tst_editingmoves.moc"
