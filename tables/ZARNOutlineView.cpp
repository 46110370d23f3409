// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNOutlineView.h"

#include "HighlightGradientCache_p.h"
#include "ItemViewBehaviour_p.h"
#include "ZARNNSTableHeaderView_p.h"
#include "ZARNOutlineViewDelegate.h"
#include "RowPainter_p.h"
#include "ZARNTableColumn.h"
#include "TableColumnList_p.h"
#include "ZARNTextFieldCell.h"

#include "../drawing/ZARNNSImageAdditions.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QScrollBar>

#include <cmath>

namespace {

// The look of a disabled outline's text cells.
const QColor DisabledTextColor = QColor::fromRgbF(0.5f, 0.5f, 0.5f);
const QColor DisabledBackgroundColor = QColor::fromRgbF(0.94f, 0.94f, 0.94f);

// How far a click is moved right when its item hides the disclosure marker: the marker's
// width, so the click lands on the row's content.
constexpr qreal HiddenMarkerClickShift = 20.0;

// A copy of \a event with every position moved \a dx to the right.
std::unique_ptr<QMouseEvent> shiftedEvent(const QMouseEvent &event, qreal dx)
{
    const QPointF delta(dx, 0.0);
    auto shifted = std::make_unique<QMouseEvent>(event.type(), event.position() + delta, event.scenePosition() + delta,
                                                 event.globalPosition() + delta, event.button(), event.buttons(),
                                                 event.modifiers(), event.pointingDevice());
    shifted->setTimestamp(event.timestamp());
    return shifted;
}

// Saved look of one scroll bar: whether it was enabled in its own right (an ancestor being
// disabled does not count). A bar whose policy keeps it hidden counts as not enabled.
bool scrollBarWasEnabled(const QScrollBar *bar, Qt::ScrollBarPolicy policy)
{
    return policy != Qt::ScrollBarAlwaysOff && !bar->testAttribute(Qt::WA_ForceDisabled);
}

void restoreScrollBar(QScrollBar *bar, Qt::ScrollBarPolicy policy, bool enable)
{
    if (policy != Qt::ScrollBarAlwaysOff)
        bar->setEnabled(enable);
}

int countShownRows(const QTreeView &view, const QModelIndex &parent)
{
    const QAbstractItemModel *model = view.model();
    int rows = 0;
    for (int row = 0, count = model->rowCount(parent); row < count; ++row) {
        if (view.isRowHidden(row, parent))
            continue;
        ++rows;
        const QModelIndex item = model->index(row, 0, parent);
        if (view.isExpanded(item))
            rows += countShownRows(view, item);
    }
    return rows;
}

/// How many ancestors \a item has below \a root: 0 for a top-level item.
int levelOf(QModelIndex item, const QModelIndex &root)
{
    int level = 0;
    for (item = item.parent(); item.isValid() && item != root; item = item.parent())
        ++level;
    return level;
}

} // namespace

class ZARNOutlineViewPrivate
{
public:
    explicit ZARNOutlineViewPrivate(ZARNOutlineView *view);

    QModelIndex rowItemAt(QPoint point) const;
    bool showsMarkerFor(const QModelIndex &item) const;
    qreal clickShiftAt(QPoint point) const;
    void contextClick(const QMouseEvent &event);
    void finishDrop(bool deposited);
    void applyEnabledState(bool enabled);
    QList<ZARNTextFieldCell *> textCells() const;
    int outlineColumnIndex() const;
    int outlineModelColumn() const;
    int visualRowOf(const QModelIndex &item);
    int topVisualRow() const;

    QRect rowRect(const QModelIndex &item) const;
    bool isRowSelected(const QModelIndex &item) const;
    QImage customHighlightImage(const QModelIndex &item) const;
    BrixelPrivate::RowPainter rowPainter(QPainter &painter, const QRect &area) const;
    void drawRow(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &item);
    void drawRow(BrixelPrivate::RowPainter &rows, const QRect &rowRect, const QModelIndex &item,
                 QStyle::State branchState = QStyle::State_None);
    void drawSelection(BrixelPrivate::RowPainter &rows, QRectF rowRect, const QModelIndex &item) const;
    void drawIndicator(QPainter &painter, const QModelIndex &item);
    void drawContextMenuHighlight(BrixelPrivate::RowPainter &rows);
    void drawDropTarget(BrixelPrivate::RowPainter &rows) const;
    void setDropTarget(const BrixelPrivate::DropTarget &target, QList<QPersistentModelIndex> rows);
    QPixmap dragPicture(const QModelIndexList &indexes, const QRect &area);

