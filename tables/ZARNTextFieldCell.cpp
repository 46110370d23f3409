// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTextFieldCell.h"
#include "CellHighlighting_p.h"

#include "../values/NSAttributedString_Category.h"
#include "../values/NSMutableAttributedString_Category.h"
#include "../drawing/ZARNAttributedStringDrawing.h"
#include "../platform/ZARNSystemVersion.h"
#include "../drawing/TruncationSearch_p.h"
#include "../drawing/ZARNTextTruncation.h"

#include <QBrush>
#include <QCache>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>

#include <cmath>

namespace {

constexpr Qt::Alignment verticalMask = Qt::AlignVertical_Mask;

// The truncation functions' rule, in their float arithmetic: text fits a cell when it measures
// at most the cell's width minus the margin, which is the padding at both sides.
bool fitsCell(qreal textWidth, qreal cellWidth)
{
    return !(double(float(textWidth)) > double(float(cellWidth)) - ZARNTruncationMargin);
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QColor foregroundColor(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<QColor>())
        return value.value<QColor>();
    return value.value<QBrush>().color();
}

// Draws \a layout in the cell \a bounds: inside the padding, placed vertically by \a alignment.
void placeText(QPainter &painter, const ZARNAttributedTextLayout &layout, const QRectF &bounds,
               Qt::Alignment alignment)
{
    const qreal height = layout.height();
    qreal y = bounds.top() + std::floor((bounds.height() - height) / 2);
    if (alignment & Qt::AlignTop)
        y = bounds.top();
    else if (alignment & Qt::AlignBottom)
        y = bounds.bottom() - height;
    const qreal padding = ZARNTextFieldCell::horizontalPadding;
    layout.draw(painter, QRectF(bounds.left() + padding, y, bounds.width() - 2 * padding, height));
}

// What a shortened text depends on: the text, its font and the width of the cell.
struct ShortenedTextKey
{
    QString text;
    QFont font;
    qreal width;

    friend bool operator==(const ShortenedTextKey &, const ShortenedTextKey &) = default;
    friend size_t qHash(const ShortenedTextKey &key, size_t seed = 0)
    {
        return qHashMulti(seed, key.text, key.font, key.width);
    }
};

} // namespace

class ZARNTextFieldCellPrivate
{
public:
    QString shownText(const ZARNAttributedString &text, const QVariantMap &attributes, qreal width);
    std::unique_ptr<ZARNAttributedTextLayout> cachedLayout(const ZARNTextFieldCell::TextStyle &style, qreal width);
    std::unique_ptr<ZARNAttributedTextLayout> shortenedLayout(const ZARNTextFieldCell::TextStyle &style, qreal width,
                                                              const ZARNAttributedTextLayout &whole, qreal dotsWidth);

    QColor textColor;
    QColor backgroundColor;
    std::optional<QFont> font;
    bool drawsBackground = false;

    // The width of "..." for the last font asked about: cells too narrow for it skip the
    // shortening altogether, and a column's cells usually share one font.
    std::optional<QFont> dotsFont;
    qreal dotsWidth = 0;

    // The texts shortened for recent paints: a table repaints the same cells at the same width
    // over and over, and finding the longest start that fits takes a dozen text layouts. The
    // number of texts is bounded (a few screens of cells); the oldest give way first.
    QCache<ShortenedTextKey, QString> shortenedTexts{2048};
};

// The text a cell shows for \a text in one style, \a attributes, at \a width: the text itself
// when it fits, else its shortened form.
QString ZARNTextFieldCellPrivate::shownText(const ZARNAttributedString &text, const QVariantMap &attributes,
                                            qreal width)
{
    ShortenedTextKey key{text.string(), attributes.value(ZARNFontAttributeName).value<QFont>(), width};
    if (const QString *shown = shortenedTexts.object(key))
        return *shown;
    const QString shown = Brixel::TruncateAttributedString(text, float(width)).string();
    shortenedTexts.insert(std::move(key), new QString(shown));
    return shown;
}

// The layout of what a plain \a style text showed at \a width when it was shortened before, or
// null: such a text is laid out once, as shown, and not whole first.
std::unique_ptr<ZARNAttributedTextLayout>
ZARNTextFieldCellPrivate::cachedLayout(const ZARNTextFieldCell::TextStyle &style, qreal width)
{
    const QString *shown = shortenedTexts.object(ShortenedTextKey{style.text, style.font, width});
    if (!shown)
        return nullptr;
    return std::make_unique<ZARNAttributedTextLayout>(*shown, style.font, style.color, style.alignment);
}

