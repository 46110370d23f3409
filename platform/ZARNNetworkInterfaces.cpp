// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNetworkInterfaces.h"
#include "RouteTable_p.h"

#include <QFile>
#include <QNetworkInterface>
#include <QSysInfo>

#include <cerrno>
#include <optional>

namespace {

class SystemNetworkInterfaces final : public ZARNNetworkInterfaces
{
public:
    Listing interfaces() const override
    {
        Listing listing;
        const QList<QNetworkInterface> all = QNetworkInterface::allInterfaces();
        if (all.isEmpty()) {
            listing.error = EIO;
            return listing;
        }
        for (const QNetworkInterface &interface : all) {
            QByteArray hex = interface.hardwareAddress().toLatin1();
            hex.replace(':', QByteArray());
            listing.interfaces.append({interface.name(), QByteArray::fromHex(hex),
                                       interface.flags().testFlag(QNetworkInterface::IsLoopBack)});
        }
        return listing;
    }

    QString defaultRouteInterface() const override
    {
        QFile table(QStringLiteral("/proc/net/route"));
        if (!table.open(QIODevice::ReadOnly))
            return {};
        return BrixelPrivate::defaultRouteInterfaceName(table.readAll());
    }

    QString hostName() const override { return QSysInfo::machineHostName(); }
};

std::unique_ptr<ZARNNetworkInterfaces> &installedInterfaces()
{
    static std::unique_ptr<ZARNNetworkInterfaces> interfaces;
    return interfaces;
}

std::optional<quint32> numberField(const QList<QByteArray> &fields, qsizetype index, int base)
{
    if (index >= fields.size())
        return std::nullopt;
    bool ok = false;
    const uint value = fields.at(index).toUInt(&ok, base);
    return ok ? std::optional<quint32>(value) : std::nullopt;
}

} // namespace

QString BrixelPrivate::defaultRouteInterfaceName(QByteArrayView routeTable)
{
    // Columns: Iface Destination Gateway Flags RefCnt Use Metric Mask MTU Window IRTT; the
    // addresses, flags and mask are hexadecimal, the metric decimal.
    // The heading line fails the number checks and is skipped with the malformed ones.
    constexpr qsizetype destinationColumn = 1, flagsColumn = 3, metricColumn = 6, maskColumn = 7;
    constexpr quint32 routeUp = 0x1;

    QString best;
    std::optional<quint32> bestMetric;
    for (const QByteArray &line : routeTable.toByteArray().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        const auto destination = numberField(fields, destinationColumn, 16);
        const auto flags = numberField(fields, flagsColumn, 16);
        const auto metric = numberField(fields, metricColumn, 10);
        const auto mask = numberField(fields, maskColumn, 16);
        if (!destination || !flags || !metric || !mask)
            continue;
        const bool isDefault = *destination == 0 && *mask == 0 && (*flags & routeUp);
        if (isDefault && (!bestMetric || *metric < *bestMetric)) {
            best = QString::fromLocal8Bit(fields.first());
            bestMetric = metric;
        }
    }
    return best;
}

ZARNNetworkInterfaces::~ZARNNetworkInterfaces() = default;

const ZARNNetworkInterfaces &ZARNNetworkInterfaces::current()
{
    const auto &installed = installedInterfaces();
    return installed ? *installed : system();
}

void ZARNNetworkInterfaces::setCurrent(std::unique_ptr<ZARNNetworkInterfaces> interfaces)
{
    installedInterfaces() = std::move(interfaces);
}

const ZARNNetworkInterfaces &ZARNNetworkInterfaces::system()
{
    static const SystemNetworkInterfaces interfaces;
    return interfaces;
}
