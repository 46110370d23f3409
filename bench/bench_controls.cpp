// SPDX-License-Identifier: LGPL-2.1-or-later
// Painting a chiseled text field beside a plain QLabel with the same text and font: once the
// field has drawn its text, and with a new text before every paint.
#include "BenchHarness.h"

#include <Brixel/ZARNChiseledTextField.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>

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
    for (QLabel *each : {static_cast<QLabel *>(&field), &label}) {
        each->resize(canvas.size());
        each->setText(QStringLiteral("Library"));
    }

    brixelbench::report("ZARNChiseledTextField paint, same text", paintCost(field, canvas, false),
                        "QLabel paint, same text", paintCost(label, canvas, false));
    brixelbench::report("ZARNChiseledTextField paint, new text", paintCost(field, canvas, true),
                        "QLabel paint, new text", paintCost(label, canvas, true));
    return 0;
}
