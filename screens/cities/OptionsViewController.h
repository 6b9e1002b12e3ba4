#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace kavenda {

class CustomUITabBarController;
class MyDB;

// Builds the options' tab bar from its layout and hands it out; the tab bar is what gets
// presented. Once built, the tab bar owns this loader.
class OptionsViewController : public QWidget {
    Q_OBJECT

public:
    // On the shared database, rebuilding the shared reminders on Done.
    explicit OptionsViewController(QWidget* parent = nullptr);
    OptionsViewController(MyDB& db, std::function<void()> rebuildReminders, QWidget* parent = nullptr);

    // Loads the layout on the first call only.
    CustomUITabBarController* tabBarControl();
    void setTabBarControl(CustomUITabBarController* tabBar) { tabBarControl_ = tabBar; }

private:
    MyDB& db_;
    std::function<void()> rebuildReminders_;
    QPointer<CustomUITabBarController> tabBarControl_;
};

}  // namespace kavenda