// The layout of a plain \a style text that does not fit \a width (laid out whole as \a whole),
// shortened, which the cache then keeps; \a dotsWidth is the width of "..." in its font. The
// layout is the one the shortening ended on.
std::unique_ptr<ZARNAttributedTextLayout>
ZARNTextFieldCellPrivate::shortenedLayout(const ZARNTextFieldCell::TextStyle &style, qreal width,
                                          const ZARNAttributedTextLayout &whole, qreal dotsWidth)
{
    ShortenedTextKey key{style.text, style.font, width};
    BrixelPrivate::ShortenedText shortened = BrixelPrivate::shortenedPlainText(
        style.text, style.font, style.color, style.alignment, float(width), whole, dotsWidth);
    shortenedTexts.insert(std::move(key), new QString(shortened.text));
    return std::move(shortened.layout);
}

ZARNTextFieldCell::ZARNTextFieldCell(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(std::make_unique<ZARNTextFieldCellPrivate>())
{
    // Fonts added or removed can change how a font measures.
    if (auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        connect(application, &QGuiApplication::fontDatabaseChanged, this, [this] { d->shortenedTexts.clear(); });
}

QColor ZARNTextFieldCell::textColor() const
{
    return d->textColor;
}

void ZARNTextFieldCell::setTextColor(const QColor &color)
{
    if (d->textColor == color)
        return;
    d->textColor = color;
    Q_EMIT sizeHintChanged(QModelIndex());
}

QColor ZARNTextFieldCell::backgroundColor() const
{
    return d->backgroundColor;
}

void ZARNTextFieldCell::setBackgroundColor(const QColor &color)
{
    if (d->backgroundColor == color)
        return;
    d->backgroundColor = color;
    Q_EMIT sizeHintChanged(QModelIndex());
}

bool ZARNTextFieldCell::drawsBackground() const
{
    return d->drawsBackground;
}

void ZARNTextFieldCell::setDrawsBackground(bool draws)
{
    if (d->drawsBackground == draws)
        return;
    d->drawsBackground = draws;
    Q_EMIT sizeHintChanged(QModelIndex());
}

QFont ZARNTextFieldCell::font() const
{
    return d->font.value_or(QFont());
}

void ZARNTextFieldCell::setFont(const QFont &font)
{
    if (d->font == font)
        return;
    d->font = font;
    d->shortenedTexts.clear();
    Q_EMIT sizeHintChanged(QModelIndex());
}

ZARNTextFieldCell::~ZARNTextFieldCell() = default;

ZARNTextFieldCell::TextStyle ZARNTextFieldCell::textStyle(const QStyleOptionViewItem &option,
                                                          const QModelIndex &index) const
{
    // One request for all four roles: the cell asks for them on every paint.
    std::array<QModelRoleData, 4> roles{QModelRoleData(Qt::DisplayRole), QModelRoleData(Qt::FontRole),
                                        QModelRoleData(Qt::ForegroundRole), QModelRoleData(Qt::TextAlignmentRole)};
    index.multiData(roles);
    const QVariant &display = roles[0].data();
    const QVariant &font = roles[1].data();
    const QVariant &foreground = roles[2].data();
    const QVariant &alignment = roles[3].data();

    TextStyle style;
    if (display.isValid())
        style.text = displayText(display, option.locale);
    style.font = d->font.value_or(option.font);
    if (font.isValid())
        style.font = font.value<QFont>().resolve(style.font);
    if (foreground.isValid())
        style.color = foregroundColor(foreground);
    else if (d->textColor.isValid())
        style.color = d->textColor;
    else
        style.color = option.palette.color(colorGroup(option), QPalette::Text);
    style.alignment = alignment.isValid() ? Qt::Alignment(alignment.toInt()) : Qt::AlignLeft | Qt::AlignVCenter;
    return style;
}

ZARNAttributedString ZARNTextFieldCell::attributedString(const TextStyle &style) const
{
    return ZARNAttributedString(style.text,
                                {{ZARNFontAttributeName, style.font},
                                 {ZARNForegroundColorAttributeName, style.color},
                                 {ZARNParagraphAlignmentAttributeName,
                                  QVariant::fromValue(style.alignment & Qt::AlignHorizontal_Mask)}});
}

ZARNAttributedString ZARNTextFieldCell::attributedStringValue(const QStyleOptionViewItem &option,
                                                              const QModelIndex &index) const
{
    return attributedString(textStyle(option, index));
}

ZARNRect ZARNTextFieldCell::titleRectForBounds(const ZARNRect &bounds) const
{
    return bounds;
}

QSizeF ZARNTextFieldCell::textCellSize(const QString &text, const QFont &font)
{
    const ZARNAttributedTextLayout layout(text, font, Qt::black, Qt::AlignLeft);
    return {layout.width() + 2 * horizontalPadding, layout.height()};
}

qreal ZARNTextFieldCell::dotsWidth(const QFont &font) const
{
    if (d->dotsFont != font) {
        d->dotsWidth = ZARNAttributedTextLayout(QStringLiteral("..."), font, Qt::black, Qt::AlignLeft).width();
        d->dotsFont = font;
    }
    return d->dotsWidth;
}

void ZARNTextFieldCell::drawAttributedText(QPainter &painter, const ZARNAttributedString &text, const QRectF &bounds,
                                           Qt::Alignment alignment) const
{
    // The cell's text has one style throughout, so the shortened text takes it whole.
    const QVariantMap attributes = text.attributesAtIndex(0);
    const ZARNAttributedString shown(d->shownText(text, attributes, bounds.width()), attributes);
    const ZARNAttributedTextLayout layout(shown, 0, false);
    // Only "..." is left and even that is too wide: the cell shows nothing.
    if (fitsCell(layout.width(), bounds.width()))
        placeText(painter, layout, bounds, alignment);
}

void ZARNTextFieldCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (d->drawsBackground) {
        painter->fillRect(option.rect, d->backgroundColor.isValid() ? QBrush(d->backgroundColor)
                                                                   : option.palette.brush(colorGroup(option), QPalette::Base));
    }
    const TextStyle style = textStyle(option, index);
    if (style.text.isEmpty())
        return;
    const QRectF bounds = option.rect;
    const Qt::Alignment vertical = style.alignment & verticalMask;
    if (option.state & QStyle::State_Selected) {
        drawAttributedText(*painter, BrixelPrivate::highlightedCellText(attributedString(style), style.font, Brixel::ZARNSystemVersion()),
                           bounds, vertical);
        return;
    }
    // A text shortened for an earlier paint is drawn as it was shown then. Most other cells
    // fit: lay the text out once, plainly, and draw that same layout. A shortened text is in
    // the same one style, so it is laid out plainly too.
    if (const auto shown = d->cachedLayout(style, bounds.width())) {
        if (fitsCell(shown->width(), bounds.width()))
            placeText(*painter, *shown, bounds, vertical);
        return;
    }
    const ZARNAttributedTextLayout layout(style.text, style.font, style.color, style.alignment);
    if (fitsCell(layout.width(), bounds.width())) {
        placeText(*painter, layout, bounds, vertical);
    } else if (const qreal dots = dotsWidth(style.font); fitsCell(dots, bounds.width())) {
        const auto shortened = d->shortenedLayout(style, bounds.width(), layout, dots);
        if (shortened && fitsCell(shortened->width(), bounds.width()))
            placeText(*painter, *shortened, bounds, vertical);
    }
}

QSize ZARNTextFieldCell::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (const QVariant hint = index.data(Qt::SizeHintRole); hint.isValid())
        return hint.toSize();
    const TextStyle style = textStyle(option, index);
    const QSizeF size = textCellSize(style.text, style.font);
    return {int(std::ceil(size.width())), int(std::ceil(size.height()))};
}

