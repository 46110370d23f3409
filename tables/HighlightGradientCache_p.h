// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColor>
#include <QImage>

namespace BrixelPrivate {

/**
 * The vertical gradient that fills selected rows, rendered once per row height into an image
 * 64 pixels wide and stretched over each selected row.
 *
 * The colours come from the system highlight colour's hue h, saturation s, brightness
 * (HSV value) b and alpha a: (h, s - 0.15, b + 0.15, a) at the top of the image and
 * (h, s + 0.1, b - 0.1, a) at the bottom, each component kept within 0..1, linear in between.
 * Focus and the enabled state play no part; they only decide whether a view uses the gradient.
 *
 * \code
 * BrixelPrivate::HighlightGradientCache cache;                 // one per view
 * const QImage gradient = cache.image(view->verticalHeader()->defaultSectionSize(),
 *                                     view->palette().color(QPalette::Active, QPalette::Highlight));
 * // on QGuiApplication::applicationStateChanged(Qt::ApplicationActive):
 * cache.invalidate();
 * \endcode
 */
class BRIXEL_AUTOTEST_EXPORT HighlightGradientCache
{
public:
    /**
     * The gradient for rows \a rowHeight high. The image kept from the last call is returned
     * when \a rowHeight, taken as a float, equals lastRowHeight(); otherwise a new one is
     * made from \a systemHighlight and the row height is stored truncated to a whole number.
     *
     * So a fractional row height never matches and rebuilds the image on every call; that is
     * intended, and views that keep whole row heights never see it.
     *
     * The image is ceil(\a rowHeight) pixels high, at least 1 and at most 4096 (taller rows
     * stretch it). NaN, zero and negative heights give a 1-pixel-high image; NaN, infinities
     * and heights outside the 32-bit range store -2147483648. An invalid colour counts as
     * opaque black.
     */
    QImage image(qreal rowHeight, const QColor &systemHighlight);

    /// Forgets the stored row height, so the next image() is made with the current colour
    /// (a view calls this when the application becomes active).
    void invalidate();

    /// The row height the kept image was made for, truncated; -1 before the first image and
    /// after invalidate().
    int lastRowHeight() const { return m_lastRowHeight; }

    /// How many images have been made so far.
    int rebuildCount() const { return m_rebuildCount; }

    /// Width of every gradient image, in pixels.
    static constexpr int imageWidth = 64;
    /// Height above which images stop growing.
    static constexpr int maximumImageHeight = 4096;

private:
    QImage m_image;
    int m_lastRowHeight = -1;
    int m_rebuildCount = 0;
};

} // namespace BrixelPrivate
