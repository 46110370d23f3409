// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Models for the view benchmarks: every cell's text is made on request, so a model of a
// million rows costs no memory and the views are what the figures measure.

#include <QAbstractItemModel>
#include <QAbstractTableModel>
#include <QString>

#include <cstdint>

namespace brixelbench {

/// \a rows rows of \a columns short strings ("Item 12 of column 3").
class TextTableModel : public QAbstractTableModel
{
public:
    TextTableModel(int rows, int columns)
        : m_rows(rows)
        , m_columns(columns)
    {
    }
    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_rows; }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_columns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return QStringLiteral("Item %1 of column %2").arg(index.row()).arg(index.column());
    }

private:
    int m_rows;
    int m_columns;
};

/// The inverse of \a odd modulo 2^64 (each step of Newton's iteration doubles the exact bits).
constexpr std::uint64_t inverseModulo64(std::uint64_t odd)
{
    std::uint64_t x = odd; // exact to 3 bits for an odd number
    for (int step = 0; step < 5; ++step)
        x *= 2 - odd * x;
    return x;
}

/**
 * \a topLevel items of \a children children each, \a columns short strings a row.
 *
 * A child's internal id encodes its parent's row, multiplied by an odd 64-bit constant (a
 * bijection, undone in parent() by the constant's inverse). Qt hashes an index as its row
 * shifted by 4 plus its column plus its internal id, so plain parent rows as ids would make
 * the children of neighbouring parents collide by the thousand in the hashes of persistent
 * and expanded indexes, and expanding or tearing down a view would take minutes; spread ids
 * keep those hashes as fast as the views meet them in real models (whose ids are pointers).
 */
class TreeModel : public QAbstractItemModel
{
public:
    TreeModel(int topLevel, int children, int columns)
        : m_topLevel(topLevel)
        , m_children(children)
        , m_columns(columns)
    {
    }
    QModelIndex index(int row, int column, const QModelIndex &parent) const override
    {
        if (!hasIndex(row, column, parent))
            return {};
        return createIndex(row, column, parent.isValid() ? idOfChildrenOf(parent.row()) : TopLevel);
    }
    QModelIndex parent(const QModelIndex &child) const override
    {
        if (!child.isValid() || child.internalId() == TopLevel)
            return {};
        return createIndex(parentRowOf(child.internalId()), 0, TopLevel);
    }
    int rowCount(const QModelIndex &parent) const override
    {
        if (!parent.isValid())
            return m_topLevel;
        return parent.internalId() == TopLevel && parent.column() == 0 ? m_children : 0;
    }
    int columnCount(const QModelIndex &) const override { return m_columns; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return QStringLiteral("Item %1 of column %2").arg(index.row()).arg(index.column());
    }

private:
    static constexpr quintptr TopLevel = 0;
    static constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15ULL;
    static constexpr std::uint64_t Unspread = inverseModulo64(Spread);
    static_assert(Spread * Unspread == 1);
    static_assert(sizeof(quintptr) == sizeof(std::uint64_t), "the ids need 64 bits");

    // Row + 1, so that no child's id is the top level's 0.
    static quintptr idOfChildrenOf(int parentRow) { return quintptr((std::uint64_t(parentRow) + 1) * Spread); }
    static int parentRowOf(quintptr id) { return int(std::uint64_t(id) * Unspread - 1); }

    int m_topLevel;
    int m_children;
    int m_columns;
};

} // namespace brixelbench
