// SPDX-License-Identifier: LGPL-2.1-or-later
// The Controls page: chiseled labels in every state and both looks, the chiseled pop-up
// button's three appearances side by side and a live one, a pop-up button with tagged items,
// a segmented control with its separators and an image button, a split view, a label with an
// image in its text and a text with an attachment moved below the baseline, and the pop-up and
// combo-box cells in a table.
#include "../GalleryPages.h"

#include <Brixel/BXComboBoxCell.h>
#include <Brixel/BXPopUpButtonCell.h>
#include <Brixel/BXSplitView.h>
#include <Brixel/ZARNAttributedString.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNChiseledTextPopUpButton.h>
#include <Brixel/ZARNPopUpButton.h>
#include <Brixel/ZARNSegmentedControl.h>
#include <Brixel/ZARNSegmentedControlButton.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTextAttachmentCell.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QStandardItemModel>
#include <QTextBrowser>
#include <QTextCursor>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QColor grey(float value, float alpha)
{
    return QColor::fromRgbF(value, value, value, alpha);
}

enum class State { Active, Inactive, Disabled };

// A chiseled label fixed in one state, so the page shows it whatever the window's activity:
// the inactive sample uses its inactive colours as its active ones.
ZARNChiseledTextField *chiseledLabel(State state, bool classic)
{
    auto *field = new ZARNChiseledTextField;
    field->setText(u"LIBRARY"_s);
    field->setFont(QFont(field->font().family(), 11, QFont::Bold));
    if (classic) {
        field->setActiveColor(grey(0.1f, 1.0f));
        field->setShadowActiveColor(grey(0.96f, 0.9f));
        field->setInactiveColor(grey(0.3f, 0.9f));
        field->setShadowInactiveColor(grey(0.96f, 0.7f));
        field->setDisabledColor(grey(0.7f, 1.0f));
    }
    if (state == State::Inactive) {
        const QColor inactive = field->inactiveColor();
        const QColor disabled = field->disabledColor();
        field->setActiveColor(inactive);
        field->setDisabledColor(disabled);
        field->setShadowActiveColor(field->shadowInactiveColor());
    }
    field->setEnabled(state != State::Disabled);
    field->activate();
    return field;
}

QGroupBox *chiseledLabels()
{
    auto *box = new QGroupBox(QObject::tr("Chiseled labels"));
    auto *grid = new QGridLayout(box);
    const QStringList states{QObject::tr("Active"), QObject::tr("Inactive"), QObject::tr("Disabled")};
    for (int column = 0; column < states.size(); ++column)
        grid->addWidget(new QLabel(states.at(column)), 0, column + 1);
    const QStringList looks{QObject::tr("New look"), QObject::tr("Classic look")};
    for (int row = 0; row < looks.size(); ++row) {
        grid->addWidget(new QLabel(looks.at(row)), row + 1, 0);
        for (int column = 0; column < states.size(); ++column)
            grid->addWidget(chiseledLabel(State(column), row == 1), row + 1, column + 1);
    }
    return box;
}

QLabel *imageLabel(const QImage &image)
{
    auto *label = new QLabel;
    label->setPixmap(QPixmap::fromImage(image));
    return label;
}

QGroupBox *chiseledPopUpButtons()
{
    auto *box = new QGroupBox(QObject::tr("Chiseled pop-up buttons: idle, mouse over, pressed, and a live one"));
    auto *grid = new QGridLayout(box);
    auto *sample = new ZARNChiseledTextPopUpButton(box);
    sample->hide();
    sample->SetSizeHeightToFit(true);
    sample->setTitle(QObject::tr("All Documents"));
    grid->addWidget(imageLabel(sample->ConstructIdleImage()), 0, 0);
    grid->addWidget(imageLabel(sample->ConstructMouseOverImage()), 0, 1);
    grid->addWidget(imageLabel(sample->ConstructMouseDownImage()), 0, 2);

    auto *live = new ZARNChiseledTextPopUpButton;
    live->SetSizeHeightToFit(true);
    for (const QString &title : {QObject::tr("All Documents"), QObject::tr("Images"), QObject::tr("Movies")})
        live->addItemWithTitle(title);
    live->selectItemAtIndex(0);
    grid->addWidget(live, 0, 3);
    grid->setColumnStretch(4, 1);
    return box;
}

QGroupBox *popUpButton()
{
    auto *box = new QGroupBox(QObject::tr("Pop-up button with tagged items"));
    auto *layout = new QHBoxLayout(box);
    auto *button = new ZARNPopUpButton;
    const QStringList sorts{QObject::tr("Name"), QObject::tr("Date Modified"), QObject::tr("Size")};
    for (int index = 0; index < sorts.size(); ++index)
        button->addItemWithTitle(sorts.at(index))->setData(100 + index);
    button->selectItemWithTag(101);
    auto *shown = new QLabel;
    const auto showTag = [button, shown] {
        shown->setText(QObject::tr("Selected tag: %1").arg(button->selectedItem()->data().toInt()));
    };
    QObject::connect(button->menu(), &QMenu::triggered, shown, [button, showTag](QAction *item) {
        button->selectItemWithTag(item->data().toInt());
        showTag();
    });
    showTag();
    layout->addWidget(button);
    layout->addWidget(shown);
    layout->addStretch();
    return box;
}

