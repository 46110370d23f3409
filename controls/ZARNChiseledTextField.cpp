// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNChiseledTextField.h"

#include "ActivityFollower_p.h"
#include "AttributedTextDocument_p.h"

#include "../platform/ZARNAttributedString.h"
#include "../platform/ZARNSystemVersion.h"
#include "../values/NSMutableAttributedString_Category.h"
#include "../values/ZARNNSColorAdditions.h"

#include <QDataStream>
#include <QPainter>
#include <QStyle>
#include <QtMath>

#include <optional>

QColor ZARNChiseledTextField_ActiveColor;
QColor ZARNChiseledTextField_ShadowActiveColor;
QColor ZARNChiseledTextField_InactiveColor;
QColor ZARNChiseledTextField_ShadowInactiveColor;
QColor ZARNChiseledTextField_DisabledColor;

namespace {

// The format number operator<<() writes first.
constexpr quint32 StreamFormat = 1;

struct Grey
{
    float grey;
    float alpha;
};

// The shared default in \a global, chosen from the system version on first use.
QColor sharedDefault(QColor &global, Grey newLook, Grey earlierLook)
{
    if (!global.isValid()) {
        const Grey chosen = Brixel::ZARNSystemVersion() > 0x104F ? newLook : earlierLook;
        global = QColor::fromRgbF(chosen.grey, chosen.grey, chosen.grey, chosen.alpha);
    }
    return global;
}

void setTextColor(QLabel &label, const QColor &color)
{
    QPalette palette = label.palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, QPalette::WindowText, color);
    label.setPalette(palette);
}

QColor textColorOf(const QLabel &label)
{
    return label.palette().color(QPalette::Active, QPalette::WindowText);
}

QFont unsmoothed(QFont font)
{
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

ZARNAttributedString recoloured(ZARNAttributedString text, const QColor &color)
{
    Brixel::replaceAttribute(text, ZARNForegroundColorAttributeName, color);
    return text;
}

// \a text with every image attachment replaced by a transparent image of the same size.
ZARNAttributedString withBlankAttachments(ZARNAttributedString text)
{
    for (qsizetype index = 0; index < text.length();) {
        ZARNRange run;
        const QImage image = text.attribute(ZARNAttachmentAttributeName, index, &run).value<QImage>();
        if (!image.isNull()) {
            QImage blank(image.size(), QImage::Format_ARGB32_Premultiplied);
            blank.setDevicePixelRatio(image.devicePixelRatio());
            blank.fill(Qt::transparent);
            text.addAttribute(ZARNAttachmentAttributeName, blank, run);
        }
        index = run.end();
    }
    return text;
}

// Where a label draws its text: its contents less its margin, and less a positive indent on
// the side its alignment names.
QRect textRect(const QLabel &label)
{
    const int margin = label.margin();
    QRect rect = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    const int indent = label.indent();
    if (indent <= 0)
        return rect;
    const Qt::Alignment alignment = label.alignment();
    if (alignment & Qt::AlignLeft)
        rect.setLeft(rect.left() + indent);
    else if (alignment & Qt::AlignRight)
        rect.setRight(rect.right() - indent);
    if (alignment & Qt::AlignTop)
        rect.setTop(rect.top() + indent);
    else if (alignment & Qt::AlignBottom)
        rect.setBottom(rect.bottom() - indent);
    return rect;
}

// Where a document of \a height starts in \a rect, placed vertically as \a alignment says.
QPointF documentOrigin(const QRect &rect, qreal height, Qt::Alignment alignment)
{
    qreal y = rect.top();
    if (alignment & Qt::AlignBottom)
        y = rect.bottom() + 1 - height;
    else if (alignment & Qt::AlignVCenter)
        y = rect.top() + (rect.height() - height) / 2;
    return {qreal(rect.left()), y};
}

// Draws \a label's text (or \a document) in \a rect, as \a field's style draws a label's text.
void drawLabelText(QPainter &painter, const QWidget &field, const QLabel &label, const QTextDocument *document,
                   const QRect &rect)
{
    if (document) {
        BrixelPrivate::drawTextDocument(painter, *document,
                                        documentOrigin(rect, document->size().height(), label.alignment()));
        return;
    }
    int flags = QStyle::visualAlignment(field.layoutDirection(), label.alignment());
    if (label.wordWrap())
        flags |= Qt::TextWordWrap;
    painter.setFont(label.font());
    field.style()->drawItemText(&painter, rect, flags, label.palette(), true, label.text(), QPalette::WindowText);
}

// A label's text drawn on a transparent image of the field's size. Text without font smoothing
// is written into its target with its colour's alpha rather than blended, so text in a
// translucent colour is drawn on a layer of its own, which is then blended into the field. The
// image is kept between drawings, so drawing a new text reuses its memory.
struct TextLayer
{
    QImage image;
    bool current = false;
};

} // namespace

