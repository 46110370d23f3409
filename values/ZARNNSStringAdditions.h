// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QStringList>

#include <functional>

/**
 * \file
 * Reading comma-separated lines, short file extensions, and removing characters from strings.
 * All lengths and characters are UTF-16 units, as in QString.
 */

namespace Brixel {

/**
 * Splits one comma-separated line into its fields.
 *
 * A comma separates fields and the double quote (") quotes. Reading stops after the first CR
 * or LF outside quotes, and that line break stays at the end of the last field, so a caller
 * can tell that the line ended there. There is always at least one field: an empty line gives
 * one empty field. The quoting rules are those of the files this library reads, and they
 * differ from RFC 4180 in places:
 * - A field quoted after a comma protects its commas and line breaks: x,"a,b",c gives x, a,b
 *   and c. A closing quote is one followed by a comma or the end of the line.
 * - The first field cannot be quoted that way: its quotes are dropped and its commas still
 *   separate, so "a,b",c gives a, b and c.
 * - In an unquoted field a single quote is dropped and a doubled one gives one quote (a""b
 *   gives a"b); inside a quoted field a doubled quote stays doubled (,"a""b", gives the empty
 *   field, a""b and the empty field).
 *
 * \code
 * CSVLineComponents(QStringLiteral("1,,3"));        // {"1", "", "3"}
 * CSVLineComponents(QStringLiteral("a,b\nc,d"));    // {"a", "b\n"}
 * \endcode
 */
BRIXEL_EXPORT QStringList CSVLineComponents(const QString &line);

/**
 * The extension of the last path component (the text after its last "."), but only when it is
 * 3 or 4 characters long and all of them are letters or digits of any script; otherwise the
 * empty string. Trailing slashes are ignored, and a leading "." (a hidden file's name) does not
 * start an extension.
 *
 * \code
 * fileExtension(QStringLiteral("report.txt"));    // "txt"
 * fileExtension(QStringLiteral("archive.gz"));    // ""  (too short)
 * fileExtension(QStringLiteral("v1.2b"));         // ""  (too short)
 * \endcode
 */
BRIXEL_EXPORT QString fileExtension(const QString &path);

/**
 * \a path without its extension (and without trailing slashes) when fileExtension() finds one;
 * otherwise \a path unchanged, so notes.v2 keeps its ".v2".
 */
BRIXEL_EXPORT QString stringByDeletingFileExtension(const QString &path);

/**
 * \a string without every character for which \a isInSet returns true.
 *
 * \code
 * withoutCharactersInSet(QStringLiteral("a b\tc"), [](QChar c) { return c.isSpace(); }); // "abc"
 * \endcode
 */
BRIXEL_EXPORT QString withoutCharactersInSet(const QString &string, const std::function<bool(QChar)> &isInSet);

/// \a string without every character that \a characters holds.
BRIXEL_EXPORT QString withoutCharactersInSet(const QString &string, QStringView characters);

} // namespace Brixel