QImage disc(QColor color, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
    return image;
}

QGroupBox *segmentedControls()
{
    auto *box = new QGroupBox(QObject::tr("Segmented control with separators, and an image button"));
    auto *layout = new QHBoxLayout(box);
    auto *control = new ZARNSegmentedControl;
    const QStringList labels{QObject::tr("Day"), QObject::tr("Week"), QObject::tr("Month"), QObject::tr("Year")};
    control->setSegmentCount(int(labels.size()));
    for (int segment = 0; segment < labels.size(); ++segment)
        control->setLabel(labels.at(segment), segment);
    control->setSelectedSegment(0);
    control->setFixedSize(280, 26);
    auto *button = new ZARNSegmentedControlButton;
    button->setSegmentCount(1);
    button->setImage(disc(QColor(60, 120, 200), 16));
    button->setFixedSize(45, 26);
    layout->addWidget(control);
    layout->addWidget(button);
    layout->addStretch();
    return box;
}

QGroupBox *splitView()
{
    auto *box = new QGroupBox(QObject::tr("Split view with 7-pixel dividers"));
    auto *layout = new QHBoxLayout(box);
    auto *split = new BXSplitView(Qt::Horizontal);
    for (const QString &name : {QObject::tr("Sources"), QObject::tr("Contents")}) {
        auto *pane = new QLabel(name);
        pane->setAlignment(Qt::AlignCenter);
        pane->setFrameShape(QFrame::StyledPanel);
        split->addWidget(pane);
    }
    split->setFixedHeight(50);
    layout->addWidget(split);
    return box;
}

QGroupBox *cellsInATable()
{
    auto *box = new QGroupBox(QObject::tr("Pop-up and combo-box cells in a table"));
    auto *layout = new QHBoxLayout(box);
    auto *model = new QStandardItemModel(0, 2, box);
    model->setHorizontalHeaderLabels({QObject::tr("Priority"), QObject::tr("Unit")});
    const QStringList priorities{QObject::tr("Low"), QObject::tr("Normal"), QObject::tr("High")};
    for (int row = 0; row < 3; ++row)
        model->appendRow({new QStandardItem(priorities.at(row)), new QStandardItem(QObject::tr("Pixels"))});
    auto *table = new ZARNTableView;
    table->setModel(model);
    auto *priority = new BXPopUpButtonCell(table);
    priority->setItems(priorities);
    table->setItemDelegateForColumn(0, priority);
    table->setItemDelegateForColumn(1, new BXComboBoxCell(table));
    table->setColumnWidth(0, 140);
    table->setColumnWidth(1, 140);
    table->selectRow(1);
    table->setFixedHeight(110);
    layout->addWidget(table);
    return box;
}

QGroupBox *attributedLabel()
{
    auto *box = new QGroupBox(QObject::tr("Chiseled label with an image in its text"));
    auto *layout = new QHBoxLayout(box);
    QImage star(14, 14, QImage::Format_ARGB32_Premultiplied);
    star.fill(Qt::transparent);
    {
        QPainter painter(&star);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(QColor(230, 160, 20));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QRectF(1, 1, 12, 12));
    }
    auto *field = new ZARNChiseledTextField;
    QFont font = field->font();
    font.setPointSize(12);
    font.setBold(true);
    ZARNAttributedString text(u"\uFFFC Favourites"_s, {{ZARNFontAttributeName, font}});
    text.addAttribute(ZARNAttachmentAttributeName, star, {0, 1});
    field->setAttributedStringValue(text);
    layout->addWidget(field);

    auto *browser = new QTextBrowser;
    browser->setFixedSize(260, 40);
    browser->setFrameShape(QFrame::NoFrame);
    auto *attachment = new ZARNTextAttachmentCell(disc(QColor(200, 60, 60), 10), browser);
    attachment->zarnSetCellBaselineOffset(QPointF(0, -3));
    QTextCursor cursor(browser->document());
    cursor.insertText(QObject::tr("Attachment 3 pixels low: "));
    attachment->insertInto(cursor);
    cursor.insertText(QObject::tr(" (text)"));
    layout->addWidget(browser);
    layout->addStretch();
    return box;
}

} // namespace

QWidget *createControlsPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(chiseledLabels());
    layout->addWidget(chiseledPopUpButtons());
    layout->addWidget(popUpButton());
    layout->addWidget(segmentedControls());
    layout->addWidget(splitView());
    layout->addWidget(attributedLabel());
    layout->addWidget(cellsInATable());
    layout->addStretch();
    return page;
}
