#include "widgets/TabBarButton.h"

#include "widgets/AccessibleFactory.h"
#include "widgets/TabBarButtonAccessible.h"

namespace kavenda {

TabBarButton::TabBarButton(QWidget* parent) : QToolButton(parent)
{
    installAccessibleInterface<TabBarButton, TabBarButtonAccessible>();
    setCheckable(true);
}

}  // namespace kavenda
