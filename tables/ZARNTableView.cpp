// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTableView.h"

#include "CellHighlighting_p.h"
#include "EditingMoves_p.h"
#include "HighlightGradientCache_p.h"
#include "ItemViewBehaviour_p.h"
#include "ZARNNSTableHeaderView_p.h"
#include "RowPainter_p.h"
#include "ZARNTableColumn.h"
#include "TableColumnList_p.h"
#include "ZARNTableViewDataSource.h"
#include "ZARNTableViewDelegate.h"
#include "ZARNTextFieldCell.h"

#include "../drawing/ZARNAttributedStringDrawing.h"
#include "../drawing/ZARNGeometry.h"
#include "../platform/ZARNNotification.h"
#include "../platform/ZARNSystemVersion.h"
#include "../drawing/ZARNTextTruncation.h"

#include <QApplication>
#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QVarLengthArray>

namespace {

/// Rows a painting pass visits; a screenful fits without allocating.
using RowList = QVarLengthArray<int, 128>;

/// \a string in the empty-table message's default look: bold application font of 15 points,
/// grey 0.5, centred.
ZARNAttributedString emptyMessageText(const QString &string)
{
    QFont font = QApplication::font();
    font.setPointSizeF(15.0);
    font.setBold(true);
    return ZARNAttributedString(string, {{ZARNFontAttributeName, font},
                                         {ZARNForegroundColorAttributeName, QColor::fromRgbF(0.5f, 0.5f, 0.5f)},
                                         {ZARNParagraphAlignmentAttributeName, QVariant::fromValue(Qt::Alignment(Qt::AlignHCenter))}});
}

/// The widget that takes the keyboard for \a editor (the end of its focus-proxy chain).
QWidget *focusTarget(QWidget *editor)
{
    while (QWidget *proxy = editor->focusProxy())
        editor = proxy;
    return editor;
}

} // namespace

class ZARNTableViewPrivate
{
public:
    explicit ZARNTableViewPrivate(ZARNTableView *view)
        : q(view)
    {
    }

    /// The table cell of a model index; nullopt when its column is hidden.
    std::optional<BrixelPrivate::Cell> cellForIndex(const QModelIndex &index) const
    {
        const int column = columns->columnIndex(columns->columnForModelColumn(index.column()));
        if (column < 0)
            return std::nullopt;
        return BrixelPrivate::Cell{index.row(), column};
    }

    /// The model index of a table cell; invalid outside the table.
    QModelIndex indexForCell(BrixelPrivate::Cell cell) const
    {
        const ZARNTableColumn *column = columns->columnAt(cell.column);
        if (!column || !q->model())
            return {};
        return q->model()->index(cell.row, column->modelColumn(), q->rootIndex());
    }

    bool isRowSelected(int row) const
    {
        return q->selectionModel() && q->selectionModel()->isRowSelected(row, q->rootIndex());
    }

    int rowCount() const { return q->model() ? q->model()->rowCount(q->rootIndex()) : 0; }

    QModelIndex rowIndex(int row) const
    {
        return q->model() ? q->model()->index(row, 0, q->rootIndex()) : QModelIndex();
    }

    /// The shown rows that \a area touches, top to bottom.
    RowList visibleRows(const QRect &area) const
    {
        RowList rows;
        const QHeaderView *header = q->verticalHeader();
        const int count = header->count();
        if (count == 0)
            return rows;
        const int first = header->visualIndexAt(area.top());
        int last = header->visualIndexAt(area.bottom());
        if (first < 0)
            return rows;
        if (last < 0)
            last = count - 1;
        for (int visual = first; visual <= last; ++visual) {
            const int row = header->logicalIndex(visual);
            if (!header->isSectionHidden(row))
                rows.append(row);
        }
        return rows;
    }

    QImage customHighlightImage(int row) const
    {
        return delegate ? delegate->tableViewCustomHighlightImageForRow(q, row).value_or(QImage()) : QImage();
    }