    ZARNOutlineView *const q;
    BrixelPrivate::ItemViewBehaviour *const behaviour;
    BrixelPrivate::TableColumnList *columns = nullptr;
    BrixelPrivate::HighlightGradientCache gradient;
    ZARNOutlineViewDelegate *delegate = nullptr;
    ZARNTableView::HighlightStyle highlightStyle = ZARNTableView::HighlightStyle::Rectangle;
    bool highlightFollowsIndentation = true;
    bool showsIndentationMarker = true;
    bool collapseForDeposits = false;
    bool collapseForFailedDeposits = true;
    bool drawsBranchIndicators = true;

    // Where the last press happened (viewport coordinates), the drag image's hot spot.
    QPoint pressPosition;
    // The horizontal shift of the click in progress, from its press to its release.
    qreal clickShift = 0.0;
    // True while an event is with QTreeView, which may call the press handler itself.
    bool forwardingMouse = false;

    // The rows of one QTreeView::paintEvent() share one painter and its row painter.
    bool painting = false;
    QRect paintArea;
    std::optional<BrixelPrivate::RowPainter> pass;
    // The last row whose visual row was looked up in this pass, and that row, so that rows
    // drawn top to bottom find theirs in one step.
    QPersistentModelIndex visualRowCursor;
    int visualRowCursorRow = 0;
    // The library's disclosure artwork, looked up once per painting pass.
    std::optional<QImage> expandedArt;
    std::optional<QImage> collapsedArt;

    // The drop a drag over the view would make. Its rows number dropRows: the row under the
    // drag and the rows next to it that exist.
    BrixelPrivate::DropTarget dropTarget;
    QList<QPersistentModelIndex> dropRows;

    bool trackingDrop = false;
    QList<QPersistentModelIndex> autoExpanded;

    QList<QColor> savedTextColors;
    QList<QColor> savedBackgroundColors;
    bool savedVerticalScrollBarEnabled = false;
    bool savedHorizontalScrollBarEnabled = false;
};

ZARNOutlineViewPrivate::ZARNOutlineViewPrivate(ZARNOutlineView *view)
    : q(view)
    , behaviour(new BrixelPrivate::ItemViewBehaviour(view))
{
}

QModelIndex ZARNOutlineViewPrivate::rowItemAt(QPoint point) const
{
    // Rows are found by height alone, as in a table: look in the first shown column.
    const int first = columns->firstShownModelColumn();
    if (first < 0)
        return {};
    return q->indexAt({q->header()->sectionViewportPosition(first), point.y()}).siblingAtColumn(0);
}

bool ZARNOutlineViewPrivate::showsMarkerFor(const QModelIndex &item) const
{
    const std::optional<bool> answer = delegate ? delegate->outlineViewShouldShowIndentationMarkerForItem(q, item) : std::nullopt;
    return answer.value_or(showsIndentationMarker);
}

qreal ZARNOutlineViewPrivate::clickShiftAt(QPoint point) const
{
    const QModelIndex item = rowItemAt(point);
    return item.isValid() && !showsMarkerFor(item) ? HiddenMarkerClickShift : 0.0;
}

void ZARNOutlineViewPrivate::contextClick(const QMouseEvent &event)
{
    // Unlike the table, the outline asks its data source nothing here.
    const QModelIndex item = rowItemAt(event.position().toPoint());
    if (item.isValid()) {
        if (!q->selectionModel()->rowIntersectsSelection(item.row(), item.parent()))
            BrixelPrivate::selectRowAlone(q, item);
        q->viewport()->update();
    }
    behaviour->popUpMenu(behaviour->menu(), item, event.globalPosition().toPoint());
}

void ZARNOutlineViewPrivate::finishDrop(bool deposited)
{
    trackingDrop = false;
    const QList<QPersistentModelIndex> opened = std::exchange(autoExpanded, {});
    if (!q->shouldCollapseAutoExpandedItemsForDeposited(deposited))
        return;
    // Innermost first, the reverse of the order the drag opened them.
    for (auto it = opened.crbegin(); it != opened.crend(); ++it) {
        if (it->isValid())
            q->collapse(*it);
    }
}

