// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTabWidget>

#include <functional>

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

    // Whether the shown tab may be left; a tab with unsaved changes asks first.
    void setLeaveCheck(std::function<bool(int tab)> check) { leaveCheck_ = std::move(check); }
    bool mayLeave(int tab) const { return !leaveCheck_ || leaveCheck_(tab); }

signals:
    // Escape, where nothing nearer the focus took it: the options close as Done closes them.
    void closeRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    SelectionControllerDelegate* parentDelegate_ = nullptr;
    int shownTab_ = 0;
    std::function<bool(int tab)> leaveCheck_;
};

}  // namespace kavenda
