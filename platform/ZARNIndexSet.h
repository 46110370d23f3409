// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <set>

/**
 * A set of indexes, kept sorted and free of duplicates, as the library's collection helpers
 * take and return them.
 *
 * \code
 * const ZARNIndexSet rows{4, 1, 4};    // holds 1 and 4
 * \endcode
 */
using ZARNIndexSet = std::set<qsizetype>;
