// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNPopUpButton.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <stdexcept>

ZARNPopUpButtonDelegate::~ZARNPopUpButtonDelegate() = default;

void ZARNPopUpButtonDelegate::popUpButtonWillDisplayMenu(ZARNPopUpButton *, QMenu *)
{
}

class ZARNPopUpButtonPrivate
{
public:
    QAction *itemAt(int index) const
    {
        const QList<QAction *> items = menu->actions();
        if (index < 0 || index >= items.size())
            throw std::out_of_range("ZARNPopUpButton: no menu item at this index");
        return items.at(index);
    }

    std::unique_ptr<QMenu> menu;
    ZARNPopUpButtonDelegate *delegate = nullptr;
    int selectionIndex = 0;
};

ZARNPopUpButton::ZARNPopUpButton(QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<ZARNPopUpButtonPrivate>())
{
    d->menu = std::make_unique<QMenu>(QStringLiteral("Untitled"));
    // Triggering a checkable item toggles its check mark, which shows the selection instead:
    // the chosen item's mark says again whether it is the selected one.
    connect(d->menu.get(), &QMenu::triggered, this, [this](QAction *item) {
        if (item->isCheckable())
            item->setChecked(d->menu->actions().indexOf(item) == d->selectionIndex);
    });
}

ZARNPopUpButton::~ZARNPopUpButton() = default;

QMenu *ZARNPopUpButton::menu() const
{
    return d->menu.get();
}

ZARNPopUpButtonDelegate *ZARNPopUpButton::delegate() const
{
    return d->delegate;
}

void ZARNPopUpButton::setDelegate(ZARNPopUpButtonDelegate *delegate)
{
    d->delegate = delegate;
}

void ZARNPopUpButton::selectItemAtIndex(int index)
{
    // Only the upper end is checked here; a negative index fails the menu's range check.
    if (index > d->menu->actions().size() - 1)
        return;
    QAction *selected = d->itemAt(index);
    for (QAction *item : d->menu->actions()) {
        item->setCheckable(true);
        item->setChecked(false);
    }
    selected->setChecked(true);
    setTitle(selected->text());
    d->selectionIndex = index;
}

void ZARNPopUpButton::selectItemWithTag(int tag)
{
    const QList<QAction *> items = d->menu->actions();
    const auto tagged = std::find_if(items.cbegin(), items.cend(), [tag](const QAction *item) {
        return item->data().toInt() == tag;
    });
    selectItemAtIndex(tagged == items.cend() ? -1 : int(tagged - items.cbegin()));
}

QAction *ZARNPopUpButton::selectedItem() const
{
    return d->itemAt(d->selectionIndex);
}

int ZARNPopUpButton::selectedItemIndex() const
{
    return d->selectionIndex;
}

void ZARNPopUpButton::removeAllItems()
{
    while (!d->menu->actions().isEmpty()) {
        QAction *item = d->menu->actions().constFirst();
        d->menu->removeAction(item);
        if (item->parent() == d->menu.get())
            delete item;
    }
}

void ZARNPopUpButton::addItem(QAction *item)
{
    if (item)
        d->menu->addAction(item);
}

QAction *ZARNPopUpButton::addItemWithTitle(const QString &title)
{
    return d->menu->addAction(title);
}

QAction *ZARNPopUpButton::lastItem() const
{
    const QList<QAction *> items = d->menu->actions();
    return items.isEmpty() ? nullptr : items.constLast();
}

QString ZARNPopUpButton::title() const
{
    return text();
}

void ZARNPopUpButton::setTitle(const QString &title)
{
    setText(title);
}

void ZARNPopUpButton::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || !isEnabled())
        return;
    if (d->delegate)
        d->delegate->popUpButtonWillDisplayMenu(this, d->menu.get());
    setDown(true);
    // The bottom-left corner, four pixels lower. An item's action may delete the button.
    const QPointer<ZARNPopUpButton> alive(this);
    d->menu->exec(mapToGlobal(QPoint(0, height() + 4)));
    if (alive)
        setDown(false);
}

void ZARNPopUpButton::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
}
