// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSystemVersion.h"
#include "SystemVersionCode_p.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lcSystemVersion, "brixel.systemversion")

quint32 codeFromEnvironment()
{
    const QString text = qEnvironmentVariable("BRIXEL_SYSTEM_VERSION");
    if (text.trimmed().isEmpty())
        return ZARNSystemVersionNewest;
    const quint32 code = BrixelPrivate::parseSystemVersionCode(text);
    if (code == 0) {
        qCWarning(lcSystemVersion) << "BRIXEL_SYSTEM_VERSION is not a hexadecimal code:" << text
                                   << "- using the newest behaviour";
        return ZARNSystemVersionNewest;
    }
    return code;
}

quint32 &currentCode()
{
    static quint32 code = codeFromEnvironment();
    return code;
}

} // namespace

quint32 BrixelPrivate::parseSystemVersionCode(QStringView text)
{
    QStringView digits = text.trimmed();
    if (digits.startsWith(u"0x", Qt::CaseInsensitive))
        digits = digits.mid(2);
    bool ok = false;
    const qulonglong value = digits.toULongLong(&ok, 16);
    if (!ok || value > 0xFFFFFFFFull)
        return 0;
    return quint32(value);
}

quint32 Brixel::ZARNSystemVersion()
{
    return currentCode();
}

void Brixel::ZARNSetSystemVersion(quint32 code)
{
    if (std::exchange(currentCode(), code) != code)
        Q_EMIT ZARNSystemVersionNotifier::instance()->systemVersionChanged(code);
}

class ZARNSystemVersionNotifierPrivate
{
};

ZARNSystemVersionNotifier::ZARNSystemVersionNotifier() = default;
ZARNSystemVersionNotifier::~ZARNSystemVersionNotifier() = default;

ZARNSystemVersionNotifier *ZARNSystemVersionNotifier::instance()
{
    static ZARNSystemVersionNotifier notifier;
    return &notifier;
}
