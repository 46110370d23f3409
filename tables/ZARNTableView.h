// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNAttributedString.h"
#include "../platform/ZARNShadow.h"
#include <Brixel/brixel_export.h>

#include <QTableView>

#include <memory>
#include <optional>

class QDrag;
class QMenu;
class ZARNTableColumn;
class ZARNTableViewDelegate;

/**
 * A table view that draws its own selection (rectangle, capsule or rounded rectangle),
 * hides and restores columns by identifier, moves editing like a spreadsheet and shows a
 * message while it has no rows. Any Qt model drives it, as it drives a QTableView; a model
 * that also inherits ZARNTableViewDataSource is asked the context-click question too.
 *
 * Rows are the unit of selection (SelectRows). The keyboard works as follows:
 * - Return and Enter go to the delegate's tableViewReturnKey(); Backspace and Delete to its
 *   tableViewDeleteBackward() (see deleteBackward()). The table consumes these keys with or
 *   without a delegate.
 * - Up and Down move the selection as in QTableView and, when selectedRow() changed, send
 *   the delegate tableViewSelectionIsChanging() and emit selectionIsChanging().
 * - Typing letters does not select rows by their text.
 * While a cell is being edited, Tab, Backtab (Shift+Tab) and Return commit the text and open
 * the next editable cell: see closeEditor().
 *
 * Columns are ZARNTableColumn objects, one per model column; the table's columns
 * (tableColumns(), numberOfColumns() and every column index below) are the shown ones, left
 * to right. The horizontal header is a ZARNNSTableHeaderView.
 *
 * A right click (or a Control-click, Qt::MetaModifier) applies the context-click selection
 * rule described at ZARNTableViewDataSource::respondsToTableviewShouldSelectRow() and pops up
 * menu(); contextMenuRow() names the clicked row while the menu is open.
 *
 * \code
 * auto *table = new ZARNTableView(parent);
 * table->setModel(model);
 * table->setDelegate(&controller);
 * table->setMenu(rowMenu);
 * table->setHighlightStyle(ZARNTableView::Capsule);
 * table->setEmptyString(tr("No downloads"));
 * \endcode
 *
 * The table paints its rows itself (see paintEvent()): selected rows get the highlight shape
 * of highlightStyle() in the selection colours (selectionColor() and friends), filled with
 * highlightGradientImage() while the table is focused in the active window, and their text
 * cells draw white, bold, shadowed text. Only the cells of the columns inside the area being
 * painted are drawn; the delegate's tableViewWillDisplayCell() still hears about every shown
 * column. A span (setSpan()) draws its anchor cell once, into the span's rectangle. With
 * alternatingRowColors() on, alternate rows are filled with the palette's AlternateBase
 * across the viewport, under the selection shapes; cells get QStyleOptionViewItem::Alternate
 * as under QTableView.
 *
 * The column header is clickable and highlights the sections of selected columns, as
 * QTableView's own: with sorting enabled a click sorts by that column.
 *
 * While a drag hovers over the table, the place it would drop is marked: a rounded frame on a
 * row, a line with a circle between rows, or a frame around the whole view. Qt's own drop
 * indicator is off.
 */
class BRIXEL_EXPORT ZARNTableView : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(HighlightStyle highlightStyle READ highlightStyle WRITE setHighlightStyle)
    Q_PROPERTY(QString emptyString READ emptyString WRITE setEmptyString)
