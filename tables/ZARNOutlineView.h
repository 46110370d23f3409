// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNTableView.h"
#include <Brixel/brixel_export.h>

#include <QTreeView>

#include <memory>

class QMenu;
class ZARNOutlineViewDelegate;
class ZARNTableColumn;

/**
 * A tree view with the table view's keys, context click, drag-image flag and live resize,
 * plus an enabled state that greys the whole view out and restores it, a choice of
 * collapsing the items a drag opened, and control over the disclosure marker.
 *
 * Keys: Return and Enter go to the delegate's outlineViewReturnKey(), Backspace and Delete
 * to outlineViewDeleteBackward(), and neither reaches Qt. Up and Down move the selection as
 * in any tree view and send outlineViewSelectionIsChanging() when the selected row changed.
 * Left and Right expand and collapse as in any tree view. Typing does not select by text.
 *
 * Mouse: a right press selects the row alone unless it is already selected (the data source
 * is not asked) and pops up menu(). A left click with the Meta modifier (the Control key of
 * Mac keyboards) selects like a click and then pops up the menu; a double click with it pops
 * up the menu only. The keyboard's menu key pops it up at the current row. Where an item
 * hides its disclosure marker, the whole click is handed to Qt 20 pixels further right, so
 * that it acts on the row instead of the marker's place.
 *
 * Disabled (QWidget::setEnabled(false) on the view or an ancestor), the view saves the text
 * and background colours of its text cells and the enabled state of its scroll bars, greys
 * the cells (text white 0.5, background white 0.94) and disables the scroll bars; enabling
 * restores them. A disabled view ignores clicks and keys, and Qt gives a disabled widget no
 * keyboard focus (setFocus() and the Tab chain pass it by), which is what
 * acceptsFirstResponder() reports: isEnabled().
 *
 * The view draws its rows itself (drawRow()): a selected row gets the highlightStyle() shape,
 * from the item's indentation when highlightFollowsIndentation(); an item with children
 * gets the delegate's disclosure image or the "expanded"/"collapsed" artwork (imageNamed())
 * right against its cell; an item whose marker is hidden has its tree cell widened 16 to the
 * left. The open menu's selected row and a drag's drop target are drawn over the rows.
 * Cells get the QStyleOptionViewItem QTreeView gives its delegates (viewItemPosition, the
 * Alternate feature, State_Children, State_Open and State_Sibling); only the columns inside
 * the painted area are drawn. With alternatingRowColors() on, alternate rows are filled with
 * the palette's AlternateBase across the viewport, under the selection shape. A row spanned
 * by setFirstColumnSpanned() draws its first model column alone, across the row.
 *
 * Its cells are a ZARNTextFieldCell (the item delegate) and its header a
 * ZARNNSTableHeaderView. Columns are the shown header sections in visual order, with one
 * ZARNTableColumn each; they can be hidden and shown again by identifier as in
 * ZARNTableView, except that the last shown column cannot be hidden, and hiding the column
 * that holds the tree moves the tree to the first other column.
 *
 * \code
 * auto *outline = new ZARNOutlineView(parent);
 * outline->setModel(folders);
 * outline->setDelegate(&controller);
 * outline->setMenu(folderMenu);
 * outline->setAutoExpandDelay(700);          // open folders under a drag...
 * outline->setShouldCollapseAutoExpandedItemsForDeposits(true);   // ...and close them after
 * \endcode
 */
class BRIXEL_EXPORT ZARNOutlineView : public QTreeView
{
    Q_OBJECT
    Q_PROPERTY(ZARNTableView::HighlightStyle highlightStyle READ highlightStyle WRITE setHighlightStyle)
    Q_PROPERTY(bool highlightFollowsIndentation READ highlightFollowsIndentation WRITE setHighlightFollowsIndentation)
    Q_PROPERTY(bool showsIndentationMarker READ showsIndentationMarker WRITE setShowsIndentationMarker)
    Q_PROPERTY(bool drawsBranchIndicators READ drawsBranchIndicators WRITE setDrawsBranchIndicators)
public:
    explicit ZARNOutlineView(QWidget *parent = nullptr);
    ~ZARNOutlineView() override;

    /// The delegate, not owned; null (the default) means no delegate messages are sent.
    ZARNOutlineViewDelegate *delegate() const;
    void setDelegate(ZARNOutlineViewDelegate *delegate);

    /// The context menu, not owned; null (the default) for none. Deleting it unsets it.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /// How selected rows are drawn: ZARNTableView::HighlightStyle (any other value draws as a
    /// rectangle). Plain assignment, no redraw; 0 by default.
    ZARNTableView::HighlightStyle highlightStyle() const;
    void setHighlightStyle(ZARNTableView::HighlightStyle style);

    /// Whether a selected row's highlight starts at its item's indentation; true by default.
    bool highlightFollowsIndentation() const;
    void setHighlightFollowsIndentation(bool follows);

