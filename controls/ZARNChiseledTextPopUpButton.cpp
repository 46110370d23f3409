// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNChiseledTextPopUpButton.h"

#include "ActivityFollower_p.h"
#include "ChiseledPopUpLayout_p.h"
#include "ZARNChiseledTextField.h"

#include "../drawing/ZARNImageComposition.h"
#include "../drawing/ZARNNSImageAdditions.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QImage artwork(const QString &name, qreal pixelRatio)
{
    return Brixel::imageNamed(name, u"ZARNChiseledTextPopUpButton"_s, pixelRatio);
}

float widthOf(const QImage &image)
{
    return float(image.deviceIndependentSize().width());
}

QImage recoloured(const QImage &image, const QColor &color)
{
    QImage result = Brixel::ReplaceColorsInImage(image, color);
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

} // namespace

class ZARNChiseledTextPopUpButtonPrivate
{
public:
    void loadArtwork(qreal pixelRatio)
    {
        leftCapMouseDown = artwork(u"chiseledPopUp_LeftCap_MouseDown"_s, pixelRatio);
        middleMouseDown = artwork(u"chiseledPopUp_Middle_MouseDown"_s, pixelRatio);
        rightCapMouseDown = artwork(u"chiseledPopUp_RightCap_MouseDown"_s, pixelRatio);
        leftCapMouseOver = artwork(u"chiseledPopUp_LeftCap_MouseOver"_s, pixelRatio);
        middleMouseOver = artwork(u"chiseledPopUp_Middle_MouseOver"_s, pixelRatio);
        rightCapMouseOver = artwork(u"chiseledPopUp_RightCap_MouseOver"_s, pixelRatio);
        downArrowIdle = artwork(u"chiseledPopUp_DownArrow_Black"_s, pixelRatio);
        downArrowMouseDown = artwork(u"chiseledPopUp_DownArrow_White"_s, pixelRatio);
        downArrowMouseOver = downArrowMouseDown;
        arrow = artwork(u"chiseledPopUp_DownArrow"_s, pixelRatio);
    }

    BrixelPrivate::ChiseledPopUpArtworkWidths widths() const
    {
        return {widthOf(leftCapMouseDown), widthOf(rightCapMouseDown), widthOf(arrow)};
    }

    std::unique_ptr<ZARNChiseledTextField> titleField;
    QImage leftCapMouseDown;
    QImage middleMouseDown;
    QImage rightCapMouseDown;
    QImage leftCapMouseOver;
    QImage middleMouseOver;
    QImage rightCapMouseOver;
    QImage downArrowIdle;
    QImage downArrowMouseDown;
    QImage downArrowMouseOver;
    QImage arrow;
    QImage imageIdle;
    QImage imageMouseOver;
    QImage imageMouseDown;
    QImage image;
    QImage alternateImage;
    QSize laidOutSize;
    bool mouseIsDown = false;
    bool sizeHeightToFit = false;
    int frameAnchorMask = 1;
    bool active = true;
    std::unique_ptr<BrixelPrivate::ActivityFollower> activity;
};

ZARNChiseledTextPopUpButton::ZARNChiseledTextPopUpButton(QWidget *parent)
    : ZARNChiseledTextPopUpButton(QString(), parent)
{
}

ZARNChiseledTextPopUpButton::ZARNChiseledTextPopUpButton(const QString &title, QWidget *parent)
    : ZARNPopUpButton(parent)
    , d(std::make_unique<ZARNChiseledTextPopUpButtonPrivate>())
{
    init(title);
}

ZARNChiseledTextPopUpButton::~ZARNChiseledTextPopUpButton() = default;

void ZARNChiseledTextPopUpButton::init(const QString &title)
{
    d->loadArtwork(devicePixelRatioF());
    d->titleField = std::make_unique<ZARNChiseledTextField>();
    d->titleField->resize(100, 20);
    QFont bold = font();
    bold.setPointSizeF(11.0);
    bold.setBold(true);
    d->titleField->setFont(bold);
    d->titleField->setAlignment(Qt::AlignCenter);
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    d->activity = std::make_unique<BrixelPrivate::ActivityFollower>(this, [this] { activate(); },
                                                                  [this] { deactivate(); });
    d->activity->follow();
    setTitle(title);
}

