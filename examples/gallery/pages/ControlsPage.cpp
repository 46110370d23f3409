// SPDX-License-Identifier: LGPL-2.1-or-later
// The Controls page: chiseled labels in every state and both looks, the chiseled pop-up
// button's three appearances side by side and a live one, a pop-up button with tagged items,
// and a chiseled label with an image in its text.
#include "../GalleryPages.h"

#include <Brixel/ZARNAttributedString.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNChiseledTextPopUpButton.h>
#include <Brixel/ZARNPopUpButton.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
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
    QObject::connect(button->menu(), &QMenu::triggered, shown, showTag);
    showTag();
    layout->addWidget(button);
    layout->addWidget(shown);
    layout->addStretch();
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
    layout->addWidget(attributedLabel());
    layout->addStretch();
    return page;
}
