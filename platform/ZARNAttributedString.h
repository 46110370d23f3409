// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNRange.h"
#include <Brixel/brixel_export.h>

#include <QLatin1StringView>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QTextLayout>
#include <QVariantMap>

/// The text's font; the value is a QFont.
inline constexpr QLatin1StringView ZARNFontAttributeName("font");
/// The text's colour; the value is a QColor.
inline constexpr QLatin1StringView ZARNForegroundColorAttributeName("foregroundColor");
/// The shadow painted under the text; the value is a ZARNShadow.
inline constexpr QLatin1StringView ZARNShadowAttributeName("shadow");
/// How the paragraph is aligned; the value is a Qt::Alignment.
inline constexpr QLatin1StringView ZARNParagraphAlignmentAttributeName("paragraphAlignment");
/// An object shown in place of the character (usually U+FFFC); the value is whatever the
/// drawing code for that attachment expects, for example a QImage.
inline constexpr QLatin1StringView ZARNAttachmentAttributeName("attachment");

/**
 * Text with attributes: a QString whose characters are covered by runs, each run holding one
 * attribute dictionary (a QVariantMap from attribute name to value).
 *
 * Runs always cover the whole string, a run without attributes has an empty map, and two
 * neighbouring runs never hold equal dictionaries: changing attributes merges a run with its
 * neighbours when they become equal, so the effective range of an index is the longest stretch
 * with the same attributes. Indexes and lengths count UTF-16 units, as QString does.
 *
 * \code
 * ZARNAttributedString text(QStringLiteral("Hello world"), {{ZARNFontAttributeName, QFont()}});
 * text.addAttribute(ZARNForegroundColorAttributeName, QColor(Qt::red), {6, 5});
 * ZARNRange run;
 * text.attributesAtIndex(0, &run);             // font only, run == {0, 6}
 * \endcode
 *
 * Bad input: an index outside [0, length()), or a range reaching before 0 or past the end
 * (negative location or length included), throws std::out_of_range and changes nothing. An
 * attribute value that is an invalid QVariant throws std::invalid_argument and changes
 * nothing: a missing attribute is expressed by leaving its name out.
 */
class BRIXEL_EXPORT ZARNAttributedString
{
public:
    ZARNAttributedString() = default;
    /// \a string with \a attributes on every character.
    explicit ZARNAttributedString(const QString &string, const QVariantMap &attributes = {});

    QString string() const { return m_string; }
    qsizetype length() const { return m_string.size(); }
    bool isEmpty() const { return m_string.isEmpty(); }

    /// The attributes of the character at \a index; \a effectiveRange, when given, receives the
    /// run that holds them.
    QVariantMap attributesAtIndex(qsizetype index, ZARNRange *effectiveRange = nullptr) const;

    /// The value of the attribute \a name at \a index, an invalid QVariant when the character
    /// does not have it. \a effectiveRange, when given, receives the longest range around
    /// \a index over which the attribute has that same value (or is absent throughout).
    QVariant attribute(const QString &name, qsizetype index, ZARNRange *effectiveRange = nullptr) const;

    /// Replaces the attributes of the characters in \a range with \a attributes.
    void setAttributes(const QVariantMap &attributes, ZARNRange range);

    /// Sets the attribute \a name to \a value on the characters in \a range, keeping their
    /// other attributes.
    void addAttribute(const QString &name, const QVariant &value, ZARNRange range);

    /// The characters in \a range with their attributes.
    ZARNAttributedString attributedSubstring(ZARNRange range) const;

    /// Adds \a other's characters and attributes at the end.
    void append(const ZARNAttributedString &other);

    /// The runs with a font or a foreground colour as QTextLayout formats, ready for
    /// QTextLayout::setFormats(). The other attributes have no character-format equivalent and
    /// are left to the drawing code.
    QList<QTextLayout::FormatRange> formatRanges() const;

    friend BRIXEL_EXPORT bool operator==(const ZARNAttributedString &a, const ZARNAttributedString &b);

private:
    struct Run
    {
        qsizetype start = 0;
        QVariantMap attributes;

        friend bool operator==(const Run &, const Run &) = default;
    };

    qsizetype runIndexAt(qsizetype index) const;
    ZARNRange rangeOfRun(qsizetype runIndex) const;
    void splitRunAt(qsizetype index);
    void mergeEqualRuns(qsizetype firstRun, qsizetype lastRun);
    template<typename Change>
    void changeAttributes(ZARNRange range, Change &&change);

    QString m_string;
    QList<Run> m_runs;
};

Q_DECLARE_METATYPE(ZARNAttributedString)
