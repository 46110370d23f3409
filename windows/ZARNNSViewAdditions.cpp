// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSViewAdditions.h"

#include <QWidget>

namespace Brixel {

QObject *nextResponderOfClass(const QObject *object, const QMetaObject &type)
{
    if (!object)
        return nullptr;
    for (QObject *ancestor = object->parent(); ancestor; ancestor = ancestor->parent()) {
        if (ancestor->metaObject() == &type)
            return ancestor;
    }
    for (QObject *ancestor = object->parent(); ancestor; ancestor = ancestor->parent()) {
        if (ancestor->metaObject()->inherits(&type))
            return ancestor;
    }
    return nullptr;
}

void sizeToFit(QWidget *view)
{
    if (!view)
        return;
    QRect children;
    for (const QWidget *child : view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        children |= child->geometry();
    if (!children.isNull())
        view->resize(children.right() + 1, children.bottom() + 1);
}

} // namespace Brixel
