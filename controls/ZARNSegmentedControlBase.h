// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

/**
 * A row of segments, each with a label, an image and an integer tag, of which at most one is
 * selected. Qt has no such control; the library's segmented controls derive from this one.
 *
 * Clicking a segment selects it. Each segment is painted as a push button of the current style
 * (pressed when selected) across an equal share of the width; subclasses change the look by
 * overriding drawSegment().
 *
 * \code
 * auto *view = new ZARNSegmentedControlBase(parent);
 * view->setSegmentCount(3);
 * view->setLabel(tr("List"), 0);  view->setTag(10, 0);
 * view->setLabel(tr("Icons"), 1); view->setTag(20, 1);
 * view->setLabel(tr("Flow"), 2);  view->setTag(30, 2);
 * view->selectSegmentWithTag(20);  // selects "Icons"
 * connect(view, &ZARNSegmentedControlBase::selectedSegmentChanged, this, &Browser::showMode);
 * \endcode
 *
 * Bad input: a segment number outside [0, segmentCount()) makes the getters return an empty
 * label, a null image and tag 0, and the setters do nothing. A negative count means no segments.
 */
class BRIXEL_EXPORT ZARNSegmentedControlBase : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int segmentCount READ segmentCount WRITE setSegmentCount)
    Q_PROPERTY(int selectedSegment READ selectedSegment WRITE setSelectedSegment NOTIFY selectedSegmentChanged)
public:
    explicit ZARNSegmentedControlBase(QWidget *parent = nullptr);
    ~ZARNSegmentedControlBase() override;

    int segmentCount() const;
    /// Adds empty segments (tag 0) or removes segments from the end. Removing the selected
    /// segment clears the selection.
    void setSegmentCount(int count);

    QString labelForSegment(int segment) const;
    void setLabel(const QString &label, int segment);
    QImage imageForSegment(int segment) const;
    void setImage(const QImage &image, int segment);
    int tagForSegment(int segment) const;
    void setTag(int tag, int segment);

    /// The selected segment, -1 when none is.
    int selectedSegment() const;
    /// Selects \a segment; -1 clears the selection and any other number outside the segments is
    /// ignored. Emits selectedSegmentChanged() when the selection changes.
    void setSelectedSegment(int segment);

    /// Selects the first segment, from 0 upwards, whose tag is \a tag and returns true; returns
    /// false and keeps the selection when no segment has that tag.
    virtual bool selectSegmentWithTag(int tag);

    /// The part of the widget that segment \a segment occupies (an empty rectangle for a
    /// segment that does not exist).
    QRect rectForSegment(int segment) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void selectedSegmentChanged(int segment);

protected:
    /// Paints \a segment into \a frame.
    virtual void drawSegment(QPainter &painter, int segment, const QRect &frame);

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool isSegment(int segment) const;
    QSize segmentSizeHint(int segment) const;

    std::unique_ptr<class ZARNSegmentedControlBasePrivate> const d;
};
