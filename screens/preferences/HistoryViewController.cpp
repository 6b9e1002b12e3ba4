#include "screens/preferences/HistoryViewController.h"

#include "platform/Paths.h"
#include "screens/preferences/Fade.h"
#include "screens/preferences/SaveButton.h"
#include "ui_HistoryViewController.h"
#include "widgets/ToggleSwitch.h"

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
    frame->setPixmap(QPixmap(QString::fromStdString((paths.resourceFolder() / "pickerRound.png").string())));
    frame->setScaledContents(true);
    frame->setGeometry(layout_->picker->rect());
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    frame->raise();
    // The one locale whose digits are the program's Arabic-Indic ones; Latin digits still type.
    layout_->picker->setLocale(QLocale(QLocale::Arabic, QLocale::Egypt));

    {
        const QSignalBlocker quiet(layout_->picker);
        layout_->picker->setTime(QTime(occasionTime_.hour(), occasionTime_.minute()));
    }
    layout_->switchOn->setChecked(occasionTime_.isOn());
    showPicker(occasionTime_.isOn(), false);
    connect(layout_->switchOn, &ToggleSwitch::toggled, this, &HistoryViewController::valueChanged);
    connect(layout_->picker, &QTimeEdit::timeChanged, this, &HistoryViewController::pickerValueChanged);
    connect(saveButton_, &QPushButton::clicked, this, &HistoryViewController::save);
}

HistoryViewController::~HistoryViewController() = default;

QTimeEdit* HistoryViewController::picker() const
{
    return layout_->picker;
}

ToggleSwitch* HistoryViewController::switchOn() const
{
    return layout_->switchOn;
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
    occasionTime_.save();
    saveButton_->setEnabled(occasionTime_.saveEnabled());
}

}  // namespace kavenda
