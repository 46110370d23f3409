// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TextLayout_p.h"

#include "../platform/ZARNAttributedString.h"

#include <QFont>

QString BrixelPrivate::withLineSeparators(const QString &text)
{
    const auto isBreak = [](QChar character) { return character == u'\n' || character == u'\r'; };
    if (std::none_of(text.cbegin(), text.cend(), isBreak))
        return text;
    QString separated = text;
    for (QChar &character : separated) {
        if (isBreak(character))
            character = QChar::LineSeparator;
    }
    return separated;
}

void BrixelPrivate::prepareTextLayout(QTextLayout &layout, const ZARNAttributedString &string, QTextOption::WrapMode wrapMode)
{
    layout.setText(withLineSeparators(string.string()));
    layout.setFont(QFont());
    layout.setFormats(string.formatRanges());
    QTextOption option;
    option.setWrapMode(wrapMode);
    layout.setTextOption(option);
}
