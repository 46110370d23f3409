// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QObject>

#include <memory>
#include <QtGlobal>

/**
 * \file
 * The system version code: the one switch by which Brixel chooses between an older and a newer
 * look or behaviour.
 *
 * A code is a release 10.x.y written as the hexadecimal digits 1, 0, x, y (0x1039 for 10.3.9).
 * The library compares it with fixed thresholds (0x101F, 0x1030, 0x103F, 0x1040, 0x104F and
 * 0x1050). Qt runs on systems that have no such number, so the default is
 * ZARNSystemVersionNewest, which lies above every threshold and selects the newest behaviour
 * everywhere. Every older look stays selectable:
 *
 * - at start-up, the environment variable \c BRIXEL_SYSTEM_VERSION (hexadecimal, with or
 *   without "0x", for example \c 0x1039) replaces the default;
 * - at run time, ZARNSetSystemVersion() replaces the current code and tells
 *   ZARNSystemVersionNotifier's listeners.
 *
 * \code
 * if (ZARNSystemVersion() > 0x103F)
 *     drawNewLook(painter);
 * \endcode
 */

/// A code above every threshold the library uses: the newest behaviour of each.
inline constexpr quint32 ZARNSystemVersionNewest = 0x1060;

namespace Brixel {

/// The current system version code. The first call reads \c BRIXEL_SYSTEM_VERSION; an unset,
/// empty or malformed variable leaves ZARNSystemVersionNewest (a malformed one with a warning).
BRIXEL_EXPORT quint32 ZARNSystemVersion();

/// Makes \a code the current system version code and emits
/// ZARNSystemVersionNotifier::systemVersionChanged() when it differs from the previous one.
BRIXEL_EXPORT void ZARNSetSystemVersion(quint32 code);

} // namespace Brixel

/**
 * Tells interested objects that the system version code has changed, so that widgets whose
 * look depends on it can drop cached artwork and repaint.
 */
class BRIXEL_EXPORT ZARNSystemVersionNotifier : public QObject
{
    Q_OBJECT
public:
    /// The process-wide notifier; it lives until the application ends.
    static ZARNSystemVersionNotifier *instance();

Q_SIGNALS:
    void systemVersionChanged(quint32 code);

private:
    ZARNSystemVersionNotifier();
    ~ZARNSystemVersionNotifier() override;

    // Holds nothing yet; it keeps room to add state without changing the class's layout.
    std::unique_ptr<class ZARNSystemVersionNotifierPrivate> const d;
};
