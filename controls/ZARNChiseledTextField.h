// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColor>
#include <QLabel>

#include <memory>

class QDataStream;
class ZARNAttributedString;

/**
 * \name Default colours of every ZARNChiseledTextField
 * Invalid until a field first needs them; then each is set from the system version code at
 * that moment and kept for the life of the process. An application may set one before any
 * field is made to change the default of all fields; setting one back to an invalid QColor
 * makes the next use choose it again from the system version.
 * @{
 */
extern BRIXEL_EXPORT QColor ZARNChiseledTextField_ActiveColor;
extern BRIXEL_EXPORT QColor ZARNChiseledTextField_ShadowActiveColor;
extern BRIXEL_EXPORT QColor ZARNChiseledTextField_InactiveColor;
extern BRIXEL_EXPORT QColor ZARNChiseledTextField_ShadowInactiveColor;
extern BRIXEL_EXPORT QColor ZARNChiseledTextField_DisabledColor;
/** @} */

/**
 * A label whose text looks engraved into the window: before the label draws its own text, a
 * hidden copy of it in a light colour is drawn one pixel lower. Both are drawn without font
 * smoothing.
 *
 * The colours follow activity. A field in a plain top-level QWidget or QDialog follows that
 * window: active while it is the active window, inactive when another window becomes active or
 * a window-modal dialog (a sheet) blocks it. A field in any other kind of window (a QMainWindow
 * or one of the library's windows), or in no window, follows the application's state instead.
 * With a system version code of 0x101F or below a field never changes colour after it is made.
 *
 * \code
 * auto *caption = new ZARNChiseledTextField(sidebar);
 * caption->setText(tr("LIBRARY"));
 * caption->setFont(QFont(caption->font().family(), 11, QFont::Bold));
 * \endcode
 *
 * | state              | own text          | light copy            |
 * |--------------------|-------------------|-----------------------|
 * | active, enabled    | activeColor()     | shadowActiveColor()   |
 * | inactive, enabled  | inactiveColor()   | shadowInactiveColor() |
 * | disabled           | disabledColor()   | not drawn             |
 *
 * The colour setters do not recolour the text at once: the new colours show at the next
 * activate(), deactivate() or change of the enabled state. Enabling a field shows the active
 * colours even in an inactive window, until the window's or application's activity next
 * changes.
 *
 * The field is not editable or selectable and draws no background or frame. It draws plain or
 * attributed text only; a pixmap, movie or rich text given through QLabel is not drawn. Text, numbers,
 * alignment, font and size set through this class reach the light copy too; it has no origin
 * of its own, since it is always drawn in the field's own coordinates. Call these setters on
 * the ZARNChiseledTextField itself or through its properties: QLabel's own setters are not
 * virtual, so calling them through a QLabel pointer leaves the copy behind (font changes are
 * the exception: they reach the copy however they are made).
 */
class BRIXEL_EXPORT ZARNChiseledTextField : public QLabel
{
    Q_OBJECT
    // The text, alignment and wrapping reach the light copy also when set as properties (as
    // forms do).
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(bool wordWrap READ wordWrap WRITE setWordWrap)
    Q_PROPERTY(QColor activeColor READ activeColor WRITE setActiveColor RESET resetActiveColor)
    Q_PROPERTY(QColor shadowActiveColor READ shadowActiveColor WRITE setShadowActiveColor RESET resetShadowActiveColor)
    Q_PROPERTY(QColor inactiveColor READ inactiveColor WRITE setInactiveColor RESET resetInactiveColor)
    Q_PROPERTY(QColor shadowInactiveColor READ shadowInactiveColor WRITE setShadowInactiveColor RESET resetShadowInactiveColor)
    Q_PROPERTY(QColor disabledColor READ disabledColor WRITE setDisabledColor RESET resetDisabledColor)
    Q_PROPERTY(bool active READ isActive)
public:
    /// How a field starts out.
    enum class Construction {
        /// Engraved and active: the light copy exists, the field is enabled and shows the
        /// active colours. This is what widgets made in code or from a form get.
        Engraved,
        /// The field's settings and colours, but no light copy and no colours applied yet: it
        /// draws in the palette's text colour, without the engraving, until initShadow() and
        /// activate() are called.
        Bare,
    };
    Q_ENUM(Construction)

    /// An engraved, active field.
    explicit ZARNChiseledTextField(QWidget *parent = nullptr);
    /// A field made the way \a construction says.
    explicit ZARNChiseledTextField(Construction construction, QWidget *parent = nullptr);
    ~ZARNChiseledTextField() override;

