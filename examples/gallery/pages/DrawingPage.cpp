// SPDX-License-Identifier: LGPL-2.1-or-later
// The Drawing page: rounded paths by rounding style, a gradient band, a nine-slice frame
// stretched live, badges and recolouring.
#include "../GalleryPages.h"

#include <Brixel/NSBezierPath_Category.h>
#include <Brixel/ZARNLabelTruncation.h>
#include <Brixel/ZARNImageComposition.h>
#include <Brixel/ZARNShading.h>
#include <Brixel/ZARNTextTruncation.h>

#include <QColorDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QTextLayout>
#include <QVBoxLayout>

namespace {

// Every combination of the four edge bits, each shape labelled with its style value.
class RoundingStylesView : public QWidget
{
public:
    RoundingStylesView() { setMinimumSize(360, 200); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QSizeF cell(width() / 8.0, height() / 2.0);
        for (unsigned int index = 0; index < 16; ++index) {
            const unsigned int style = index * 2;
            const QPointF corner((index % 8) * cell.width(), (index / 8) * cell.height());
            const ZARNRect shape(6, 6, float(cell.width() - 12), float(cell.height() - 30));
            painter.save();
            // Paths are built y-up; the cell's bottom edge is its origin.
            painter.translate(corner.x(), corner.y() + cell.height() - 18);
            painter.scale(1, -1);
            painter.translate(0, -6);
            const QPainterPath path = Brixel::bezierPathWithRoundedRect(shape, 12, style);
            painter.fillPath(path, QColor(70, 130, 220));
            painter.strokePath(path, QPen(QColor(20, 60, 140), Brixel::bezierPathDefaultLineWidth()));
            painter.restore();
            painter.drawText(QRectF(corner.x(), corner.y() + cell.height() - 18, cell.width(), 16), Qt::AlignCenter,
                             QString::number(style));
        }
    }
};

// A ZARNShading band from the bottom colour to the top colour, in the middle half only.
class ShadingBand : public QWidget
{
public:
    ShadingBand() { setMinimumSize(120, 160); }
    ZARNShading shading;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.translate(0, height());
        painter.scale(1, -1);
        shading.setStartPoint({width() / 2.0, height() * 0.25});
        shading.setEndPoint({width() / 2.0, height() * 0.75});
        shading.drawShading(painter);
    }
};

ZARNShading::Components components(const QColor &colour)
{
    return {float(colour.redF()), float(colour.greenF()), float(colour.blueF()), float(colour.alphaF())};
}

QWidget *shadingBox()
{
    auto *box = new QGroupBox(QObject::tr("Shading"));
    auto *band = new ShadingBand;
    band->shading.setStartColorComponents(components(QColor(40, 90, 200)));
    band->shading.setEndColorComponents(components(QColor(150, 200, 255)));
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(band, 1);
    const auto colourButton = [band](const QString &title, bool start) {
        auto *button = new QPushButton(title);
        QObject::connect(button, &QPushButton::clicked, band, [band, start] {
            const QColor colour = QColorDialog::getColor(Qt::white, band, QString(), QColorDialog::ShowAlphaChannel);
            if (!colour.isValid())
                return;
            if (start)
                band->shading.setStartColorComponents(components(colour));
            else
                band->shading.setEndColorComponents(components(colour));
            band->update();
        });
        return button;
    };
    layout->addWidget(colourButton(QObject::tr("Top colour..."), false));
    layout->addWidget(colourButton(QObject::tr("Bottom colour..."), true));
    return box;
}

// A transparent image of \a size with \a draw's antialiased painting on it.
template<typename Draw>
QImage artwork(QSize size, Draw &&draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    draw(painter);
    return image;
}

// A 30 x 30 frame: a dark border, lighter inner ring and a pale centre, so every one of the
// nine pieces shows where it lands.
QImage frameArtwork()
{
    return artwork({30, 30}, [](QPainter &painter) {
        painter.setBrush(QColor(60, 60, 70));
        painter.drawRoundedRect(QRectF(0, 0, 30, 30), 8, 8);
        painter.setBrush(QColor(230, 180, 60));
        painter.drawRoundedRect(QRectF(3, 3, 24, 24), 6, 6);
        painter.setBrush(QColor(250, 245, 230));
        painter.drawRect(QRectF(10, 10, 10, 10));
    });
}

class StretchedFrame : public QWidget
{
public:
    StretchedFrame() { setMinimumSize(200, 120); }
    QSize target{180, 80};

protected:
    void paintEvent(QPaintEvent *) override
    {
        QImage background(target, QImage::Format_ARGB32_Premultiplied);
        background.fill(QColor(200, 220, 240));
        QPainter(this).drawImage(0, 0, Brixel::ZARNStretchImageOverImage(frameArtwork(), background));
    }
};

