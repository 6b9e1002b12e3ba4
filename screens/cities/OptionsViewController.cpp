// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/OptionsViewController.h"

#include "data/MyDB.h"
#include "screens/cities/SelectionController.h"
#include "screens/preferences/AboutController.h"
#include "screens/preferences/HistoryViewController.h"
#include "screens/preferences/SettingController.h"
#include "screens/preferences/SoundsViewController.h"
#include "ui_OptionsViewController.h"
#include "widgets/NavigationStack.h"

#include <array>
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

OptionsViewController::OptionsViewController(Services services, QWidget* parent)
    : QWidget(parent), services_(std::move(services))
{
}

CustomUITabBarController* OptionsViewController::tabBarControl()
{
    if (tabBarControl_)
        return tabBarControl_;
    Ui::OptionsViewController layout;
    layout.setupUi(this);
    MyDB& db = services_.db;
    layout.citiesNavigation->push(new SelectionController(db, services_.rebuildReminders, services_.urls), false);
    auto* settings = new SettingController(db);
    auto* sounds =
        new SoundsViewController(db, services_.paths, services_.audio, services_.isPlayable, services_.alerts);
    auto* history = new HistoryViewController(db, services_.paths, services_.log);
    showInStack(layout.settingsNavigation, settings);
    showInStack(layout.soundsNavigation, sounds);
    showInStack(layout.historyNavigation, history);
    layout.aboutNavigation->push(new AboutController(AboutRows::shipped(), services_.urls), false);
    tabBarControl_ = layout.tabBarControl;
    const std::array<SavesChanges*, 5> byTab{nullptr, settings, sounds, history, nullptr};
    tabBarControl_->setLeaveCheck([byTab, tabs = tabBarControl_.data()](int tab) {
        SavesChanges* screen = tab >= 0 && tab < int(byTab.size()) ? byTab[std::size_t(tab)] : nullptr;
        return !screen || mayLeave(*screen, tabs);
    });
    // The tab bar is presented on its own and lives as long as it is shown; the loader goes with it.
    tabBarControl_->setParent(nullptr);
    tabBarControl_->setLayoutDirection(Qt::RightToLeft);
    tabBarControl_->resize(size());
    setParent(tabBarControl_);
    hide();
    return tabBarControl_;
}

}  // namespace kavenda