    /// A painter for the rows of \a area (viewport coordinates).
    BrixelPrivate::RowPainter rowPainter(QPainter &painter, const QRect &area) const
    {
        QStyleOptionViewItem option;
        q->initViewItemOption(&option);
        BrixelPrivate::RowPainter::CellNotice notice;
        if (delegate) {
            notice = [this](QAbstractItemDelegate *cell, ZARNTableColumn *column, const QModelIndex &index) {
                delegate->tableViewWillDisplayCell(q, cell, column, index.row());
            };
        }
        BrixelPrivate::RowPainter::Options options{highlightStyle, behaviour->inDragPrep(), true};
        options.hoveredIndex = behaviour->hoveredIndex();
        return BrixelPrivate::RowPainter(painter, *q, std::move(option), *columns, area, options, std::move(notice),
                                         [this] { return q->highlightGradientImage(); });
    }

    /// Whether \a row gets the alternate background, as QTableView alternates by visual row.
    bool isAlternateRow(int row) const
    {
        return q->alternatingRowColors() && (q->verticalHeader()->visualIndex(row) & 1);
    }

    void drawRow(BrixelPrivate::RowPainter &rows, int row) const
    {
        rows.drawCells({rowIndex(row), isRowSelected(row), isAlternateRow(row)});
    }

    /// Grid lines along the bottom of each row in \a rows and the right of each shown column,
    /// as QTableView draws them, within \a area.
    void drawGrid(QPainter &painter, const RowList &rows, QRect area) const
    {
        const QHeaderView *header = q->horizontalHeader();
        const int right = header->length() - header->offset() - 1;
        const int bottom = q->verticalHeader()->length() - q->verticalHeader()->offset() - 1;
        area.setRight(std::min(area.right(), right));
        area.setBottom(std::min(area.bottom(), bottom));
        if (area.isEmpty())
            return;
        QStyleOptionViewItem option;
        q->initViewItemOption(&option);
        const auto colour = static_cast<QRgb>(q->style()->styleHint(QStyle::SH_Table_GridLineColor, &option, q));
        painter.save();
        painter.setPen(QPen(QColor::fromRgba(colour), 1, q->gridStyle()));
        for (const int row : rows) {
            const int y = q->rowViewportPosition(row) + q->rowHeight(row) - 1;
            painter.drawLine(area.left(), y, area.right(), y);
        }
        for (int visual = std::max(header->visualIndexAt(area.left()), 0); visual < header->count(); ++visual) {
            const int logical = header->logicalIndex(visual);
            if (header->isSectionHidden(logical))
                continue;
            const int x = header->sectionViewportPosition(logical) + header->sectionSize(logical) - 1;
            if (x > area.right())
                break;
            if (x >= area.left())
                painter.drawLine(x, area.top(), x, area.bottom());
        }
        painter.restore();
    }

    /// The open context menu's row drawn highlighted over the rest, when it is selected.
    void drawContextMenuHighlight(QPainter &painter, BrixelPrivate::RowPainter &rows) const
    {
        const int row = q->contextMenuRow();
        const QRect rect = q->rectOfRow(row);
        if (rect.isEmpty() || !isRowSelected(row))
            return;
        rows.drawSelection(rect, customHighlightImage(row));
        drawRow(rows, row);
        if (q->showGrid())
            drawGrid(painter, RowList{row}, rect);
    }

    void drawDropTarget(BrixelPrivate::RowPainter &rows) const
    {
        const QRectF bounds = q->viewport()->rect();
        switch (dropTarget.kind) {
        case BrixelPrivate::DropTarget::Kind::None:
            return;
        case BrixelPrivate::DropTarget::Kind::OnView:
            rows.drawDropOnView(bounds);
            return;
        case BrixelPrivate::DropTarget::Kind::OnRow:
            if (dropTarget.row < rowCount()) {
                // The same question the outline view asks: a row with its own highlight image
                // gets the frame on its full rectangle.
                const bool hugsRow = delegate
                    && !delegate->outlineViewCustomHighlightImageForItem(q, rowIndex(dropTarget.row)).value_or(QImage()).isNull();
                rows.drawDropOnRow(q->rectOfRow(dropTarget.row), isRowSelected(dropTarget.row), hugsRow);
            }
            return;
        case BrixelPrivate::DropTarget::Kind::BetweenRows:
            rows.drawDropBetweenRows(dropTarget.row, dropTarget.lowerRow, rowCount(),
                                     [this](int row) { return QRectF(q->rectOfRow(row)); }, bounds, dropTarget.offset);
            return;
        }
    }

