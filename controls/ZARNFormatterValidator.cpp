// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFormatterValidator.h"

#include "FormatterEditing_p.h"

class ZARNFormatterValidatorPrivate
{
public:
    explicit ZARNFormatterValidatorPrivate(std::shared_ptr<const ZARNFormatter> formatter)
        : formatter(std::move(formatter))
    {
    }

    std::shared_ptr<const ZARNFormatter> formatter;
};

ZARNFormatterValidator::ZARNFormatterValidator(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent)
    : QValidator(parent)
    , d(std::make_unique<ZARNFormatterValidatorPrivate>(std::move(formatter)))
{
}

ZARNFormatterValidator::~ZARNFormatterValidator() = default;

std::shared_ptr<const ZARNFormatter> ZARNFormatterValidator::formatter() const
{
    return d->formatter;
}

QValidator::State ZARNFormatterValidator::validate(QString &input, int &position) const
{
    Q_UNUSED(position)
    if (!d->formatter)
        return Acceptable;
    const QString text = BrixelPrivate::editorText(input);
    QVariant value;
    if (!d->formatter->getObjectValue(&value, text, nullptr))
        return Intermediate;
    return d->formatter->stringForObjectValue(value) == text ? Acceptable : Intermediate;
}

void ZARNFormatterValidator::fixup(QString &input) const
{
    if (!d->formatter)
        return;
    // Some displays do not read back as themselves (a formatter may show a value in a way
    // that reads as another one); formatting what they read settles within a few rounds.
    constexpr int maximumRounds = 4;
    QString text = BrixelPrivate::editorText(input);
    for (int round = 0; round < maximumRounds; ++round) {
        QVariant value;
        if (!d->formatter->getObjectValue(&value, text, nullptr))
            break;
        QString shown = d->formatter->stringForObjectValue(value);
        if (shown == text)
            break;
        text = std::move(shown);
    }
    input = text;
}
