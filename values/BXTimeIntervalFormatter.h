// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNFormatter.h"
#include <Brixel/brixel_export.h>

#include <QString>
#include <QStringView>
#include <QVariant>

/**
 * The components a duration is split into, smallest first. Formatters store them as plain
 * ints and compare them numerically, so any int is accepted where a component is expected;
 * numbers outside 0..4 count as one second per unit with a base of 1.
 */
enum BXTimeIntervalComponent : int {
    BXTimeIntervalSecondsComponent = 0, ///< 1 second per unit, 60 before minutes roll over
    BXTimeIntervalMinutesComponent = 1, ///< 60 seconds per unit, 60 before hours roll over
    BXTimeIntervalHoursComponent = 2,   ///< 3600 seconds per unit, 24 before days roll over
    BXTimeIntervalDaysComponent = 3,    ///< 86400 seconds per unit, 7 before weeks roll over
    BXTimeIntervalWeeksComponent = 4,   ///< 604800 seconds per unit, base 1
};

/**
 * Shows a number of seconds as a clock-like string such as "1:05:09" or "2:07.250" and reads
 * such strings back.
 *
 * The formatter shows the components from maximumComponent() (left) down to
 * minimumComponent() (right), joined by componentSeparator(). The largest component never
 * wraps (100 hours with hours largest shows "100:00:00"); every other component shows its
 * remainder below its base with at least two digits. With showsMilliseconds() and seconds as
 * the smallest component, seconds get three decimals.
 *
 * \code
 * BXTimeIntervalFormatter clock(BXTimeIntervalSecondsComponent, BXTimeIntervalHoursComponent);
 * clock.stringForObjectValue(3909.0);                  // "1:05:09"
 * clock.setMaximumComponent(BXTimeIntervalMinutesComponent);
 * clock.stringForObjectValue(3909.0);                  // "65:09"
 * clock.setShowsMilliseconds(true);
 * clock.stringForObjectValue(127.25);                  // "2:07.250"
 * QVariant seconds;
 * clock.getObjectValue(&seconds, u"2:07.250"_s, nullptr);  // true, seconds == 127.25
 * \endcode
 *
 * Behaviour that looks odd but is intended, because stored values and existing displays
 * depend on it:
 * - Whole numbers are taken by truncating toward zero to a 32-bit signed integer. NaN, the
 *   infinities and anything outside -2147483648..2147483647 become -2147483648, which is then
 *   shown or returned as it is (the default clamps of +-4294967295 let such values through).
 * - A single component divides by the component's base, not by its scalar: a seconds-only
 *   formatter without milliseconds shows value / 60, an hours-only one value / 24.
 * - A remainder below ten gets a leading "0", negative ones too: -5 seconds show as "0-5".
 * - Parsing does not check the number of pieces: extra pieces on the left count with the
 *   next higher component numbers (plain seconds beyond weeks); missing ones count as 0.
 * - Component style 1 is reserved: it formats as an empty string and parses as 0.
 *
 * Values are clamped to minimumTimeInterval()..maximumTimeInterval() before formatting and
 * after parsing; the lower bound is applied first, so crossed bounds give the maximum. A NaN
 * value counts as below the lower bound.
 *
 * The class is a copyable value; share it with editors through a
 * \c std::shared_ptr<const ZARNFormatter> (see ZARNFormatterValidator, ZARNFormatterDelegate).
 */
class BRIXEL_EXPORT BXTimeIntervalFormatter : public ZARNFormatter
{
public:
    /// A formatter showing seconds to weeks: "0:00:00:00:00" for 0.
    BXTimeIntervalFormatter();

    /// A formatter showing \a minimumComponent to \a maximumComponent, with clamps of
    /// -4294967295..4294967295 seconds, separator ":" and style 0.
    BXTimeIntervalFormatter(int minimumComponent, int maximumComponent);

    /**
     * A formatter with every setting given. A null \a componentSeparator stores ":". The
     * style is stored unchecked (unlike setComponentStyle()), so any style but 0 formats as
     * the empty string. showsMilliseconds() starts false.
     */
    BXTimeIntervalFormatter(int minimumComponent, int maximumComponent, double minimumTimeInterval,
                            double maximumTimeInterval, const QString &componentSeparator, int componentStyle);

    /// The smallest (rightmost) component shown, e.g. BXTimeIntervalSecondsComponent.
    int minimumComponent() const { return m_minimumComponent; }
    void setMinimumComponent(int component) { m_minimumComponent = component; }

    /// The largest (leftmost) component shown. When it is below minimumComponent(), a
    /// single component of the minimum's kind is shown.
    int maximumComponent() const { return m_maximumComponent; }
    void setMaximumComponent(int component) { m_maximumComponent = component; }

    /// Whether seconds, when they are the smallest component, show three decimals, and
    /// whether parsing keeps fractions of a second.
    bool showsMilliseconds() const { return m_showsMilliseconds; }
    void setShowsMilliseconds(bool shows) { m_showsMilliseconds = shows; }

    /// The lower clamp, in seconds.
    double minimumTimeInterval() const { return m_minimumTimeInterval; }
    void setMinimumTimeInterval(double seconds) { m_minimumTimeInterval = seconds; }

    /// The upper clamp, in seconds.
    double maximumTimeInterval() const { return m_maximumTimeInterval; }
    void setMaximumTimeInterval(double seconds) { m_maximumTimeInterval = seconds; }

    /// The text between components; never null. An empty separator joins the pieces
    /// directly and makes parsing read the whole string as the smallest component.
    QString componentSeparator() const { return m_componentSeparator; }
    /// Stores \a separator; a null string stores ":".
    void setComponentSeparator(const QString &separator);

    /// 0 (clock-like text) or 1 (reserved: formats as "", parses as 0).
    int componentStyle() const { return m_componentStyle; }
    /// Stores \a style when it is 0 or 1, else 0 (negative values included).
    void setComponentStyle(int style);

    /**
     * The display text of \a object, a QVariant holding a number (any arithmetic type, bool
     * included). An invalid QVariant or one holding anything else (a string, a date) gives
     * "0". A value whose components exceed maximumShownComponents gives "" instead of a
     * string of that many pieces.
     */
    QString stringForObjectValue(const QVariant &object) const override;

    /**
     * Reads \a string as components separated by componentSeparator(), the last piece being
     * minimumComponent(); stores the clamped number of seconds (a double) in \a object,
     * without the fraction unless showsMilliseconds() is set (the fraction is dropped through
     * a 32-bit int, so values beyond its range read as -2147483648). Each piece counts with its
     * leading number (leading white space skipped, text after the number ignored, no number
     * reads as 0), so every non-null string is accepted and the answer is true.
     *
     * A null \a string stores 0 when the clamps allow it, else minimumTimeInterval(), and
     * answers false. \a errorDescription is never written; \a object may be null.
     */
    bool getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const override;

    /// Internal: the number of components shown. 1 when maximumComponent() is below
    /// minimumComponent(); otherwise the span, saturated at INT_MAX.
    int _componentCount() const;

    /// Internal: the leading number of \a string times the scalar of \a componentType.
    double _valueForComponentString(QStringView string, int componentType) const;

    /// The most components formatted; more (only possible with component numbers far
    /// outside 0..4) formats as the empty string rather than exhausting memory.
    static constexpr int maximumShownComponents = 65536;

private:
    double sumOfComponents(const QString &string) const;

    int m_minimumComponent;
    int m_maximumComponent;
    bool m_showsMilliseconds = false;
    double m_maximumTimeInterval;
    double m_minimumTimeInterval;
    QString m_componentSeparator;
    int m_componentStyle;
};
