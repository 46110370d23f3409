// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariant>

class ZARNAttributedString;

namespace Brixel {

/**
 * The value of the attribute \a name at the first character of \a string: the attribute of the
 * text as a whole, for text styled uniformly. An invalid QVariant when \a string is empty or
 * its first character lacks the attribute.
 *
 * \code
 * const QFont font = attribute(title, ZARNFontAttributeName).value<QFont>();
 * \endcode
 */
BRIXEL_EXPORT QVariant attribute(const ZARNAttributedString &string, const QString &name);

} // namespace Brixel
