// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXPopUpButtonCell.h"

#include "../drawing/ZARNAttributedTextLayout.h"
#include "../platform/ZARNAttributedString.h"
#include "../platform/ZARNSystemVersion.h"
#include "../tables/ZARNTableView.h"
#include "../values/NSMutableAttributedString_Category.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// The room the pop-up's arrows keep on the right.
constexpr qreal ArrowsWidth = 10.0;

QFont systemFont(bool bold)
{
    QFont font = QApplication::font();
    font.setPointSizeF(11.0);
    font.setBold(bold);
    return font;
}

} // namespace

class BXPopUpButtonCellPrivate
{
public:
    ZARNAttributedString displayAttributedString;
    QStringList items;
};

BXPopUpButtonCell::BXPopUpButtonCell(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<BXPopUpButtonCellPrivate>())
{
}

BXPopUpButtonCell::~BXPopUpButtonCell() = default;

ZARNAttributedString BXPopUpButtonCell::displayAttributedString() const
{
    return d->displayAttributedString;
}

void BXPopUpButtonCell::setDisplayAttributedString(const ZARNAttributedString &string)
{
    d->displayAttributedString = string;
    Q_EMIT sizeHintChanged({});
}

QStringList BXPopUpButtonCell::items() const
{
    return d->items;
}

void BXPopUpButtonCell::setItems(const QStringList &items)
{
    d->items = items;
}

ZARNAttributedString BXPopUpButtonCell::displayStringForTitle(const QString &title, bool selected,
                                                              quint32 systemVersion)
{
    const bool bold = selected && systemVersion >= 0x1040;
    ZARNAttributedString shown(title, {{ZARNFontAttributeName, systemFont(bold)},
                                       {ZARNForegroundColorAttributeName, QColor(Qt::black)}});
    if (!selected || shown.isEmpty())
        return shown;
    if (bold)
        shown.addAttribute(ZARNShadowAttributeName, QVariant::fromValue(ZARNTableView::standardShadow()),
                           {0, shown.length()});
    Brixel::replaceAttribute(shown, ZARNForegroundColorAttributeName, QColor(Qt::white));
    return shown;
}

QRectF BXPopUpButtonCell::drawTitle(QPainter &painter, const QRectF &frame) const
{
    painter.save();
    painter.setFont(systemFont(true));
    painter.setPen(Qt::white);
    painter.drawText(frame, Qt::AlignLeft | Qt::AlignVCenter, u"Test"_s);
    painter.restore();
    return frame;
}

void BXPopUpButtonCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!painter)
        return;
    QStyleOptionComboBox frame;
    frame.rect = option.rect;
    frame.state = option.state & ~QStyle::State_Selected;
    frame.palette = option.palette;
    frame.direction = option.direction;
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawComplexControl(QStyle::CC_ComboBox, &frame, painter, option.widget);

    const QVariant title = index.data(Qt::DisplayRole);
    const ZARNAttributedString shown = title.isValid()
        ? displayStringForTitle(title.toString(), option.state.testFlag(QStyle::State_Selected),
                                Brixel::ZARNSystemVersion())
        : d->displayAttributedString;
    if (shown.isEmpty())
        return;
    const QRectF interior(option.rect.x(), option.rect.y(), option.rect.width() - ArrowsWidth, option.rect.height());
    // One line, centred on the interior's height like the style's own pop-up title.
    const ZARNAttributedTextLayout text(shown, interior.width(), false);
    painter->save();
    painter->setClipRect(interior);
    text.draw(*painter, interior.adjusted(0, (interior.height() - text.height()) / 2, 0, 0));
    painter->restore();
}

QWidget *BXPopUpButtonCell::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const
{
    auto *editor = new QComboBox(parent);
    editor->addItems(d->items);
    return editor;
}

void BXPopUpButtonCell::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *comboBox = qobject_cast<QComboBox *>(editor))
        comboBox->setCurrentIndex(comboBox->findText(index.data(Qt::EditRole).toString()));
}

void BXPopUpButtonCell::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *comboBox = qobject_cast<QComboBox *>(editor); comboBox && model)
        model->setData(index, comboBox->currentText(), Qt::EditRole);
}
