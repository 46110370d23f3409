// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QPainter;
class QRect;
class ZARNSegmentedControl;

/**
 * How a ZARNSegmentedControl draws each segment: as the segmented-control base draws it, and
 * then, unless the segment is the last one, the selected one or the one just left of the
 * selected one, a separator one pixel wide along the segment's right edge is recorded for the
 * control (ZARNSegmentedControl::addSeparator()). With no selection every segment but the last
 * gets one.
 *
 * A control owns its cell; subclass it to change how segments are drawn and pass it to
 * ZARNSegmentedControl::setCell().
 */
class BRIXEL_EXPORT ZARNSegmentedCell
{
public:
    virtual ~ZARNSegmentedCell();
    /// Draws \a segment of \a control into \a frame and records its separator.
    virtual void drawSegment(QPainter &painter, int segment, const QRect &frame, ZARNSegmentedControl &control) const;
};