QList<ZARNTextFieldCell *> ZARNOutlineViewPrivate::textCells() const
{
    QList<ZARNTextFieldCell *> cells;
    const QList<ZARNTableColumn *> shown = columns->tableColumns();
    for (const ZARNTableColumn *column : shown) {
        if (auto *cell = qobject_cast<ZARNTextFieldCell *>(column->dataCell()))
            cells.append(cell);
    }
    return cells;
}

int ZARNOutlineViewPrivate::outlineColumnIndex() const
{
    // Qt draws the tree in the first shown column unless a model column was chosen.
    const int logical = q->treePosition();
    return logical < 0 ? 0 : columns->columnIndex(columns->columnForModelColumn(logical));
}

int ZARNOutlineViewPrivate::outlineModelColumn() const
{
    const int logical = q->treePosition();
    return logical < 0 ? columns->firstShownModelColumn() : logical;
}

// The visual row of the viewport's top row: its place among all shown rows, as QTreeView
// counts rows for alternating colours.
int ZARNOutlineViewPrivate::topVisualRow() const
{
    if (q->verticalScrollMode() == QAbstractItemView::ScrollPerItem)
        return q->verticalScrollBar()->value();
    const QModelIndex top = rowItemAt({0, 0});
    int visual = 0;
    for (QModelIndex item = q->model()->index(0, 0, q->rootIndex()); item.isValid() && item != top; item = q->indexBelow(item))
        ++visual;
    return visual;
}

int ZARNOutlineViewPrivate::visualRowOf(const QModelIndex &item)
{
    // Rows are drawn top to bottom: the walk from the last row looked up is normally one step.
    // A row above it starts the walk again from the top of the viewport.
    constexpr int MaximumWalk = 4096;
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (attempt == 1 || !visualRowCursor.isValid()) {
            visualRowCursor = rowItemAt({0, 0});
            visualRowCursorRow = topVisualRow();
        }
        QModelIndex row = visualRowCursor;
        for (int step = 0; row.isValid() && step < MaximumWalk; ++step, row = q->indexBelow(row)) {
            if (row == item) {
                visualRowCursor = row;
                visualRowCursorRow += step;
                return visualRowCursorRow;
            }
        }
    }
    return 0;
}

QRect ZARNOutlineViewPrivate::rowRect(const QModelIndex &item) const
{
    const int first = columns->firstShownModelColumn();
    const QRect cell = first >= 0 && item.isValid() ? q->visualRect(item.siblingAtColumn(first)) : QRect();
    return cell.isValid() ? QRect(0, cell.y(), q->viewport()->width(), cell.height()) : QRect();
}

bool ZARNOutlineViewPrivate::isRowSelected(const QModelIndex &item) const
{
    return q->selectionModel() && q->selectionModel()->rowIntersectsSelection(item.row(), item.parent());
}

QImage ZARNOutlineViewPrivate::customHighlightImage(const QModelIndex &item) const
{
    return delegate ? delegate->outlineViewCustomHighlightImageForItem(q, item).value_or(QImage()) : QImage();
}

BrixelPrivate::RowPainter ZARNOutlineViewPrivate::rowPainter(QPainter &painter, const QRect &area) const
{
    QStyleOptionViewItem option;
    q->initViewItemOption(&option);
    // The text-cell inset keeps clear of the disclosure markers' column.
    BrixelPrivate::RowPainter::Options options{highlightStyle, behaviour->inDragPrep(),
                                               outlineModelColumn() != columns->firstShownModelColumn()};
    options.setsItemPosition = true;
    options.hoveredIndex = behaviour->hoveredIndex();
    options.hoverMarksRow = q->selectionBehavior() == QAbstractItemView::SelectRows;
    options.colorGroupFollowsActivity = true;
    BrixelPrivate::RowPainter::CellNotice notice;
    if (delegate) {
        notice = [this](QAbstractItemDelegate *cell, ZARNTableColumn *column, const QModelIndex &index) {
            delegate->outlineViewWillDisplayCell(q, cell, column, index.siblingAtColumn(0));
        };
    }
    return BrixelPrivate::RowPainter(painter, *q, std::move(option), *columns, area, options, std::move(notice),
                                     [this] { return q->highlightGradientImage(); });
}

void ZARNOutlineViewPrivate::drawRow(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &item)
{
    const QRect rowRect(0, option.rect.y(), q->viewport()->width(), option.rect.height());
    // QTreeView hands each row the states of its branch; the cells get them as under Qt.
    const QStyle::State branchState = option.state & (QStyle::State_Children | QStyle::State_Open | QStyle::State_Sibling);
    if (!painting) {
        BrixelPrivate::RowPainter rows = rowPainter(painter, rowRect);
        drawRow(rows, rowRect, item, branchState);
        return;
    }
    if (!pass)
        pass.emplace(rowPainter(painter, paintArea));
    drawRow(*pass, rowRect, item, branchState);
}

