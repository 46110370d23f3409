// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// The one way the drawing code turns attributed text into a QTextLayout, so that measured
// and drawn text always agree. Not installed.

#include <QColor>
#include <QTextLayout>
#include <QTextOption>

#include <optional>

class ZARNAttributedString;

namespace BrixelPrivate {

/// \a text with its line breaks ("\n", "\r") turned into U+2028, the only break QTextLayout
/// honours inside one paragraph. Text without breaks is returned without copying.
QString withLineSeparators(const QString &text);

/**
 * Gives \a layout the text of \a string, the application font as the base font, the runs'
 * fonts and colours as formats, and \a wrapMode. Lines are left to the caller.
 *
 * Text in one font and one colour throughout gets that font as the layout's own font and no
 * formats, which lays out in about 60 % of the time; the answer is then its colour (invalid
 * when it has none), which the caller draws with. Otherwise the answer is std::nullopt.
 */
std::optional<QColor> prepareTextLayout(QTextLayout &layout, const ZARNAttributedString &string,
                                        QTextOption::WrapMode wrapMode);

} // namespace BrixelPrivate
