#pragma once

#include <QTabWidget>

namespace kavenda {

class SelectionControllerDelegate;

// The options' tabs, their bar at the bottom; it carries the screen to tell when the options close.
class CustomUITabBarController : public QTabWidget {
    Q_OBJECT

public:
    // The tabs that act on the chosen cities' reminders, usable only while a city is chosen.
    static constexpr int firstPreferenceTab = 1;
    static constexpr int lastPreferenceTab = 3;

    explicit CustomUITabBarController(QWidget* parent = nullptr);

    SelectionControllerDelegate* parentDelegate() const { return parentDelegate_; }
    void setParentDelegate(SelectionControllerDelegate* delegate) { parentDelegate_ = delegate; }

    void setPreferencesEnabled(bool enabled);
    // A screen pushed over the cities' list takes the whole height.
    void setTabBarHidden(bool hidden);
    bool isTabBarHidden() const;

private:
    SelectionControllerDelegate* parentDelegate_ = nullptr;
    int shownTab_ = 0;
};

}  // namespace kavenda
