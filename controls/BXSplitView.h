// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QSplitter>

#include <memory>

/**
 * A splitter whose dividers are 7 pixels thick from every constructor, until
 * setDividerThickness() says otherwise.
 *
 * \code
 * auto *split = new BXSplitView(Qt::Horizontal, window);
 * split->addWidget(sourceList);
 * split->addWidget(contents);
 * \endcode
 *
 * The thickness is QSplitter's handle width, so the splitter lays out and draws its handles at
 * that width; a fractional thickness is rounded to whole pixels for them. A handle width set
 * through QSplitter, as a form file sets it, is replaced by the divider thickness before the
 * splitter is first shown.
 */
class BRIXEL_EXPORT BXSplitView : public QSplitter
{
    Q_OBJECT
    Q_PROPERTY(float dividerThickness READ dividerThickness WRITE setDividerThickness)
public:
    explicit BXSplitView(QWidget *parent = nullptr);
    explicit BXSplitView(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~BXSplitView() override;

    float dividerThickness() const;
    /// Makes the dividers \a thickness pixels thick; a value that is NaN or below 0 means 0.
    void setDividerThickness(float thickness);

protected:
    bool event(QEvent *event) override;

private:
    std::unique_ptr<class BXSplitViewPrivate> const d;
};
