// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNFileUtilities.h"

#include "ZARNSystemFacts.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <atomic>
#include <optional>

namespace {

struct PathParts
{
    QString folder;
    QString name;
};

QStringView withoutTrailingSlashes(QStringView path)
{
    while (path.endsWith(u'/'))
        path.chop(1);
    return path;
}

// The folder and the last component, when the path has at least two components.
std::optional<PathParts> splitLastComponent(const QString &path)
{
    const QStringView trimmed = withoutTrailingSlashes(path);
    const qsizetype lastSlash = trimmed.lastIndexOf(u'/');
    if (lastSlash < 0)
        return std::nullopt;
    const QStringView folder = withoutTrailingSlashes(trimmed.first(lastSlash));
    return PathParts{folder.isEmpty() ? QStringLiteral("/") : folder.toString(),
                     trimmed.sliced(lastSlash + 1).toString()};
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QStringView digitRun(QStringView text, qsizetype from)
{
    qsizetype end = from;
    while (end < text.size() && isAsciiDigit(text[end]))
        ++end;
    return text.sliced(from, end - from);
}

int sign(auto value)
{
    return (value > 0) - (value < 0);
}

// Two runs of digits by their value, of any length.
int compareNumbers(QStringView a, QStringView b)
{
    const auto significant = [](QStringView digits) {
        while (digits.size() > 1 && digits.front() == u'0')
            digits = digits.sliced(1);
        return digits;
    };
    a = significant(a);
    b = significant(b);
    if (a.size() != b.size())
        return sign(a.size() - b.size());
    return sign(a.compare(b));
}

int compareNumeric(QStringView a, QStringView b)
{
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (isAsciiDigit(a[i]) && isAsciiDigit(b[j])) {
            const QStringView numberA = digitRun(a, i), numberB = digitRun(b, j);
            i += numberA.size();
            j += numberB.size();
            if (const int order = compareNumbers(numberA, numberB))
                return order;
        } else if (a[i] != b[j]) {
            return a[i] < b[j] ? -1 : 1;
        } else {
            ++i;
            ++j;
        }
    }
    return sign((a.size() - i) - (b.size() - j));
}

QCollator fileNameCollator(const QLocale &locale)
{
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    collator.setIgnorePunctuation(false);
    return collator;
}

const QCollator &lastPathComponentCollator()
{
    const QLocale locale = QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
    thread_local QCollator collator = fileNameCollator(locale);
    if (collator.locale() != locale)
        collator = fileNameCollator(locale);
    return collator;
}

std::atomic<int> tempFileCounter{1};

} // namespace

QString Brixel::ZARNUniqueFilePathAtPath(const QString &path, bool keepExtension)
{
    const std::optional<PathParts> parts = splitLastComponent(path);
    if (!parts)
        return {};
    if (!QFileInfo::exists(path))
        return path;
    if (!QDir(parts->folder).isReadable())
        return {};

    QString base = parts->name;
    QString extension;
    const qsizetype dot = base.lastIndexOf(u'.');
    if (keepExtension && dot > 0 && dot + 1 < base.size()) {
        extension = base.sliced(dot);
        base.truncate(dot);
    }
    const QString stem = parts->folder.endsWith(u'/') ? parts->folder + base : parts->folder + u'/' + base;
    for (qint64 n = 1;; ++n) {
        const QString candidate = stem + u' ' + QString::number(n) + extension;
        if (!QFileInfo::exists(candidate))
            return candidate;
    }
}

QString Brixel::ZARNTempFolderName()
{
    return QStringLiteral(".Corvel-Temp-%1-%2").arg(Brixel::ZARNMACAddressString(), Brixel::ZARNProcessIDString());
}

QString Brixel::ZARNTempFileName()
{
    const int number = tempFileCounter.fetch_add(1);
    return QStringLiteral(".Corvel-Temp-%1-%2-%3")
        .arg(Brixel::ZARNMACAddressString(), Brixel::ZARNProcessIDString(), QString::number(number));
}

int Brixel::ZARNCompareDirectoryContents(const QString &a, const QString &b)
{
    if (a.isNull() || b.isNull())
        return 0;
    return compareNumeric(a.toCaseFolded(), b.toCaseFolded());
}

int Brixel::ZARNCompareLastPathComponent(const QString &a, const QString &b)
{
    if (a.isNull() || b.isNull())
        return 0;
    // Names are compared in fixed buffers of this many UTF-16 code units.
    constexpr qsizetype compared = 1024;
    return sign(lastPathComponentCollator().compare(QStringView(a).left(compared),
                                                    QStringView(b).left(compared)));
}
