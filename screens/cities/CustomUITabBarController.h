#pragma once

#include "widgets/TabBarController.h"

namespace kavenda {

class SelectionControllerDelegate;

// The options' tab bar; it carries the screen to tell when the options close.
class CustomUITabBarController : public TabBarController {
    Q_OBJECT

public:
    // The tabs that act on the chosen cities' reminders, usable only while a city is chosen.
    static constexpr int firstPreferenceTab = 1;
    static constexpr int lastPreferenceTab = 3;

    explicit CustomUITabBarController(QWidget* parent = nullptr);

    SelectionControllerDelegate* parentDelegate() const { return parentDelegate_; }
    void setParentDelegate(SelectionControllerDelegate* delegate) { parentDelegate_ = delegate; }

    // A page of the layout file, titled with its window title.
    void addPage(QWidget* page);
    void setPreferencesEnabled(bool enabled);

private:
    SelectionControllerDelegate* parentDelegate_ = nullptr;
};

}  // namespace kavenda
