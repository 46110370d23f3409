// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSNibAdditions.h"

#include "FormLoader_p.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QPointer>
#include <QWidget>

namespace {

using ObjectList = QList<QPointer<QObject>>;

struct RememberedTopLevelObjects
{
    QMutex mutex;
    QHash<QString, ObjectList> byOwner;
};

// Created on first use and never freed: remembered objects may outlive the application object,
// and deleting widgets after it is gone is not allowed.
RememberedTopLevelObjects &rememberedTopLevelObjects()
{
    static auto *table = new RememberedTopLevelObjects;
    return *table;
}

QString ownerKey(const QObject *owner)
{
    return QString::number(quintptr(owner));
}

// Deletes the objects that still exist, except those in keep. Deleting a parent deletes its
// children, whose guards then read null, so nothing is deleted twice.
void deleteObjects(const ObjectList &objects, const QList<QObject *> &keep = {})
{
    for (const QPointer<QObject> &object : objects) {
        if (object && !keep.contains(object.data()))
            delete object.data();
    }
}

// Gives a loaded form that is not remembered to its owner, or deletes it when nobody takes it.
void handOver(QWidget *form, QObject *owner, bool callerTakesIt)
{
    if (auto *ownerWidget = qobject_cast<QWidget *>(owner))
        form->setParent(ownerWidget, form->windowFlags() | Qt::Window);
    else if (owner)
        QObject::connect(owner, &QObject::destroyed, form, [form] { delete form; });
    else if (!callerTakesIt)
        delete form;
}

bool instantiate(QIODevice *nib, const QDir &formFolder, QObject *owner, QList<QObject *> *topLevelObjects,
                 bool remember)
{
    if (!nib || !qobject_cast<QApplication *>(QCoreApplication::instance()))
        return false;
    BrixelPrivate::FormLoader loader;
    loader.setWorkingDirectory(formFolder);
    QWidget *form = loader.load(nib);
    if (!form)
        return false;

    const QList<QObject *> objects{form};
    if (remember && topLevelObjects)
        Brixel::rememberTopLevelObjects(objects, owner);
    else
        handOver(form, owner, topLevelObjects != nullptr);
    if (topLevelObjects)
        *topLevelObjects = objects;
    return true;
}

} // namespace

void Brixel::rememberTopLevelObjects(const QList<QObject *> &objects, const QObject *owner)
{
    ObjectList replaced;
    {
        RememberedTopLevelObjects &table = rememberedTopLevelObjects();
        const QMutexLocker locker(&table.mutex);
        replaced = std::exchange(table.byOwner[ownerKey(owner)], ObjectList(objects.cbegin(), objects.cend()));
    }
    // Outside the lock: a destructor may remember or forget objects itself.
    deleteObjects(replaced, objects);
}

void Brixel::forgetTopLevelObjectsForOwner(const QObject *owner)
{
    ObjectList forgotten;
    {
        RememberedTopLevelObjects &table = rememberedTopLevelObjects();
        const QMutexLocker locker(&table.mutex);
        forgotten = table.byOwner.take(ownerKey(owner));
    }
    deleteObjects(forgotten);
}

QList<QObject *> Brixel::rememberedTopLevelObjectsForOwner(const QObject *owner)
{
    RememberedTopLevelObjects &table = rememberedTopLevelObjects();
    const QMutexLocker locker(&table.mutex);
    QList<QObject *> objects;
    for (const QPointer<QObject> &object : table.byOwner.value(ownerKey(owner))) {
        if (object)
            objects.append(object.data());
    }
    return objects;
}

bool Brixel::instantiateNibWithOwner(QIODevice *nib, QObject *owner, QList<QObject *> *topLevelObjects, bool remember)
{
    return instantiate(nib, QDir::current(), owner, topLevelObjects, remember);
}

bool Brixel::instantiateNibWithOwner(QIODevice *nib, QObject *owner, bool remember)
{
    QList<QObject *> objects;
    return Brixel::instantiateNibWithOwner(nib, owner, remember ? &objects : nullptr, remember);
}

bool Brixel::instantiateNibWithOwner(const QString &path, QObject *owner, QList<QObject *> *topLevelObjects, bool remember)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return instantiate(&file, QFileInfo(path).absoluteDir(), owner, topLevelObjects, remember);
}

bool Brixel::instantiateNibWithOwner(const QString &path, QObject *owner, bool remember)
{
    QList<QObject *> objects;
    return Brixel::instantiateNibWithOwner(path, owner, remember ? &objects : nullptr, remember);
}
