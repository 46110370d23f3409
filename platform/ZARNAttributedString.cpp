// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNAttributedString.h"

#include <QColor>
#include <QFont>

#include <algorithm>
#include <stdexcept>

namespace {

void checkIndex(qsizetype index, qsizetype length)
{
    if (index < 0 || index >= length)
        throw std::out_of_range("ZARNAttributedString: index out of range");
}

void checkRange(ZARNRange range, qsizetype length)
{
    if (range.location < 0 || range.length < 0 || range.location > length || range.length > length - range.location)
        throw std::out_of_range("ZARNAttributedString: range out of bounds");
}

void checkValue(const QVariant &value)
{
    if (!value.isValid())
        throw std::invalid_argument("ZARNAttributedString: attribute value is an invalid QVariant");
}

void checkValues(const QVariantMap &attributes)
{
    std::for_each(attributes.cbegin(), attributes.cend(), checkValue);
}

} // namespace

ZARNAttributedString::ZARNAttributedString(const QString &string, const QVariantMap &attributes)
    : m_string(string)
{
    checkValues(attributes);
    if (!string.isEmpty())
        m_runs.append({0, attributes});
}

qsizetype ZARNAttributedString::runIndexAt(qsizetype index) const
{
    const auto after = std::upper_bound(m_runs.cbegin(), m_runs.cend(), index,
                                        [](qsizetype i, const Run &run) { return i < run.start; });
    return after - m_runs.cbegin() - 1;
}

ZARNRange ZARNAttributedString::rangeOfRun(qsizetype runIndex) const
{
    const qsizetype start = m_runs.at(runIndex).start;
    const qsizetype end = runIndex + 1 < m_runs.size() ? m_runs.at(runIndex + 1).start : length();
    return {start, end - start};
}

QVariantMap ZARNAttributedString::attributesAtIndex(qsizetype index, ZARNRange *effectiveRange) const
{
    checkIndex(index, length());
    const qsizetype run = runIndexAt(index);
    if (effectiveRange)
        *effectiveRange = rangeOfRun(run);
    return m_runs.at(run).attributes;
}

QVariant ZARNAttributedString::attribute(const QString &name, qsizetype index, ZARNRange *effectiveRange) const
{
    checkIndex(index, length());
    const qsizetype run = runIndexAt(index);
    const QVariant value = m_runs.at(run).attributes.value(name);
    if (effectiveRange) {
        const auto sameValue = [&](qsizetype other) { return m_runs.at(other).attributes.value(name) == value; };
        qsizetype first = run;
        while (first > 0 && sameValue(first - 1))
            --first;
        qsizetype last = run;
        while (last + 1 < m_runs.size() && sameValue(last + 1))
            ++last;
        const qsizetype start = m_runs.at(first).start;
        *effectiveRange = {start, rangeOfRun(last).end() - start};
    }
    return value;
}

void ZARNAttributedString::splitRunAt(qsizetype index)
{
    if (index <= 0 || index >= length())
        return;
    const qsizetype run = runIndexAt(index);
    if (m_runs.at(run).start != index)
        m_runs.insert(run + 1, {index, m_runs.at(run).attributes});
}

// Folds each run from firstRun to lastRun into the run before it when their attributes are equal.
void ZARNAttributedString::mergeEqualRuns(qsizetype firstRun, qsizetype lastRun)
{
    for (qsizetype run = std::min(lastRun, m_runs.size() - 1); run >= std::max<qsizetype>(firstRun, 1); --run) {
        if (m_runs.at(run).attributes == m_runs.at(run - 1).attributes)
            m_runs.removeAt(run);
    }
}

// Applies change to the attribute dictionary of every run inside range, splitting the runs
// at the range's ends first and merging runs that have become equal afterwards.
template<typename Change>
void ZARNAttributedString::changeAttributes(ZARNRange range, Change &&change)
{
    checkRange(range, length());
    if (range.length == 0)
        return;
    splitRunAt(range.location);
    splitRunAt(range.end());
    const qsizetype first = runIndexAt(range.location);
    const qsizetype last = runIndexAt(range.end() - 1);
    for (qsizetype run = first; run <= last; ++run)
        change(m_runs[run].attributes);
    mergeEqualRuns(first, last + 1);
}

void ZARNAttributedString::setAttributes(const QVariantMap &attributes, ZARNRange range)
{
    checkValues(attributes);
    changeAttributes(range, [&](QVariantMap &runAttributes) { runAttributes = attributes; });
}

void ZARNAttributedString::addAttribute(const QString &name, const QVariant &value, ZARNRange range)
{
    checkValue(value);
    changeAttributes(range, [&](QVariantMap &runAttributes) { runAttributes.insert(name, value); });
}

ZARNAttributedString ZARNAttributedString::attributedSubstring(ZARNRange range) const
{
    checkRange(range, length());
    ZARNAttributedString substring;
    substring.m_string = m_string.mid(range.location, range.length);
    if (range.length == 0)
        return substring;
    for (qsizetype run = runIndexAt(range.location); run < m_runs.size() && m_runs.at(run).start < range.end(); ++run)
        substring.m_runs.append({std::max<qsizetype>(m_runs.at(run).start - range.location, 0), m_runs.at(run).attributes});
    return substring;
}

void ZARNAttributedString::append(const ZARNAttributedString &other)
{
    const qsizetype offset = length();
    const qsizetype firstNewRun = m_runs.size();
    m_string += other.m_string;
    for (const Run &run : other.m_runs)
        m_runs.append({run.start + offset, run.attributes});
    mergeEqualRuns(firstNewRun, firstNewRun);
}

QList<QTextLayout::FormatRange> ZARNAttributedString::formatRanges() const
{
    QList<QTextLayout::FormatRange> formats;
    for (qsizetype run = 0; run < m_runs.size(); ++run) {
        const QVariantMap &attributes = m_runs.at(run).attributes;
        const QVariant font = attributes.value(ZARNFontAttributeName);
        const QVariant color = attributes.value(ZARNForegroundColorAttributeName);
        if (!font.isValid() && !color.isValid())
            continue;
        QTextCharFormat format;
        if (font.isValid())
            format.setFont(font.value<QFont>());
        if (color.isValid())
            format.setForeground(color.value<QColor>());
        const ZARNRange range = rangeOfRun(run);
        formats.append({int(range.location), int(range.length), format});
    }
    return formats;
}

bool operator==(const ZARNAttributedString &a, const ZARNAttributedString &b)
{
    return a.m_string == b.m_string && a.m_runs == b.m_runs;
}
