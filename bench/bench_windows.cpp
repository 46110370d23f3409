// SPDX-License-Identifier: LGPL-2.1-or-later
// Rebuilding a classic window background for a 1,200-high window, as a live resize does at
// every step, beside one full repaint of the same window; and creating and laying out a
// three-button alert beside a QMessageBox with the same texts.
#include "BenchHarness.h"

#include <Brixel/BXAlert.h>
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNWindow.h>

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QPainter>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    Brixel::ZARNSetSystemVersion(0x1039);

    ZARNWindow window;
    window.setShowsResizeIndicator(false);
    window.setFrame(QRect(0, 0, 800, 1200), true);
    QImage canvas(window.size(), QImage::Format_ARGB32_Premultiplied);
    int step = 0;
    const double rebuild = brixelbench::nanosecondsPerCall(
        [&] { window.updateBackgroundColorForSize(QSize(800, 1200 - (++step % 2))); }, 200, 3);
    const double repaint = brixelbench::nanosecondsPerCall([&] { window.render(&canvas); }, 200, 3);
    brixelbench::report("ZARNWindow mode-1 background, 1200 high", rebuild, "repaint of the 800 x 1200 window",
                        repaint);

    const QString statement = QStringLiteral("Delete the selected notes?");
    const QString message = QStringLiteral("The three notes are removed from every device. You cannot undo this.");
    const double alert = brixelbench::nanosecondsPerCall(
        [&] {
            auto made = BXAlert::alertWithTitle(QStringLiteral("Delete"), statement, message, QImage(),
                                                QStringLiteral("Delete"), QStringLiteral("Cancel"),
                                                QStringLiteral("Keep"));
            brixelbench::keep(made.get());
        },
        200, 3);
    const double messageBox = brixelbench::nanosecondsPerCall(
        [&] {
            QMessageBox box(QMessageBox::Warning, QStringLiteral("Delete"), statement);
            box.setInformativeText(message);
            box.addButton(QStringLiteral("Delete"), QMessageBox::AcceptRole);
            box.addButton(QStringLiteral("Cancel"), QMessageBox::RejectRole);
            box.addButton(QStringLiteral("Keep"), QMessageBox::DestructiveRole);
            box.ensurePolished();
            box.adjustSize();
            brixelbench::keep(box.size());
        },
        200, 3);
    brixelbench::report("BXAlert created and laid out, three buttons", alert, "QMessageBox, same texts, laid out",
                        messageBox);
    return 0;
}
