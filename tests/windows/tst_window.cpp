// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNWindow.h>

#include "windows/WindowBackground_p.h"

#include <QDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// One column 100 rows high whose red value is the row's number counted from the bottom.
QImage numberedArtwork()
{
    QImage artwork(1, 100, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < 100; ++row)
        artwork.setPixel(0, 99 - row, qRgb(row, 0, 0));
    return artwork;
}

// \a count row numbers counting down from \a from, each shown \a times times.
QList<int> countingDown(int from, int count, int times = 1)
{
    QList<int> rows;
    for (int i = 0; i < count; ++i)
        rows.append(QList<int>(times, from - i));
    return rows;
}

// Remembers the button of the last mouse press and whether a context menu was asked for.
class PressTarget : public QWidget
{
public:
    using QWidget::QWidget;
    Qt::MouseButton pressed = Qt::NoButton;
    bool contextMenu = false;

protected:
    void mousePressEvent(QMouseEvent *event) override { pressed = event->button(); }
    void contextMenuEvent(QContextMenuEvent *) override { contextMenu = true; }
};

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { Brixel::ZARNSetSystemVersion(0x1039); }

    void backgroundPattern_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("height");
        QTest::addColumn<QList<int>>("rows");

        QTest::newRow("shorter than half: the top rows") << 1 << 40 << countingDown(99, 40);
        // The top half, then the two middle rows (51 over 50) stretched; no bottom part.
        QTest::newRow("between half and full: no bottom")
            << 1 << 70 << countingDown(99, 50) + QList<int>(10, 51) + QList<int>(10, 50);
        QTest::newRow("taller: top, stretched middle, bottom")
            << 1 << 150 << countingDown(99, 50) + QList<int>(50, 51) + countingDown(49, 50);
        QTest::newRow("upper half stretched") << 2 << 100 << countingDown(99, 50, 2);
        QTest::newRow("unknown mode draws nothing") << 3 << 10 << QList<int>(10, 0);
    }

    void backgroundPattern()
    {
        QFETCH(int, mode);
        QFETCH(int, height);
        QFETCH(QList<int>, rows);
        const QImage pattern = BrixelPrivate::windowBackgroundPattern(numberedArtwork(), mode, float(height));
        QCOMPARE(pattern.size(), QSize(1, height));
        QList<int> shown;   // the artwork row numbers, from the pattern's top row down
        for (int y = 0; y < height; ++y)
            shown.append(qRed(pattern.pixel(0, y)));
        QCOMPARE(shown, rows);
    }

    void backgroundOnlyInTheClassicLook()
    {
        ZARNWindow_BackgroundImage = numberedArtwork();
        ZARNWindow window;
        window.resize(200, 70);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.palette().window().textureImage(),
                 BrixelPrivate::windowBackgroundPattern(ZARNWindow_BackgroundImage, 1, 70));
        // A program's height change after a width-only one rebuilds too.
        window.resize(300, 70);
        window.resize(300, 120);
        QCOMPARE(window.palette().window().textureImage().height(), 120);
        window.resize(200, 70);
        window.setBackgroundMode(ZARNWindow::BackgroundMode::UpperHalf);
        QCOMPARE(window.palette().window().textureImage().height(), 70);
        QCOMPARE(qRed(window.palette().window().textureImage().pixel(0, 0)), 99);
        Brixel::ZARNSetSystemVersion(0x1050);
        QCOMPARE(window.palette().window().style(), Qt::SolidPattern);
        Brixel::ZARNSetSystemVersion(0x1039);
        QCOMPARE(window.palette().window().textureImage().height(), 70);
        window.setBackgroundMode(ZARNWindow::BackgroundMode::None);
        QCOMPARE(window.palette().window().style(), Qt::SolidPattern);

        Brixel::ZARNSetSystemVersion(0x1050);
        ZARNWindow newer;
        newer.setFrame(QRect(0, 0, 200, 70), true);
        newer.setBackgroundMode(ZARNWindow::BackgroundMode::UpperHalf);
        QCOMPARE(newer.palette().window().style(), Qt::SolidPattern);
        ZARNWindow_BackgroundImage = QImage();
    }

    void resizeIndicator_data()
    {
        QTest::addColumn<bool>("resizable");
        QTest::addColumn<bool>("shows");
        QTest::addColumn<bool>("visible");

        QTest::newRow("resizable") << true << true << true;
        QTest::newRow("fixed size") << false << true << false;
        QTest::newRow("switched off") << true << false << false;
    }

    void resizeIndicator()
    {
        QFETCH(bool, resizable);
        QFETCH(bool, shows);
        QFETCH(bool, visible);
        ZARNWindow window;
        if (resizable)
            window.resize(300, 200);
        else
            window.setFixedSize(300, 200);
        window.setShowsResizeIndicator(shows);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // A child added later does not cover it.
        auto *late = new QWidget(&window);
        late->setGeometry(window.rect());
        late->show();
        QCoreApplication::processEvents();

        const QWidget *indicator = window.resizeIndicatorView();
        QCOMPARE(indicator->isVisible(), visible);
        if (!visible)
            return;
        QCOMPARE(indicator->size(), QSize(11, 11));
        QCOMPARE(indicator->geometry().right(), 300 - 5 - 1);
        QCOMPARE(indicator->geometry().bottom(), 200 - 6 - 1);
        QCOMPARE(window.childAt(indicator->geometry().center()), late);
        QCOMPARE(window.children().constLast(), indicator);
    }

    void controlClickIsARightPress()
    {
        ZARNWindow window;
        auto *target = new PressTarget(&window);
        target->setGeometry(0, 0, 100, 100);
        window.resize(100, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::MetaModifier, QPoint(20, 20));
        QCOMPARE(target->pressed, Qt::RightButton);
        QVERIFY(target->contextMenu);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::ShiftModifier, QPoint(20, 20));
        QCOMPARE(target->pressed, Qt::LeftButton);
    }

    void tallWindowsKeepTheirTopOnScreen()
    {
        const ZARNWindow window;
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect tall(10, available.top() + 50, 300, available.height() + 200);
        QCOMPARE(window.constrainFrameRect(tall, nullptr), QRect(10, available.top(), 300, available.height() + 200));
        const QRect fits(10, available.top() + 50, 300, available.height());
        QCOMPARE(window.constrainFrameRect(fits, nullptr), fits);

        // Shown, a window taller than the screen is moved up, not shrunk.
        ZARNWindow tallWindow;
        tallWindow.setGeometry(10, available.top() + 50, 300, available.height() + 200);
        tallWindow.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tallWindow));
        QCOMPARE(tallWindow.frameGeometry().top(), available.top());
        QCOMPARE(tallWindow.height(), available.height() + 200);
    }

    void worksWhenModal_data()
    {
        QTest::addColumn<bool>("worksWhenModal");
        QTest::newRow("marked") << true;
        QTest::newRow("not marked") << false;
    }

    void worksWhenModal()
    {
        QFETCH(bool, worksWhenModal);
        ZARNWindow palette;
        palette.setWorksWhenModal(worksWhenModal);
        auto *button = new QPushButton(u"Pick"_s, &palette);
        button->setGeometry(10, 10, 80, 30);
        palette.show();
        QVERIFY(QTest::qWaitForWindowExposed(&palette));
        QSignalSpy clicked(button, &QPushButton::clicked);

        QDialog dialog;
        dialog.resize(100, 100);
        QTimer::singleShot(50, &dialog, [&] {
            QTest::mouseClick(palette.windowHandle(), Qt::LeftButton, {}, QPoint(30, 20));
            dialog.accept();
        });
        QTimer::singleShot(5000, &dialog, &QDialog::reject);
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(clicked.size(), worksWhenModal ? 1 : 0);
        QVERIFY(!palette.windowHandle()->transientParent());
    }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
