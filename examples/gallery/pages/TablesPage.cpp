// SPDX-License-Identifier: LGPL-2.1-or-later
// The Tables page: a table with a highlight-style switcher, hideable columns from a header
// menu, Tab editing and image-and-text cells; an empty table with its message; an outline
// view with a disable switch, custom disclosure indicators and drag and drop.
#include "../GalleryPages.h"

#include <Brixel/ZARNImageAndTextCell.h>
#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNOutlineViewDelegate.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTableView.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

// Gives the watched widget the keyboard focus each time it is shown.
class FocusOnShow : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            static_cast<QWidget *>(watched)->setFocus();
        return false;
    }
};

// A small round document icon in the given colour, drawn rather than loaded so the page
// needs no artwork of its own.
QImage documentIcon(const QColor &colour)
{
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(140));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(2.5, 1.5, 11, 13), 2, 2);
    painter.setPen(QPen(Qt::white, 1.2));
    for (const qreal y : {5.5, 8.0, 10.5})
        painter.drawLine(QPointF(5, y), QPointF(11, y));
    return image;
}

QStandardItemModel *downloadsModel(QObject *parent)
{
    struct Download {
        const char *name;
        const char *kind;
        const char *size;
        const char *date;
        QColor colour;
    };
    const Download downloads[] = {
        {"Annual report.pdf", "PDF document", "2.4 MB", "2026-11-02", QColor(200, 60, 50)},
        {"Holiday photos.zip", "Archive", "148 MB", "2026-10-28", QColor(220, 150, 40)},
        {"Budget 2027.csv", "Comma-separated values", "36 KB", "2026-10-21", QColor(60, 150, 70)},
        {"Interview notes.txt", "Plain text", "4 KB", "2026-10-19", QColor(90, 110, 130)},
        {"Brochure draft.odt", "Text document", "1.1 MB", "2026-10-11", QColor(50, 110, 200)},
        {"Team portrait.png", "PNG image", "5.8 MB", "2026-09-30", QColor(150, 80, 190)},
        {"Release checklist.md", "Markdown text", "9 KB", "2026-09-12", QColor(90, 110, 130)},
    };
    auto *model = new QStandardItemModel(0, 5, parent);
    model->setHorizontalHeaderLabels({QObject::tr("Name"), QObject::tr("Kind"), QObject::tr("Size"),
                                      QObject::tr("Added"), QObject::tr("Comment")});
    for (const Download &download : downloads) {
        auto *name = new QStandardItem(QString::fromUtf8(download.name));
        name->setData(documentIcon(download.colour), Qt::DecorationRole);
        auto *kind = new QStandardItem(QString::fromUtf8(download.kind));
        kind->setEditable(false);
        auto *size = new QStandardItem(QString::fromUtf8(download.size));
        size->setEditable(false);
        size->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto *date = new QStandardItem(QString::fromUtf8(download.date));
        date->setEditable(false);
        model->appendRow({name, kind, size, date, new QStandardItem});
    }
    return model;
}

// A menu on the table's header with one checkable action per column: unchecking hides the
// column, checking shows it again at the right end.
void addColumnMenu(ZARNTableView *table)
{
    QHeaderView *header = table->horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(header, &QWidget::customContextMenuRequested, table, [table, header](const QPoint &position) {
        QMenu menu;
        const auto addAction = [&](ZARNTableColumn *column, bool shown) {
            QAction *action = menu.addAction(column->identifier());
            action->setCheckable(true);
            action->setChecked(shown);
            const QString identifier = column->identifier();
            QObject::connect(action, &QAction::toggled, table, [table, identifier](bool show) {
                if (show)
                    table->showColumnWithIdentifier(identifier);
                else
                    table->hideColumnWithIdentifier(identifier);
            });
        };
        for (ZARNTableColumn *column : table->tableColumns())
            addAction(column, true);
        for (ZARNTableColumn *column : table->hiddenTableColumns())
            addAction(column, false);
        menu.exec(header->mapToGlobal(position));
    });
}

