// SPDX-License-Identifier: LGPL-2.1-or-later
// CSVLineComponents on arbitrary text: it never fails, always gives a field, never makes text
// up, and agrees with a plain character-by-character reading of the same rules.

#include <Brixel/ZARNNSStringAdditions.h>

#include <QString>
#include <QStringList>

#include <cstdlib>

namespace {

// The quoting rules read one character at a time, appending each kept character.
QStringList referenceFields(const QString &line)
{
    QStringList fields;
    QString field;
    bool inQuotes = false;
    bool quotePending = false;
    QChar previous; // U+0000: neither comma nor quote
    for (qsizetype i = 0; i < line.size(); previous = line[i], ++i) {
        const QChar c = line[i];
        if (c == u'\r' || c == u'\n') {
            field += c;
            if (!inQuotes)
                break;
        } else if (c == u',') {
            if (inQuotes) {
                field += c;
            } else {
                fields.append(std::exchange(field, QString()));
                quotePending = false;
            }
        } else if (c == u'"') {
            if (field.isEmpty() && previous == u',') {
                inQuotes = true;
            } else if (!inQuotes && previous != u'"') {
                quotePending = true;
            } else if (quotePending && previous == u'"') {
                field += c;
                quotePending = false;
            } else if (i + 1 == line.size()) {
                break;
            } else if (line[i + 1] == u',') {
                inQuotes = false;
            } else {
                field += c;
            }
        } else {
            field += c;
        }
    }
    fields.append(field);
    return fields;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Latin-1 reaches every character the reader treats specially; the others behave alike.
    const QString line = QString::fromLatin1(reinterpret_cast<const char *>(data), qsizetype(size));
    const QStringList fields = Brixel::CSVLineComponents(line);

    if (fields.isEmpty())
        std::abort();
    // Each kept character is a distinct character of the line, and separating commas are not kept.
    qsizetype kept = fields.size() - 1;
    for (const QString &field : fields)
        kept += field.size();
    if (kept > line.size())
        std::abort();
    if (fields != referenceFields(line))
        std::abort();
    return 0;
}
