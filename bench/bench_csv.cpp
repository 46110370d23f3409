// SPDX-License-Identifier: LGPL-2.1-or-later
// Splitting one long comma-separated line: CSVLineComponents beside QString::split on the same
// text, then a line of quoted fields, which only CSVLineComponents reads correctly.

#include "BenchHarness.h"

#include <Brixel/ZARNNSStringAdditions.h>

#include <cstdio>

namespace {

constexpr qsizetype LineLength = 1 << 20; // characters

// Fields like "field12345", of varying length, until the line holds LineLength characters.
QString unquotedLine()
{
    QString line;
    line.reserve(LineLength + 32);
    for (int field = 0; line.size() < LineLength; ++field) {
        line += QStringLiteral("f%1").arg(field * 7919 % 100000);
        line += u',';
    }
    line.truncate(LineLength);
    return line;
}

// The first field plain, then fields quoted with embedded commas and doubled quotes.
QString quotedLine()
{
    QString line = QStringLiteral("id");
    line.reserve(LineLength + 32);
    for (int field = 0; line.size() < LineLength; ++field)
        line += QStringLiteral(",\"n%1, \"\"q\"\" x\"").arg(field % 1000);
    return line;
}

void printThroughput(const char *name, qsizetype characters, double nanoseconds)
{
    std::printf("  %-42s %8.1f M characters/s\n", name, double(characters) / nanoseconds * 1e3);
}

} // namespace

int main()
{
    const QString plain = unquotedLine();
    const double ours = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::CSVLineComponents(plain)); });
    const double qt = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(plain.split(u',')); });
    brixelbench::report("CSVLineComponents, 1 M chars unquoted", ours, "QString::split(','), same line", qt);
    printThroughput("CSVLineComponents, unquoted", plain.size(), ours);
    printThroughput("QString::split, unquoted", plain.size(), qt);
    std::printf("  fields: %lld; throughput ours / Qt: %.2f\n", qlonglong(Brixel::CSVLineComponents(plain).size()), qt / ours);

    const QString quoted = quotedLine();
    const double quotedTime = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::CSVLineComponents(quoted)); });
    brixelbench::report("CSVLineComponents, 1 M chars quoted", quotedTime);
    printThroughput("CSVLineComponents, quoted", quoted.size(), quotedTime);
    std::printf("  fields: %lld\n", qlonglong(Brixel::CSVLineComponents(quoted).size()));
    return 0;
}
