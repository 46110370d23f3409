// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTextTruncation.h"

#include "TruncationSearch_p.h"
#include "ZARNAttributedTextLayout.h"
#include "TextLayout_p.h"

#include <QStandardItem>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

constexpr float heightLimit = 10000.0f;
const QString dots = QStringLiteral("...");
constexpr double kerningAllowance = 1.0;

// Whether the starts of \a text measure nearly where the layout of the whole puts them:
// left-to-right text of the Latin, IPA and spacing-modifier letters without control
// characters or line breaks, where a cut changes no more than the kerning of the last
// character, which stays far below a third of a line.
bool startsMeasureAsLaidOut(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        const char16_t code = character.unicode();
        return code >= 0x20 && code < 0x300 && !(code >= 0x7f && code < 0xa0);
    });
}

bool fitsLimit(float width, double limit)
{
    return !(double(width) > limit);
}

// How much of a string was measured and how wide it was.
struct Measurement
{
    qsizetype length = 0;
    float width = 0.0f;

    bool fits(double limit) const { return fitsLimit(width, limit); }

    // Where the prefix search starts: the length that would fit \a limit with room for the
    // dots if every character were as wide as the measured ones on average. The search finds
    // the exact length from there, usually in three measurements.
    qsizetype guessFor(double limit) const
    {
        if (length == 0 || !(width > 0.0f))
            return 0;
        const double perCharacter = double(width) / double(length);
        const double room = limit - 2.0 * perCharacter;
        return room > 0.0 ? qsizetype(room / perCharacter) : 0;
    }
};

// Measures the whole of \a string against \a limit. A long string is first judged by starts
// of it, each four times longer than the one before: widths only grow as characters are added
// (up to kerning at the cut, which the two characters after a start cover), so a start that is
// too wide settles it without laying out the rest, often thousands of characters. Starts that
// fit cost at most a third of the whole measurement on top. Answers the last measurement.
Measurement measureAgainst(const ZARNAttributedString &string, double limit)
{
    for (qsizetype start = 128; start + 2 <= string.length(); start *= 4) {
        const Measurement prefix{start, BrixelPrivate::attributedStringWidth(string.attributedSubstring({0, start}))};
        if (!prefix.fits(limit))
            return prefix;
    }
    return {string.length(), BrixelPrivate::attributedStringWidth(string)};
}

// The longest start of \a text (at most \a maxLength characters) that fits \a limit with the
// dots after it, -1 when not even the dots alone fit; the search starts at \a guess.
qsizetype longestPrefixBeforeDots(const ZARNAttributedString &text, qsizetype maxLength, const ZARNAttributedString &tail,
                                  double limit, qsizetype guess)
{
    return BrixelPrivate::longestFittingLength(
        maxLength,
        [&](qsizetype length) {
            ZARNAttributedString candidate = text.attributedSubstring({0, length});
            candidate.append(tail);
            return fitsLimit(BrixelPrivate::attributedStringWidth(candidate), limit);
        },
        guess);
}

// Shortens a cell's \a text, drawn with \a attributes, to \a width and stores it through
// \a setText; text that fits is not stored. When not even "..." fits, the cell is left
// showing "..." and the range error is thrown.
template<typename SetText>
void truncateCell(const QString &text, const QVariantMap &attributes, float width, SetText &&setText)
{
    const double limit = double(width) - ZARNTruncationMargin;
    const ZARNAttributedString string(text, attributes);
    const Measurement measured = measureAgainst(string, limit);
    if (measured.fits(limit))
        return;
    const qsizetype kept = longestPrefixBeforeDots(string, text.size() - 1, ZARNAttributedString(dots, attributes),
                                                   limit, measured.guessFor(limit));
    setText(text.left(std::max<qsizetype>(kept, 0)) + dots);
    if (kept < 0)
        throw std::out_of_range("TruncateStringInCell: the width cannot hold \"...\"");
}

} // namespace

float BrixelPrivate::attributedStringWidth(const ZARNAttributedString &string)
{
    return float(ZARNAttributedTextLayout(string, 0, false).width());
}

void Brixel::TruncateStringInCell(QString *text, const QVariantMap &attributes, float width)
{
    if (!text)
        return;
    truncateCell(*text, attributes, width, [text](const QString &shortened) { *text = shortened; });
}

