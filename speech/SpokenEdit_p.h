// SPDX-License-Identifier: LGPL-2.1-or-later
// Internal to Brixel's speech layer; not installed.
#pragma once

#include "../platform/ZARNRange.h"

#include <QString>

namespace BrixelPrivate {

/// One edit of a line of text: the range of the old text it replaced, and what replaced it.
struct TextEdit
{
    ZARNRange range;
    QString replacement;
};

/**
 * The edit that turned \a before into \a after, given the cursor position after it. The
 * replacement ends at the cursor, as it does after typing or pasting, whenever the text
 * behind the cursor is unchanged; otherwise the longest common start and end are kept.
 */
TextEdit editBetween(const QString &before, const QString &after, qsizetype cursor);

} // namespace BrixelPrivate