public:
    /// How selected rows are drawn, by this view and by ZARNOutlineView. A value outside the
    /// three (from a cast) draws as Rectangle.
    enum class HighlightStyle : quint32 {
        Rectangle = 0, ///< a plain rectangle
        Capsule = 1, ///< a rounded rectangle with half-circle ends
        RoundedRectangle = 2, ///< corners rounded by a fifth of the row's height
    };
    Q_ENUM(HighlightStyle)

    /// How long after the last resize inLiveResize() keeps answering true, in milliseconds.
    static constexpr int LiveResizeSettleInterval = 250;

    explicit ZARNTableView(QWidget *parent = nullptr);
    ~ZARNTableView() override;

    /**
     * The shadow under the text of selected cells: one point below, blur 1.0, black at 80%
     * opacity. The same value lives for the whole process.
     */
    static const ZARNShadow &standardShadow();

    /// standardShadow() at 30% opacity, for text in inactive surroundings.
    static const ZARNShadow &deactivatedShadow();

    /**
     * \a text restyled as the contents of a selected cell are drawn, on a copy. Below system
     * version 0x1040: white foreground on every character that has attributes, then
     * standardShadow() on every character. From 0x1040 on: the standard shadow, then the bold
     * form of the first character's font (or of \a cellFont when it has none) and white
     * foreground on every character. Empty text comes back as it is. The text cells restyle
     * selected rows with this.
     */
    static ZARNAttributedString highlightCellContents(const ZARNAttributedString &text, const QFont &cellFont);

    /// The object told about keys and editing and asked about cells; not owned, null for none.
    ZARNTableViewDelegate *delegate() const;
    void setDelegate(ZARNTableViewDelegate *delegate);

    /// The menu a right click or Control-click pops up; not owned, null for none. A menu
    /// deleted elsewhere reads as null.
    QMenu *menu() const;
    void setMenu(QMenu *menu);

    /// The shape of selected rows; Rectangle by default. Setting another style repaints.
    HighlightStyle highlightStyle() const;
    void setHighlightStyle(HighlightStyle style);

    /// The plain text shown while the table has no rows; a null string shows nothing. Setting
    /// other text repaints.
    QString emptyString() const;
    void setEmptyString(const QString &string);

    /// The styled text shown while the table has no rows, in place of emptyString() when set
    /// (even when empty); std::nullopt clears it. Setting it repaints.
    std::optional<ZARNAttributedString> emptyAttributedString() const;
    void setEmptyAttributedString(const std::optional<ZARNAttributedString> &string);

    /// True only while the picture of dragged rows is being made, so that the rows are drawn
    /// without highlighted cell contents in it.
    bool inDragPrep() const;

    /// The rectangle of \a row across the viewport, in viewport coordinates: empty for a row
    /// that does not exist or is hidden.
    QRect rectOfRow(int row) const;

    /// The row the open context menu was popped up for; -1 while no menu is open or when the
    /// click was below the last row.
    int contextMenuRow() const;

    /// The row whose selection the arrow keys follow: the current index's row when that row
    /// is selected, otherwise the first selected row, -1 when no row is selected.
    int selectedRow() const;

    /// True from a resize until LiveResizeSettleInterval ms after the last one, when
    /// viewDidEndLiveResize() runs; false when there is no QApplication.
    bool inLiveResize() const;

    /// The shown columns, left to right.
    QList<ZARNTableColumn *> tableColumns() const;
    int numberOfColumns() const;

    /// The index of the first shown column whose identifier is \a identifier, or -1.
    int columnWithIdentifier(const QString &identifier) const;
    /// The first shown column whose identifier is \a identifier, or null.
    ZARNTableColumn *tableColumnWithIdentifier(const QString &identifier) const;

    /**
     * Hides the shown column at \a index (dropping its sort indicator) and keeps it for
     * showColumnWithIdentifier(); an index outside 0 .. numberOfColumns() - 1 does nothing.
     * Unlike QTableView::hideColumn(), which it hides, \a index counts shown columns.
     */
    void hideColumn(int index);
    /// hideColumn() of columnWithIdentifier(); an unknown identifier does nothing.
    void hideColumnWithIdentifier(const QString &identifier);
    /// The first hidden column (in hiding order) with \a identifier; null for a null
    /// identifier or when none matches.
    ZARNTableColumn *hiddenTableColumnWithIdentifier(const QString &identifier) const;
    /// Shows hiddenTableColumnWithIdentifier() again as the rightmost column, without its
    /// former place or sort indicator; an identifier no hidden column has does nothing.
    void showColumnWithIdentifier(const QString &identifier);
    /// The columns hidden by hideColumn(), in hiding order.
    QList<ZARNTableColumn *> hiddenTableColumns() const;

    /**
     * Whether the cell at shown column \a column and \a row may be edited. When the delegate
     * answers tableViewShouldEditTableColumn() (with a null column for an index out of
     * range), its answer decides, even against a read-only column. Otherwise the column must
     * be editable and the model must flag the cell Qt::ItemIsEditable, since Qt cannot edit a
     * cell its model keeps read-only (a delegate's yes for such a cell ends editing instead
     * of opening it). Out-of-range cells are not editable.
     */
    bool isEditableAtColumn(int column, int row);

    /// The gradient that fills selected rows, for the current row height and the palette's
    /// highlight colour; made once per row height.
    QImage highlightGradientImage();

    /// Does nothing: this table has no selection by typing.
    void keyboardSearch(const QString &search) override;

    using QTableView::edit;

