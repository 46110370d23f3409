// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTableView.h"

#include "ZARNEditingMoves.h"
#include "ZARNHighlightGradient.h"
#include "ZARNItemViewBehaviour.h"
#include "ZARNNSTableHeaderView.h"
#include "ZARNTableColumn.h"
#include "ZARNTableColumnList.h"
#include "ZARNTableViewDataSource.h"
#include "ZARNTableViewDelegate.h"

#include <Brixel/ZARNNotification.h>

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

ZARNShadow blackShadowWithAlpha(float alpha)
{
    return ZARNShadow{{0.0f, -1.0f}, 1.0f, QColor::fromRgbF(0.0f, 0.0f, 0.0f, alpha)};
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
    std::optional<brixel::Cell> cellForIndex(const QModelIndex &index) const
    {
        const int column = columns->columnIndex(columns->columnForModelColumn(index.column()));
        if (column < 0)
            return std::nullopt;
        return brixel::Cell{index.row(), column};
    }

    /// The column-0 item of \a row; invalid outside the rows or without a model.
    QModelIndex rowItem(int row) const
    {
        return q->model() ? q->model()->index(row, 0, q->rootIndex()) : QModelIndex();
    }

    /// The model index of a table cell; invalid outside the table.
    QModelIndex indexForCell(brixel::Cell cell) const
    {
        const ZARNTableColumn *column = columns->columnAt(cell.column);
        if (!column || !q->model())
            return {};
        return q->model()->index(cell.row, column->modelColumn(), q->rootIndex());
    }

    ZARNTableView *const q;
    brixel::ItemViewBehaviour *behaviour = nullptr;
    std::unique_ptr<brixel::TableColumnList> columns;
    brixel::HighlightGradientCache gradientCache;
    ZARNTableViewDelegate *delegate = nullptr;
    quint32 highlightStyle = ZARNTableView::Rectangle;
    QString emptyString;
    std::optional<ZARNAttributedString> emptyAttributedString;
    QPoint pressPosition;
    QPersistentModelIndex editedIndex;
};

ZARNTableView::ZARNTableView(QWidget *parent)
    : QTableView(parent)
    , d(std::make_unique<ZARNTableViewPrivate>(this))
{
    auto *header = new ZARNNSTableHeaderView(this);
    setHorizontalHeader(header);
    d->columns = std::make_unique<brixel::TableColumnList>(this, header);
    header->setColumnList(d->columns.get());
    setSelectionBehavior(SelectRows);
    d->behaviour = new brixel::ItemViewBehaviour(this);
    connect(d->behaviour, &brixel::ItemViewBehaviour::liveResizeEnded, this, &ZARNTableView::viewDidEndLiveResize);
    connect(d->behaviour, &brixel::ItemViewBehaviour::applicationBecameActive, this, &ZARNTableView::userDefaultsDidChange);
}

ZARNTableView::~ZARNTableView() = default;

const ZARNShadow &ZARNTableView::standardShadow()
{
    static const ZARNShadow shadow = blackShadowWithAlpha(0.8f);
    return shadow;
}

const ZARNShadow &ZARNTableView::deactivatedShadow()
{
    static const ZARNShadow shadow = blackShadowWithAlpha(0.3f);
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

quint32 ZARNTableView::highlightStyle() const
{
    return d->highlightStyle;
}

void ZARNTableView::setHighlightStyle(quint32 style)
{
    d->highlightStyle = style;
}

QString ZARNTableView::emptyString() const
{
    return d->emptyString;
}

void ZARNTableView::setEmptyString(const QString &string)
{
    d->emptyString = string;
}

std::optional<ZARNAttributedString> ZARNTableView::emptyAttributedString() const
{
    return d->emptyAttributedString;
}

void ZARNTableView::setEmptyAttributedString(const std::optional<ZARNAttributedString> &string)
{
    d->emptyAttributedString = string;
}

bool ZARNTableView::inDragPrep() const
{
    return d->behaviour->inDragPrep();
}

int ZARNTableView::contextMenuRow() const
{
    const QModelIndex item = d->behaviour->contextMenuItem();
    return item.isValid() ? item.row() : -1;
}

int ZARNTableView::selectedRow() const
{
    const QModelIndex item = brixel::selectedRowItem(this);
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
    switch (brixel::keyRole(event->key())) {
    case brixel::KeyRole::ReturnKey:
        if (d->delegate)
            d->delegate->tableViewReturnKey(this);
        event->accept();
        return;
    case brixel::KeyRole::DeleteBackward:
        deleteBackward();
        event->accept();
        return;
    case brixel::KeyRole::SelectionMove:
        if (d->behaviour->moveChangesSelectedRow([&] { QTableView::keyPressEvent(event); })) {
            if (d->delegate)
                d->delegate->tableViewSelectionIsChanging({QString(NSTableViewSelectionIsChangingNotification), this, {}});
            Q_EMIT selectionIsChanging();
        }
        return;
    case brixel::KeyRole::Other:
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
    if (brixel::isControlClick(event)) {
        const QModelIndex item = d->rowItem(rowAt(event->position().toPoint().y()));
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
    if (brixel::controlClickSelectsFirst(event))
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
            brixel::selectRowAlone(this, model()->index(row, column, rootIndex()));
        }
    }
    d->behaviour->popUpMenu(menu(), d->rowItem(row), event->globalPosition().toPoint());
}

void ZARNTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    scheduleDelayedItemsLayout();
    d->behaviour->noteResize();
}

void ZARNTableView::viewDidEndLiveResize()
{
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
    const brixel::TextMovement movement = brixel::textMovementForHint(hint);
    const QModelIndex edited = d->editedIndex;
    const std::optional<brixel::Cell> from = edited.isValid() && indexWidget(edited) == editor
        ? d->cellForIndex(edited)
        : std::nullopt;
    std::optional<brixel::Cell> target;
    if (from) {
        target = brixel::nextEditableCell(movement, *from, model()->rowCount(rootIndex()), numberOfColumns(),
                                          [this](brixel::Cell cell) { return isEditableAtColumn(cell.column, cell.row); });
    }
    if (!target) {
        QTableView::closeEditor(editor, hint);
        return;
    }

    commitData(editor);
    QTableView::closeEditor(editor, QAbstractItemDelegate::SubmitModelCache);
    if (movement == brixel::TextMovement::Tab && d->delegate)
        d->delegate->tableViewWillTabToColumn(this, target->column, target->row, from->column, from->row);
    editCell(d->indexForCell(*target));
}

void ZARNTableView::editCell(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    brixel::selectRowAlone(this, index);
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
    d->behaviour->startDrag(selectedIndexes(), supportedActions, defaultDropAction(), d->pressPosition,
                            [this](QDrag *drag, Qt::DropActions supported, Qt::DropAction action) {
                                return execDrag(drag, supported, action);
                            });
}

Qt::DropAction ZARNTableView::execDrag(QDrag *drag, Qt::DropActions supportedActions, Qt::DropAction defaultAction)
{
    return drag->exec(supportedActions, defaultAction);
}
