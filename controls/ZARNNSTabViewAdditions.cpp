// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTabViewAdditions.h"

#include <QTabWidget>

#include <stdexcept>

QWidget *Brixel::tabViewItemWithIdentifier(const QTabWidget *tabView, const QVariant &identifier)
{
    if (!tabView)
        return nullptr;
    for (int index = 0; index < tabView->count(); ++index) {
        const QVariant pageIdentifier = tabView->widget(index)->property(ZARNTabViewItemIdentifierProperty);
        if (pageIdentifier.isValid() && pageIdentifier == identifier)
            return tabView->widget(index);
    }
    throw std::out_of_range("tabViewItemWithIdentifier: no tab has this identifier");
}