class ZARNChiseledTextFieldPrivate
{
public:
    void initColors()
    {
        activeColor = ZARNChiseledTextField::defaultActiveColor();
        inactiveColor = ZARNChiseledTextField::defaultInactiveColor();
        shadowActiveColor = ZARNChiseledTextField::defaultShadowActiveColor();
        shadowInactiveColor = ZARNChiseledTextField::defaultShadowInactiveColor();
        disabledColor = ZARNChiseledTextField::defaultDisabledColor();
    }

    // Called whenever anything drawn changes: lays attributed text out again and drops the
    // drawn layers.
    void contentChanged(const ZARNChiseledTextField &field);
    const QImage &layer(TextLayer &layer, const ZARNChiseledTextField &field, const QLabel &label,
                        const QTextDocument *labelDocument) const;

    std::unique_ptr<QLabel> shadow;
    QColor activeColor;
    QColor shadowActiveColor;
    QColor inactiveColor;
    QColor shadowInactiveColor;
    QColor disabledColor;
    bool active = false;

    // Attributed text as given, and as each label draws it.
    std::optional<ZARNAttributedString> attributedValue;
    std::unique_ptr<QTextDocument> document;
    std::unique_ptr<QTextDocument> shadowDocument;
    mutable TextLayer ownLayer;
    mutable TextLayer shadowLayer;

    std::unique_ptr<BrixelPrivate::ActivityFollower> activity;
};

const QImage &ZARNChiseledTextFieldPrivate::layer(TextLayer &layer, const ZARNChiseledTextField &field,
                                                 const QLabel &label, const QTextDocument *labelDocument) const
{
    const qreal ratio = field.devicePixelRatioF();
    const QSize pixels = field.size() * ratio;
    if (layer.current && layer.image.size() == pixels && layer.image.devicePixelRatio() == ratio)
        return layer.image;
    if (layer.image.size() != pixels)
        layer.image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    layer.image.setDevicePixelRatio(ratio);
    layer.image.fill(Qt::transparent);
    QPainter painter(&layer.image);
    drawLabelText(painter, field, label, labelDocument, textRect(field));
    layer.current = true;
    return layer.image;
}

void ZARNChiseledTextFieldPrivate::contentChanged(const ZARNChiseledTextField &field)
{
    ownLayer.current = false;
    shadowLayer.current = false;
    if (!attributedValue) {
        document.reset();
        shadowDocument.reset();
        return;
    }
    const qreal width = textRect(field).width();
    document = BrixelPrivate::attributedTextDocument(recoloured(*attributedValue, textColorOf(field)), field.font(),
                                                     field.alignment(), field.wordWrap());
    document->setTextWidth(width);
    if (!shadow) {
        shadowDocument.reset();
        return;
    }
    shadowDocument = BrixelPrivate::attributedTextDocument(
        recoloured(withBlankAttachments(*attributedValue), textColorOf(*shadow)), shadow->font(), shadow->alignment(),
        shadow->wordWrap());
    shadowDocument->setTextWidth(width);
}

ZARNChiseledTextField::ZARNChiseledTextField(QWidget *parent)
    : ZARNChiseledTextField(Construction::Engraved, parent)
{
}

ZARNChiseledTextField::ZARNChiseledTextField(Construction construction, QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<ZARNChiseledTextFieldPrivate>())
{
    d->initColors();
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setAutoFillBackground(false);
    setFrameShape(QFrame::NoFrame);
    QLabel::setFont(unsmoothed(font()));
    d->activity = std::make_unique<BrixelPrivate::ActivityFollower>(this, [this] { activate(); },
                                                                  [this] { deactivate(); });
    if (construction == Construction::Engraved) {
        applyEnabledState();
        initShadow();
        activate();
    }
    d->activity->follow();
}

ZARNChiseledTextField::~ZARNChiseledTextField() = default;

QColor ZARNChiseledTextField::defaultActiveColor()
{
    return sharedDefault(ZARNChiseledTextField_ActiveColor, {0.149f, 1.0f}, {0.1f, 1.0f});
}

QColor ZARNChiseledTextField::defaultShadowActiveColor()
{
    return sharedDefault(ZARNChiseledTextField_ShadowActiveColor, {0.8078f, 0.9f}, {0.96f, 0.9f});
}

