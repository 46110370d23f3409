// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QLocale>
#include <QString>

/**
 * \file
 * Words the library shows to a user, looked up with the English word as the key.
 *
 * Look-ups go through QCoreApplication::translate() in the context "Brixel", so every
 * translator the application has installed takes part: an application can ship its own
 * "Brixel" entries, load the library's translations with ZARNLoadTranslations(), or both
 * (the translator installed last wins). A key without a translation returns the key itself.
 */

namespace Brixel {

/// The translation of the English word \a key, or \a key when no translator has one.
BRIXEL_EXPORT QString ZARNLocalizedString(const char *key);

/// The context under which the library's words are translated.
inline constexpr char ZARNLocalizedStringContext[] = "Brixel";

/**
 * Installs the library's own translation for \a locale (for example German for "de_DE")
 * into the running application. Returns false when the library has no translation for that
 * language, or when there is no QCoreApplication; nothing is installed then. Loading a
 * language again replaces the previous library translation.
 */
BRIXEL_EXPORT bool ZARNLoadTranslations(const QLocale &locale = QLocale());

} // namespace Brixel
