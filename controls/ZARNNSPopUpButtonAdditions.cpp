// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSPopUpButtonAdditions.h"

#include <QComboBox>

int Brixel::itemWithTag(const QComboBox *button, int tag)
{
    if (!button)
        return -1;
    for (int index = 0; index < button->count(); ++index) {
        if (button->itemData(index).toInt() == tag)
            return index;
    }
    return -1;
}

void Brixel::selectItemWithTagOrClear(QComboBox *button, int tag)
{
    if (button)
        button->setCurrentIndex(Brixel::itemWithTag(button, tag));
}