    void drawEmptyMessage(QPainter &painter) const
    {
        std::optional<ZARNAttributedString> message = emptyAttributedString;
        if (!message) {
            if (emptyString.isNull())
                return;
            message = emptyMessageText(emptyString);
        }
        const QRect viewport = q->viewport()->rect();
        const float width = float(viewport.width());
        const float height = Brixel::ZARNAttributedStringHeightForWidth(*message, width - 20.0f);
        if (height > float(viewport.height()))
            return;
        const ZARNRect rect = Brixel::ZARNRectCenterOnRect({10.0f, 0.0f, width - 20.0f, height}, ZARNRect::fromQRectF(viewport));
        Brixel::drawAttributedString(painter, *message, rect.toQRectF(), true, false);
    }

    void setDropTarget(const BrixelPrivate::DropTarget &target)
    {
        if (target == dropTarget)
            return;
        dropTarget = target;
        q->viewport()->update();
    }

    /// The cells of the rows of \a indexes inside \a area on a transparent picture of the area.
    QPixmap dragPicture(const QModelIndexList &indexes, const QRect &area) const
    {
        QList<int> rows;
        for (const QModelIndex &index : indexes)
            rows.append(index.row());
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        return BrixelPrivate::viewportPicture(*q, area, [&](QPainter &painter) {
            BrixelPrivate::RowPainter painterForRows = rowPainter(painter, area);
            for (const int row : rows)
                drawRow(painterForRows, row);
        });
    }

    ZARNTableView *const q;
    BrixelPrivate::ItemViewBehaviour *behaviour = nullptr;
    std::unique_ptr<BrixelPrivate::TableColumnList> columns;
    BrixelPrivate::HighlightGradientCache gradientCache;
    ZARNTableViewDelegate *delegate = nullptr;
    ZARNTableView::HighlightStyle highlightStyle = ZARNTableView::HighlightStyle::Rectangle;
    QString emptyString;
    std::optional<ZARNAttributedString> emptyAttributedString;
    BrixelPrivate::DropTarget dropTarget;
    QPoint pressPosition;
    QPersistentModelIndex editedIndex;
};

ZARNTableView::ZARNTableView(QWidget *parent)
    : QTableView(parent)
    , d(std::make_unique<ZARNTableViewPrivate>(this))
{
    // Clickable and highlighting like the header QTableView makes for itself, so that a click
    // sorts a sortable table and a press selects the column when items are selected.
    auto *header = new ZARNNSTableHeaderView(this);
    header->setSectionsClickable(true);
    header->setHighlightSections(true);
    setHorizontalHeader(header);
    d->columns = std::make_unique<BrixelPrivate::TableColumnList>(this, header);
    ZARNNSTableHeaderViewPrivate::get(header)->columns = d->columns.get();
    setSelectionBehavior(SelectRows);
    setDropIndicatorShown(false);
    setItemDelegate(new ZARNTextFieldCell(this));
    d->behaviour = new BrixelPrivate::ItemViewBehaviour(this);
    d->behaviour->followColumnWidths(header);
    connect(d->behaviour, &BrixelPrivate::ItemViewBehaviour::liveResizeEnded, this, &ZARNTableView::viewDidEndLiveResize);
    connect(d->behaviour, &BrixelPrivate::ItemViewBehaviour::applicationBecameActive, this, &ZARNTableView::userDefaultsDidChange);
}

ZARNTableView::~ZARNTableView() = default;

const ZARNShadow &ZARNTableView::standardShadow()
{
    return BrixelPrivate::standardCellShadow();
}

ZARNAttributedString ZARNTableView::highlightCellContents(const ZARNAttributedString &text, const QFont &cellFont)
{
    return BrixelPrivate::highlightedCellText(text, cellFont, Brixel::ZARNSystemVersion());
}

