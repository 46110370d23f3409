// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FormLoader_p.h"

#include "ZARNProgressWindow.h"
#include "ZARNWindow.h"

#include "../controls/BXSplitView.h"
#include "../controls/ZARNButton.h"
#include "../controls/ZARNChiseledTextField.h"
#include "../controls/ZARNChiseledTextPopUpButton.h"
#include "../controls/ZARNPopUpButton.h"
#include "../controls/ZARNSegmentedControl.h"
#include "../controls/ZARNSegmentedControlButton.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace BrixelPrivate {

namespace {

template<typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

} // namespace

QWidget *FormLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    static const QHash<QString, std::function<QWidget *(QWidget *)>> libraryWidgets{
        {u"BXSplitView"_s, make<BXSplitView>},
        {u"ZARNButton"_s, make<ZARNButton>},
        {u"ZARNChiseledTextField"_s, make<ZARNChiseledTextField>},
        {u"ZARNChiseledTextPopUpButton"_s, make<ZARNChiseledTextPopUpButton>},
        {u"ZARNPopUpButton"_s, make<ZARNPopUpButton>},
        {u"ZARNSegmentedControl"_s, make<ZARNSegmentedControl>},
        {u"ZARNSegmentedControlButton"_s, make<ZARNSegmentedControlButton>},
        {u"ZARNWindow"_s, make<ZARNWindow>},
        {u"ZARNProgressWindow"_s, make<ZARNProgressWindow>},
    };
    const auto library = libraryWidgets.constFind(className);
    if (library == libraryWidgets.cend())
        return QUiLoader::createWidget(className, parent, name);
    QWidget *widget = (*library)(parent);
    widget->setObjectName(name);
    return widget;
}

} // namespace BrixelPrivate