void ZARNOutlineViewPrivate::drawRow(BrixelPrivate::RowPainter &rows, const QRect &rowRect, const QModelIndex &item,
                                     QStyle::State branchState)
{
    if (delegate)
        delegate->outlineViewWillDrawItem(q, item, rowRect);
    const bool alternate = q->alternatingRowColors() && (visualRowOf(item) & 1);
    if (alternate)
        rows.drawAlternateBackground(rowRect);
    const bool selected = isRowSelected(item);
    if (selected)
        drawSelection(rows, rowRect, item);
    const bool showsMarker = showsMarkerFor(item);
    if (showsMarker)
        drawIndicator(rows.painter(), item);
    rows.drawCells({item, selected, alternate, branchState, showsMarker ? -1 : outlineModelColumn(),
                    q->isFirstColumnSpanned(item.row(), item.parent())});
}

void ZARNOutlineViewPrivate::drawSelection(BrixelPrivate::RowPainter &rows, QRectF rowRect, const QModelIndex &item) const
{
    if (highlightFollowsIndentation) {
        const bool expandable = q->model()->hasChildren(item);
        rowRect.setLeft(rowRect.left() + BrixelPrivate::indentationOffset(levelOf(item, q->rootIndex()), q->indentation(), expandable));
    }
    rows.drawSelection(rowRect, customHighlightImage(item));
}

void ZARNOutlineViewPrivate::drawIndicator(QPainter &painter, const QModelIndex &item)
{
    const int firstColumn = columns->firstShownModelColumn();
    if (!drawsBranchIndicators || firstColumn < 0 || !q->model()->hasChildren(item))
        return;
    const bool expanded = q->isExpanded(item);
    std::optional<QImage> image;
    if (delegate) {
        image = expanded ? delegate->outlineViewExpandedIndicatorForItem(q, item)
                         : delegate->outlineViewCollapsedIndicatorForItem(q, item);
    }
    if (!image) {
        std::optional<QImage> &art = expanded ? expandedArt : collapsedArt;
        if (!art)
            art = Brixel::imageNamed(expanded ? QStringLiteral("expanded") : QStringLiteral("collapsed"), QStringLiteral("ZARNOutlineView"));
        image = art;
    }
    if (image->isNull())
        return;
    // Right against the left edge of the first column's cell, centred on it vertically.
    const QRect frame = q->visualRect(item.siblingAtColumn(firstColumn));
    const QSizeF size = image->deviceIndependentSize();
    const qreal x = std::trunc(frame.x() - size.width());
    const qreal y = frame.y() + std::trunc((frame.height() - size.height()) * 0.5);
    painter.drawImage(QPointF(x, y), *image);
}

void ZARNOutlineViewPrivate::drawContextMenuHighlight(BrixelPrivate::RowPainter &rows)
{
    const QModelIndex item = behaviour->contextMenuItem();
    const QRect rect = rowRect(item);
    if (rect.isEmpty() || !isRowSelected(item))
        return;
    drawRow(rows, rect, item);
}

void ZARNOutlineViewPrivate::drawDropTarget(BrixelPrivate::RowPainter &rows) const
{
    const auto rectOfRow = [this](int row) {
        return row >= 0 && row < dropRows.size() ? QRectF(rowRect(dropRows[row])) : QRectF();
    };
    switch (dropTarget.kind) {
    case BrixelPrivate::DropTarget::Kind::None:
        return;
    case BrixelPrivate::DropTarget::Kind::OnView:
        rows.drawDropOnView(q->viewport()->rect());
        return;
    case BrixelPrivate::DropTarget::Kind::OnRow:
        // A custom highlight image does not change the outline's drop frame.
        if (const QRectF rect = rectOfRow(dropTarget.row); !rect.isEmpty())
            rows.drawDropOnRow(rect, isRowSelected(dropRows[dropTarget.row]), false);
        return;
    case BrixelPrivate::DropTarget::Kind::BetweenRows:
        rows.drawDropBetweenRows(dropTarget.row, dropTarget.lowerRow, int(dropRows.size()), rectOfRow,
                                 q->viewport()->rect(), dropTarget.offset);
        return;
    }
}