QColor ZARNChiseledTextField::defaultInactiveColor()
{
    return sharedDefault(ZARNChiseledTextField_InactiveColor, {0.3f, 0.9f}, {0.3f, 0.9f});
}

QColor ZARNChiseledTextField::defaultShadowInactiveColor()
{
    return sharedDefault(ZARNChiseledTextField_ShadowInactiveColor, {0.8078f, 0.7f}, {0.96f, 0.7f});
}

QColor ZARNChiseledTextField::defaultDisabledColor()
{
    // Darker than the inactive grey on the new look, on purpose.
    return sharedDefault(ZARNChiseledTextField_DisabledColor, {0.3f, 1.0f}, {0.7f, 1.0f});
}

QColor ZARNChiseledTextField::activeColor() const
{
    return d->activeColor;
}

void ZARNChiseledTextField::setActiveColor(const QColor &color)
{
    d->activeColor = color.isValid() ? color : defaultActiveColor();
    d->disabledColor = defaultDisabledColor();
}

void ZARNChiseledTextField::resetActiveColor()
{
    setActiveColor(QColor());
}

QColor ZARNChiseledTextField::shadowActiveColor() const
{
    return d->shadowActiveColor;
}

void ZARNChiseledTextField::setShadowActiveColor(const QColor &color)
{
    d->shadowActiveColor = color.isValid() ? color : defaultShadowActiveColor();
}

void ZARNChiseledTextField::resetShadowActiveColor()
{
    setShadowActiveColor(QColor());
}

QColor ZARNChiseledTextField::inactiveColor() const
{
    return d->inactiveColor;
}

void ZARNChiseledTextField::setInactiveColor(const QColor &color)
{
    d->inactiveColor = color.isValid() ? color : defaultInactiveColor();
}

void ZARNChiseledTextField::resetInactiveColor()
{
    setInactiveColor(QColor());
}

QColor ZARNChiseledTextField::shadowInactiveColor() const
{
    return d->shadowInactiveColor;
}

void ZARNChiseledTextField::setShadowInactiveColor(const QColor &color)
{
    d->shadowInactiveColor = color.isValid() ? color : defaultShadowInactiveColor();
}

void ZARNChiseledTextField::resetShadowInactiveColor()
{
    setShadowInactiveColor(QColor());
}

QColor ZARNChiseledTextField::disabledColor() const
{
    return d->disabledColor;
}

void ZARNChiseledTextField::setDisabledColor(const QColor &color)
{
    d->disabledColor = color.isValid() ? color : defaultDisabledColor();
}

void ZARNChiseledTextField::resetDisabledColor()
{
    setDisabledColor(QColor());
}

QColor ZARNChiseledTextField::textColor() const
{
    return textColorOf(*this);
}

QColor ZARNChiseledTextField::shadowTextColor() const
{
    return d->shadow ? textColorOf(*d->shadow) : QColor();
}

bool ZARNChiseledTextField::isActive() const
{
    return d->active;
}

const QLabel *ZARNChiseledTextField::shadowField() const
{
    return d->shadow.get();
}

void ZARNChiseledTextField::initShadow()
{
    d->shadow = std::make_unique<QLabel>();
    QLabel &shadow = *d->shadow;
    shadow.resize(size());
    shadow.setTextFormat(Qt::PlainText);
    shadow.setText(text());
    shadow.setTextInteractionFlags(Qt::NoTextInteraction);
    shadow.setAutoFillBackground(false);
    setTextColor(shadow, textColor());
    shadow.setFrameShape(QFrame::NoFrame);
    shadow.setEnabled(true);
    shadow.setFont(font());
    shadow.setAlignment(alignment());
    shadow.setWordWrap(wordWrap());
    d->contentChanged(*this);
}

void ZARNChiseledTextField::setText(const QString &text)
{
    if (d->shadow)
        d->shadow->setText(text);
    d->attributedValue.reset();
    d->contentChanged(*this);
    QLabel::setText(text);
}

void ZARNChiseledTextField::setNum(int value)
{
    setText(QString::number(value));
}

void ZARNChiseledTextField::setNum(double value)
{
    setText(QString::number(value));
}

void ZARNChiseledTextField::setAlignment(Qt::Alignment alignment)
{
    if (d->shadow)
        d->shadow->setAlignment(alignment);
    QLabel::setAlignment(alignment);
    d->contentChanged(*this);
}

void ZARNChiseledTextField::setWordWrap(bool on)
{
    if (d->shadow)
        d->shadow->setWordWrap(on);
    QLabel::setWordWrap(on);
    d->contentChanged(*this);
}

