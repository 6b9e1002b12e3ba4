#include "screens/cities/CustomUITabBarController.h"

#include "platform/qt/NavigationStack.h"

namespace kavenda {

CustomUITabBarController::CustomUITabBarController(QWidget* parent) : TabBarController(parent)
{
}

CustomUITabBarController::~CustomUITabBarController()
{
    // Screens leave their navigation stack while the stack is still whole: it follows every
    // screen it loses, which it cannot do once its own destruction has begun.
    for (NavigationStack* navigation : findChildren<NavigationStack*>())
        while (QWidget* screen = navigation->top())
            delete screen;
}

void CustomUITabBarController::addPage(QWidget* page)
{
    addTab(page, page->windowTitle());
}

void CustomUITabBarController::setPreferencesEnabled(bool enabled)
{
    for (int tab = firstPreferenceTab; tab <= lastPreferenceTab && tab < count(); ++tab)
        setTabEnabled(tab, enabled);
}

}  // namespace kavenda