void ZARNOutlineViewPrivate::setDropTarget(const BrixelPrivate::DropTarget &target, QList<QPersistentModelIndex> rows)
{
    if (target == dropTarget && rows == dropRows)
        return;
    dropTarget = target;
    dropRows = std::move(rows);
    q->viewport()->update();
}

QPixmap ZARNOutlineViewPrivate::dragPicture(const QModelIndexList &indexes, const QRect &area)
{
    QList<QPersistentModelIndex> items;
    for (const QModelIndex &index : indexes) {
        const QPersistentModelIndex item = index.siblingAtColumn(0);
        if (!items.contains(item))
            items.append(item);
    }
    return BrixelPrivate::viewportPicture(*q, area, [&](QPainter &painter) {
        BrixelPrivate::RowPainter rows = rowPainter(painter, area);
        for (const QPersistentModelIndex &item : std::as_const(items))
            rows.drawCells({item, isRowSelected(item), false, QStyle::State_None, showsMarkerFor(item) ? -1 : outlineModelColumn(),
                            q->isFirstColumnSpanned(item.row(), item.parent())});
    });
}

void ZARNOutlineViewPrivate::applyEnabledState(bool enabled)
{
    if (!enabled)
        q->saveState();
    // Enabling hands the saved pairs out in column order; a column beyond them keeps its look.
    // Colours saved invalid (the cell's default) are restored as they were.
    const QList<ZARNTextFieldCell *> cells = textCells();
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!enabled) {
            cells[i]->setTextColor(DisabledTextColor);
            cells[i]->setBackgroundColor(DisabledBackgroundColor);
            continue;
        }
        if (i < savedTextColors.size())
            cells[i]->setTextColor(savedTextColors[i]);
        if (i < savedBackgroundColors.size())
            cells[i]->setBackgroundColor(savedBackgroundColors[i]);
    }
    restoreScrollBar(q->verticalScrollBar(), q->verticalScrollBarPolicy(), enabled && savedVerticalScrollBarEnabled);
    restoreScrollBar(q->horizontalScrollBar(), q->horizontalScrollBarPolicy(), enabled && savedHorizontalScrollBarEnabled);
}

ZARNOutlineView::ZARNOutlineView(QWidget *parent)
    : QTreeView(parent)
    , d(std::make_unique<ZARNOutlineViewPrivate>(this))
{
    // The header a QTreeView makes for itself, as the library's header.
    auto *columnHeader = new ZARNNSTableHeaderView(this);
    columnHeader->setSectionsMovable(true);
    columnHeader->setStretchLastSection(true);
    columnHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setHeader(columnHeader);
    d->columns = new BrixelPrivate::TableColumnList(this, columnHeader, this);
    ZARNNSTableHeaderViewPrivate::get(columnHeader)->columns = d->columns;
    setItemDelegate(new ZARNTextFieldCell(this));
    setDropIndicatorShown(false);

    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &item) {
        if (d->trackingDrop)
            d->autoExpanded.append(item);
    });
    connect(d->behaviour, &BrixelPrivate::ItemViewBehaviour::applicationBecameActive, this, &ZARNOutlineView::userDefaultsDidChange);
    // Rows change height with their columns' widths only when their text wraps and their
    // heights are not uniform.
    d->behaviour->followColumnWidths(columnHeader);
    connect(d->behaviour, &BrixelPrivate::ItemViewBehaviour::liveResizeEnded, this, [this] {
        if (d->behaviour->takeColumnWidthsChanged() && wordWrap() && !uniformRowHeights())
            doItemsLayout();
    });
}

ZARNOutlineView::~ZARNOutlineView() = default;

ZARNOutlineViewDelegate *ZARNOutlineView::delegate() const
{
    return d->delegate;
}

void ZARNOutlineView::setDelegate(ZARNOutlineViewDelegate *delegate)
{
    d->delegate = delegate;
}

QMenu *ZARNOutlineView::menu() const
{
    return d->behaviour->menu();
}

void ZARNOutlineView::setMenu(QMenu *menu)
{
    d->behaviour->setMenu(menu);
}

ZARNTableView::HighlightStyle ZARNOutlineView::highlightStyle() const
{
    return d->highlightStyle;
}

void ZARNOutlineView::setHighlightStyle(ZARNTableView::HighlightStyle style)
{
    if (d->highlightStyle == style)
        return;
    d->highlightStyle = style;
    viewport()->update();
}

bool ZARNOutlineView::highlightFollowsIndentation() const
{
    return d->highlightFollowsIndentation;
}