void ZARNChiseledTextField::setAttributedStringValue(const ZARNAttributedString &value)
{
    if (d->shadow)
        d->shadow->setText(value.string());
    QLabel::setText(value.string());
    d->attributedValue = value;
    d->contentChanged(*this);
    updateGeometry();
    update();
}

ZARNAttributedString ZARNChiseledTextField::attributedStringValue() const
{
    return d->attributedValue ? recoloured(*d->attributedValue, textColor()) : ZARNAttributedString();
}

QSize ZARNChiseledTextField::sizeHint() const
{
    if (!d->document)
        return QLabel::sizeHint();
    const int margins = 2 * margin() + qMax(indent(), 0);
    return QSize(qCeil(d->document->idealWidth()) + margins, qCeil(d->document->size().height()) + margins);
}

QSize ZARNChiseledTextField::minimumSizeHint() const
{
    return d->document ? sizeHint() : QLabel::minimumSizeHint();
}

void ZARNChiseledTextField::activate()
{
    if (isEnabled())
        showColors(d->activeColor, d->shadowActiveColor);
    d->active = true;
}

void ZARNChiseledTextField::deactivate()
{
    if (isEnabled())
        showColors(d->inactiveColor, d->shadowInactiveColor);
    d->active = false;
}

void ZARNChiseledTextField::setEnabled(bool enabled)
{
    // QWidget sends no EnabledChange when the state stays, but the colours are applied anyway.
    QLabel::setEnabled(enabled);
    applyEnabledState();
}

void ZARNChiseledTextField::applyEnabledState()
{
    // Enabling shows the active colours whatever isActive() says, until activity next changes.
    if (isEnabled())
        showColors(d->activeColor, d->shadowActiveColor);
    else
        showColors(d->disabledColor, d->shadowInactiveColor);
}

void ZARNChiseledTextField::showColors(const QColor &text, const QColor &shadowText)
{
    setTextColor(*this, text);
    if (d->shadow)
        setTextColor(*d->shadow, shadowText);
    d->contentChanged(*this);
    update();
}

void ZARNChiseledTextField::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (d->shadow && isEnabled()) {
        // The light copy, one pixel below the field's own text.
        painter.drawImage(QPoint(0, 1), d->layer(d->shadowLayer, *this, *d->shadow, d->shadowDocument.get()));
    }
    // Opaque plain text needs no layer: it is drawn straight over the copy.
    if (!d->document && textColor().alpha() == 255)
        drawLabelText(painter, *this, *this, nullptr, textRect(*this));
    else
        painter.drawImage(QPoint(0, 0), d->layer(d->ownLayer, *this, *this, d->document.get()));
}

void ZARNChiseledTextField::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        applyEnabledState();
        break;
    case QEvent::FontChange:
        // A font from QWidget::setFont() or a form's font property comes smoothed; setting it
        // unsmoothed sends a second FontChange, which passes it on to the light copy.
        if (font().styleStrategy() != QFont::NoAntialias) {
            QLabel::setFont(unsmoothed(font()));
            break;
        }
        if (d->shadow)
            d->shadow->setFont(font());
        d->contentChanged(*this);
        break;
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        d->contentChanged(*this);
        break;
    default:
        break;
    }
}

void ZARNChiseledTextField::resizeEvent(QResizeEvent *event)
{
    if (d->shadow)
        d->shadow->resize(size());
    QLabel::resizeEvent(event);
    d->contentChanged(*this);
}

QDataStream &operator<<(QDataStream &stream, const ZARNChiseledTextField &field)
{
    stream << StreamFormat << field.text() << int(field.alignment()) << field.font() << field.isEnabled();
    for (const QColor &color : {field.d->activeColor, field.d->inactiveColor, field.d->shadowActiveColor,
                                field.d->shadowInactiveColor, field.d->disabledColor})
        stream << Brixel::asCalibratedRGBString(color);
    return stream;
}

QDataStream &operator>>(QDataStream &stream, ZARNChiseledTextField &field)
{
    quint32 format = 0;
    stream >> format;
    if (format != StreamFormat) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return stream;
    }
    QString text;
    int alignment = 0;
    QFont font;
    bool enabled = true;
    stream >> text >> alignment >> font >> enabled;
    // The five colours are read past: a field read back starts from the default colours.
    for (int i = 0; i < 5; ++i) {
        QString ignored;
        stream >> ignored;
    }
    if (stream.status() != QDataStream::Ok)
        return stream;
    field.setText(text);
    field.setAlignment(Qt::Alignment(alignment));
    field.setFont(font);
    field.d->initColors();
    field.setEnabled(true);
    field.applyEnabledState();
    field.initShadow();
    field.activate();
    return stream;
}
