// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QStringList>

#include <optional>

class QWidget;

namespace BrixelPrivate {

/**
 * A text date picker from the "DatePicker" plug-in with the frame (0, 0, 100, 22) and its
 * date picker button shown, or null when no plug-in is found. The plug-in is looked up as
 * "brixel/DatePicker" in each folder of datePickerPluginSearchPaths(), in order, and loaded
 * once.
 */
BRIXEL_AUTOTEST_EXPORT QWidget *createTextDatePicker(QWidget *parent);

/// The application's library paths (QCoreApplication::libraryPaths()), then the plug-in folder
/// of the prefix the library is installed to, then the folder its own build put its plug-ins in.
BRIXEL_AUTOTEST_EXPORT QStringList datePickerPluginSearchPaths();

/// Replaces the search paths (an empty list finds no plug-in), or with std::nullopt restores
/// them; for tests.
BRIXEL_AUTOTEST_EXPORT void setDatePickerPluginSearchPaths(const std::optional<QStringList> &paths);

} // namespace BrixelPrivate
