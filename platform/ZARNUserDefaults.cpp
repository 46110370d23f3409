// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNUserDefaults.h"

#include <QSettings>

namespace {
QVariantMap &registeredDefaults()
{
    static QVariantMap defaults;
    return defaults;
}
} // namespace

QVariant ZARNUserDefaults::objectForKey(const QString &key)
{
    const QSettings settings;
    if (settings.contains(key))
        return settings.value(key);
    return registeredDefaults().value(key);
}

QString ZARNUserDefaults::stringForKey(const QString &key)
{
    const QVariant value = objectForKey(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

void ZARNUserDefaults::setObject(const QVariant &value, const QString &key)
{
    QSettings().setValue(key, value);
}

void ZARNUserDefaults::removeObjectForKey(const QString &key)
{
    QSettings().remove(key);
}

void ZARNUserDefaults::registerDefaults(const QVariantMap &defaults)
{
    registeredDefaults().insert(defaults);
}
