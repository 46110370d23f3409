// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QVariant>

class QTabWidget;
class QWidget;

/**
 * \file
 * Finding a tab by identifier. A tab's identifier is the dynamic property named
 * ZARNTabViewItemIdentifierProperty ("identifier") of its page, which can also be set in Qt
 * Designer; a page without it has no identifier.
 */

/// The name of the page property that holds a tab's identifier.
inline constexpr char ZARNTabViewItemIdentifierProperty[] = "identifier";

namespace Brixel {

/**
 * The page of the first tab of \a tabView whose identifier equals \a identifier by QVariant
 * equality, under which numbers of different types and text that converts to the number are
 * equal: 3, 3.0 and "3" all find the tab with identifier 3. A null tab widget gives nullptr.
 *
 * Throws std::out_of_range when no tab has that identifier (an invalid \a identifier matches no
 * tab). That is intended: the look-up reports ZARNNotFound, which is not negative, and fetching
 * the tab at that index fails the range check. Callers that expect an absent identifier catch
 * the exception.
 *
 * \code
 * page->setProperty(ZARNTabViewItemIdentifierProperty, QStringLiteral("general"));
 * tabs->addTab(page, tr("General"));
 * tabs->setCurrentWidget(tabViewItemWithIdentifier(tabs, QStringLiteral("general")));
 * \endcode
 */
BRIXEL_EXPORT QWidget *tabViewItemWithIdentifier(const QTabWidget *tabView, const QVariant &identifier);

} // namespace Brixel
