// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// A small timing harness for Brixel's benchmarks: each figure is measured beside the Qt
// function that does the same job, in the same process and run, and printed with the ratio.

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <limits>

namespace brixelbench {

/// Keeps the compiler from dropping a computation whose result is otherwise unused.
template<typename T>
inline void keep(const T &value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}

/**
 * The cost of one call of \a work in nanoseconds: the best of several rounds, each of which
 * repeats \a work until about \a roundMilliseconds have passed. The best round is the one
 * least disturbed by the rest of the machine.
 */
template<typename Work>
double nanosecondsPerCall(Work &&work, int roundMilliseconds = 100, int rounds = 5)
{
    qint64 calls = 1;
    // Grow the batch until it takes a measurable share of a round.
    for (;;) {
        QElapsedTimer timer;
        timer.start();
        for (qint64 i = 0; i < calls; ++i)
            work();
        if (timer.nsecsElapsed() > roundMilliseconds * 100000LL || calls > (1LL << 40))
            break;
        calls *= 2;
    }
    calls = std::max<qint64>(1, calls * 10);
    double best = std::numeric_limits<double>::max();
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        for (qint64 i = 0; i < calls; ++i)
            work();
        best = std::min(best, double(timer.nsecsElapsed()) / double(calls));
    }
    return best;
}

/**
 * The shortest of up to \a runs runs of \a run, each of which times its own work and answers
 * the nanoseconds it took (so that its setup and teardown stay out of the figure). For work
 * too slow to repeat in batches, such as a view's first paint over a million rows; the runs
 * stop early once \a budgetMilliseconds have passed, after at least one.
 */
template<typename Run>
double bestOfRuns(Run &&run, int runs, qint64 budgetMilliseconds)
{
    QElapsedTimer total;
    total.start();
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < runs && (i == 0 || total.elapsed() < budgetMilliseconds); ++i)
        best = std::min(best, double(run()));
    return best;
}

/// Prints one figure beside its Qt counterpart: "name  ours  qt-name  theirs  ratio".
inline void report(const char *name, double ourNanoseconds, const char *qtName, double qtNanoseconds)
{
    std::printf("%-44s %12.1f ns  %12.0f /s | %-40s %12.1f ns  %12.0f /s | ratio %.2f\n", name,
                ourNanoseconds, 1e9 / ourNanoseconds, qtName, qtNanoseconds, 1e9 / qtNanoseconds,
                ourNanoseconds / qtNanoseconds);
    std::fflush(stdout);
}

/// Prints a figure that has no Qt counterpart.
inline void report(const char *name, double ourNanoseconds)
{
    std::printf("%-44s %12.1f ns  %12.0f /s\n", name, ourNanoseconds, 1e9 / ourNanoseconds);
    std::fflush(stdout);
}

} // namespace brixelbench
