// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNSegmentedControlBase.h"

#include <QStringList>

#include <memory>

class ZARNSegmentedCell;

/**
 * A segmented control that draws thin dark separators between unselected segments while its
 * window is active: black at 33% opacity, one pixel wide along the right edge of each segment
 * that its cell (ZARNSegmentedCell) recorded while drawing. In an inactive window no separators
 * are drawn; they come back when the window becomes active again.
 *
 * \code
 * auto *view = new ZARNSegmentedControl(toolbar);
 * view->setSegmentCount(4);
 * view->setSelectedSegment(0);     // separators after segments 1 and 2
 * \endcode
 *
 * The separators are kept in a table shared by all controls, keyed by each control's
 * identity; rectangles are stored as text "{{x, y}, {w, h}}" in the control's coordinates.
 * Each repaint empties the control's entry and fills it again. Entries are never removed, so a
 * later control at the address of one that is gone starts from an emptied list at its first
 * repaint.
 */
class BRIXEL_EXPORT ZARNSegmentedControl : public ZARNSegmentedControlBase
{
    Q_OBJECT
public:
    explicit ZARNSegmentedControl(QWidget *parent = nullptr);
    ~ZARNSegmentedControl() override;

    /// The cell that draws the segments.
    const ZARNSegmentedCell &cell() const;
    /// Replaces the cell; a null cell restores a plain ZARNSegmentedCell.
    void setCell(std::unique_ptr<ZARNSegmentedCell> cell);

    /// The separators recorded for \a control; empty when none are, or for null.
    static QStringList separatorsForSegmentedControl(const ZARNSegmentedControl *control);
    /// Records the separator \a rect ("{{x, y}, {w, h}}") for \a control; nothing for an
    /// empty string or a null control.
    static void addSeparator(const QString &rect, const ZARNSegmentedControl *control);
    /// Empties \a control's separators (its entry in the table stays).
    static void removeSeparatorsForSegmentedControl(const ZARNSegmentedControl *control);

protected:
    void drawSegment(QPainter &painter, int segment, const QRect &frame) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class ZARNSegmentedCell;
    std::unique_ptr<class ZARNSegmentedControlPrivate> const d;
};
