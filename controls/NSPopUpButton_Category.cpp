// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSPopUpButton_Category.h"
#include "ZARNNSPopUpButtonAdditions.h"

#include <QComboBox>

bool Brixel::selectItemWithTag(QComboBox *button, int tag)
{
    const int index = Brixel::itemWithTag(button, tag);
    if (index == -1)
        return false;
    button->setCurrentIndex(index);
    return true;
}
