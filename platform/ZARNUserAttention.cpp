// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNUserAttention.h"

#include <QGuiApplication>
#include <QWindow>

namespace {

void alertTopLevelWindows(int milliseconds)
{
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && !window->isActive())
            window->alert(milliseconds);
    }
}

class SystemAttention final : public ZARNUserAttention
{
public:
    int request(RequestType type) override
    {
        alertTopLevelWindows(type == RequestType::Critical ? 0 : 1000);
        return ++m_lastIdentifier;
    }
    void cancel(int identifier) override
    {
        if (identifier > 0 && identifier <= m_lastIdentifier)
            alertTopLevelWindows(1);
    }

private:
    int m_lastIdentifier = 0;
};

std::unique_ptr<ZARNUserAttention> &installedAttention()
{
    static std::unique_ptr<ZARNUserAttention> attention;
    return attention;
}

} // namespace

ZARNUserAttention::~ZARNUserAttention() = default;

ZARNUserAttention &ZARNUserAttention::current()
{
    auto &installed = installedAttention();
    return installed ? *installed : system();
}

void ZARNUserAttention::setCurrent(std::unique_ptr<ZARNUserAttention> attention)
{
    installedAttention() = std::move(attention);
}

ZARNUserAttention &ZARNUserAttention::system()
{
    static SystemAttention attention;
    return attention;
}
