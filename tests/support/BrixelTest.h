// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>

#include <functional>

class QWidget;

/**
 * Helpers shared by the widget tests: render what a user would see and look at its pixels.
 */
namespace brixeltest {

/// Gives the application the DejaVu Sans font the tests' text measurements assume.
void useTestFont();

/// An ARGB32 premultiplied image of \a size filled with \a color.
QImage filledImage(QSize size, const QColor &color);

/// Lays out and renders \a widget (and its children) into an ARGB32 premultiplied image of
/// the widget's size, the way it would appear on screen.
QImage renderWidget(QWidget &widget);

/// Renders \a widget and its children, without a window background, over white: the widget
/// as it shows in a white window.
QImage renderOverWhite(QWidget &widget);

/// True when each channel of \a actual is within \a tolerance of \a expected (0..255 scale).
bool colorsClose(const QColor &actual, const QColor &expected, int tolerance = 2);

/// The colour at \a point, or an invalid colour when the point lies outside the image.
QColor colorAt(const QImage &image, QPoint point);

/// Counts the paint events a widget receives from the counter's construction on.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget);
    bool eventFilter(QObject *watched, QEvent *event) override;
    int count = 0;
};

/// The smallest rectangle holding every pixel of \a image whose colour \a matches accepts;
/// a null rectangle when none does.
QRect pixelBounds(const QImage &image, const std::function<bool(const QColor &)> &matches);

} // namespace brixeltest
