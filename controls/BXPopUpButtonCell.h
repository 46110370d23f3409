// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QStyledItemDelegate>

#include <memory>

class ZARNAttributedString;

/**
 * A pop-up button cell for item views: it draws the pop-up frame and arrows of the current
 * style, and over it an attributed display string on one line, centred on the cell's height,
 * in the cell less 10 pixels on the right (left for the arrows), instead of the item's title. Editing shows a combo box of items().
 *
 * \code
 * auto *priority = new BXPopUpButtonCell(table);
 * priority->setItems({tr("Low"), tr("Normal"), tr("High")});
 * table->setItemDelegateForColumn(2, priority);
 * \endcode
 *
 * In a view, each row's display string is the row's DisplayRole text in black, in the
 * application font at 11 points. In a selected row it is restyled by system version: below
 * 0x1040 white; from 0x1040 on bold, with the tables' standard shadow
 * (ZARNTableView::standardShadow()), and white. A cell painted for an index without display
 * text draws displayAttributedString() as it is; an empty one draws no text.
 */
class BRIXEL_EXPORT BXPopUpButtonCell : public QStyledItemDelegate
{
    Q_OBJECT
    Q_PROPERTY(QStringList items READ items WRITE setItems)
public:
    explicit BXPopUpButtonCell(QObject *parent = nullptr);
    ~BXPopUpButtonCell() override;

    /// The string drawn when the index has no display text of its own; empty at first.
    ZARNAttributedString displayAttributedString() const;
    void setDisplayAttributedString(const ZARNAttributedString &string);

    /// The choices the editor offers.
    QStringList items() const;
    void setItems(const QStringList &items);

    /**
     * \a title as a row shows it: black, the application font at 11 points, restyled for a
     * \a selected row as \a systemVersion says (see the class description).
     */
    static ZARNAttributedString displayStringForTitle(const QString &title, bool selected, quint32 systemVersion);

    /**
     * Draws the fixed text "Test" in white, bold, 11 points, in \a frame and returns \a frame.
     * A placeholder kept for compatibility: paint() draws the display string instead.
     */
    QRectF drawTitle(QPainter &painter, const QRectF &frame) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
    std::unique_ptr<class BXPopUpButtonCellPrivate> const d;
};