QColor ZARNChiseledTextPopUpButton::highlightColor()
{
    return QColor::fromRgbF(1.0f, 1.0f, 1.0f, 1.0f);
}

QColor ZARNChiseledTextPopUpButton::shadow_HighlightColor()
{
    return QColor::fromRgbF(0.1f, 0.1f, 0.1f, 1.0f);
}

QString ZARNChiseledTextPopUpButton::title() const
{
    return d->titleField->text();
}

void ZARNChiseledTextPopUpButton::setTitle(const QString &title)
{
    const QRect oldGeometry = geometry();
    const float parentHeight = parentWidget() ? float(parentWidget()->height()) : 0.0f;
    d->titleField->setText(title);
    d->titleField->resize(d->titleField->sizeHint());
    const ZARNSize titleSize = ZARNSize::fromQSizeF(d->titleField->size());

    const ZARNRect frame = BrixelPrivate::chiseledPopUpFrame(ZARNRect::fromQRectF(oldGeometry).flipped(parentHeight),
                                                             titleSize, d->widths(), d->sizeHeightToFit,
                                                             d->frameAnchorMask);
    d->laidOutSize = frame.toQRectF().size().toSize();
    setGeometry(frame.flipped(parentHeight).toQRectF().toRect());
    updateGeometry();

    SetIdleImage(ConstructIdleImage());
    SetMouseOverImage(ConstructMouseOverImage());
    SetMouseDownImage(ConstructMouseDownImage());
    if (parentWidget())
        parentWidget()->update(oldGeometry);
}

void ZARNChiseledTextPopUpButton::setFont(const QFont &font)
{
    if (d->titleField)
        d->titleField->setFont(font);
}

void ZARNChiseledTextPopUpButton::SetSizeHeightToFit(bool flag)
{
    d->sizeHeightToFit = flag;
}

void ZARNChiseledTextPopUpButton::SetFrameAnchorMask(int mask)
{
    d->frameAnchorMask = mask;
}

void ZARNChiseledTextPopUpButton::setDownArrow_Idle_Image(const QImage &image)
{
    d->downArrowIdle = image.isNull() ? artwork(u"chiseledPopUp_DownArrow_Black"_s, devicePixelRatioF()) : image;
    d->imageIdle = ConstructIdleImage();
}

void ZARNChiseledTextPopUpButton::setDownArrow_MouseOver_Image(const QImage &image)
{
    d->downArrowMouseOver = image.isNull() ? artwork(u"chiseledPopUp_DownArrow_White"_s, devicePixelRatioF()) : image;
    d->imageMouseOver = ConstructMouseOverImage();
}

void ZARNChiseledTextPopUpButton::setDownArrow_MouseDown_Image(const QImage &image)
{
    d->downArrowMouseDown = image.isNull() ? artwork(u"chiseledPopUp_DownArrow_White"_s, devicePixelRatioF()) : image;
    d->imageMouseDown = ConstructMouseDownImage();
}

QImage ZARNChiseledTextPopUpButton::downArrow_Idle_Image() const
{
    return d->downArrowIdle;
}

void ZARNChiseledTextPopUpButton::SetIdleImage(const QImage &image)
{
    d->imageIdle = image;
    d->image = image;
    update();
}

void ZARNChiseledTextPopUpButton::SetMouseOverImage(const QImage &image)
{
    d->imageMouseOver = image;
}

void ZARNChiseledTextPopUpButton::SetMouseDownImage(const QImage &image)
{
    d->imageMouseDown = image;
    d->alternateImage = image;
    update();
}

QImage ZARNChiseledTextPopUpButton::image() const
{
    return d->image;
}

QImage ZARNChiseledTextPopUpButton::alternateImage() const
{
    return d->alternateImage;
}

QImage ZARNChiseledTextPopUpButton::ConstructIdleImage() const
{
    const ZARNChiseledTextField &field = *d->titleField;
    return d->active ? appearance({}, {}, {}, field.activeColor(), field.shadowActiveColor())
                     : appearance({}, {}, {}, field.inactiveColor(), field.shadowInactiveColor());
}

