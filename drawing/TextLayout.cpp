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

std::optional<QColor> BrixelPrivate::prepareTextLayout(QTextLayout &layout, const ZARNAttributedString &string,
                                                      QTextOption::WrapMode wrapMode)
{
    layout.setText(withLineSeparators(string.string()));
    QTextOption option;
    option.setWrapMode(wrapMode);
    layout.setTextOption(option);
    ZARNRange fontRun;
    ZARNRange colorRun;
    const QVariant font = string.isEmpty() ? QVariant() : string.attribute(ZARNFontAttributeName, 0, &fontRun);
    const QVariant color = string.isEmpty() ? QVariant() : string.attribute(ZARNForegroundColorAttributeName, 0, &colorRun);
    if (string.isEmpty() || fontRun.length != string.length() || colorRun.length != string.length()) {
        layout.setFont(QFont());
        layout.setFormats(string.formatRanges());
        return std::nullopt;
    }
    layout.setFont(font.value<QFont>());
    layout.clearFormats();
    return color.isValid() ? color.value<QColor>() : QColor();
}