const ZARNShadow &ZARNTableView::deactivatedShadow()
{
    static const ZARNShadow shadow = BrixelPrivate::blackShadowWithAlpha(0.3f);
    return shadow;
}

ZARNTableViewDelegate *ZARNTableView::delegate() const
{
    return d->delegate;
}

void ZARNTableView::setDelegate(ZARNTableViewDelegate *delegate)
{
    d->delegate = delegate;
}

QMenu *ZARNTableView::menu() const
{
    return d->behaviour->menu();
}

void ZARNTableView::setMenu(QMenu *menu)
{
    d->behaviour->setMenu(menu);
}

ZARNTableView::HighlightStyle ZARNTableView::highlightStyle() const
{
    return d->highlightStyle;
}

void ZARNTableView::setHighlightStyle(HighlightStyle style)
{
    if (d->highlightStyle == style)
        return;
    d->highlightStyle = style;
    viewport()->update();
}

QString ZARNTableView::emptyString() const
{
    return d->emptyString;
}

void ZARNTableView::setEmptyString(const QString &string)
{
    if (d->emptyString == string)
        return;
    d->emptyString = string;
    viewport()->update();
}

std::optional<ZARNAttributedString> ZARNTableView::emptyAttributedString() const
{
    return d->emptyAttributedString;
}

void ZARNTableView::setEmptyAttributedString(const std::optional<ZARNAttributedString> &string)
{
    d->emptyAttributedString = string;
    viewport()->update();
}

bool ZARNTableView::inDragPrep() const
{
    return d->behaviour->inDragPrep();
}

