// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFormatterValidator.h"

#include "FormatterEditing_p.h"

ZARNFormatterValidator::ZARNFormatterValidator(std::shared_ptr<const ZARNFormatter> formatter, QObject *parent)
    : QValidator(parent)
    , m_formatter(std::move(formatter))
{
}

ZARNFormatterValidator::~ZARNFormatterValidator() = default;

std::shared_ptr<const ZARNFormatter> ZARNFormatterValidator::formatter() const
{
    return m_formatter;
}

QValidator::State ZARNFormatterValidator::validate(QString &input, int &position) const
{
    Q_UNUSED(position)
    if (!m_formatter)
        return Acceptable;
    const QString text = BrixelPrivate::editorText(input);
    QVariant value;
    if (!m_formatter->getObjectValue(&value, text, nullptr))
        return Intermediate;
    return m_formatter->stringForObjectValue(value) == text ? Acceptable : Intermediate;
}

void ZARNFormatterValidator::fixup(QString &input) const
{
    if (!m_formatter)
        return;
    // Some displays do not read back as themselves (a formatter may show a value in a way
    // that reads as another one); formatting what they read settles within a few rounds.
    constexpr int maximumRounds = 4;
    QString text = BrixelPrivate::editorText(input);
    for (int round = 0; round < maximumRounds; ++round) {
        QVariant value;
        if (!m_formatter->getObjectValue(&value, text, nullptr))
            break;
        QString shown = m_formatter->stringForObjectValue(value);
        if (shown == text)
            break;
        text = std::move(shown);
    }
    input = text;
}
