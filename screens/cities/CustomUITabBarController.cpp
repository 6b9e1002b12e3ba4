#include "screens/cities/CustomUITabBarController.h"

namespace kavenda {

CustomUITabBarController::CustomUITabBarController(QWidget* parent) : TabBarController(parent)
{
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
