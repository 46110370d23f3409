// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>

/**
 * \file
 * File names: a free name beside an existing file, names for hidden temporary folders and
 * files, and the two sort orders the library uses for file names.
 *
 * \code
 * const QString target = ZARNUniqueFilePathAtPath(u"/tmp/Report.txt"_s, true); // "/tmp/Report 1.txt"
 * std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
 *     return ZARNCompareDirectoryContents(a, b) < 0;                          // "File 2" < "File 10"
 * });
 * \endcode
 */

namespace Brixel {

/**
 * A path at which no file exists yet, beside the one at \a path.
 *
 * When nothing exists at \a path, the result is \a path itself. Otherwise numbers 1, 2, 3 and
 * so on are tried after the name, separated by a space, until a free path is found: with
 * \a keepExtension "/tmp/a.txt" gives "/tmp/a 1.txt" (or "/tmp/a 2.txt" when that exists too),
 * without it "/tmp/a.txt 1". The extension is the text after the name's last ".", unless that
 * dot starts the name (".profile" has none) or nothing follows it ("a." has none).
 *
 * Results for bad input: a null path, or one with fewer than two components ("/", "file",
 * "file/"), gives a null string; so does an existing path whose folder cannot be listed.
 * Empty components (doubled or trailing slashes) do not count; "/tmp" has two components.
 */
BRIXEL_EXPORT QString ZARNUniqueFilePathAtPath(const QString &path, bool keepExtension);

/// The name of a hidden temporary folder for this machine and process:
/// ".Corvel-Temp-<ZARNMACAddressString()>-<ZARNProcessIDString()>".
BRIXEL_EXPORT QString ZARNTempFolderName();

/// The name of a hidden temporary file: ".Corvel-Temp-<hardware address>-<process id>-<n>",
/// where n counts the calls in this process, starting at 1. Safe to call from several threads;
/// each call gets its own n. After 2147483647 calls n wraps to -2147483648.
BRIXEL_EXPORT QString ZARNTempFileName();

/**
 * The order of names in a folder listing: -1 when \a a comes before \a b, 0 when they are the
 * same, 1 when it comes after.
 *
 * Letters compare without regard to case ("a" and "A" are the same) and runs of the digits
 * 0-9 compare as whole numbers ("File 2" before "File 10"; leading zeros do not count, so
 * "File 01" and "File 1" are the same); everything else compares by UTF-16 code unit after
 * simple case folding (one character for one: "ς" and "Σ" are the same, "ß" and "SS" are not).
 * The order does not depend on the locale. A null \a a or \a b gives 0.
 */
BRIXEL_EXPORT int ZARNCompareDirectoryContents(const QString &a, const QString &b);

/**
 * The order of two file names as a person of the user's locale expects it: -1, 0 or 1.
 *
 * Uses the locale's Unicode collation (QCollator) without regard to case, character width or
 * composition, with digits compared as numbers and punctuation significant ("a-b" and "ab"
 * differ). Qt's C locale has no collation of its own, so under it the comparison uses the
 * English one, which is the root Unicode order.
 *
 * Only the first 1024 UTF-16 code units of each string are compared; longer names that agree
 * there are the same. A null \a a or \a b gives 0.
 */
BRIXEL_EXPORT int ZARNCompareLastPathComponent(const QString &a, const QString &b);

} // namespace Brixel
