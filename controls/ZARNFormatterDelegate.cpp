// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFormatterDelegate.h"

#include "FormatterEditing_p.h"
#include "ZARNFormatterValidator.h"

#include <QLineEdit>

ZARNFormatterDelegate::ZARNFormatterDelegate(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_formatter(std::move(formatter))
{
}

ZARNFormatterDelegate::~ZARNFormatterDelegate() = default;

std::shared_ptr<const ZARNFormatter> ZARNFormatterDelegate::formatter() const
{
    return m_formatter;
}

QString ZARNFormatterDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    if (!m_formatter)
        return QStyledItemDelegate::displayText(value, locale);
    return m_formatter->stringForObjectValue(value);
}

QWidget *ZARNFormatterDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    if (!m_formatter)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setValidator(new ZARNFormatterValidator(m_formatter, editor));
    return editor;
}

void ZARNFormatterDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!m_formatter || !lineEdit) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    lineEdit->setText(m_formatter->stringForObjectValue(index.data(Qt::EditRole)));
}

void ZARNFormatterDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!m_formatter || !lineEdit) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    QVariant value;
    if (m_formatter->getObjectValue(&value, BrixelPrivate::editorText(lineEdit->text()), nullptr))
        model->setData(index, value, Qt::EditRole);
}
