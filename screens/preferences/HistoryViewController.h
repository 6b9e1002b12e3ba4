// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/preferences/OccasionTime.h"
#include "screens/preferences/SavesChanges.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <memory>


namespace Ui {
class HistoryViewController;
}

namespace kavenda {

class Log;
class MyDB;
class Paths;
class ToggleSwitch;

// Whether the coming occasions are announced, and at what time of day.
class HistoryViewController : public QWidget, public SavesChanges {
    Q_OBJECT

public:
    static constexpr int fadeMilliseconds = 500;

    // The picker's frame image comes from the resource folder.
    HistoryViewController(MyDB& db, const Paths& paths, Log* log, QWidget* parent = nullptr);
    ~HistoryViewController() override;

    const OccasionTime& occasionTime() const { return occasionTime_; }
    ToggleSwitch* switchOn() const;
    QPushButton* saveButton() const { return saveButton_; }

    void valueChanged(bool on);
    void pickerValueChanged();
    bool hasUnsavedChange() const override { return occasionTime_.saveEnabled(); }
    void save() override;
    void discard() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showStored();
    void showPicker(bool on, bool animated);

    std::unique_ptr<::Ui::HistoryViewController> layout_;
    OccasionTime occasionTime_;
    QPointer<QPushButton> saveButton_;
};

}  // namespace kavenda
