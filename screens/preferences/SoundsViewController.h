// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/preferences/SavesChanges.h"
#include "screens/preferences/SoundChoice.h"

#include <QFileDialog>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <memory>

class QListWidget;

namespace Ui {
class SoundsViewController;
}

namespace kavenda {

class Alerts;
class MyDB;
class Paths;

// The recording of the calls to prayer: a tap previews a row, Save stores the checked one,
// and a person may put their own recording in place of a row's.
class SoundsViewController : public QWidget, public SavesChanges {
    Q_OBJECT

public:
    // Without an audio player there are no previews; without a playable check every file that
    // can be copied is taken; without alerts a refusal is not shown.
    SoundsViewController(MyDB& db, const Paths& paths, AudioPlayer* audio, PlayableCheck isPlayable, Alerts* alerts,
                         QWidget* parent = nullptr);
    ~SoundsViewController() override;

    QListWidget* tbl() const;
    QPushButton* saveButton() const { return saveButton_; }
    // "صدای برنامه": the checked row plays the program's recording again.
    // The file dialog of "انتخاب فایل…" while it is open.

    void didSelectRow(int row);
    bool hasUnsavedChange() const override { return choice_.saveEnabled(); }
    void save() override;
    void discard() override;
    // Puts the file in place of the checked row's recording (copied off the window's thread),
    // or says why not.
    void useOwnRecording(const QString& file);
    void useShippedRecording();

signals:
    // The copy of an own recording ended, copied or not.
    void ownRecordingSettled();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void buildRows();
    void showCheckmark();
    void chooseOwnFile();
    void refuseOwnRecording(const QString& file, SoundChoice::OwnRecording why);

    std::unique_ptr<::Ui::SoundsViewController> layout_;
    SoundChoice choice_;
    PlayableCheck isPlayable_;
    Alerts* alerts_;
    QPointer<QPushButton> saveButton_;
    QPointer<QFileDialog> fileDialog_;
    QPushButton* shippedButton_;
    bool copying_ = false;
};

}  // namespace kavenda
