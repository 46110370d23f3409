// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNFormatter.h"
#include <Brixel/brixel_export.h>

#include <QValidator>

#include <memory>

/**
 * Lets a QLineEdit (or anything else that takes a QValidator) edit through a ZARNFormatter.
 *
 * - validate() answers Acceptable when the formatter reads the text and shows the value it
 *   read as exactly that text, and Intermediate otherwise (text it refuses included), so
 *   typing is never blocked.
 * - fixup(), which QLineEdit calls on Return and when it loses focus, replaces the text with
 *   the formatter's display of the value it reads ("1:5:9" becomes "1:05:09"). A display that
 *   does not read back as itself is formatted again, a few rounds at most, until it does.
 *   Text the formatter refuses is left alone.
 *
 * The text of an editor is always a string: an empty field is passed to the formatter as an
 * empty, non-null string.
 *
 * \code
 * auto formatter = std::make_shared<BXTimeIntervalFormatter>(0, 2);
 * auto *field = new QLineEdit(parent);
 * field->setValidator(new ZARNFormatterValidator(formatter, field));
 * connect(field, &QLineEdit::editingFinished, ...);   // emitted with "1:05:09"
 * \endcode
 *
 * The validator shares ownership of the formatter; changing a shared formatter's settings
 * later affects the next validate() and fixup(). Without a formatter (nullptr) every text is
 * Acceptable and fixup() changes nothing.
 */
class BRIXEL_EXPORT ZARNFormatterValidator : public QValidator
{
    Q_OBJECT
public:
    explicit ZARNFormatterValidator(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent = nullptr);
    ~ZARNFormatterValidator() override;

    /// The formatter this validator reads and writes with; may be null.
    std::shared_ptr<const ZARNFormatter> formatter() const;

    State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;

private:
    std::unique_ptr<class ZARNFormatterValidatorPrivate> const d;
};
