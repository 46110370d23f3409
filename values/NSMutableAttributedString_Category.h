// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariant>

class ZARNAttributedString;

namespace Brixel {

/**
 * Sets the attribute \a name to \a value on the characters of \a string that have attributes,
 * run by run, keeping each run's other attributes. Characters without any attribute are left
 * as they are, and so is an empty string.
 *
 * \code
 * replaceAttribute(label, ZARNForegroundColorAttributeName, QColor(Qt::white));
 * \endcode
 *
 * An invalid \a value throws std::invalid_argument, and changes nothing, when some character
 * has attributes (ZARNAttributedString holds no invalid values).
 */
BRIXEL_EXPORT void replaceAttribute(ZARNAttributedString &string, const QString &name, const QVariant &value);

} // namespace Brixel
