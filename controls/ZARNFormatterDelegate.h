// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNFormatter.h"
#include <Brixel/brixel_export.h>

#include <QStyledItemDelegate>

#include <memory>

/**
 * An item delegate that shows a model's values through a ZARNFormatter and edits them as
 * text in a QLineEdit.
 *
 * - Display: the model's Qt::DisplayRole value goes through
 *   ZARNFormatter::stringForObjectValue() (an empty cell stays empty).
 * - Editing: the editor is a frameless QLineEdit with a ZARNFormatterValidator, so Return
 *   first tidies the text ("1:5:9" becomes "1:05:09"); it starts with the formatted
 *   Qt::EditRole value. On commit the text is read with ZARNFormatter::getObjectValue() and
 *   the value it gives is written to Qt::EditRole; text the formatter refuses leaves the
 *   model unchanged.
 *
 * \code
 * auto formatter = std::make_shared<BXTimeIntervalFormatter>(BXTimeIntervalSecondsComponent,
 *                                                            BXTimeIntervalHoursComponent);
 * view->setItemDelegateForColumn(durationColumn, new ZARNFormatterDelegate(formatter, view));
 * \endcode
 *
 * The delegate and its editors share ownership of the formatter. Changing a shared
 * formatter's settings later does not repaint the view by itself. Without a formatter
 * (nullptr) the delegate behaves as a plain QStyledItemDelegate.
 */
class BRIXEL_EXPORT ZARNFormatterDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit ZARNFormatterDelegate(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent = nullptr);
    ~ZARNFormatterDelegate() override;

    /// The formatter values are shown and read with; may be null.
    std::shared_ptr<const ZARNFormatter> formatter() const;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
    std::unique_ptr<class ZARNFormatterDelegatePrivate> const d;
};
