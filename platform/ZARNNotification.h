// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

/**
 * A notice handed to a delegate: its name, the object it is about and optional details.
 *
 * The library's views also emit Qt signals for the same events; this value exists for the
 * delegate messages that carry a notification, so that a delegate can tell notices apart by
 * name.
 *
 * \code
 * void tableViewSelectionIsChanging(const ZARNNotification &notification) override
 * {
 *     auto *table = qobject_cast<ZARNTableView *>(notification.object);
 *     ...
 * }
 * \endcode
 */
struct ZARNNotification
{
    QString name;
    QPointer<QObject> object;
    QVariantMap userInfo;
};

/// The name of the notice sent while the selection of a table or outline view is changing
/// under the arrow keys.
inline constexpr QLatin1StringView NSTableViewSelectionIsChangingNotification("NSTableViewSelectionIsChangingNotification");
