// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QUiLoader>

namespace BrixelPrivate {

/**
 * A form loader that also creates the library's own widgets, so forms can use them as
 * custom widgets (in Qt Designer: promote a widget of the base class to the library class,
 * header <Brixel/Name.h>). Every other class is created as QUiLoader creates it.
 */
class BRIXEL_AUTOTEST_EXPORT FormLoader : public QUiLoader
{
public:
    using QUiLoader::QUiLoader;
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;
};

} // namespace BrixelPrivate