void ZARNTextFieldCell::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features &= ~QStyleOptionViewItem::HasDecoration;
    option->icon = QIcon();
    option->decorationSize = QSize();
}

void ZARNTextFieldCell::copyTextSettingsTo(ZARNTextFieldCell &cell) const
{
    cell.d->textColor = d->textColor;
    cell.d->backgroundColor = d->backgroundColor;
    cell.d->font = d->font;
    cell.d->drawsBackground = d->drawsBackground;
}

ZARNTextFieldCell *ZARNTextFieldCell::copy(QObject *parent) const
{
    auto *cell = new ZARNTextFieldCell(parent);
    copyTextSettingsTo(*cell);
    return cell;
}

ZARNShadow BrixelPrivate::blackShadowWithAlpha(float alpha)
{
    return ZARNShadow{{0.0f, -1.0f}, 1.0f, QColor::fromRgbF(0.0f, 0.0f, 0.0f, alpha)};
}

const ZARNShadow &BrixelPrivate::standardCellShadow()
{
    static const ZARNShadow shadow = blackShadowWithAlpha(0.8f);
    return shadow;
}

ZARNAttributedString BrixelPrivate::highlightedCellText(const ZARNAttributedString &text, const QFont &cellFont,
                                                 quint32 systemVersion)
{
    if (text.isEmpty())
        return text;
    ZARNAttributedString copy = text;
    const ZARNRange whole{0, copy.length()};
    const QVariant shadow = QVariant::fromValue(BrixelPrivate::standardCellShadow());
    const QColor white(Qt::white);
    if (systemVersion < 0x1040) {
        Brixel::replaceAttribute(copy, ZARNForegroundColorAttributeName, white);
        copy.addAttribute(ZARNShadowAttributeName, shadow, whole);
        return copy;
    }
    copy.addAttribute(ZARNShadowAttributeName, shadow, whole);
    const QVariant font = Brixel::attribute(copy, ZARNFontAttributeName);
    QFont bold = font.isValid() ? font.value<QFont>() : cellFont;
    bold.setBold(true);
    copy.addAttribute(ZARNFontAttributeName, bold, whole);
    Brixel::replaceAttribute(copy, ZARNForegroundColorAttributeName, white);
    return copy;
}
