// SPDX-License-Identifier: LGPL-2.1-or-later
#include "DatePickerPluginLoader_p.h"

#include "ZARNDatePickerPlugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>
#include <QWidget>


using namespace Qt::StringLiterals;

namespace BrixelPrivate {

namespace {

std::optional<QStringList> &replacedPaths()
{
    static std::optional<QStringList> paths;
    return paths;
}

ZARNDatePickerPlugin *findPlugin()
{
    for (const QString &folder : datePickerPluginSearchPaths()) {
        const QDir plugins(folder + u"/brixel"_s);
        for (const QString &file : plugins.entryList({u"*DatePicker*"_s}, QDir::Files)) {
            QPluginLoader loader(plugins.absoluteFilePath(file));
            if (auto *plugin = qobject_cast<ZARNDatePickerPlugin *>(loader.instance()))
                return plugin;
        }
    }
    return nullptr;
}

} // namespace

QStringList datePickerPluginSearchPaths()
{
    if (replacedPaths())
        return *replacedPaths();
    QStringList paths = QCoreApplication::libraryPaths();
    paths.append(QStringLiteral(BRIXEL_INSTALL_PLUGIN_DIR));
    paths.append(QStringLiteral(BRIXEL_BUILD_PLUGIN_DIR));
    return paths;
}

void setDatePickerPluginSearchPaths(const std::optional<QStringList> &paths)
{
    replacedPaths() = paths;
}

QWidget *createTextDatePicker(QWidget *parent)
{
    // A loaded plug-in stays loaded; one that is absent is looked for again next time.
    static ZARNDatePickerPlugin *plugin = nullptr;
    if (!plugin || replacedPaths())
        plugin = findPlugin();
    if (!plugin)
        return nullptr;
    QWidget *picker = plugin->createTextDatePicker(parent);
    if (!picker)
        return nullptr;
    picker->setGeometry(0, 0, 100, 22);
    QMetaObject::invokeMethod(picker, "setShowsDatePickerButton", Q_ARG(bool, true));
    return picker;
}

} // namespace BrixelPrivate
