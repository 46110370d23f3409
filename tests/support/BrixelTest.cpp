// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BrixelTest.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QLayout>
#include <QPainter>
#include <QWidget>

namespace brixeltest {

void useTestFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(10);
    QApplication::setFont(font);
}

QImage filledImage(QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QImage renderWidget(QWidget &widget)
{
    widget.ensurePolished();
    if (auto *layout = widget.layout())
        layout->activate();
    QImage image = filledImage(widget.size(), Qt::transparent);
    widget.render(&image);
    return image;
}

QImage renderOverWhite(QWidget &widget)
{
    widget.ensurePolished();
    QImage image = filledImage(widget.size(), Qt::white);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

bool colorsClose(const QColor &actual, const QColor &expected, int tolerance)
{
    return qAbs(actual.red() - expected.red()) <= tolerance
        && qAbs(actual.green() - expected.green()) <= tolerance
        && qAbs(actual.blue() - expected.blue()) <= tolerance
        && qAbs(actual.alpha() - expected.alpha()) <= tolerance;
}

QColor colorAt(const QImage &image, QPoint point)
{
    if (!image.valid(point))
        return {};
    return image.pixelColor(point);
}

PaintCounter::PaintCounter(QWidget *widget)
{
    widget->installEventFilter(this);
}

bool PaintCounter::eventFilter(QObject *, QEvent *event)
{
    count += event->type() == QEvent::Paint;
    return false;
}

QRect pixelBounds(const QImage &image, const std::function<bool(const QColor &)> &matches)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (matches(image.pixelColor(x, y)))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace brixeltest
