// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/preferences/ReminderSettings.h"
#include "screens/preferences/SavesChanges.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <memory>

class QLabel;
class QSlider;

namespace Ui {
class SettingController;
}

namespace kavenda {

class MyDB;
class ToggleSwitch;

// Which calls are announced and how long before sunrise, suhur and iftar the warnings come;
// nothing is written before Save.
class SettingController : public QWidget, public SavesChanges {
    Q_OBJECT

public:
    explicit SettingController(MyDB& db, QWidget* parent = nullptr);
    ~SettingController() override;

    const ReminderSettings& settings() const { return settings_; }
    QPushButton* saveButton() const { return saveButton_; }
    // The warning's slider row (index = item − 3), shown while its switch is on.

    void valueChanged(int item, bool on);
    void sliderChanged(int index, int position);
    bool hasUnsavedChange() const override { return settings_.saveEnabled(); }
    void save() override;
    void discard() override;

private:
    // Every switch, slider and number as the settings hold them.
    void showSettings();
    static constexpr int warningCount = ReminderSettings::itemCount - ReminderSettings::firstWarning;

    QWidget* makeSwitchRow(int item, QWidget* parent);
    QWidget* makeSliderRow(int index, QWidget* parent);
    void showSliderRow(int index, bool shown, bool animated);
    void updateSliderName(int index);

    std::unique_ptr<::Ui::SettingController> layout_;
    ReminderSettings settings_;
    // Owned by the navigation stack once shown in its bar.
    QPointer<QPushButton> saveButton_;
    std::array<ToggleSwitch*, ReminderSettings::itemCount> switches_{};
    std::array<QWidget*, warningCount> sliderRows_{};
    std::array<QSlider*, warningCount> sliders_{};
    std::array<QLabel*, warningCount> numbers_{};
};

}  // namespace kavenda
