#include "screens/cities/OptionsViewController.h"

#include "data/MyDB.h"
#include "platform/Platform.h"
#include "platform/qt/NavigationStack.h"
#include "reminders/MyNotification.h"
#include "screens/cities/SelectionController.h"
#include "screens/preferences/AboutController.h"
#include "screens/preferences/HistoryViewController.h"
#include "screens/preferences/SettingController.h"
#include "screens/preferences/SoundsViewController.h"
#include "ui_OptionsViewController.h"

#include <utility>

namespace kavenda {

namespace {

// A preference screen at the root of its tab's stack, its Save on the right of the bar.
template <typename Screen> void showInStack(NavigationStack* stack, Screen* screen)
{
    stack->push(screen, false);
    stack->setBarButtons(screen, nullptr, screen->saveButton());
}

}  // namespace

OptionsViewController::OptionsViewController(QWidget* parent)
    : OptionsViewController(
        MyDB::initialize(), [] { MyNotification::initialize().update(); }, parent)
{
}

OptionsViewController::OptionsViewController(MyDB& db, std::function<void()> rebuildReminders, QWidget* parent)
    : QWidget(parent), db_(db), rebuildReminders_(std::move(rebuildReminders))
{
}

CustomUITabBarController* OptionsViewController::tabBarControl()
{
    if (tabBarControl_)
        return tabBarControl_;
    Ui::OptionsViewController layout;
    layout.setupUi(this);
    layout.citiesNavigation->push(new SelectionController(db_, rebuildReminders_), false);
    const Platform& services = Platform::installed();
    showInStack(layout.settingsNavigation, new SettingController(db_));
    if (services.paths) {
        showInStack(layout.soundsNavigation,
                    new SoundsViewController(db_, *services.paths, services.audio, services.alerts));
        showInStack(layout.historyNavigation, new HistoryViewController(db_, *services.paths, services.log));
    }
    layout.aboutNavigation->push(new AboutController(AboutRows::shipped(), services.urls), false);
    tabBarControl_ = layout.tabBarControl;
    // The tab bar is presented on its own and lives as long as it is shown; the loader goes with it.
    tabBarControl_->setParent(nullptr);
    tabBarControl_->setLayoutDirection(Qt::RightToLeft);
    tabBarControl_->resize(size());
    setParent(tabBarControl_);
    hide();
    return tabBarControl_;
}

}  // namespace kavenda
