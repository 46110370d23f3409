// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNEditingMoves.h>

#include <QTest>

#include <climits>

using brixel::Cell;
using brixel::TextMovement;

Q_DECLARE_METATYPE(brixel::TextMovement)

namespace {

QString describe(const std::optional<Cell> &cell)
{
    return cell ? QStringLiteral("(%1, %2)").arg(cell->row).arg(cell->column) : QStringLiteral("none");
}

QStringList describe(const QList<Cell> &cells)
{
    QStringList list;
    for (const Cell &cell : cells)
        list.append(describe(cell));
    return list;
}

// All cells of a rows x columns table in reading order.
QList<Cell> everyCell(int rows, int columns)
{
    QList<Cell> cells;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            cells.append({row, column});
    return cells;
}

} // namespace

class TestEditingMoves : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void target_data();
    void target();
    void visitingOrder_data();
    void visitingOrder();
    void hints_data();
    void hints();
};

void TestEditingMoves::target_data()
{
    QTest::addColumn<TextMovement>("movement");
    QTest::addColumn<Cell>("from");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QList<Cell>>("editable");
    QTest::addColumn<QString>("expected");

    const auto Tab = TextMovement::Tab, Backtab = TextMovement::Backtab, Return = TextMovement::Return;
    const QList<Cell> all = everyCell(4, 3);
    // A 4 x 3 table unless a row says otherwise.
    QTest::newRow("tab: next cell of the row") << Tab << Cell{1, 0} << 4 << 3 << all << "(1, 1)";
    QTest::newRow("tab: skips read-only cells in the row") << Tab << Cell{1, 0} << 4 << 3 << QList<Cell>{{1, 0}, {1, 2}} << "(1, 2)";
    QTest::newRow("tab: end of row goes to the next row's first cell") << Tab << Cell{1, 2} << 4 << 3 << all << "(2, 0)";
    QTest::newRow("tab: skips whole read-only rows") << Tab << Cell{0, 1} << 4 << 3 << QList<Cell>{{3, 1}} << "(3, 1)";
    QTest::newRow("tab: last cell wraps to the first") << Tab << Cell{3, 2} << 4 << 3 << all << "(0, 0)";
    QTest::newRow("tab: wraps to an earlier cell of its own row") << Tab << Cell{2, 2} << 4 << 3 << QList<Cell>{{2, 0}, {2, 2}} << "(2, 0)";
    QTest::newRow("tab: only editable cell returns to itself") << Tab << Cell{2, 1} << 4 << 3 << QList<Cell>{{2, 1}} << "(2, 1)";
    QTest::newRow("tab: nothing editable") << Tab << Cell{2, 1} << 4 << 3 << QList<Cell>{} << "none";
    QTest::newRow("tab: one-column table moves down") << Tab << Cell{0, 0} << 4 << 1 << everyCell(4, 1) << "(1, 0)";

    QTest::newRow("backtab: previous cell of the row") << Backtab << Cell{1, 2} << 4 << 3 << all << "(1, 1)";
    QTest::newRow("backtab: start of row goes to the previous row's last cell") << Backtab << Cell{2, 0} << 4 << 3 << all << "(1, 2)";
    QTest::newRow("backtab: searches each earlier row from its end") << Backtab << Cell{3, 0} << 4 << 3 << QList<Cell>{{1, 0}, {1, 1}} << "(1, 1)";
    QTest::newRow("backtab: first cell wraps to the last") << Backtab << Cell{0, 0} << 4 << 3 << all << "(3, 2)";
    QTest::newRow("backtab: wraps to a later cell of its own row") << Backtab << Cell{1, 0} << 4 << 3 << QList<Cell>{{1, 0}, {1, 2}} << "(1, 2)";
    QTest::newRow("backtab: only editable cell returns to itself") << Backtab << Cell{2, 1} << 4 << 3 << QList<Cell>{{2, 1}} << "(2, 1)";

    QTest::newRow("return: same column, next row") << Return << Cell{0, 1} << 4 << 3 << all << "(1, 1)";
    QTest::newRow("return: never changes column") << Return << Cell{0, 1} << 4 << 3 << QList<Cell>{{0, 1}, {2, 0}, {2, 2}} << "(0, 1)";
    QTest::newRow("return: skips read-only rows") << Return << Cell{0, 2} << 4 << 3 << QList<Cell>{{3, 2}} << "(3, 2)";
    QTest::newRow("return: last row wraps to the top") << Return << Cell{3, 0} << 4 << 3 << all << "(0, 0)";
    QTest::newRow("return: wrap includes its own row") << Return << Cell{2, 0} << 4 << 3 << QList<Cell>{{2, 0}} << "(2, 0)";
    QTest::newRow("return: from a column outside the table") << Return << Cell{0, 3} << 4 << 3 << all << "none";

    QTest::newRow("other movement ends editing") << TextMovement::Other << Cell{0, 0} << 4 << 3 << all << "none";
    QTest::newRow("empty table") << Tab << Cell{0, 0} << 0 << 3 << all << "none";
    QTest::newRow("no columns") << Return << Cell{0, 0} << 4 << 0 << all << "none";
    QTest::newRow("negative size") << Backtab << Cell{0, 0} << -4 << -3 << all << "none";
    // The editor's row no longer exists: its own row is still scanned first, and a hit
    // there is answered as "nowhere"; further rows are only those inside the table.
    const QList<Cell> withGone = all + QList<Cell>{{7, 1}, {7, 2}};
    QTest::newRow("tab: hit in a removed row") << Tab << Cell{7, 0} << 4 << 3 << withGone << "none";
    QTest::newRow("tab: past a removed row wraps inside") << Tab << Cell{7, 2} << 4 << 3 << withGone << "(0, 0)";
    QTest::newRow("backtab: from below the table") << Backtab << Cell{9, 0} << 4 << 3 << all << "(3, 2)";
    QTest::newRow("tab: extreme indexes do not overflow") << Tab << Cell{INT_MAX, INT_MAX} << 4 << 3 << all << "(0, 0)";
    QTest::newRow("backtab: extreme indexes do not overflow") << Backtab << Cell{INT_MIN, INT_MIN} << 4 << 3 << all << "(3, 2)";
    QTest::newRow("return: extreme row does not overflow") << Return << Cell{INT_MAX, 1} << 4 << 3 << all << "(0, 1)";
}