void ZARNOutlineView::setHighlightFollowsIndentation(bool follows)
{
    if (d->highlightFollowsIndentation == follows)
        return;
    d->highlightFollowsIndentation = follows;
    viewport()->update();
}

bool ZARNOutlineView::showsIndentationMarker() const
{
    return d->showsIndentationMarker;
}

void ZARNOutlineView::setShowsIndentationMarker(bool shows)
{
    if (d->showsIndentationMarker == shows)
        return;
    d->showsIndentationMarker = shows;
    viewport()->update();
}

bool ZARNOutlineView::shouldCollapseAutoExpandedItemsForDeposits() const
{
    return d->collapseForDeposits;
}

void ZARNOutlineView::setShouldCollapseAutoExpandedItemsForDeposits(bool collapse)
{
    d->collapseForDeposits = collapse;
}

bool ZARNOutlineView::shouldCollapseAutoExpandedItemsForFailedDeposits() const
{
    return d->collapseForFailedDeposits;
}

void ZARNOutlineView::setShouldCollapseAutoExpandedItemsForFailedDeposits(bool collapse)
{
    d->collapseForFailedDeposits = collapse;
}

bool ZARNOutlineView::shouldCollapseAutoExpandedItemsForDeposited(bool deposited) const
{
    return deposited ? d->collapseForDeposits : d->collapseForFailedDeposits;
}

bool ZARNOutlineView::inDragPrep() const
{
    return d->behaviour->inDragPrep();
}

bool ZARNOutlineView::inLiveResize() const
{
    return d->behaviour->inLiveResize();
}

QModelIndex ZARNOutlineView::contextMenuItem() const
{
    return d->behaviour->contextMenuItem();
}

void ZARNOutlineView::keyboardSearch(const QString &)
{
}

bool ZARNOutlineView::acceptsFirstResponder() const
{
    return isEnabled();
}

bool ZARNOutlineView::drawsBranchIndicators() const
{
    return d->drawsBranchIndicators;
}

void ZARNOutlineView::setDrawsBranchIndicators(bool draws)
{
    d->drawsBranchIndicators = draws;
    viewport()->update();
}

int ZARNOutlineView::numberOfRows() const
{
    return model() ? countShownRows(*this, rootIndex()) : 0;
}

int ZARNOutlineView::lastHighlightGradientRowHeight() const
{
    return d->gradient.lastRowHeight();
}

QImage ZARNOutlineView::highlightGradientImage()
{
    const QModelIndex first = model() ? model()->index(0, 0, rootIndex()) : QModelIndex();
    const int height = first.isValid() ? rowHeight(first) : 0;
    return d->gradient.image(height, palette().color(QPalette::Active, QPalette::Highlight));
}

QList<ZARNTableColumn *> ZARNOutlineView::tableColumns() const
{
    return d->columns->tableColumns();
}

int ZARNOutlineView::numberOfColumns() const
{
    return d->columns->numberOfColumns();
}

int ZARNOutlineView::columnWithIdentifier(const QString &identifier) const
{
    return d->columns->columnWithIdentifier(identifier);
}

ZARNTableColumn *ZARNOutlineView::tableColumnWithIdentifier(const QString &identifier) const
{
    return d->columns->tableColumnWithIdentifier(identifier);
}

void ZARNOutlineView::hideColumn(int index)
{
    const int count = numberOfColumns();
    if (index < 0 || index >= count || count < 2)
        return;
    if (index == d->outlineColumnIndex())
        setTreePosition(d->columns->columnAt(index == 0 ? 1 : 0)->modelColumn());
    // Rows lose the height a tall hidden column gave them, as QTreeView::hideColumn() does.
    if (d->columns->hideColumn(index))
        doItemsLayout();
}

void ZARNOutlineView::hideColumnWithIdentifier(const QString &identifier)
{
    hideColumn(columnWithIdentifier(identifier));
}

ZARNTableColumn *ZARNOutlineView::hiddenTableColumnWithIdentifier(const QString &identifier) const
{
    return d->columns->hiddenTableColumnWithIdentifier(identifier);
}

void ZARNOutlineView::showColumnWithIdentifier(const QString &identifier)
{
    if (d->columns->showColumnWithIdentifier(identifier))
        doItemsLayout();
}

QList<ZARNTableColumn *> ZARNOutlineView::hiddenTableColumns() const
{
    return d->columns->hiddenTableColumns();
}

