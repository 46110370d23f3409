// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Shared by the formatter's editing adapters. Not installed.

#include <QString>

namespace BrixelPrivate {

/// An editor's text as a formatter should see it: never null, since an editor always holds
/// a string (possibly empty), and a null string means "no string" to a formatter.
inline QString editorText(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace BrixelPrivate