QRect ZARNTableView::rectOfRow(int row) const
{
    if (row < 0 || row >= d->rowCount() || isRowHidden(row))
        return {};
    return QRect(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

int ZARNTableView::contextMenuRow() const
{
    const QModelIndex item = d->behaviour->contextMenuItem();
    return item.isValid() ? item.row() : -1;
}

int ZARNTableView::selectedRow() const
{
    const QModelIndex item = BrixelPrivate::selectedRowItem(this);
    return item.isValid() ? item.row() : -1;
}

bool ZARNTableView::inLiveResize() const
{
    return d->behaviour->inLiveResize();
}

void ZARNTableView::keyboardSearch(const QString &)
{
}

void ZARNTableView::deleteBackward()
{
    if (d->delegate)
        d->delegate->tableViewDeleteBackward(this);
}

void ZARNTableView::userDefaultsDidChange()
{
    d->gradientCache.invalidate();
    viewport()->update();
}

QImage ZARNTableView::highlightGradientImage()
{
    return d->gradientCache.image(verticalHeader()->defaultSectionSize(),
                                  palette().color(QPalette::Active, QPalette::Highlight));
}

QList<ZARNTableColumn *> ZARNTableView::tableColumns() const
{
    return d->columns->tableColumns();
}

int ZARNTableView::numberOfColumns() const
{
    return d->columns->numberOfColumns();
}

int ZARNTableView::columnWithIdentifier(const QString &identifier) const
{
    return d->columns->columnWithIdentifier(identifier);
}

ZARNTableColumn *ZARNTableView::tableColumnWithIdentifier(const QString &identifier) const
{
    return d->columns->tableColumnWithIdentifier(identifier);
}

void ZARNTableView::hideColumn(int index)
{
    d->columns->hideColumn(index);
}

void ZARNTableView::hideColumnWithIdentifier(const QString &identifier)
{
    d->columns->hideColumnWithIdentifier(identifier);
}

ZARNTableColumn *ZARNTableView::hiddenTableColumnWithIdentifier(const QString &identifier) const
{
    return d->columns->hiddenTableColumnWithIdentifier(identifier);
}

void ZARNTableView::showColumnWithIdentifier(const QString &identifier)
{
    d->columns->showColumnWithIdentifier(identifier);
}

QList<ZARNTableColumn *> ZARNTableView::hiddenTableColumns() const
{
    return d->columns->hiddenTableColumns();
}

bool ZARNTableView::isEditableAtColumn(int column, int row)
{
    ZARNTableColumn *tableColumn = d->columns->columnAt(column);
    // The delegate may open cells of read-only columns and close editable ones.
    if (d->delegate) {
        if (const std::optional<bool> answer = d->delegate->tableViewShouldEditTableColumn(this, tableColumn, row))
            return *answer;
    }
    return tableColumn && tableColumn->isEditable()
        && d->indexForCell({row, column}).flags().testFlag(Qt::ItemIsEditable);
}

void ZARNTableView::keyPressEvent(QKeyEvent *event)
{
    switch (BrixelPrivate::keyRole(event->key())) {
    case BrixelPrivate::KeyRole::ReturnKey:
        if (d->delegate)
            d->delegate->tableViewReturnKey(this);
        event->accept();
        return;
    case BrixelPrivate::KeyRole::DeleteBackward:
        deleteBackward();
        event->accept();
        return;
    case BrixelPrivate::KeyRole::SelectionMove:
        if (d->behaviour->moveChangesSelectedRow([&] { QTableView::keyPressEvent(event); })) {
            if (d->delegate)
                d->delegate->tableViewSelectionIsChanging({QString(NSTableViewSelectionIsChangingNotification), this, {}});
            Q_EMIT selectionIsChanging();
        }
        return;
    case BrixelPrivate::KeyRole::Other:
        QTableView::keyPressEvent(event);
        return;
    }
}

void ZARNTableView::mousePressEvent(QMouseEvent *event)
{
    d->pressPosition = event->position().toPoint();
    if (event->button() == Qt::RightButton) {
        contextClick(event);
        return;
    }
    if (BrixelPrivate::isControlClick(event)) {
        const QModelIndex item = d->rowIndex(rowAt(event->position().toPoint().y()));
        d->behaviour->popUpMenu(menuForEvent(event), item, event->globalPosition().toPoint());
        return;
    }
    QTableView::mousePressEvent(event);
}

void ZARNTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // A second click with the menu's modifier or button opens the menu again, as the first
    // one did, instead of starting to edit.
    if (event->button() == Qt::RightButton || event->modifiers().testFlag(Qt::MetaModifier)) {
        mousePressEvent(event);
        return;
    }
    QTableView::mouseDoubleClickEvent(event);
}

QMenu *ZARNTableView::menuForEvent(QMouseEvent *event)
{
    if (BrixelPrivate::controlClickSelectsFirst(event))
        QTableView::mousePressEvent(event);
    return menu();
}

void ZARNTableView::contextMenuEvent(QContextMenuEvent *event)
{
    d->behaviour->contextMenuEvent(event);
}

void ZARNTableView::contextClick(QMouseEvent *event)
{
    const int row = rowAt(event->position().toPoint().y());
    if (row >= 0) {
        // The data source opts into the rule with its own check, and only then is asked the
        // question; one that does not opt in always gets the clicked row selected alone.
        auto *dataSource = dynamic_cast<ZARNTableViewDataSource *>(model());
        const bool selectAlone = !dataSource || !dataSource->respondsToTableviewShouldSelectRow()
            || (!selectionModel()->isRowSelected(row, rootIndex())
                && dataSource->tableViewShouldSelectRow(this, row).value_or(false));
        if (selectAlone) {
            const int column = currentIndex().isValid() ? currentIndex().column() : 0;
            BrixelPrivate::selectRowAlone(this, model()->index(row, column, rootIndex()));
        }
    }
    d->behaviour->popUpMenu(menu(), d->rowIndex(row), event->globalPosition().toPoint());
}

void ZARNTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    d->behaviour->noteResize();
}

void ZARNTableView::paintEvent(QPaintEvent *event)
{
    const QRect area = event->rect();
    if (d->delegate)
        d->delegate->tableViewWillDrawRect(this, area);
    QPainter painter(viewport());
    BrixelPrivate::RowPainter rows = d->rowPainter(painter, area);
    const RowList shown = d->visibleRows(area);
    for (const int row : shown) {
        if (d->isAlternateRow(row))
            rows.drawAlternateBackground(rectOfRow(row));
    }
    // All shapes first: a shape may reach into its neighbours' rows by its antialiased edge.
    for (const int row : shown) {
        if (d->isRowSelected(row))
            rows.drawSelection(rectOfRow(row), d->customHighlightImage(row));
    }
    for (const int row : shown)
        d->drawRow(rows, row);
    if (showGrid())
        d->drawGrid(painter, shown, area);
    d->drawContextMenuHighlight(painter, rows);
    d->drawDropTarget(rows);
    if (d->rowCount() == 0)
        d->drawEmptyMessage(painter);
}