QWidget *nineSliceBox()
{
    auto *box = new QGroupBox(QObject::tr("Nine-slice stretch of a 30 x 30 frame"));
    auto *frame = new StretchedFrame;
    auto *width = new QSlider(Qt::Horizontal);
    width->setRange(10, 400);
    width->setValue(frame->target.width());
    auto *height = new QSlider(Qt::Horizontal);
    height->setRange(10, 160);
    height->setValue(frame->target.height());
    const auto resize = [frame, width, height] {
        frame->target = QSize(width->value(), height->value());
        frame->update();
    };
    QObject::connect(width, &QSlider::valueChanged, frame, resize);
    QObject::connect(height, &QSlider::valueChanged, frame, resize);
    auto *layout = new QGridLayout(box);
    layout->addWidget(frame, 0, 0, 1, 2);
    layout->addWidget(new QLabel(QObject::tr("Width")), 1, 0);
    layout->addWidget(width, 1, 1);
    layout->addWidget(new QLabel(QObject::tr("Height")), 2, 0);
    layout->addWidget(height, 2, 1);
    return box;
}

QImage iconArtwork()
{
    return artwork({36, 36}, [](QPainter &painter) {
        painter.setBrush(QColor(90, 160, 90));
        painter.setPen(QPen(QColor(30, 80, 30), 2));
        painter.drawEllipse(QRectF(3, 3, 30, 30));
    });
}

QImage badgeArtwork()
{
    return artwork({12, 12}, [](QPainter &painter) {
        painter.setBrush(QColor(220, 40, 40));
        painter.drawEllipse(QRectF(0, 0, 12, 12));
    });
}

QLabel *imageLabel(const QImage &image, const QString &tip)
{
    auto *label = new QLabel;
    label->setPixmap(QPixmap::fromImage(image));
    label->setToolTip(tip);
    return label;
}

QWidget *badgesBox()
{
    auto *box = new QGroupBox(QObject::tr("Badges at the nine alignments, and recolouring"));
    auto *layout = new QGridLayout(box);
    const QImage icon = iconArtwork();
    for (int alignment = 0; alignment < 9; ++alignment)
        layout->addWidget(imageLabel(Brixel::badgedImage(icon, badgeArtwork(), alignment), QString::number(alignment)),
                          alignment / 3, alignment % 3);
    const QColor colours[] = {QColor(200, 60, 60), QColor(60, 60, 200), QColor(0, 0, 0, 120)};
    for (int index = 0; index < 3; ++index)
        layout->addWidget(imageLabel(Brixel::ReplaceColorsInImage(icon, colours[index]), colours[index].name()), index, 4);
    return box;
}

ZARNAttributedString attributedSample(const QFont &font)
{
    QFont bold = font;
    bold.setBold(true);
    ZARNAttributedString text(QObject::tr("Invoice 2026-114 from Northwind Traders is overdue"),
                              {{ZARNFontAttributeName, font}});
    text.setAttributes({{ZARNFontAttributeName, bold}, {ZARNForegroundColorAttributeName, QColor(180, 30, 30)}},
                       {text.length() - 7, 7});
    return text;
}

// Paints an attributed string with its fonts and colours.
class AttributedLabel : public QWidget
{
public:
    AttributedLabel() { setMinimumHeight(fontMetrics().height() + 6); }
    ZARNAttributedString text;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QTextLayout layout(text.string(), font());
        layout.setFormats(text.formatRanges());
        layout.beginLayout();
        layout.createLine().setLineWidth(1e6);
        layout.endLayout();
        layout.draw(&painter, {0, 3});
    }
};

QWidget *truncationBox()
{
    auto *box = new QGroupBox(QObject::tr("Truncation to a width"));
    auto *width = new QSlider(Qt::Horizontal);
    width->setRange(10, 420);
    width->setValue(230);
    auto *plain = new QLabel;
    auto *attributed = new AttributedLabel;
    auto *height = new QLabel;
    const QString sample = QObject::tr("The quarterly report for every office and every region, with totals");
    const auto update = [=] {
        plain->setText(sample);
        try {
            Brixel::TruncateStringInCell(plain, float(width->value()));
        } catch (const std::out_of_range &) {
            // Narrower than "..." plus its margin: the label keeps showing the dots.
        }
        attributed->text = Brixel::TruncateAttributedString(attributedSample(attributed->font()), float(width->value()));
        attributed->update();
        const float measured = Brixel::ZARNAttributedStringHeightForWidth(attributedSample(attributed->font()), float(width->value()));
        height->setText(QObject::tr("Wrapped to %1 points the text is %2 points high").arg(width->value()).arg(measured));
    };
    update();
    QObject::connect(width, &QSlider::valueChanged, box, update);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(width);
    layout->addWidget(plain);
    layout->addWidget(attributed);
    layout->addWidget(height);
    return box;
}

} // namespace

QWidget *createDrawingPage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    auto *styles = new QGroupBox(QObject::tr("Rounding styles (corner bits: left 2, right 4, top 8, bottom 16)"));
    (new QVBoxLayout(styles))->addWidget(new RoundingStylesView);
    layout->addWidget(styles, 0, 0, 1, 2);
    layout->addWidget(shadingBox(), 0, 2, 2, 1);
    layout->addWidget(nineSliceBox(), 1, 0);
    layout->addWidget(badgesBox(), 1, 1);
    layout->addWidget(truncationBox(), 2, 0, 1, 3);
    layout->setRowStretch(3, 1);
    return page;
}
