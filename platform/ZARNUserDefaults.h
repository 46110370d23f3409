// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariant>
#include <QVariantMap>

/**
 * The user's preferences as the library reads them: the application's QSettings (so the
 * organisation and application names set on QCoreApplication decide where they are stored),
 * under the same key names the library documents, for example "NSDecimalSeparator" or
 * "NSShortDateFormatString".
 *
 * A key the user never set answers its registered default, if any, else an invalid QVariant.
 *
 * \code
 * ZARNUserDefaults::registerDefaults({{QStringLiteral("NSDecimalSeparator"), QStringLiteral(".")}});
 * const QString separator = ZARNUserDefaults::stringForKey(QStringLiteral("NSDecimalSeparator"));
 * \endcode
 */
class BRIXEL_EXPORT ZARNUserDefaults
{
public:
    ZARNUserDefaults() = delete;

    /// The stored value of \a key, else its registered default, else an invalid QVariant.
    static QVariant objectForKey(const QString &key);
    /// objectForKey() as a string; empty when the value is missing or is not text.
    static QString stringForKey(const QString &key);
    /// Stores \a value under \a key in the application's settings.
    static void setObject(const QVariant &value, const QString &key);
    /// Removes the stored value, so the registered default shows through again.
    static void removeObjectForKey(const QString &key);
    /// Adds \a defaults to the fallbacks (a key registered twice keeps the later value).
    /// Registered defaults live in memory only and are never written to the settings.
    static void registerDefaults(const QVariantMap &defaults);
};
