// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSMenuAdditions.h"

#include <QMenu>

void Brixel::addItems(QMenu *menu, const QList<QAction *> &items)
{
    if (!menu)
        return;
    for (QAction *item : items) {
        if (item)
            menu->addAction(item);
    }
}

QAction *Brixel::lastItem(const QMenu *menu)
{
    if (!menu || menu->actions().isEmpty())
        return nullptr;
    return menu->actions().constLast();
}