QWidget *tableBox()
{
    auto *box = new QGroupBox(QObject::tr("Table: highlight style, hideable columns (header menu), Tab editing"));
    auto *layout = new QVBoxLayout(box);

    auto *table = new ZARNTableView;
    table->setModel(downloadsModel(table));
    auto *nameCell = new ZARNImageAndTextCell(table);
    nameCell->setImageSize({16.0f, 16.0f});
    table->setItemDelegateForColumn(0, nameCell);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, 180);
    table->setColumnWidth(1, 170);
    table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    addColumnMenu(table);

    // The Kind column is hidden and shown again, so it now sits at the right end.
    table->hideColumnWithIdentifier(QObject::tr("Kind"));
    table->showColumnWithIdentifier(QObject::tr("Kind"));

    auto *style = new QComboBox;
    style->addItem(QObject::tr("Rectangle"), QVariant::fromValue(ZARNTableView::HighlightStyle::Rectangle));
    style->addItem(QObject::tr("Capsule"), QVariant::fromValue(ZARNTableView::HighlightStyle::Capsule));
    style->addItem(QObject::tr("Rounded rectangle"), QVariant::fromValue(ZARNTableView::HighlightStyle::RoundedRectangle));
    QObject::connect(style, &QComboBox::currentIndexChanged, table, [table, style] {
        table->setHighlightStyle(style->currentData().value<ZARNTableView::HighlightStyle>());
        table->viewport()->update();
    });
    style->setCurrentIndex(1);

    table->selectionModel()->select(QItemSelection(table->model()->index(1, 0), table->model()->index(3, 4)),
                                    QItemSelectionModel::ClearAndSelect);
    // The table takes the keyboard whenever its page comes on screen, so its selection shows
    // the focused look with the gradient.
    table->installEventFilter(new FocusOnShow(table));

    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(QObject::tr("Highlight style:")));
    row->addWidget(style);
    row->addStretch();
    layout->addLayout(row);
    layout->addWidget(table);
    return box;
}

QWidget *emptyTableBox()
{
    auto *box = new QGroupBox(QObject::tr("Empty table"));
    auto *table = new ZARNTableView;
    auto *model = new QStandardItemModel(0, 2, table);
    model->setHorizontalHeaderLabels({QObject::tr("Name"), QObject::tr("Size")});
    table->setModel(model);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->setEmptyString(QObject::tr("No downloads yet"));
    (new QVBoxLayout(box))->addWidget(table);
    return box;
}

// Folders get a plus and minus sign instead of the disclosure triangles.
class SignIndicators : public ZARNOutlineViewDelegate
{
public:
    std::optional<QImage> outlineViewExpandedIndicatorForItem(ZARNOutlineView *, const QModelIndex &item) override
    {
        return isFolderOfSigns(item) ? std::optional(sign(false)) : std::nullopt;
    }
    std::optional<QImage> outlineViewCollapsedIndicatorForItem(ZARNOutlineView *, const QModelIndex &item) override
    {
        return isFolderOfSigns(item) ? std::optional(sign(true)) : std::nullopt;
    }

private:
    static bool isFolderOfSigns(const QModelIndex &item) { return item.row() % 2 == 1 && !item.parent().isValid(); }

    static QImage sign(bool plus)
    {
        QImage image(11, 11, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setPen(QColor(90, 90, 90));
        painter.drawRect(0, 0, 10, 10);
        painter.drawLine(3, 5, 7, 5);
        if (plus)
            painter.drawLine(5, 3, 5, 7);
        return image;
    }
};

QStandardItemModel *foldersModel(QObject *parent)
{
    auto *model = new QStandardItemModel(0, 2, parent);
    model->setHorizontalHeaderLabels({QObject::tr("Folder"), QObject::tr("Items")});
    const QStringList folders{QObject::tr("Documents"), QObject::tr("Pictures"), QObject::tr("Music"),
                              QObject::tr("Projects")};
    for (const QString &name : folders) {
        auto *folder = new QStandardItem(name);
        for (int index = 1; index <= 3; ++index)
            folder->appendRow({new QStandardItem(QObject::tr("%1 item %2").arg(name).arg(index)),
                               new QStandardItem(QString::number(index * 7))});
        model->appendRow({folder, new QStandardItem(QString::number(3))});
    }
    return model;
}

QWidget *outlineBox()
{
    auto *box = new QGroupBox(QObject::tr("Outline: disable switch, custom indicators, drag and drop"));
    auto *layout = new QVBoxLayout(box);
    auto *outline = new ZARNOutlineView;
    outline->setModel(foldersModel(outline));
    static SignIndicators indicators;
    outline->setDelegate(&indicators);
    outline->setHighlightStyle(ZARNTableView::HighlightStyle::RoundedRectangle);
    outline->setDragDropMode(QAbstractItemView::InternalMove);
    outline->setDefaultDropAction(Qt::MoveAction);
    outline->expand(outline->model()->index(0, 0));
    outline->expand(outline->model()->index(1, 0));
    outline->setCurrentIndex(outline->model()->index(1, 0, outline->model()->index(0, 0)));
    outline->header()->setStretchLastSection(true);
    outline->setColumnWidth(0, 220);

    auto *enabled = new QCheckBox(QObject::tr("Enabled"));
    enabled->setChecked(true);
    QObject::connect(enabled, &QCheckBox::toggled, outline, &QWidget::setEnabled);
    layout->addWidget(enabled);
    layout->addWidget(outline);
    return box;
}

} // namespace

QWidget *createTablesPage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    layout->addWidget(tableBox(), 0, 0, 1, 2);
    layout->addWidget(emptyTableBox(), 1, 0);
    layout->addWidget(outlineBox(), 1, 1);
    layout->setRowStretch(0, 3);
    layout->setRowStretch(1, 2);
    return page;
}
