// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/HistoryViewController.h"

#include "platform/Paths.h"
#include "screens/WriteFailureLine.h"
#include "screens/preferences/Fade.h"
#include "screens/preferences/SaveButton.h"
#include "text/Utility.h"
#include "ui_HistoryViewController.h"
#include "widgets/ResourcePixmap.h"
#include "widgets/ToggleSwitch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTimeEdit>

namespace kavenda {

HistoryViewController::HistoryViewController(MyDB& db, const Paths& paths, Log* log, QWidget* parent)
    : QWidget(parent), layout_(std::make_unique<::Ui::HistoryViewController>()), occasionTime_(db, log),
      saveButton_(makeSaveButton(this))
{
    occasionTime_.load();
    layout_->setupUi(this);
    // The frame sits over the picker and lets every press through to it.
    auto* frame = new QLabel(layout_->picker);
    frame->setPixmap(resourcePixmap(paths.resourceFolder() / "pickerRound.png"));
    frame->setScaledContents(true);
    frame->setGeometry(layout_->picker->rect());
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->raise();
    // The one locale whose digits are the program's Arabic-Indic ones; Latin digits still type.
    layout_->picker->setLocale(QLocale(QLocale::Arabic, QLocale::Egypt));
    layout_->picker->installEventFilter(this);

    showStored();
    connect(layout_->switchOn, &ToggleSwitch::toggled, this, &HistoryViewController::valueChanged);
    connect(layout_->picker, &QTimeEdit::timeChanged, this, &HistoryViewController::pickerValueChanged);
    connect(saveButton_, &QPushButton::clicked, this, &HistoryViewController::save);
}

HistoryViewController::~HistoryViewController() = default;

ToggleSwitch* HistoryViewController::switchOn() const
{
    return layout_->switchOn;
}

// A digit typed on a Latin keyboard shows at once as the program shows digits.
bool HistoryViewController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != layout_->picker || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QString typed = key->text();
    if (typed.size() != 1 || typed[0] < QLatin1Char('0') || typed[0] > QLatin1Char('9'))
        return QWidget::eventFilter(watched, event);
    const QString persian = QString::fromStdString(Utility::ConvertToPersian(typed.toStdString()));
    QKeyEvent shown(QEvent::KeyPress, key->key(), key->modifiers(), persian);
    QCoreApplication::sendEvent(layout_->picker, &shown);
    return true;
}

void HistoryViewController::showStored()
{
    {
        const QSignalBlocker quiet(layout_->picker);
        layout_->picker->setTime(QTime(occasionTime_.hour(), occasionTime_.minute()));
    }
    {
        const QSignalBlocker quiet(layout_->switchOn);
        layout_->switchOn->setChecked(occasionTime_.isOn());
    }
    showPicker(occasionTime_.isOn(), false);
    saveButton_->setEnabled(occasionTime_.saveEnabled());
}

void HistoryViewController::discard()
{
    occasionTime_.load();
    showStored();
}

void HistoryViewController::showPicker(bool on, bool animated)
{
    layout_->picker->setEnabled(on);
    if (animated)
        fade(layout_->picker, on, fadeMilliseconds, QEasingCurve::OutQuad);
    else
        layout_->picker->setVisible(on);
}

void HistoryViewController::valueChanged(bool on)
{
    showPicker(on, true);
    occasionTime_.valueChanged(on);
    saveButton_->setEnabled(occasionTime_.saveEnabled());
}

void HistoryViewController::pickerValueChanged()
{
    const QTime time = layout_->picker->time();
    occasionTime_.pickerValueChanged(time.hour(), time.minute());
    saveButton_->setEnabled(occasionTime_.saveEnabled());
}

void HistoryViewController::save()
{
    showWriteResult(this, occasionTime_.save());
    saveButton_->setEnabled(occasionTime_.saveEnabled());
}

}  // namespace kavenda
