// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/ZARNShadow.h>
#include <Brixel/brixel_export.h>

#include <QTableView>

/**
 * A table view that draws its own selection (rectangle, capsule or rounded rectangle),
 * hides and restores columns by identifier, moves editing like a spreadsheet and shows a
 * message while it has no rows. Any Qt model drives it, as it drives a QTableView.
 *
 * \code
 * auto *table = new ZARNTableView(parent);
 * table->setModel(model);
 * \endcode
 */
class BRIXEL_EXPORT ZARNTableView : public QTableView
{
    Q_OBJECT
public:
    /// How selected rows are drawn; highlightStyle() holds one of these, and any other value
    /// draws as Rectangle.
    enum HighlightStyle : quint32 {
        Rectangle = 0, ///< a plain rectangle
        Capsule = 1, ///< a rounded rectangle with half-circle ends
        RoundedRectangle = 2, ///< corners rounded by a fifth of the row's height
    };

    explicit ZARNTableView(QWidget *parent = nullptr);
    ~ZARNTableView() override;

    /**
     * The shadow under the text of selected cells: one point below, blur 1.0, black at 80%
     * opacity. The same value lives for the whole process.
     */
    static const ZARNShadow &standardShadow();

    /// standardShadow() at 30% opacity, for text in inactive surroundings.
    static const ZARNShadow &deactivatedShadow();
};
