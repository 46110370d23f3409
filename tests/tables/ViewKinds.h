// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNOutlineViewDelegate.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDataSource.h>
#include <Brixel/ZARNTableViewDelegate.h>

#include <QStandardItemModel>
#include <QTest>

#include <memory>
#include <optional>

/**
 * What the table and outline view tests share: a model that reads back what a view did to it,
 * a delegate that hears both views, and either view behind one set of calls, so that the
 * behaviour both views promise is checked on each with one test.
 */
namespace viewkinds {

using namespace Qt::StringLiterals;

enum class Kind { Table, Outline };

/// Items read "r<row>c<column>", columns are named A, B, C..; answers the context-click
/// question when it opts in, noting the rows it was asked about.
class DataSourceModel : public QStandardItemModel, public ZARNTableViewDataSource
{
public:
    DataSourceModel(int rows, int columns)
        : QStandardItemModel(rows, columns)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                setItem(row, column, new QStandardItem(u"r%1c%2"_s.arg(row).arg(column)));
        for (int column = 0; column < columns; ++column)
            setHorizontalHeaderItem(column, new QStandardItem(QString(QChar(u'A' + column))));
    }
    bool respondsToTableviewShouldSelectRow() const override { return responds; }
    std::optional<bool> tableViewShouldSelectRow(ZARNTableView *, int row) override
    {
        asked.append(row);
        return answer;
    }
    QString text(int row, int column) const { return index(row, column).data().toString(); }

    bool responds = false;
    std::optional<bool> answer;
    QList<int> asked;
};

/// Notes the key messages of either view as "return", "delete" and "changing".
class RecordingDelegate : public ZARNTableViewDelegate, public ZARNOutlineViewDelegate
{
public:
    void tableViewReturnKey(ZARNTableView *) override { calls << u"return"_s; }
    void outlineViewReturnKey(ZARNOutlineView *) override { calls << u"return"_s; }
    void tableViewDeleteBackward(ZARNTableView *) override { calls << u"delete"_s; }
    void outlineViewDeleteBackward(ZARNOutlineView *) override { calls << u"delete"_s; }
    void tableViewSelectionIsChanging(const ZARNNotification &notice) override { changing(notice); }
    void outlineViewSelectionIsChanging(const ZARNNotification &notice) override { changing(notice); }

    QStringList calls;
    QList<ZARNNotification> notices;

private:
    void changing(const ZARNNotification &notice)
    {
        calls << u"changing"_s;
        notices << notice;
    }
};

class OpenTable : public ZARNTableView
{
public:
    using ZARNTableView::startDrag;
};

class OpenOutline : public ZARNOutlineView
{
public:
    using ZARNOutlineView::startDrag;
};

/// A table or outline view, not shown, with the calls both have.
struct AnyView
{
    explicit AnyView(Kind kind)
        : kind(kind)
    {
        if (kind == Kind::Table)
            view = std::make_unique<OpenTable>();
        else
            view = std::make_unique<OpenOutline>();
    }

    ZARNTableView *table() const { return kind == Kind::Table ? static_cast<ZARNTableView *>(view.get()) : nullptr; }
    ZARNOutlineView *outline() const
    {
        return kind == Kind::Outline ? static_cast<ZARNOutlineView *>(view.get()) : nullptr;
    }
    QAbstractItemView *operator->() const { return view.get(); }

    template<typename Call>
    auto either(Call call) const
    {
        return table() ? call(*table()) : call(*outline());
    }

    void setDelegate(RecordingDelegate *delegate) const { either([delegate](auto &v) { v.setDelegate(delegate); }); }
    void setMenu(QMenu *menu) const { either([menu](auto &v) { v.setMenu(menu); }); }
    bool inDragPrep() const { return either([](auto &v) { return v.inDragPrep(); }); }
    /// The row the open menu is for; -1 for none or below the rows.
    int contextMenuRow() const
    {
        return table() ? table()->contextMenuRow()
                       : (outline()->contextMenuItem().isValid() ? outline()->contextMenuItem().row() : -1);
    }
    void startDrag(Qt::DropActions actions) const
    {
        if (table())
            static_cast<OpenTable *>(table())->startDrag(actions);
        else
            static_cast<OpenOutline *>(outline())->startDrag(actions);
    }

    const Kind kind;
    std::unique_ptr<QAbstractItemView> view;
};

/// The rows with a selected row, in order.
inline QList<int> selectedRows(const QAbstractItemView &view)
{
    QList<int> rows;
    for (const QModelIndex &index : view.selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Selects exactly \a rows, whole.
inline void selectRows(QAbstractItemView &view, const QList<int> &rows)
{
    view.selectionModel()->clearSelection();
    for (int row : rows)
        view.selectionModel()->select(view.model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// Shows \a view at \a size and waits until it is on screen.
inline void showView(QAbstractItemView &view, QSize size)
{
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
}

/// Shows \a view frameless on white, with the highlight colour (50, 100, 200), focused in an
/// active window, so that selected rows draw as in the window a user works in.
inline void showFocused(QAbstractItemView &view, QSize size)
{
    QPalette palette = view.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(50, 100, 200));
    view.setPalette(palette);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(size);
    view.show();
    view.activateWindow();
    view.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&view));
}

} // namespace viewkinds

Q_DECLARE_METATYPE(viewkinds::Kind)
