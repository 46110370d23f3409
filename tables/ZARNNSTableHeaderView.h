// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QHeaderView>

#include <memory>

class ZARNTableColumn;
class ZARNNSTableHeaderViewPrivate;

namespace BrixelPrivate {
class TableColumnList;
}

/**
 * The horizontal header of the library's table and outline views: a double-click on a column
 * divider fits the column to its data (sizeToFitData()) instead of Qt's
 * resizeColumnToContents(), and while its view is disabled the header ignores the mouse.
 *
 * A double-click counts as one on a divider when it is less than 10 points from the right edge
 * of a shown Interactive column, whatever grip margin the style gives Qt's own resize handles
 * (4 pixels with the stock styles). The column fitted is the one whose right edge is nearest
 * the click; at equal distances the leftmost column wins. The header's
 * own handling (sectionHandleDoubleClicked(), and so the view's resizeColumnToContents()) does
 * not happen then. Any other double-click, or any double-click while
 * resizeColumnsOnDoubleClick() is false, goes to QHeaderView as usual.
 *
 * \code
 * auto *header = new ZARNNSTableHeaderView(view);
 * view->setHorizontalHeader(header);
 * \endcode
 *
 * In ZARNTableView and ZARNOutlineView the header works on the view's own column objects;
 * elsewhere it makes its own for the item view it belongs to (its parent widget).
 */
class BRIXEL_EXPORT ZARNNSTableHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    explicit ZARNNSTableHeaderView(QWidget *parent = nullptr);
    ~ZARNNSTableHeaderView() override;

    /// Whether a double-click on a divider fits the column to its data; true by default.
    bool resizeColumnsOnDoubleClick() const;
    void setResizeColumnsOnDoubleClick(bool resize);

    /**
     * The column a double-click at \a x (viewport coordinates) fits: the shown Interactive
     * column whose right edge is nearest \a x, when less than 10 points away; otherwise null.
     */
    ZARNTableColumn *columnToFitAt(qreal x);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    friend class ZARNNSTableHeaderViewPrivate;
    bool viewIsEnabled() const;
    BrixelPrivate::TableColumnList &columns();

    std::unique_ptr<ZARNNSTableHeaderViewPrivate> const d;
};