void Brixel::TruncateStringInCell(QStandardItem *item, float width)
{
    if (!item)
        return;
    QVariantMap attributes{{ZARNFontAttributeName, item->font()}};
    if (const QVariant foreground = item->data(Qt::ForegroundRole); foreground.isValid())
        attributes.insert(ZARNForegroundColorAttributeName, item->foreground().color());
    truncateCell(item->text(), attributes, width, [item](const QString &text) { item->setText(text); });
}

namespace {

// TruncateAttributedString() of \a string, \a measured (its whole width, or a start of it that
// is too wide) against \a limit.
ZARNAttributedString shortened(const ZARNAttributedString &string, double limit, const Measurement &measured)
{
    if (measured.fits(limit))
        return string;
    if (string.isEmpty())
        throw std::out_of_range("TruncateAttributedString: an empty string has no last character");

    const ZARNAttributedString tail(dots, string.attributesAtIndex(string.length() - 1));
    const qsizetype kept = std::max<qsizetype>(
        longestPrefixBeforeDots(string, string.length() - 1, tail, limit, measured.guessFor(limit)), 0);
    ZARNAttributedString truncated = string.attributedSubstring({0, kept});
    truncated.append(tail);
    return truncated;
}

} // namespace

ZARNAttributedString Brixel::TruncateAttributedString(const ZARNAttributedString &string, float width)
{
    const double limit = double(width) - ZARNTruncationMargin;
    return shortened(string, limit, measureAgainst(string, limit));
}

BrixelPrivate::ShortenedText BrixelPrivate::shortenedPlainText(const QString &text, const QFont &font,
                                                              const QColor &color, Qt::Alignment alignment, float width,
                                                              const ZARNAttributedTextLayout &whole, qreal dotsWidth)
{
    const double limit = double(width) - ZARNTruncationMargin;
    if (fitsLimit(float(whole.width()), limit) || text.isEmpty())
        return {text, nullptr};
    // The longest start that the whole text's own positions say fits with the dots, allowing a
    // pixel for the dots kerning closer to the last character than it did to the next one. A
    // guess one character too long costs the search no more than an exact one.
    qsizetype guess = 0;
    for (qsizetype low = 0, high = text.size() - 1; low <= high;) {
        const qsizetype middle = low + (high - low) / 2;
        if (fitsLimit(float(whole.cursorX(middle) + dotsWidth), limit + kerningAllowance))
            guess = middle, low = middle + 1;
        else
            high = middle - 1;
    }
    // The search's last length that fits is its answer, so the last layout that fits is the
    // one to draw.
    std::unique_ptr<ZARNAttributedTextLayout> fitting;
    const auto fits = [&](qsizetype length) {
        auto candidate = std::make_unique<ZARNAttributedTextLayout>(text.left(length) + dots, font, color, alignment);
        if (!fitsLimit(float(candidate->width()), limit))
            return false;
        fitting = std::move(candidate);
        return true;
    };
    // Past the boundary, a start that the whole text's positions put a third of a line beyond
    // the limit cannot fit.
    const bool estimatesHold = startsMeasureAsLaidOut(text);
    const auto surelyTooLong = [&](qsizetype length) {
        return estimatesHold && !fitsLimit(float(whole.cursorX(length) + dotsWidth - whole.height() / 3), limit);
    };
    const qsizetype kept = longestFittingLength(text.size() - 1, fits, guess, surelyTooLong);
    return {text.left(std::max<qsizetype>(kept, 0)) + dots, std::move(fitting)};
}

QString Brixel::TruncateStringWithAttributes(const QString &string, const QVariantMap &attributes, float width)
{
    if (string.isNull())
        return {};
    return Brixel::TruncateAttributedString(ZARNAttributedString(string, attributes), width).string();
}

float Brixel::ZARNAttributedStringHeightForWidth(const ZARNAttributedString &string, float width)
{
    if (string.isEmpty())
        return 0.0f;
    // One layout serves every call, as the measurement runs often and in the GUI thread only.
    static QTextLayout layout;
    BrixelPrivate::prepareTextLayout(layout, string, QTextOption::WrapAtWordBoundaryOrAnywhere);
    const qreal lineWidth = width > 0 ? qreal(width) : 0.0;
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(lineWidth);
        if (height + line.height() > heightLimit)
            break;
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    // Hold no text or fonts between calls, so nothing outlives the application's fonts.
    layout.setText(QString());
    return float(height);
}
