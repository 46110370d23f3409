// SPDX-License-Identifier: LGPL-2.1-or-later
// The delegate and data-source interfaces' default answers: every notice does nothing and
// every question goes unanswered.
#include "ZARNOutlineViewDelegate.h"
#include "ZARNTableViewDataSource.h"
#include "ZARNTableViewDelegate.h"

ZARNTableViewDataSource::~ZARNTableViewDataSource() = default;

std::optional<bool> ZARNTableViewDataSource::tableViewShouldSelectRow(ZARNTableView *, int)
{
    return {};
}

ZARNTableViewDelegate::~ZARNTableViewDelegate() = default;
void ZARNTableViewDelegate::tableViewReturnKey(ZARNTableView *) {}
void ZARNTableViewDelegate::tableViewDeleteBackward(ZARNTableView *) {}
void ZARNTableViewDelegate::tableViewSelectionIsChanging(const ZARNNotification &) {}
void ZARNTableViewDelegate::tableViewWillTabToColumn(ZARNTableView *, int &, int &, int, int) {}

std::optional<bool> ZARNTableViewDelegate::tableViewShouldEditTableColumn(ZARNTableView *, ZARNTableColumn *, int)
{
    return {};
}

void ZARNTableViewDelegate::tableViewWillDrawRect(ZARNTableView *, const QRect &) {}
void ZARNTableViewDelegate::tableViewWillDisplayCell(ZARNTableView *, QAbstractItemDelegate *, ZARNTableColumn *, int) {}

std::optional<QImage> ZARNTableViewDelegate::tableViewCustomHighlightImageForRow(ZARNTableView *, int)
{
    return {};
}

std::optional<QImage> ZARNTableViewDelegate::outlineViewCustomHighlightImageForItem(ZARNTableView *, const QModelIndex &)
{
    return {};
}

ZARNOutlineViewDelegate::~ZARNOutlineViewDelegate() = default;
void ZARNOutlineViewDelegate::outlineViewReturnKey(ZARNOutlineView *) {}
void ZARNOutlineViewDelegate::outlineViewDeleteBackward(ZARNOutlineView *) {}
void ZARNOutlineViewDelegate::outlineViewSelectionIsChanging(const ZARNNotification &) {}

std::optional<bool> ZARNOutlineViewDelegate::outlineViewShouldShowIndentationMarkerForItem(ZARNOutlineView *, const QModelIndex &)
{
    return {};
}

std::optional<QImage> ZARNOutlineViewDelegate::outlineViewExpandedIndicatorForItem(ZARNOutlineView *, const QModelIndex &)
{
    return {};
}

std::optional<QImage> ZARNOutlineViewDelegate::outlineViewCollapsedIndicatorForItem(ZARNOutlineView *, const QModelIndex &)
{
    return {};
}

void ZARNOutlineViewDelegate::outlineViewWillDrawItem(ZARNOutlineView *, const QModelIndex &, const QRect &) {}
void ZARNOutlineViewDelegate::outlineViewWillDisplayCell(ZARNOutlineView *, QAbstractItemDelegate *, ZARNTableColumn *, const QModelIndex &) {}

std::optional<QImage> ZARNOutlineViewDelegate::outlineViewCustomHighlightImageForItem(ZARNOutlineView *, const QModelIndex &)
{
    return {};
}

void ZARNOutlineViewDelegate::tableViewWillDrawRect(ZARNOutlineView *, const QRect &) {}