    /// \name Default colours
    /// The shared defaults, made on first use from the system version code (0x1050 and later,
    /// earlier releases) as calibrated greys, unless the application has set the matching
    /// global variable first:
    ///
    /// | default               | 0x1050 and later | earlier        |
    /// |-----------------------|------------------|----------------|
    /// | defaultActiveColor()         | 0.149, alpha 1.0 | 0.1, alpha 1.0  |
    /// | defaultShadowActiveColor()   | 0.8078, alpha 0.9| 0.96, alpha 0.9 |
    /// | defaultInactiveColor()       | 0.3, alpha 0.9   | 0.3, alpha 0.9  |
    /// | defaultShadowInactiveColor() | 0.8078, alpha 0.7| 0.96, alpha 0.7 |
    /// | defaultDisabledColor()       | 0.3, alpha 1.0   | 0.7, alpha 1.0  |
    /// @{
    static QColor defaultActiveColor();
    static QColor defaultShadowActiveColor();
    static QColor defaultInactiveColor();
    static QColor defaultShadowInactiveColor();
    static QColor defaultDisabledColor();
    /// @}

    /// \name Instance colours
    /// Each starts as its default. Setting an invalid QColor, or resetting, restores the
    /// default. setActiveColor() also restores the default disabled colour, every time.
    /// @{
    QColor activeColor() const;
    void setActiveColor(const QColor &color);
    void resetActiveColor();
    QColor shadowActiveColor() const;
    void setShadowActiveColor(const QColor &color);
    void resetShadowActiveColor();
    QColor inactiveColor() const;
    void setInactiveColor(const QColor &color);
    void resetInactiveColor();
    QColor shadowInactiveColor() const;
    void setShadowInactiveColor(const QColor &color);
    void resetShadowInactiveColor();
    QColor disabledColor() const;
    void setDisabledColor(const QColor &color);
    void resetDisabledColor();
    /// @}

    /**
     * Draws the field's own text in \a text and the light copy in \a shadowText from now on,
     * until the next activate(), deactivate() or change of the enabled state, without changing
     * the five colours. Controls that draw a field in looks of their own use this.
     */
    void showColors(const QColor &text, const QColor &shadowText);
    /// The colour the field's own text is drawn in now.
    QColor textColor() const;
    /// The colour the light copy is drawn in now (an invalid colour while there is no copy).
    QColor shadowTextColor() const;
    /// True after activate(), false after deactivate().
    bool isActive() const;
    /// The light copy, never shown and never in a layout; null for a Bare field until
    /// initShadow().
    const QLabel *shadowField() const;

    /// Makes the light copy from the field's current text, font, alignment and colour,
    /// replacing any earlier copy.
    void initShadow();

    void setAlignment(Qt::Alignment alignment);
    void setWordWrap(bool on);

    /**
     * Shows attributed text. The copy gets \a value with its foreground colour replaced by the
     * copy's text colour, and with every image attachment (a QImage under
     * ZARNAttachmentAttributeName) replaced by a transparent image of the same size, so it
     * keeps the attachment's room but the picture is drawn once, by the field. The field's own
     * text gets \a value with its foreground replaced by the field's text colour. Later colour
     * changes recolour both. Characters without any attribute keep no colour and draw black.
     * Plain text set afterwards replaces the attributed text.
     */
    void setAttributedStringValue(const ZARNAttributedString &value);
    /// The attributed text as the field draws it; empty while the field shows plain text.
    ZARNAttributedString attributedStringValue() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Sets plain text (never interpreted as rich text) on the copy, then on the field.
    void setText(const QString &text);
    /// Shows \a value as text, on the copy and then on the field.
    void setNum(int value);
    void setNum(double value);
    /// Shows the active colours if the field is enabled, and marks it active in any case.
    void activate();
    /// Shows the inactive colours if the field is enabled, and marks it inactive in any case.
    void deactivate();
    /**
     * Enables or disables the field, then shows the colours of its state: the disabled ones, or
     * the active ones whatever isActive() says, also when the state did not change.
     */
    void setEnabled(bool enabled);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyEnabledState();

    friend BRIXEL_EXPORT QDataStream &operator<<(QDataStream &stream, const ZARNChiseledTextField &field);
    friend BRIXEL_EXPORT QDataStream &operator>>(QDataStream &stream, ZARNChiseledTextField &field);

    std::unique_ptr<class ZARNChiseledTextFieldPrivate> const d;
};

/**
 * Writes \a field: a format number (1), its text, alignment, font and enabled state, then its
 * five colours as colour strings (Brixel::asCalibratedRGBString()) in the order active,
 * inactive, shadow active, shadow inactive, disabled.
 */
BRIXEL_EXPORT QDataStream &operator<<(QDataStream &stream, const ZARNChiseledTextField &field);

/**
 * Reads what operator<<() wrote into \a field: text, alignment and font. The enabled state and
 * the five colour strings are read past and not used: a field read back is always enabled,
 * engraved and active, with the default colours, whatever it was written with. A stream of
 * another format number, or one that ends early, is left with QDataStream::ReadCorruptData
 * and leaves the field as it was.
 */
BRIXEL_EXPORT QDataStream &operator>>(QDataStream &stream, ZARNChiseledTextField &field);
