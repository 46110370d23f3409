// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QDomNode;
QT_END_NAMESPACE

/**
 * \file
 * Path look-up in a parsed XML tree. The tree is a QDomNode from Qt XML; include &lt;QDomNode&gt;
 * and link Qt6::Xml to call it.
 */

namespace Brixel {

/**
 * The element reached from \a tree by following \a path, one element name per component.
 *
 * Each step takes the first child element (other node kinds are passed over, even a text or
 * attribute node of the same name) whose name equals the component. A leading "/" is skipped
 * and empty components (doubled or trailing slashes) do not count.
 *
 * \code
 * QDomDocument document;
 * document.setContent(u"<root><item id='1'/><item id='2'/></root>"_s);
 * const QDomNode item = BXXMLTreeAtPath(document, u"/root/item"_s);   // the item with id 1
 * \endcode
 *
 * Results: a null \a tree gives a null node; a null or empty \a path, or "/", gives \a tree;
 * a component that names no child element gives a null node.
 */
BRIXEL_EXPORT QDomNode BXXMLTreeAtPath(const QDomNode &tree, const QString &path);

} // namespace Brixel
