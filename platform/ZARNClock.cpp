// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNClock.h"

#include <QDateTime>

namespace {

class SystemClock final : public ZARNClock
{
public:
    double now() const override { return double(QDateTime::currentMSecsSinceEpoch()) / 1000.0; }
};

std::unique_ptr<ZARNClock> &installedClock()
{
    static std::unique_ptr<ZARNClock> clock;
    return clock;
}

} // namespace

ZARNClock::~ZARNClock() = default;

const ZARNClock &ZARNClock::current()
{
    const auto &installed = installedClock();
    return installed ? *installed : system();
}

void ZARNClock::setCurrent(std::unique_ptr<ZARNClock> clock)
{
    installedClock() = std::move(clock);
}

const ZARNClock &ZARNClock::system()
{
    static const SystemClock clock;
    return clock;
}
