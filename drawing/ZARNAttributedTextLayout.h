// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNAttributedString.h"
#include <Brixel/brixel_export.h>

#include <QColor>
#include <QRectF>
#include <QTextLayout>

class QPainter;

/**
 * Attributed text laid out once, to be measured and then drawn without laying it out again.
 * Lines start at the top and follow each other at their full height (leading included), the
 * same lines ZARNAttributedStringHeightForWidth() adds up.
 *
 * \code
 * const ZARNAttributedTextLayout text(title, cell.width(), false);
 * if (text.width() <= cell.width())
 *     text.draw(painter, cell);
 * \endcode
 */
class BRIXEL_EXPORT ZARNAttributedTextLayout
{
public:
    /**
     * Lays out \a string. With \a wraps, lines break at word boundaries (or anywhere in a word
     * longer than a line) to fit \a wrapWidth; a width that is not positive, or NaN, breaks
     * after every character. Without it, only the text's own line breaks ("\n", "\r", U+2028)
     * start new lines. \a antialiased false draws the glyphs without font smoothing
     * (QFont::NoAntialias), in pure pixels.
     */
    ZARNAttributedTextLayout(const ZARNAttributedString &string, qreal wrapWidth, bool wraps = true, bool antialiased = true);

    /**
     * Plain \a text in one \a font and \a color with the horizontal part of \a alignment, laid
     * out without wrapping: what the constructor above gives for a string carrying these three
     * attributes on every character, without building that string.
     */
    ZARNAttributedTextLayout(const QString &text, const QFont &font, const QColor &color, Qt::Alignment alignment);

    ZARNAttributedTextLayout(const ZARNAttributedTextLayout &) = delete;
    ZARNAttributedTextLayout &operator=(const ZARNAttributedTextLayout &) = delete;

    /// The widest line's width, trailing spaces excluded; 0 for empty text.
    qreal width() const { return m_width; }
    /**
     * How far text position \a position (the place before the character there) is from the
     * left end of its line. For left-to-right text on one line that is the width of the text
     * before the position, a close estimate of how wide that start of the text is alone.
     * Positions outside the text are taken as its start or end.
     */
    qreal cursorX(qsizetype position) const;
    /// The lines' heights added up. Empty text still has one empty line of its font's height.
    qreal height() const { return m_height; }

    /**
     * Draws the text with its top left at \a rect's top left. Each line is placed within
     * \a rect's width by its paragraph's alignment (right, centred, anything else left) and may
     * reach beyond it; a line that starts at or below \a rect's bottom is not drawn. A
     * rectangle with a NaN or infinite value draws nothing. The painter's pen is the same
     * afterwards.
     */
    void draw(QPainter &painter, const QRectF &rect) const;

private:
    void layOutLines(qreal lineWidth);
    Qt::Alignment alignmentAt(qsizetype index) const;
    void drawShadows(QPainter &painter, const QTextLine &line, QPointF origin) const;

    QTextLayout m_layout;
    ZARNAttributedString m_string;
    Qt::Alignment m_alignment = Qt::AlignLeft;
    QColor m_color = Qt::black;
    qreal m_width = 0;
    qreal m_height = 0;
};
