// SPDX-License-Identifier: LGPL-2.1-or-later
// Duration and file size text beside the Qt functions that do the same job.
#include "BenchHarness.h"

#include <Brixel/BXTimeIntervalFormatter.h>
#include <Brixel/ZARNTimeAndSizeStrings.h>

#include <QLocale>
#include <QTime>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

// Durations below a day, so a QTime shows the same clock as the formatter.
constexpr std::array<int, 8> durations = {0, 5, 59, 61, 3909, 36000, 45296, 86399};
constexpr std::array<quint64, 8> fileSizes = {0, 512, 1023, 1536, 1048576, 5000000, 1610612736, 1000000000000};

void benchmarkDurations()
{
    const BXTimeIntervalFormatter clock(BXTimeIntervalSecondsComponent, BXTimeIntervalHoursComponent);
    std::array<QVariant, durations.size()> values;
    std::array<QTime, durations.size()> times;
    for (std::size_t i = 0; i < durations.size(); ++i) {
        values[i] = double(durations[i]);
        times[i] = QTime::fromMSecsSinceStartOfDay(durations[i] * 1000);
        if (clock.stringForObjectValue(values[i]) != times[i].toString(u"h:mm:ss")) {
            std::fprintf(stderr, "formatter and QTime disagree on %d seconds\n", durations[i]);
            std::exit(1);
        }
    }

    std::size_t next = 0;
    const double ours = brixelbench::nanosecondsPerCall(
        [&] { brixelbench::keep(clock.stringForObjectValue(values[next++ % values.size()])); });
    const double qt = brixelbench::nanosecondsPerCall(
        [&] { brixelbench::keep(times[next++ % times.size()].toString(u"h:mm:ss")); });
    brixelbench::report("BXTimeIntervalFormatter 0..2 format", ours, "QTime::toString(\"h:mm:ss\")", qt);
}

void benchmarkFileSizes()
{
    const QLocale locale;
    std::size_t next = 0;
    const double ours = brixelbench::nanosecondsPerCall(
        [&] { brixelbench::keep(Brixel::StringForFileSize(fileSizes[next++ % fileSizes.size()])); });
    const double qt = brixelbench::nanosecondsPerCall(
        [&] { brixelbench::keep(locale.formattedDataSize(qint64(fileSizes[next++ % fileSizes.size()]))); });
    brixelbench::report("StringForFileSize", ours, "QLocale::formattedDataSize", qt);
}

} // namespace

int main()
{
    benchmarkDurations();
    benchmarkFileSizes();
    return 0;
}