void ZARNOutlineView::saveState()
{
    d->savedTextColors.clear();
    d->savedBackgroundColors.clear();
    const QList<ZARNTextFieldCell *> cells = d->textCells();
    for (const ZARNTextFieldCell *cell : cells) {
        d->savedTextColors.append(cell->textColor());
        d->savedBackgroundColors.append(cell->backgroundColor());
    }
    d->savedVerticalScrollBarEnabled = scrollBarWasEnabled(verticalScrollBar(), verticalScrollBarPolicy());
    d->savedHorizontalScrollBarEnabled = scrollBarWasEnabled(horizontalScrollBar(), horizontalScrollBarPolicy());
}

void ZARNOutlineView::tile2()
{
    qInfo("numberOfRows:  %i (%llx)", numberOfRows(), static_cast<unsigned long long>(reinterpret_cast<quintptr>(this)));
    updateGeometries();
}

void ZARNOutlineView::deleteBackward()
{
    if (d->delegate)
        d->delegate->outlineViewDeleteBackward(this);
}

void ZARNOutlineView::userDefaultsDidChange()
{
    d->gradient.invalidate();
    viewport()->update();
}

bool ZARNOutlineView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool editing = QTreeView::edit(index, trigger, event);
    // The editor sits on the row's own drawing, so it paints no background or frame.
    if (auto *editor = editing ? qobject_cast<QLineEdit *>(indexWidget(index)) : nullptr) {
        editor->setAutoFillBackground(false);
        editor->setFrame(false);
        QPalette palette = editor->palette();
        palette.setColor(QPalette::Base, Qt::transparent);
        editor->setPalette(palette);
    }
    return editing;
}

void ZARNOutlineView::keyPressEvent(QKeyEvent *event)
{
    if (!isEnabled())
        return;
    switch (BrixelPrivate::keyRole(event->key())) {
    case BrixelPrivate::KeyRole::ReturnKey:
        if (d->delegate)
            d->delegate->outlineViewReturnKey(this);
        return;
    case BrixelPrivate::KeyRole::DeleteBackward:
        deleteBackward();
        return;
    case BrixelPrivate::KeyRole::SelectionMove:
        if (d->behaviour->moveChangesSelectedRow([&] { QTreeView::keyPressEvent(event); }) && d->delegate)
            d->delegate->outlineViewSelectionIsChanging({QString(NSTableViewSelectionIsChangingNotification), this, {}});
        return;
    case BrixelPrivate::KeyRole::Other:
        QTreeView::keyPressEvent(event);
        return;
    }
}

// Each mouse handler hands the event to QTreeView moved by the click's shift; QTreeView may
// call mousePressEvent() itself (from a double click), which then goes straight through.
void ZARNOutlineView::mousePressEvent(QMouseEvent *event)
{
    if (d->forwardingMouse) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (!isEnabled())
        return;
    d->pressPosition = event->position().toPoint();
    if (event->button() == Qt::RightButton) {
        d->contextClick(*event);
        return;
    }
    d->clickShift = d->clickShiftAt(event->position().toPoint());
    const auto shifted = shiftedEvent(*event, d->clickShift);
    d->forwardingMouse = true;
    QTreeView::mousePressEvent(shifted.get());
    event->setAccepted(shifted->isAccepted());
    d->forwardingMouse = false;
    if (BrixelPrivate::controlClickSelectsFirst(event))
        d->behaviour->popUpMenu(menu(), d->rowItemAt(d->pressPosition), event->globalPosition().toPoint());
}

void ZARNOutlineView::mouseMoveEvent(QMouseEvent *event)
{
    if (!isEnabled())
        return;
    const auto shifted = shiftedEvent(*event, d->clickShift);
    QTreeView::mouseMoveEvent(shifted.get());
    event->setAccepted(shifted->isAccepted());
}

void ZARNOutlineView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!isEnabled())
        return;
    const auto shifted = shiftedEvent(*event, std::exchange(d->clickShift, 0.0));
    QTreeView::mouseReleaseEvent(shifted.get());
    event->setAccepted(shifted->isAccepted());
}

void ZARNOutlineView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!isEnabled())
        return;
    if (BrixelPrivate::isControlClick(event)) {
        d->behaviour->popUpMenu(menu(), d->rowItemAt(event->position().toPoint()), event->globalPosition().toPoint());
        return;
    }
    if (event->button() == Qt::RightButton) {
        d->contextClick(*event);
        return;
    }
    d->clickShift = d->clickShiftAt(event->position().toPoint());
    const auto shifted = shiftedEvent(*event, d->clickShift);
    d->forwardingMouse = true;
    QTreeView::mouseDoubleClickEvent(shifted.get());
    event->setAccepted(shifted->isAccepted());
    d->forwardingMouse = false;
}

