// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNAttributedStringDrawing.h"

#include "TextLayout_p.h"

#include "../platform/ZARNShadow.h"

#include <QFont>
#include <QGlyphRun>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

qreal horizontalOffset(Qt::Alignment alignment, qreal available, qreal lineWidth)
{
    if (alignment & Qt::AlignRight)
        return available - lineWidth;
    if (alignment & Qt::AlignHCenter)
        return (available - lineWidth) / 2;
    return 0;
}

bool isFinite(const QRectF &rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
}

void switchOffAntialiasing(QTextLayout &layout)
{
    QFont font = layout.font();
    font.setStyleStrategy(QFont::NoAntialias);
    layout.setFont(font);
    QList<QTextLayout::FormatRange> formats = layout.formats();
    for (QTextLayout::FormatRange &range : formats)
        range.format.setFontStyleStrategy(QFont::NoAntialias);
    layout.setFormats(formats);
}

} // namespace

ZARNAttributedTextLayout::ZARNAttributedTextLayout(const ZARNAttributedString &string, qreal wrapWidth, bool wraps,
                                           bool antialiased)
    : m_string(string)
{
    const std::optional<QColor> color = BrixelPrivate::prepareTextLayout(
        m_layout, string, wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    if (color && color->isValid())
        m_color = *color;
    if (!antialiased)
        switchOffAntialiasing(m_layout);
    // A NaN width fails the comparison and wraps after every character, as 0 does.
    layOutLines(!wraps ? std::numeric_limits<float>::max() : wrapWidth > 0 ? wrapWidth : 0.0);
}

ZARNAttributedTextLayout::ZARNAttributedTextLayout(const QString &text, const QFont &font, const QColor &color,
                                           Qt::Alignment alignment)
    : m_alignment(alignment)
    , m_color(color)
{
    m_layout.setText(BrixelPrivate::withLineSeparators(text));
    m_layout.setFont(font);
    layOutLines(std::numeric_limits<float>::max());
}

qreal ZARNAttributedTextLayout::cursorX(qsizetype position) const
{
    const int clamped = int(std::clamp<qsizetype>(position, 0, m_layout.text().size()));
    const QTextLine line = m_layout.lineForTextPosition(clamped);
    return line.isValid() ? line.cursorToX(clamped) - line.x() : 0.0;
}

void ZARNAttributedTextLayout::layOutLines(qreal lineWidth)
{
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(lineWidth);
        line.setPosition({0, m_height});
        m_height += line.height();
        m_width = std::max(m_width, line.naturalTextWidth());
    }
    m_layout.endLayout();
}

Qt::Alignment ZARNAttributedTextLayout::alignmentAt(qsizetype index) const
{
    if (index >= m_string.length())
        return m_alignment;
    // Stored as a Qt::Alignment or as its int; a missing alignment reads as 0, which is left.
    return Qt::Alignment(m_string.attribute(ZARNParagraphAlignmentAttributeName, index).toInt());
}

void ZARNAttributedTextLayout::drawShadows(QPainter &painter, const QTextLine &line, QPointF origin) const
{
    const qsizetype lineEnd = line.textStart() + line.textLength();
    for (qsizetype index = line.textStart(); index < lineEnd;) {
        ZARNRange run;
        const QVariant value = m_string.attribute(ZARNShadowAttributeName, index, &run);
        const qsizetype end = std::min(run.end(), lineEnd);
        if (value.isValid()) {
            const ZARNShadow shadow = value.value<ZARNShadow>();
            // The shadow's offset counts y upward; the painter's y runs down.
            const QPointF offset(shadow.offset.width, -shadow.offset.height);
            painter.setPen(shadow.color);
            for (const QGlyphRun &glyphs : line.glyphRuns(int(index), int(end - index)))
                painter.drawGlyphRun(origin + offset, glyphs);
        }
        index = end;
    }
}

void ZARNAttributedTextLayout::draw(QPainter &painter, const QRectF &rect) const
{
    if (!isFinite(rect))
        return;
    const QPen pen = painter.pen();
    for (int pass = 0; pass < 2; ++pass) {
        // Every shadow first, so that no shadow covers a neighbouring line's glyphs.
        if (pass == 0 && m_string.isEmpty())
            continue;
        for (int index = 0; index < m_layout.lineCount(); ++index) {
            const QTextLine line = m_layout.lineAt(index);
            if (line.y() >= rect.height())
                break;
            const qreal offset = horizontalOffset(alignmentAt(line.textStart()), rect.width(), line.naturalTextWidth());
            const QPointF origin = rect.topLeft() + QPointF(offset, 0);
            if (pass == 0) {
                drawShadows(painter, line, origin);
            } else {
                painter.setPen(m_color);
                line.draw(&painter, origin);
            }
        }
    }
    painter.setPen(pen);
}

void Brixel::drawAttributedString(QPainter &painter, const ZARNAttributedString &string, const QRectF &rect, bool wraps,
                          bool antialiased)
{
    ZARNAttributedTextLayout(string, rect.width(), wraps, antialiased).draw(painter, rect);
}