void ZARNTableView::dragMoveEvent(QDragMoveEvent *event)
{
    QTableView::dragMoveEvent(event);
    if (!event->isAccepted()) {
        d->setDropTarget({});
        return;
    }
    // Only a point over a cell is on a row; Qt drops anything else onto the whole view.
    const QPoint position = event->position().toPoint();
    const QModelIndex index = indexAt(position);
    const int row = index.isValid() ? index.row() : -1;
    d->setDropTarget(BrixelPrivate::dropTargetAt(row, rectOfRow(row), position.y(),
                                          index.flags().testFlag(Qt::ItemIsDropEnabled), 0.0));
}

void ZARNTableView::dragLeaveEvent(QDragLeaveEvent *event)
{
    d->setDropTarget({});
    QTableView::dragLeaveEvent(event);
}

void ZARNTableView::dropEvent(QDropEvent *event)
{
    d->setDropTarget({});
    QTableView::dropEvent(event);
}

void ZARNTableView::viewDidEndLiveResize()
{
    if (d->behaviour->takeColumnWidthsChanged() && wordWrap())
        doItemsLayout();
}

bool ZARNTableView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool opened = QTableView::edit(index, trigger, event);
    if (opened && indexWidget(index))
        d->editedIndex = index;
    return opened;
}

void ZARNTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const BrixelPrivate::TextMovement movement = BrixelPrivate::textMovementForHint(hint);
    const QModelIndex edited = d->editedIndex;
    const std::optional<BrixelPrivate::Cell> from = edited.isValid() && indexWidget(edited) == editor
        ? d->cellForIndex(edited)
        : std::nullopt;
    std::optional<BrixelPrivate::Cell> target;
    if (from) {
        target = BrixelPrivate::nextEditableCell(movement, *from, model()->rowCount(rootIndex()), numberOfColumns(),
                                          [this](BrixelPrivate::Cell cell) { return isEditableAtColumn(cell.column, cell.row); });
    }
    if (!target) {
        QTableView::closeEditor(editor, hint);
        return;
    }

    commitData(editor);
    QTableView::closeEditor(editor, QAbstractItemDelegate::SubmitModelCache);
    if (movement == BrixelPrivate::TextMovement::Tab && d->delegate)
        d->delegate->tableViewWillTabToColumn(this, target->column, target->row, from->column, from->row);
    editCell(d->indexForCell(*target));
}

void ZARNTableView::editCell(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    BrixelPrivate::selectRowAlone(this, index);
    // With the CurrentChanged trigger, moving the current index has opened the editor already.
    if (!editTriggers().testFlag(CurrentChanged))
        edit(index, AllEditTriggers, nullptr);
    if (QWidget *editor = indexWidget(index)) {
        if (auto *lineEdit = qobject_cast<QLineEdit *>(focusTarget(editor)))
            lineEdit->selectAll();
    }
}

void ZARNTableView::startDrag(Qt::DropActions supportedActions)
{
    BrixelPrivate::ItemViewBehaviour::DragHooks hooks;
    hooks.image = [this](const QModelIndexList &indexes, const QRect &area) { return d->dragPicture(indexes, area); };
    hooks.run = [this](QDrag *drag, Qt::DropActions supported, Qt::DropAction action) {
        return execDrag(drag, supported, action);
    };
    d->behaviour->startDrag(selectedIndexes(), supportedActions, defaultDropAction(), d->pressPosition, hooks);
}

Qt::DropAction ZARNTableView::execDrag(QDrag *drag, Qt::DropActions supportedActions, Qt::DropAction defaultAction)
{
    return drag->exec(supportedActions, defaultAction);
}