    /// Whether items show their disclosure marker when the delegate does not say; true by
    /// default.
    bool showsIndentationMarker() const;
    void setShowsIndentationMarker(bool shows);

    /// Whether the items a drag opened close again after a successful drop; false by default.
    bool shouldCollapseAutoExpandedItemsForDeposits() const;
    void setShouldCollapseAutoExpandedItemsForDeposits(bool collapse);

    /// Whether the items a drag opened close again after a failed drop or a drag that left
    /// the view; true by default.
    bool shouldCollapseAutoExpandedItemsForFailedDeposits() const;
    void setShouldCollapseAutoExpandedItemsForFailedDeposits(bool collapse);

    /// The question asked after a drop: the successful-drop flag when \a deposited, else the
    /// failed-drop flag.
    bool shouldCollapseAutoExpandedItemsForDeposited(bool deposited) const;

    /// The row (its column-0 item) the open menu was popped up for; invalid while no menu is
    /// open or when it was opened below the last row.
    QModelIndex contextMenuItem() const;

    /// Does nothing: there is no selection by typing.
    void keyboardSearch(const QString &search) override;

    /// True while the drag image is being made, so that rows draw without highlighted cells.
    bool inDragPrep() const;

    /// Whether the view is being resized: from a resize until
    /// ZARNTableView::LiveResizeSettleInterval ms after the last one, when the rows are laid
    /// out again if a column's width changed, wordWrap() is on and uniformRowHeights() is off
    /// (only then can a row's height change). False without a QApplication.
    bool inLiveResize() const;

    /// Whether the view takes keyboard focus: isEnabled().
    bool acceptsFirstResponder() const;

    /// Whether the disclosure markers are drawn; zapIndentationMarker() turns them off.
    bool drawsBranchIndicators() const;
    void setDrawsBranchIndicators(bool draws);

    /// The number of rows shown: the items under the root that are not hidden and whose
    /// ancestors below the root are all expanded.
    int numberOfRows() const;

    /// The row height the cached selection gradient was made for; -1 when it must be remade.
    int lastHighlightGradientRowHeight() const;

    /**
     * The selection gradient for the height of the first row,
     * from the palette's active highlight colour; made again when the row height changed or
     * the application became active. Without rows: a 1-pixel-high image.
     */
    QImage highlightGradientImage();

    /// The shown columns, left to right.
    QList<ZARNTableColumn *> tableColumns() const;
    int numberOfColumns() const;

    /// The index among tableColumns() of the first shown column with \a identifier; -1 for none.
    int columnWithIdentifier(const QString &identifier) const;
    /// The shown column with \a identifier; null for none.
    ZARNTableColumn *tableColumnWithIdentifier(const QString &identifier) const;

    /**
     * Hides the shown column at \a index (among tableColumns(), not a model column, unlike
     * QTreeView::hideColumn()) and keeps it for showColumnWithIdentifier(); its sort
     * indicator goes. Nothing happens for an index out of range or when fewer than two
     * columns are shown. Hiding the column that holds the tree moves the tree to column 1
     * when \a index is 0, else to column 0. The rows are laid out again, as
     * QTreeView::hideColumn() does, so they lose the height a tall hidden column gave them.
     */
    void hideColumn(int index);
    /// hideColumn() of columnWithIdentifier(); an unknown identifier does nothing.
    void hideColumnWithIdentifier(const QString &identifier);
    /// The first hidden column (in hiding order) with \a identifier; null for none.
    ZARNTableColumn *hiddenTableColumnWithIdentifier(const QString &identifier) const;
    /// Shows hiddenTableColumnWithIdentifier() again, as the rightmost column, and lays the
    /// rows out again.
    void showColumnWithIdentifier(const QString &identifier);
    /// The hidden columns in hiding order.
    QList<ZARNTableColumn *> hiddenTableColumns() const;

    /**
     * Saves the look that disabling greys out: the text and background colours of the text
     * cells, one pair per shown column whose cell is a text cell, in column order, and the
     * enabled state of each scroll bar that can appear (false for one whose policy is
     * Qt::ScrollBarAlwaysOff).
     */
    void saveState();

    /// Writes "numberOfRows:  <rows> (<address in hex>)" to the info log, then lays out the
    /// scroll bars and header again. A diagnostic aid.
    void tile2();

    using QTreeView::edit;

public Q_SLOTS:
    /// Sends outlineViewDeleteBackward() to the delegate, as Backspace does.
    void deleteBackward();

    /// The application became active: the selection gradient is remade with the current
    /// system colours on its next use, and the rows are redrawn.
    void userDefaultsDidChange();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    /// Draws the row of \a index: its selection shape, disclosure marker and cells.
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options, const QModelIndex &index) const override;
    /// Draws nothing: drawRow() draws the disclosure markers.
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override;

private:
    friend class ZARNOutlineViewPrivate;
    std::unique_ptr<class ZARNOutlineViewPrivate> const d;
};
