// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNAttributedString.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNNSColorAdditions.h>
#include <Brixel/ZARNSystemVersion.h>

#include "BrixelTest.h"

#include <QDataStream>
#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using brixeltest::colorsClose;
using brixeltest::renderOverWhite;

namespace {

void forgetDefaultColors()
{
    for (QColor *global : {&ZARNChiseledTextField_ActiveColor, &ZARNChiseledTextField_ShadowActiveColor,
                           &ZARNChiseledTextField_InactiveColor, &ZARNChiseledTextField_ShadowInactiveColor,
                           &ZARNChiseledTextField_DisabledColor})
        *global = QColor();
}

// A grey of the given value and alpha, as it shows over white.
QColor greyOverWhite(double grey, double alpha)
{
    const double shown = grey * alpha + (1.0 - alpha);
    return QColor::fromRgbF(shown, shown, shown);
}

QRect boundsOf(const QImage &image, const QColor &color)
{
    return brixeltest::pixelBounds(image, [&](const QColor &pixel) { return colorsClose(pixel, color, 3); });
}

} // namespace

class TestChiseledTextField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void init()
    {
        Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest);
        forgetDefaultColors();
    }

    void engraving_data()
    {
        QTest::addColumn<quint32>("version");
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<bool>("attributed");
        QTest::addColumn<bool>("active");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("shadow");
        QTest::addColumn<bool>("asProperty");

        const QColor newText = greyOverWhite(0.149, 1.0);
        const QColor newShadow = greyOverWhite(0.8078, 0.9);
        const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
        QTest::newRow("new look") << 0x1050u << left << false << true << newText << newShadow << false;
        QTest::newRow("classic look") << 0x104Fu << left << false << true << greyOverWhite(0.1, 1.0)
                                      << greyOverWhite(0.96, 0.9) << false;
        QTest::newRow("classic look, inactive") << 0x104Fu << left << false << false << greyOverWhite(0.3, 0.9)
                                                << greyOverWhite(0.96, 0.7) << false;
        QTest::newRow("inactive, translucent text") << 0x1050u << left << false << false << greyOverWhite(0.3, 0.9)
                                                    << greyOverWhite(0.8078, 0.7) << false;
        QTest::newRow("right aligned") << 0x1050u << Qt::Alignment(Qt::AlignRight | Qt::AlignBottom) << false << true
                                       << newText << newShadow << false;
        QTest::newRow("attributed") << 0x1050u << Qt::Alignment(Qt::AlignHCenter | Qt::AlignTop) << true << true
                                    << newText << newShadow << false;
        QTest::newRow("font set as a property, as forms do") << 0x1050u << left << false << true << newText
                                                             << newShadow << true;
    }

    void engraving()
    {
        QFETCH(quint32, version);
        QFETCH(Qt::Alignment, alignment);
        QFETCH(bool, attributed);
        QFETCH(bool, active);
        QFETCH(QColor, text);
        QFETCH(QColor, shadow);
        QFETCH(bool, asProperty);
        Brixel::ZARNSetSystemVersion(version);

        ZARNChiseledTextField field;
        field.resize(160, 40);
        const QFont font(u"DejaVu Sans"_s, 18, QFont::Bold);
        if (asProperty)
            field.setProperty("font", font);
        else
            field.setFont(font);
        field.setAlignment(alignment);
        field.setMargin(2);
        field.setIndent(6);
        if (attributed)
            field.setAttributedStringValue(ZARNAttributedString(u"Library"_s, {{ZARNFontAttributeName, font}}));
        else
            field.setText(u"Library"_s);
        if (!active)
            field.deactivate();
        const QImage image = renderOverWhite(field);

        // Font smoothing is off: every pixel is the background or one of the two colours.
        const QRect smoothed = brixeltest::pixelBounds(image, [&](const QColor &pixel) {
            return !colorsClose(pixel, Qt::white, 3) && !colorsClose(pixel, text, 3) && !colorsClose(pixel, shadow, 3);
        });
        QVERIFY2(smoothed.isNull(), qPrintable(QDebug::toString(smoothed)));
        const QRect own = boundsOf(image, text);
        const QRect engraving = boundsOf(image, shadow);
        QVERIFY(!own.isNull());
        QCOMPARE(engraving.left(), own.left());
        QCOMPARE(engraving.right(), own.right());
        QCOMPARE(engraving.bottom(), own.bottom() + 1);
        if (attributed)
            return;

        // The text itself sits where a label with the same margin, indent and alignment puts it
        // (to a pixel or so: the label's glyphs are smoothed).
        QLabel label(u"Library"_s);
        label.setFont(font);
        label.setAlignment(alignment);
        label.setMargin(2);
        label.setIndent(6);
        label.resize(field.size());
        const QImage plain = renderOverWhite(label);
        const QRect placed = brixeltest::pixelBounds(plain, [](const QColor &pixel) { return pixel.lightness() < 128; });
        QVERIFY2((placed.center() - own.center()).manhattanLength() <= 2, qPrintable(QDebug::toString(placed)));
    }

    void states_data()
    {
        QTest::addColumn<std::function<void(ZARNChiseledTextField &)>>("operation");
        QTest::addColumn<bool>("active");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("shadow");

        using Operation = std::function<void(ZARNChiseledTextField &)>;
        const QColor active = QColor::fromRgbF(0.149f, 0.149f, 0.149f);
        const QColor shadowActive = QColor::fromRgbF(0.8078f, 0.8078f, 0.8078f, 0.9f);
        const QColor inactive = QColor::fromRgbF(0.3f, 0.3f, 0.3f, 0.9f);
        const QColor shadowInactive = QColor::fromRgbF(0.8078f, 0.8078f, 0.8078f, 0.7f);
        const QColor disabled = QColor::fromRgbF(0.3f, 0.3f, 0.3f);
        QTest::newRow("new") << Operation([](auto &) {}) << true << active << shadowActive;
        QTest::newRow("deactivated") << Operation([](auto &f) { f.deactivate(); }) << false << inactive
                                     << shadowInactive;
        QTest::newRow("disabled") << Operation([](auto &f) { f.setEnabled(false); }) << true << disabled
                                  << shadowInactive;
        QTest::newRow("deactivated while disabled keeps the disabled look")
            << Operation([](auto &f) { f.setEnabled(false); f.deactivate(); }) << false << disabled << shadowInactive;
        QTest::newRow("enabled again in an inactive window looks active")
            << Operation([](auto &f) { f.deactivate(); f.setEnabled(false); f.setEnabled(true); }) << false << active
            << shadowActive;
        QTest::newRow("enabling an enabled field looks active")
            << Operation([](auto &f) { f.deactivate(); f.setEnabled(true); }) << false << active << shadowActive;
        QTest::newRow("a new colour waits for activity")
            << Operation([](auto &f) { f.setActiveColor(Qt::red); }) << true << active << shadowActive;
        QTest::newRow("and shows at the next activate")
            << Operation([](auto &f) { f.setActiveColor(Qt::red); f.activate(); }) << true << QColor(Qt::red)
            << shadowActive;
        QTest::newRow("a disabled parent disables the field")
            << Operation([](auto &f) { f.parentWidget()->setEnabled(false); }) << true << disabled << shadowInactive;
    }

    void states()
    {
        QFETCH(std::function<void(ZARNChiseledTextField &)>, operation);
        QFETCH(bool, active);
        QFETCH(QColor, text);
        QFETCH(QColor, shadow);
        QWidget parent;
        auto *field = new ZARNChiseledTextField(&parent);
        field->setText(u"Library"_s);
        field->resize(120, 30);
        operation(*field);
        QCOMPARE(field->isActive(), active);
        QCOMPARE(field->textColor(), text);
        QCOMPARE(field->shadowTextColor(), shadow);

        // A disabled field draws no engraving at all.
        const QImage image = renderOverWhite(*field);
        const QColor shown = greyOverWhite(shadow.redF(), shadow.alphaF());
        QCOMPARE(boundsOf(image, shown).isNull(), !field->isEnabled());
    }

    void colorSetters()
    {
        ZARNChiseledTextField field;
        field.setDisabledColor(Qt::blue);
        field.setInactiveColor(Qt::green);
        field.setActiveColor(Qt::red);
        QCOMPARE(field.disabledColor(), ZARNChiseledTextField::defaultDisabledColor());
        field.resetInactiveColor();   // sets an invalid colour, which stands for the default
        QCOMPARE(field.inactiveColor(), ZARNChiseledTextField::defaultInactiveColor());

        // A default the application sets before first use is every field's default.
        forgetDefaultColors();
        ZARNChiseledTextField_ActiveColor = Qt::darkRed;
        const ZARNChiseledTextField preset;
        QCOMPARE(preset.textColor(), QColor(Qt::darkRed));

        // A field without the engraving has its colours but has applied none of them yet.
        const ZARNChiseledTextField bare(ZARNChiseledTextField::Construction::Bare);
        QVERIFY(!bare.shadowField());
        QCOMPARE(bare.textColor(), bare.palette().color(QPalette::WindowText));
        QVERIFY(bare.textColor() != QColor(Qt::darkRed));
    }

    void activityFollowsWindowOrApplication_data()
    {
        QTest::addColumn<std::function<QWidget *()>>("makeWindow");
        QTest::addColumn<quint32>("version");
        QTest::addColumn<bool>("followsWindow");
        QTest::addColumn<bool>("followsApplication");

        using Maker = std::function<QWidget *()>;
        const Maker widget = [] { return new QWidget; };
        QTest::newRow("plain widget window") << widget << 0x1020u << true << false;
        QTest::newRow("plain dialog") << Maker([] { return new QDialog; }) << 0x1020u << true << false;
        QTest::newRow("main window") << Maker([] { return new QMainWindow; }) << 0x1020u << false << true;
        QTest::newRow("no window") << Maker([] { return nullptr; }) << 0x1020u << false << true;
        QTest::newRow("old system: never") << widget << 0x101Fu << false << false;
    }

    void activityFollowsWindowOrApplication()
    {
        QFETCH(std::function<QWidget *()>, makeWindow);
        QFETCH(quint32, version);
        QFETCH(bool, followsWindow);
        QFETCH(bool, followsApplication);
        Brixel::ZARNSetSystemVersion(version);

        const std::unique_ptr<QWidget> window(makeWindow());
        auto *field = new ZARNChiseledTextField(window.get());
        const std::unique_ptr<ZARNChiseledTextField> parentless(window ? nullptr : field);

        QEvent deactivation(QEvent::WindowDeactivate);
        if (window)
            QCoreApplication::sendEvent(window.get(), &deactivation);
        QCOMPARE(!field->isActive(), followsWindow);
        QEvent activation(QEvent::WindowActivate);
        if (window)
            QCoreApplication::sendEvent(window.get(), &activation);
        QVERIFY(field->isActive());

        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
        QCOMPARE(!field->isActive(), followsApplication);
        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(field->isActive());

        if (!followsWindow)
            return;
        // A field moved into the window later follows it as well.
        auto *moved = new ZARNChiseledTextField;
        moved->setParent(window.get());
        QCoreApplication::sendEvent(window.get(), &deactivation);
        QVERIFY(!moved->isActive());
        // So does one whose container is moved into the window from one it did not follow.
        QMainWindow elsewhere;
        auto *container = new QWidget(&elsewhere);
        auto *nested = new ZARNChiseledTextField(container);
        container->setParent(window.get());

        // A window-modal dialog over the window deactivates the field too.
        QDialog sheet(window.get());
        sheet.setWindowModality(Qt::WindowModal);
        window->show();
        sheet.show();
        QTRY_VERIFY(!field->isActive());
        QCOMPARE(field->textColor(), field->inactiveColor());
        QVERIFY(!nested->isActive());
    }

    void attachmentDrawnOnce()
    {
        QImage picture = brixeltest::filledImage({10, 8}, Qt::red);
        ZARNAttributedString value(u"\uFFFCAB"_s, {{ZARNFontAttributeName, QFont(u"DejaVu Sans"_s, 18)}});
        value.addAttribute(ZARNAttachmentAttributeName, picture, {0, 1});

        ZARNChiseledTextField field;
        field.resize(120, 100);
        field.setAttributedStringValue(value);
        QCOMPARE(field.text(), value.string());
        QCOMPARE(field.attributedStringValue().attribute(ZARNForegroundColorAttributeName, 1),
                 QVariant(field.textColor()));
        const QImage image = renderOverWhite(field);

        const QRect shownPicture = boundsOf(image, Qt::red);
        QCOMPARE(shownPicture.size(), QSize(10, 8));
        // Attributed text is centred on the field's height as plain text is.
        QVERIFY(qAbs(shownPicture.center().y() - 50) <= 6);
        // The copy keeps the attachment's room, so the letters after it line up.
        const QRect own = boundsOf(image, greyOverWhite(0.149, 1.0));
        const QRect engraving = boundsOf(image, greyOverWhite(0.8078, 0.9));
        QVERIFY(own.left() >= 10);
        QCOMPARE(engraving.left(), own.left());
        QCOMPARE(engraving.bottom(), own.bottom() + 1);
        // Plain text set afterwards replaces the attributed value, attachment and all.
        field.setText(u"AB"_s);
        QVERIFY(boundsOf(renderOverWhite(field), Qt::red).isNull());
    }

    void archive()
    {
        ZARNChiseledTextField written;
        written.setText(u"Name:"_s);
        written.setAlignment(Qt::AlignRight);
        written.setInactiveColor(Qt::green);
        written.setShadowActiveColor(Qt::blue);
        written.setEnabled(false);
        written.setDisabledColor(Qt::red);
        QByteArray bytes;
        {
            QDataStream out(&bytes, QIODevice::WriteOnly);
            out << written;
        }

        // The format number (1) and the field's own state come first, then its five colours, as
        // text and in this order.
        QByteArray state;
        QDataStream(&state, QIODevice::WriteOnly) << quint32(1) << u"Name:"_s << int(Qt::AlignRight) << written.font()
                                                  << false;
        QVERIFY(bytes.startsWith(state));
        QDataStream colors(bytes.mid(state.size()));
        QStringList written5(5);
        for (QString &color : written5)
            colors >> color;
        const auto string = [](const QColor &color) { return Brixel::asCalibratedRGBString(color); };
        QCOMPARE(written5, (QStringList{string(written.activeColor()), string(Qt::green), string(Qt::blue),
                                        string(written.shadowInactiveColor()), string(Qt::red)}));

        // Reading gives back the text and alignment, but the default colours, enabled and active.
        ZARNChiseledTextField read;
        read.setInactiveColor(Qt::green);
        read.setEnabled(false);
        read.deactivate();
        QDataStream in(bytes);
        in >> read;
        QCOMPARE(in.status(), QDataStream::Ok);
        QCOMPARE(read.text(), u"Name:"_s);
        QCOMPARE(read.shadowField()->text(), u"Name:"_s);
        QCOMPARE(read.alignment(), Qt::AlignRight);
        QCOMPARE(read.inactiveColor(), ZARNChiseledTextField::defaultInactiveColor());
        QVERIFY(read.isEnabled() && read.isActive());
        QCOMPARE(read.textColor(), ZARNChiseledTextField::defaultActiveColor());

        // A stream of another kind leaves the field alone.
        QDataStream wrong(QByteArray("\0\0\0\x07", 4));
        wrong >> read;
        QCOMPARE(wrong.status(), QDataStream::ReadCorruptData);
        QCOMPARE(read.text(), u"Name:"_s);
    }
};

QTEST_MAIN(TestChiseledTextField)
#include "tst_chiseledtextfield.moc"
