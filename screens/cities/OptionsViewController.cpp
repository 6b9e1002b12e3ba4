#include "screens/cities/OptionsViewController.h"

#include "data/MyDB.h"
#include "reminders/MyNotification.h"
#include "screens/cities/SelectionController.h"
#include "ui_OptionsViewController.h"

#include <utility>

namespace kavenda {

OptionsViewController::OptionsViewController(QWidget* parent)
    : OptionsViewController(MyDB::initialize(), [] { MyNotification::initialize().update(); }, parent)
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