void ZARNOutlineView::contextMenuEvent(QContextMenuEvent *event)
{
    if (isEnabled())
        d->behaviour->contextMenuEvent(event);
}

void ZARNOutlineView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        d->applyEnabledState(isEnabled());
}

void ZARNOutlineView::paintEvent(QPaintEvent *event)
{
    if (d->delegate)
        d->delegate->tableViewWillDrawRect(this, event->rect());
    {
        d->painting = true;
        d->paintArea = event->rect();
        const auto endPass = qScopeGuard([this] {
            d->pass.reset();
            d->visualRowCursor = QPersistentModelIndex();
            d->expandedArt.reset();
            d->collapsedArt.reset();
            d->painting = false;
        });
        QTreeView::paintEvent(event);
    }
    if (!d->behaviour->contextMenuItem().isValid() && d->dropTarget.kind == BrixelPrivate::DropTarget::Kind::None)
        return;
    QPainter painter(viewport());
    BrixelPrivate::RowPainter rows = d->rowPainter(painter, event->rect());
    d->drawContextMenuHighlight(rows);
    d->drawDropTarget(rows);
}

void ZARNOutlineView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    d->behaviour->noteResize();
}

void ZARNOutlineView::startDrag(Qt::DropActions supportedActions)
{
    BrixelPrivate::ItemViewBehaviour::DragHooks hooks;
    hooks.image = [this](const QModelIndexList &indexes, const QRect &area) { return d->dragPicture(indexes, area); };
    d->behaviour->startDrag(selectedIndexes(), supportedActions, defaultDropAction(), d->pressPosition, hooks);
}

// Items that open while a drag is over the view were opened by the drag (Qt's auto-expand,
// see autoExpandDelay): they are remembered until the drop or the drag's leaving.
void ZARNOutlineView::dragEnterEvent(QDragEnterEvent *event)
{
    d->autoExpanded.clear();
    QTreeView::dragEnterEvent(event);
    // Qt sends a refused drag neither moves nor its drop, so there is nothing to follow.
    d->trackingDrop = event->isAccepted();
}

void ZARNOutlineView::dragMoveEvent(QDragMoveEvent *event)
{
    QTreeView::dragMoveEvent(event);
    const QPoint position = event->position().toPoint();
    const QModelIndex item = d->rowItemAt(position);
    if (!event->isAccepted()) {
        d->setDropTarget({}, {});
        return;
    }
    if (!item.isValid()) {
        d->setDropTarget({BrixelPrivate::DropTarget::Kind::OnView}, {});
        return;
    }
    // The row under the drag and those next to it, numbered from the one above (if any).
    QList<QPersistentModelIndex> rows;
    if (const QModelIndex above = indexAbove(item); above.isValid())
        rows.append(above);
    const int row = int(rows.size());
    rows.append(item);
    if (const QModelIndex below = indexBelow(item); below.isValid())
        rows.append(below);
    // A line between rows starts where the item's own cell does, after its indentation.
    const int first = d->columns->firstShownModelColumn();
    const qreal offset = first >= 0 ? visualRect(item.siblingAtColumn(first)).x() : 0.0;
    const BrixelPrivate::DropTarget target = BrixelPrivate::dropTargetAt(row, d->rowRect(item), position.y(),
                                                           item.flags().testFlag(Qt::ItemIsDropEnabled), offset);
    d->setDropTarget(target, std::move(rows));
}

void ZARNOutlineView::dragLeaveEvent(QDragLeaveEvent *event)
{
    d->setDropTarget({}, {});
    QTreeView::dragLeaveEvent(event);
    d->finishDrop(false);
}

void ZARNOutlineView::dropEvent(QDropEvent *event)
{
    d->setDropTarget({}, {});
    QTreeView::dropEvent(event);
    d->finishDrop(event->isAccepted());
}

void ZARNOutlineView::drawRow(QPainter *painter, const QStyleOptionViewItem &options, const QModelIndex &index) const
{
    d->drawRow(*painter, options, index.siblingAtColumn(0));
}

void ZARNOutlineView::drawBranches(QPainter *, const QRect &, const QModelIndex &) const
{
}
