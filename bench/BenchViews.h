// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Timing of item views as a window shows them: the first paint of a new view, a full repaint,
// and a resize with the layout and paint it leads to. Every figure is taken the same way for
// a library view and for the Qt view it replaces.

#include "BenchHarness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QImage>
#include <QTimer>

#include <ctime>
#include <memory>

namespace brixelbench {

/// The view it is for, with its pending items layout within reach: QAbstractItemView lays its
/// items out on a zero timer after a change, and the benchmarks run that layout themselves so
/// that it is inside the timed part for every view alike.
template<typename View>
class OpenView : public View
{
public:
    using View::View;
    /// Runs the items layout that a change scheduled; nothing when none is pending.
    void runPendingLayout() { this->executeDelayedItemsLayout(); }
};

/// Counts the paint events a widget gets.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints; // the paint itself runs as soon as the filter lets the event through
        return false;
    }
};

/// Runs the event loop until the widget \a counter watches has painted once more; stops the
/// program when that takes over a minute.
inline void processEventsUntilPainted(PaintCounter &counter)
{
    const int before = counter.paints;
    QElapsedTimer timer;
    timer.start();
    while (counter.paints == before) {
        if (timer.elapsed() > 60000)
            qFatal("the view did not paint within a minute");
        QCoreApplication::processEvents();
    }
}

/// Runs the event loop for \a milliseconds, waiting idle when there is nothing to do, so that
/// the timers of a view's last change (a live resize settling, say) fire outside the next
/// timed run.
inline void processEventsFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/**
 * The first paint of a new View on \a model: the shortest of up to \a runs runs (within
 * \a budgetMilliseconds) of making the view, setModel(), \a prepare (expandAll, say), a resize
 * to 1000 x 800 and show(), up to the end of the viewport's first paint. The view's teardown
 * is not timed, and neither is a first run: the first views shown in a process load fonts,
 * glyphs and heap pages that every later view finds ready, and without it whichever view is
 * measured first would pay for both.
 */
template<typename View, typename Prepare>
double firstPaintNanoseconds(QAbstractItemModel &model, Prepare &&prepare, int runs, qint64 budgetMilliseconds)
{
    const auto firstPaint = [&] {
        QElapsedTimer timer;
        timer.start();
        auto view = std::make_unique<View>();
        PaintCounter counter(view->viewport());
        view->setModel(&model);
        prepare(*view);
        view->resize(1000, 800);
        view->show();
        processEventsUntilPainted(counter);
        const qint64 nanoseconds = timer.nsecsElapsed();
        view.reset();
        QCoreApplication::processEvents();
        return nanoseconds;
    };
    firstPaint();
    return bestOfRuns(firstPaint, runs, budgetMilliseconds);
}

/// A full repaint of \a view's viewport into an image of its size. A repaint slower than
/// 20 ms is timed alone, the best of five runs (or fewer within 5 s), not in batches.
inline double repaintNanoseconds(QAbstractItemView &view)
{
    QImage image(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    const auto repaint = [&] {
        QElapsedTimer timer;
        timer.start();
        view.viewport()->render(&image);
        return timer.nsecsElapsed();
    };
    const qint64 first = repaint();
    if (first > 20000000)
        return std::min(double(first), bestOfRuns(repaint, 4, 5000));
    return nanosecondsPerCall([&] { view.viewport()->render(&image); }, 100, 5);
}

/**
 * One resize of the shown \a view, between 1000 x 800 and 1100 x 900 in turn: the resize, the
 * items layout it scheduled, and the event loop up to the end of the viewport's paint. The
 * view must be a child widget (in a larger window), so that it gets its resize event at
 * once, as a window gets it only later from the window system. A layout that outlasts the
 * library views' live-resize interval lets their settling layout fall due, and it then runs
 * before the paint, as it would in an application's event loop. The shortest of up to \a runs
 * runs within \a budgetMilliseconds; each run starts from a view settled for
 * \a settleMilliseconds.
 */
template<typename View>
double resizeNanoseconds(OpenView<View> &view, int settleMilliseconds, int runs, qint64 budgetMilliseconds)
{
    Q_ASSERT(!view.isWindow());
    PaintCounter counter(view.viewport());
    bool wide = view.width() <= 1000;
    return bestOfRuns(
        [&] {
            processEventsFor(settleMilliseconds);
            QElapsedTimer timer;
            timer.start();
            view.resize(wide ? QSize(1100, 900) : QSize(1000, 800));
            view.runPendingLayout();
            processEventsUntilPainted(counter);
            const qint64 nanoseconds = timer.nsecsElapsed();
            wide = !wide;
            return nanoseconds;
        },
        runs, budgetMilliseconds);
}

/// The processor time this thread has used, in nanoseconds.
inline qint64 threadCpuNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

/**
 * The whole work of one resize of the shown \a view (between 1000 x 800 and 1100 x 900 in
 * turn; a child widget, as for resizeNanoseconds()): the processor time of this thread from
 * the resize until \a settleMilliseconds later, the event loop waiting idle meanwhile. Besides the layout and paint that resizeNanoseconds()
 * times, this takes in whatever the view does once the resize has settled (the library's
 * views lay their rows out again when a live resize ends). The least of up to \a runs runs.
 */
inline double resizeWorkNanoseconds(QAbstractItemView &view, int settleMilliseconds, int runs)
{
    bool wide = view.width() <= 1000;
    return bestOfRuns(
        [&] {
            processEventsFor(settleMilliseconds);
            const qint64 start = threadCpuNanoseconds();
            view.resize(wide ? QSize(1100, 900) : QSize(1000, 800));
            QEventLoop loop;
            QTimer::singleShot(settleMilliseconds, &loop, &QEventLoop::quit);
            loop.exec();
            wide = !wide;
            return threadCpuNanoseconds() - start;
        },
        runs, 10000);
}

} // namespace brixelbench