QImage ZARNChiseledTextPopUpButton::ConstructMouseOverImage() const
{
    return appearance(d->leftCapMouseOver, d->middleMouseOver, d->rightCapMouseOver, highlightColor(),
                      shadow_HighlightColor());
}

QImage ZARNChiseledTextPopUpButton::ConstructMouseDownImage() const
{
    return appearance(d->leftCapMouseDown, d->middleMouseDown, d->rightCapMouseDown, highlightColor(),
                      shadow_HighlightColor());
}

QImage ZARNChiseledTextPopUpButton::appearance(const QImage &leftCap, const QImage &middle, const QImage &rightCap,
                                               const QColor &text, const QColor &shadowText) const
{
    const qreal ratio = devicePixelRatioF();
    QImage image(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const float width = float(this->width());
    const float height = float(this->height());
    if (!leftCap.isNull()) {
        // The capsule, each piece stretched to the full height. The middle piece fills what the
        // mouse-over caps leave, in both appearances; the artwork keeps the cap widths equal.
        const float overLeft = widthOf(d->leftCapMouseOver);
        const float overRight = widthOf(d->rightCapMouseOver);
        painter.drawImage(QRectF(0, 0, widthOf(leftCap), height), leftCap);
        painter.drawImage(QRectF(width - widthOf(rightCap), 0, widthOf(rightCap), height), rightCap);
        painter.drawImage(QRectF(overLeft, 0, width - (overLeft + overRight), height), middle);
    }

    // The title and its lighter or darker copy one pixel lower, then the arrow the same way.
    // Positions are worked out with y up, from the image's bottom.
    ZARNChiseledTextField &field = *d->titleField;
    field.showColors(text, shadowText);
    const ZARNSize title = ZARNSize::fromQSizeF(field.size());
    const ZARNPoint titleOrigin = BrixelPrivate::chiseledTitleOrigin({width, height}, title,
                                                                     widthOf(d->leftCapMouseDown));
    const ZARNRect titleFrame(titleOrigin.x, titleOrigin.y, title.width, title.height);
    field.render(&painter, titleFrame.flipped(height).toQRectF().topLeft().toPoint(), {}, QWidget::DrawChildren);

    const ZARNSize arrow = ZARNSize::fromQSizeF(d->arrow.deviceIndependentSize());
    const ZARNPoint arrowOrigin = BrixelPrivate::chiseledArrowOrigin(titleOrigin, title, arrow);
    const ZARNRect arrowFrame(arrowOrigin.x, arrowOrigin.y, arrow.width, arrow.height);
    painter.drawImage(arrowFrame.flipped(height).toQRectF().translated(0, 1).topLeft(), recoloured(d->arrow, shadowText));
    painter.drawImage(arrowFrame.flipped(height).toQRectF().topLeft(), recoloured(d->arrow, text));
    return image;
}

bool ZARNChiseledTextPopUpButton::isActive() const
{
    return d->active;
}

QSize ZARNChiseledTextPopUpButton::sizeHint() const
{
    return d->laidOutSize;
}

void ZARNChiseledTextPopUpButton::activate()
{
    d->active = true;
    SetIdleImage(ConstructIdleImage());
}

void ZARNChiseledTextPopUpButton::deactivate()
{
    d->active = false;
    SetIdleImage(ConstructIdleImage());
}

void ZARNChiseledTextPopUpButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), isDown() ? d->alternateImage : d->image);
}

void ZARNChiseledTextPopUpButton::enterEvent(QEnterEvent *event)
{
    ZARNPopUpButton::enterEvent(event);
    if (window()->isActiveWindow() && isEnabled() && !d->mouseIsDown) {
        d->image = d->imageMouseOver;
        update();
    }
}

void ZARNChiseledTextPopUpButton::leaveEvent(QEvent *event)
{
    ZARNPopUpButton::leaveEvent(event);
    if (d->active && !d->mouseIsDown) {
        d->image = d->imageIdle;
        update();
    }
}

void ZARNChiseledTextPopUpButton::mousePressEvent(QMouseEvent *event)
{
    d->mouseIsDown = true;
    const QPointer<ZARNChiseledTextPopUpButton> alive(this);
    ZARNPopUpButton::mousePressEvent(event);
    if (alive)
        d->mouseIsDown = false;
}
