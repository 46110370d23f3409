// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXSplitView.h>
#include <Brixel/ZARNButton.h>
#include <Brixel/ZARNTextAttachmentCell.h>

#include "BrixelTest.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTextCursor>
#include <QTextDocument>
#include <QTest>

#include <cmath>

class TestSmallControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void shortcutFiresOnPressOnly()
    {
        QWidget window;
        auto *button = new ZARNButton(QStringLiteral("Play"), &window);
        button->setShortcut(QKeySequence(Qt::Key_Space));
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus();
        QSignalSpy clicked(button, &QAbstractButton::clicked);

        // The press shows the button pressed for a moment and then clicks it; releasing the key
        // in that moment must not click it a second time, or at once.
        QTest::keyPress(button, Qt::Key_Space);
        QVERIFY(button->isDown());
        QTest::keyRelease(button, Qt::Key_Space);
        QCOMPARE(clicked.size(), 0);
        QTRY_COMPARE(clicked.size(), 1);
        QTest::qWait(150);
        QCOMPARE(clicked.size(), 1);
    }

    void attachmentOffset_data()
    {
        QTest::addColumn<QPointF>("offset");
        QTest::addColumn<bool>("centre");
        QTest::addColumn<QPoint>("moved");

        QTest::newRow("right and up") << QPointF(2, 4) << false << QPoint(2, -4);
        QTest::newRow("centre flag switches the offset off") << QPointF(0, -3) << true << QPoint(0, 0);
    }

    void attachmentOffset()
    {
        QFETCH(QPointF, offset);
        QFETCH(bool, centre);
        QFETCH(QPoint, moved);
        brixeltest::useTestFont();
        QImage red = brixeltest::filledImage({8, 8}, Qt::red);
        QTextDocument document;
        auto *cell = new ZARNTextAttachmentCell(red, &document);
        QVERIFY(cell->objectType() > QTextFormat::UserObject);
        cell->zarnSetCellBaselineOffset(offset);
        // The centre flag starts off.
        QCOMPARE(cell->cellBaselineOffset(), offset);
        cell->zarnSetCenterCellBaselineOffset(centre);
        QCOMPARE(cell->cellBaselineOffset(), centre ? QPointF() : offset);
        QTextCursor cursor(&document);
        cursor.insertText(QStringLiteral("Ab "));
        cell->insertInto(cursor);
        cursor.insertText(QStringLiteral(" cd"));

        const auto redBounds = [&](const QPointF &at) {
            cell->zarnSetCellBaselineOffset(at);
            QImage image = brixeltest::filledImage({120, 40}, Qt::white);
            QPainter painter(&image);
            document.drawContents(&painter);
            painter.end();
            return brixeltest::pixelBounds(image, [](const QColor &c) { return c == QColor(Qt::red); });
        };
        const QRect onBaseline = redBounds(QPointF());
        QCOMPARE(onBaseline.size(), QSize(8, 8));
        QCOMPARE(redBounds(offset), onBaseline.translated(moved));
    }

    void dividerThickness_data()
    {
        QTest::addColumn<std::function<void(BXSplitView &)>>("operation");
        QTest::addColumn<float>("thickness");
        QTest::addColumn<int>("handleWidth");

        using Operation = std::function<void(BXSplitView &)>;
        QTest::newRow("new") << Operation([](auto &) {}) << 7.0f << 7;
        QTest::newRow("set") << Operation([](auto &s) { s.setDividerThickness(1.5f); }) << 1.5f << 2;
        QTest::newRow("NaN") << Operation([](auto &s) { s.setDividerThickness(std::nanf("")); }) << 0.0f << 0;
        QTest::newRow("negative") << Operation([](auto &s) { s.setDividerThickness(-3.0f); }) << 0.0f << 0;
    }

    void dividerThickness()
    {
        QFETCH(std::function<void(BXSplitView &)>, operation);
        QFETCH(float, thickness);
        QFETCH(int, handleWidth);
        for (BXSplitView *split : {new BXSplitView, new BXSplitView(Qt::Vertical)}) {
            const std::unique_ptr<BXSplitView> owner(split);
            operation(*split);
            QCOMPARE(split->dividerThickness(), thickness);
            QCOMPARE(split->handleWidth(), handleWidth);
        }
    }
};

QTEST_MAIN(TestSmallControls)
#include "tst_smallcontrols.moc"
