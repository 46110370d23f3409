// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>
#include <QVariant>

/**
 * The base of the library's formatters: an object that turns a value into display text and
 * reads display text back into a value.
 *
 * A formatter is a plain value object with no Qt parent. Editors use it through adapters:
 * ZARNFormatterValidator drives a QLineEdit, ZARNFormatterDelegate shows and edits a model's
 * values in an item view. Both share the formatter through a
 * \c std::shared_ptr<const ZARNFormatter>, so one formatter can serve many editors and lives
 * as long as the last of them.
 *
 * \code
 * auto formatter = std::make_shared<BXTimeIntervalFormatter>(BXTimeIntervalSecondsComponent,
 *                                                            BXTimeIntervalHoursComponent);
 * formatter->stringForObjectValue(3909.0);                 // "1:05:09"
 * QVariant seconds;
 * formatter->getObjectValue(&seconds, u"1:05:09"_s, nullptr);  // seconds == 3909.0
 * \endcode
 *
 * A null QString stands for "no string at all", which a formatter may treat differently from
 * an empty one; text taken from an editor is always passed as a non-null string.
 */
class BRIXEL_EXPORT ZARNFormatter
{
public:
    virtual ~ZARNFormatter();

    /// The display text for \a object. Every object, invalid ones included, gets an answer.
    virtual QString stringForObjectValue(const QVariant &object) const = 0;

    /**
     * Reads \a string into \a object. Returns true when the string was read; \a object may
     * be written even when the answer is false. \a object and \a errorDescription may be
     * null; a formatter that has something to say about a refused string writes it to
     * \a errorDescription.
     */
    virtual bool getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const = 0;

protected:
    ZARNFormatter() = default;
    // Copies are for subclasses only, so a formatter is never sliced into its base.
    ZARNFormatter(const ZARNFormatter &) = default;
    ZARNFormatter &operator=(const ZARNFormatter &) = default;
};
