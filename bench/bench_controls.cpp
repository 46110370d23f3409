// SPDX-License-Identifier: LGPL-2.1-or-later
// Painting a chiseled text field beside a plain QLabel with the same text and font: once the
// field has drawn its text, and with a new text before every paint. And a new title on the
// chiseled pop-up button (its layout and three appearances) beside painting one QPushButton.
#include "BenchHarness.h"

#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNChiseledTextPopUpButton.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace {

template<typename Label>
double paintCost(Label &label, QImage &canvas, bool newText)
{
    int count = 0;
    return brixelbench::nanosecondsPerCall([&] {
        if (newText)
            label.setText(QStringLiteral("Library %1").arg(++count % 1000));
        label.render(&canvas);
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(11);
    font.setBold(true);
    QApplication::setFont(font);

    QImage canvas(200, 24, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    ZARNChiseledTextField field;
    QLabel label;
    // Through each class's own setText(), so the field's light copy has the text as well.
    field.resize(canvas.size());
    field.setText(QStringLiteral("Library"));
    label.resize(canvas.size());
    label.setText(QStringLiteral("Library"));

    brixelbench::report("ZARNChiseledTextField paint, same text", paintCost(field, canvas, false),
                        "QLabel paint, same text", paintCost(label, canvas, false));
    brixelbench::report("ZARNChiseledTextField paint, new text", paintCost(field, canvas, true),
                        "QLabel paint, new text", paintCost(label, canvas, true));

    QWidget toolbar;
    toolbar.resize(400, 30);
    auto &popUp = *new ZARNChiseledTextPopUpButton(&toolbar);
    popUp.SetSizeHeightToFit(true);
    QPushButton pushButton(QStringLiteral("All Documents"));
    pushButton.resize(120, 24);
    int count = 0;
    const double setTitle = brixelbench::nanosecondsPerCall(
        [&] { popUp.setTitle(count++ % 2 ? QStringLiteral("All Documents") : QStringLiteral("Images")); });
    const double pushButtonPaint = brixelbench::nanosecondsPerCall([&] { pushButton.render(&canvas); });
    brixelbench::report("ZARNChiseledTextPopUpButton::setTitle", setTitle, "QPushButton paint", pushButtonPaint);
    return 0;
}
