// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFormatterDelegate.h"

#include "FormatterEditing_p.h"
#include "ZARNFormatterValidator.h"

#include <QLineEdit>

class ZARNFormatterDelegatePrivate
{
public:
    explicit ZARNFormatterDelegatePrivate(std::shared_ptr<const ZARNFormatter> formatter)
        : formatter(std::move(formatter))
    {
    }

    std::shared_ptr<const ZARNFormatter> formatter;
};

ZARNFormatterDelegate::ZARNFormatterDelegate(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<ZARNFormatterDelegatePrivate>(std::move(formatter)))
{
}

ZARNFormatterDelegate::~ZARNFormatterDelegate() = default;

std::shared_ptr<const ZARNFormatter> ZARNFormatterDelegate::formatter() const
{
    return d->formatter;
}

QString ZARNFormatterDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    if (!d->formatter)
        return QStyledItemDelegate::displayText(value, locale);
    return d->formatter->stringForObjectValue(value);
}

QWidget *ZARNFormatterDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    if (!d->formatter)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setValidator(new ZARNFormatterValidator(d->formatter, editor));
    return editor;
}

void ZARNFormatterDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!d->formatter || !lineEdit) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    lineEdit->setText(d->formatter->stringForObjectValue(index.data(Qt::EditRole)));
}

void ZARNFormatterDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!d->formatter || !lineEdit) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    QVariant value;
    if (d->formatter->getObjectValue(&value, BrixelPrivate::editorText(lineEdit->text()), nullptr))
        model->setData(index, value, Qt::EditRole);
}
