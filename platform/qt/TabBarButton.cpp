#include "platform/qt/TabBarButton.h"

#include "platform/qt/AccessibleFactory.h"
#include "platform/qt/TabBarButtonAccessible.h"

namespace kavenda {

TabBarButton::TabBarButton(QWidget* parent) : QToolButton(parent)
{
    installAccessibleInterface<TabBarButton, TabBarButtonAccessible>();
    setCheckable(true);
}

}  // namespace kavenda
