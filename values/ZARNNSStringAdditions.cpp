// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSStringAdditions.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char16_t Comma = u',';
constexpr char16_t Quote = u'"';

/**
 * Reads the fields of one comma-separated line.
 *
 * Every character that ends up in a field is a character of the line at the same place, and
 * the only edits are characters left out. So a field is built from runs of the line: the
 * characters kept since the last one left out stay in the line (from m_runStart on) and are
 * copied in one piece when the next character is left out or the field ends. A field without
 * such gaps, the usual case, costs a single copy.
 */
class CSVLineReader
{
public:
    explicit CSVLineReader(QStringView line)
        : m_line(line)
    {
    }

    QStringList read()
    {
        const char16_t *characters = m_line.utf16();
        const qsizetype size = m_line.size();
        qsizetype end = size;
        for (qsizetype position = 0; position < size; ++position) {
            // Line breaks, quotes and commas all sort at or below the comma.
            if (characters[position] <= Comma && !readSpecial(position)) {
                end = m_end;
                break;
            }
        }
        m_fields.append(takeField(end));
        return std::move(m_fields);
    }

private:
    // Handles the character at position when it may be special; returns false when reading
    // stops there, with m_end set to where the last field ends.
    bool readSpecial(qsizetype position)
    {
        switch (m_line[position].unicode()) {
        case u'\r':
        case u'\n':
            if (m_inQuotes)
                return true;
            // The line break stays at the end of the last field.
            m_end = position + 1;
            return false;
        case Comma:
            if (!m_inQuotes) {
                m_fields.append(takeField(position));
                m_quotePending = false;
            }
            return true;
        case Quote:
            return readQuote(position);
        default:
            return true;
        }
    }

    bool readQuote(qsizetype position)
    {
        // Before the first character there is no previous one; 0 equals neither comma nor quote.
        const char16_t previous = position > 0 ? m_line[position - 1].unicode() : 0;
        if (fieldIsEmpty(position) && previous == Comma) {
            m_inQuotes = true;
            leaveOut(position);
        } else if (!m_inQuotes && previous != Quote) {
            m_quotePending = true;
            leaveOut(position);
        } else if (m_quotePending && previous == Quote) {
            // The second of a doubled quote in an unquoted field: kept.
            m_quotePending = false;
        } else if (position + 1 == m_line.size()) {
            m_end = position;
            return false;
        } else if (m_line[position + 1] == Comma) {
            m_inQuotes = false;
            leaveOut(position);
        }
        return true;
    }

    bool fieldIsEmpty(qsizetype position) const { return m_field.isEmpty() && m_runStart == position; }

    void leaveOut(qsizetype position)
    {
        m_field.append(m_line.sliced(m_runStart, position - m_runStart));
        m_runStart = position + 1;
    }

    // The field that ends just before end; the next one starts after end.
    QString takeField(qsizetype end)
    {
        const QStringView run = m_line.sliced(m_runStart, end - m_runStart);
        m_runStart = end + 1;
        if (m_field.isEmpty())
            return run.toString();
        m_field.append(run);
        return std::exchange(m_field, QString());
    }

    const QStringView m_line;
    QStringList m_fields;
    QString m_field;
    qsizetype m_runStart = 0;
    qsizetype m_end = 0;
    bool m_inQuotes = false;
    bool m_quotePending = false;
};

struct PathParts
{
    QStringView withoutExtension;
    QStringView extension;
};

// Splits off the extension of the last path component, ignoring trailing slashes. A dot at
// the start of the component names a hidden file and does not start an extension.
PathParts splitPathExtension(QStringView path)
{
    while (path.endsWith(u'/'))
        path.chop(1);
    const qsizetype componentStart = path.lastIndexOf(u'/') + 1;
    const qsizetype dot = path.lastIndexOf(u'.');
    if (dot <= componentStart)
        return {path, {}};
    return {path.first(dot), path.sliced(dot + 1)};
}

bool isShortAlphanumericExtension(QStringView extension)
{
    return (extension.size() == 3 || extension.size() == 4)
        && std::all_of(extension.begin(), extension.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

} // namespace

QStringList Brixel::CSVLineComponents(const QString &line)
{
    return CSVLineReader(line).read();
}

QString Brixel::fileExtension(const QString &path)
{
    const QStringView extension = splitPathExtension(path).extension;
    return isShortAlphanumericExtension(extension) ? extension.toString() : QString();
}

QString Brixel::stringByDeletingFileExtension(const QString &path)
{
    const PathParts parts = splitPathExtension(path);
    return isShortAlphanumericExtension(parts.extension) ? parts.withoutExtension.toString() : path;
}

QString Brixel::withoutCharactersInSet(const QString &string, const std::function<bool(QChar)> &isInSet)
{
    QString result = string;
    result.removeIf(isInSet);
    return result;
}

QString Brixel::withoutCharactersInSet(const QString &string, QStringView characters)
{
    return Brixel::withoutCharactersInSet(string, [characters](QChar c) { return characters.contains(c); });
}