public Q_SLOTS:
    /// Sends the delegate tableViewDeleteBackward(), as Backspace and Delete do.
    void deleteBackward();

    /// Runs when the application becomes active: the system highlight colour may have
    /// changed, so the selection gradient is made again and the rows repainted.
    void userDefaultsDidChange();

Q_SIGNALS:
    /// Up or Down changed selectedRow().
    void selectionIsChanging();

protected:
    /**
     * The menu for a left click with the Control modifier (Qt::MetaModifier). A single press
     * first selects like a plain click; a double-click event does not. Answers menu().
     */
    virtual QMenu *menuForEvent(QMouseEvent *event);

    /// Runs once a series of resizes has settled: lays the rows out again when a column's
    /// width changed since the last time and wordWrap() is on, as rows of wrapped text may
    /// then change height.
    virtual void viewDidEndLiveResize();

    /// Runs \a drag (QDrag::exec) and answers the action the drop took.
    virtual Qt::DropAction execDrag(QDrag *drag, Qt::DropActions supportedActions, Qt::DropAction defaultAction);

    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /**
     * Draws the rows in the dirty area: the delegate's tableViewWillDrawRect() first, then the
     * selection shape of every selected row, the cells of every row, the grid when showGrid()
     * (in the style's grid colour), the context-menu row again over its highlight when it is
     * selected, the drop mark, and, while the model has no rows, emptyAttributedString() or
     * emptyString() centred on the viewport (not drawn when it is taller than the viewport).
     * Hidden rows and columns are skipped. QTableView's own painting is not used.
     */
    void paintEvent(QPaintEvent *event) override;

    /// Marks where the drag would drop (on a row, between two rows or on the whole view), as
    /// Qt would place it; nothing when the drop is refused.
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /**
     * Makes the picture of the dragged rows: their cells as the table draws them, on a
     * transparent background, with inDragPrep() true meanwhile so that selected rows show
     * their plain contents. Then runs the drag through execDrag(). After a move out of the view
     * (or any move unless the mode is InternalMove), the moved rows are removed from the
     * model, or their cells cleared in overwrite mode, as QAbstractItemView does.
     */
    void startDrag(Qt::DropActions supportedActions) override;

    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;

protected Q_SLOTS:
    /**
     * Moves editing on Tab, Backtab and Return (the editor's EditNextItem, EditPreviousItem
     * and SubmitModelCache hints) as the editing-move search finds: the editor's value is
     * committed (even when the editor never emitted commitData()) and the model's cache
     * submitted, the target row becomes the only selected row, and the target cell opens for
     * editing with its text selected. For Tab the delegate's tableViewWillTabToColumn() may
     * change the target first; a target it moves outside the table just ends editing.
     * Any other hint, or no editable target, is QTableView's.
     */
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    friend class ZARNTableViewPrivate;

    void contextClick(QMouseEvent *event);
    void editCell(const QModelIndex &index);

    std::unique_ptr<class ZARNTableViewPrivate> const d;
};
