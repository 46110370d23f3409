// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXXMLTree.h"

#include <QDomNode>
#include <QStringList>

QDomNode Brixel::BXXMLTreeAtPath(const QDomNode &tree, const QString &path)
{
    QDomNode node = tree;
    const QStringList components = path.split(u'/', Qt::SkipEmptyParts);
    for (const QString &component : components) {
        if (node.isNull())
            break;
        node = node.firstChildElement(component);
    }
    return node;
}