void TestEditingMoves::target()
{
    QFETCH(TextMovement, movement);
    QFETCH(Cell, from);
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(QList<Cell>, editable);
    QFETCH(QString, expected);

    const auto isEditable = [&editable](Cell cell) { return editable.contains(cell); };
    QCOMPARE(describe(brixel::nextEditableCell(movement, from, rows, columns, isEditable)), expected);
}

void TestEditingMoves::visitingOrder_data()
{
    QTest::addColumn<TextMovement>("movement");
    QTest::addColumn<Cell>("from");
    QTest::addColumn<QList<Cell>>("visited");

    // A 3 x 2 table in which nothing is editable, so every movement scans to its end.
    QTest::newRow("tab") << TextMovement::Tab << Cell{1, 0}
                         << QList<Cell>{{1, 1}, {2, 0}, {2, 1}, {0, 0}, {0, 1}, {1, 0}, {1, 1}, {2, 0}, {2, 1}};
    QTest::newRow("backtab") << TextMovement::Backtab << Cell{1, 1}
                             << QList<Cell>{{1, 0}, {0, 1}, {0, 0}, {2, 1}, {2, 0}, {1, 1}, {1, 0}, {0, 1}, {0, 0}};
    QTest::newRow("return") << TextMovement::Return << Cell{1, 1} << QList<Cell>{{2, 1}, {0, 1}, {1, 1}, {2, 1}};
    QTest::newRow("tab from the last cell") << TextMovement::Tab << Cell{2, 1}
                                            << QList<Cell>{{0, 0}, {0, 1}, {1, 0}, {1, 1}, {2, 0}, {2, 1}};
}

void TestEditingMoves::visitingOrder()
{
    QFETCH(TextMovement, movement);
    QFETCH(Cell, from);
    QFETCH(QList<Cell>, visited);

    QList<Cell> seen;
    const auto isEditable = [&seen](Cell cell) {
        seen.append(cell);
        return false;
    };
    QVERIFY(!brixel::nextEditableCell(movement, from, 3, 2, isEditable));
    QCOMPARE(describe(seen), describe(visited));
}

void TestEditingMoves::hints_data()
{
    QTest::addColumn<QAbstractItemDelegate::EndEditHint>("hint");
    QTest::addColumn<TextMovement>("movement");

    QTest::newRow("next item") << QAbstractItemDelegate::EditNextItem << TextMovement::Tab;
    QTest::newRow("previous item") << QAbstractItemDelegate::EditPreviousItem << TextMovement::Backtab;
    QTest::newRow("submit") << QAbstractItemDelegate::SubmitModelCache << TextMovement::Return;
    QTest::newRow("revert") << QAbstractItemDelegate::RevertModelCache << TextMovement::Other;
    QTest::newRow("no hint") << QAbstractItemDelegate::NoHint << TextMovement::Other;
}

void TestEditingMoves::hints()
{
    QFETCH(QAbstractItemDelegate::EndEditHint, hint);
    QFETCH(TextMovement, movement);
    QCOMPARE(brixel::textMovementForHint(hint), movement);
}

QTEST_APPLESS_MAIN(TestEditingMoves)
#include "tst_editingmoves.moc"
