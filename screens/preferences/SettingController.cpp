// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SettingController.h"

#include "data/MyDB.h"
#include "screens/WriteFailureLine.h"
#include "screens/preferences/Fade.h"
#include "screens/preferences/PreferencesTexts.h"
#include "screens/preferences/SaveButton.h"
#include "ui_SettingController.h"
#include "widgets/Animations.h"
#include "widgets/ToggleSwitch.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <QVariantAnimation>

namespace kavenda {

namespace {

constexpr int rowHeight = 44;
constexpr int slideMilliseconds = 250;
constexpr int fadeMilliseconds = 250;

QLabel* makeLabel(const QString& text, int pixelSize, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    label->setFont(font);
    return label;
}

}  // namespace

SettingController::SettingController(MyDB& db, QWidget* parent)
    : QWidget(parent), layout_(std::make_unique<::Ui::SettingController>()), settings_(db),
      saveButton_(makeSaveButton(this))
{
    layout_->setupUi(this);
    settings_.load();
    connect(saveButton_, &QPushButton::clicked, this, &SettingController::save);

    for (int section = 0; section < ReminderSettings::sectionCount; ++section) {
        auto* group = new QFrame(layout_->tblContent);
        group->setObjectName(QStringLiteral("section"));
        auto* rows = new QVBoxLayout(group);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(0);
        const int switchRows = section == 0 ? ReminderSettings::firstWarning : 1;
        for (int row = 0; row < switchRows; ++row)
            rows->addWidget(makeSwitchRow(ReminderSettings::itemOfSwitch(section, row), group));
        if (section > 0)
            rows->addWidget(makeSliderRow(section - 1, group));
        layout_->sectionsLayout->addWidget(group);
    }
    layout_->sectionsLayout->addStretch();
    showSettings();
}

SettingController::~SettingController() = default;

QWidget* SettingController::makeSwitchRow(int item, QWidget* parent)
{
    auto* row = new QWidget(parent);
    row->setFixedHeight(rowHeight);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(12, 0, 10, 0);
    const QString label = QString::fromStdString(ReminderSettings::label(item));
    line->addWidget(makeLabel(label, 17, row));
    line->addStretch();
    auto* toggle = new ToggleSwitch(row);
    toggle->setAccessibleName(label);
    line->addWidget(toggle);
    connect(toggle, &ToggleSwitch::toggled, this, [this, item](bool on) { valueChanged(item, on); });
    switches_.at(item) = toggle;
    return row;
}

QWidget* SettingController::makeSliderRow(int index, QWidget* parent)
{
    auto* row = new QWidget(parent);
    row->setFixedHeight(rowHeight);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(12, 0, 14, 0);
    auto* number = makeLabel(QString(), 18, row);
    number->setMinimumWidth(22);
    number->setAlignment(Qt::AlignCenter);
    line->addWidget(number);
    line->addWidget(makeLabel(texts::preferences::minutesBefore, 15, row));
    auto* slider = new QSlider(Qt::Horizontal, row);
    slider->setRange(0, ReminderSettings::sliderPositions - 1);
    slider->setPageStep(1);
    line->addWidget(slider, 1);
    connect(slider, &QSlider::valueChanged, this, [this, index](int position) { sliderChanged(index, position); });
    sliderRows_.at(index) = row;
    sliders_.at(index) = slider;
    numbers_.at(index) = number;
    return row;
}

void SettingController::showSettings()
{
    for (int item = 0; item < ReminderSettings::itemCount; ++item) {
        const QSignalBlocker quiet(switches_.at(item));
        switches_.at(item)->setChecked(settings_.isOn(item));
    }
    for (int index = 0; index < warningCount; ++index) {
        {
            const QSignalBlocker quiet(sliders_.at(index));
            sliders_.at(index)->setValue(settings_.sliderPosition(index));
        }
        numbers_.at(index)->setText(QString::fromStdString(settings_.leadText(index)));
        updateSliderName(index);
        showSliderRow(index, settings_.rowCount(index + 1) == 2, false);
    }
    saveButton_->setEnabled(settings_.saveEnabled());
}

void SettingController::discard()
{
    settings_.load();
    showSettings();
}

void SettingController::updateSliderName(int index)
{
    sliders_.at(index)->setAccessibleName(
        texts::preferences::leadSlider
            .arg(QString::fromStdString(ReminderSettings::label(index + ReminderSettings::firstWarning)))
            .arg(QString::fromStdString(settings_.leadText(index))));
}

void SettingController::valueChanged(int item, bool on)
{
    const int section = item < ReminderSettings::firstWarning ? 0 : item - 2;
    const int shownRows = settings_.rowCount(section);
    switch (settings_.valueChanged(item, on, shownRows)) {
    case ReminderSettings::RowChange::insertSlider:
        showSliderRow(section - 1, true, true);
        break;
    case ReminderSettings::RowChange::removeSlider:
        showSliderRow(section - 1, false, true);
        break;
    case ReminderSettings::RowChange::none:
        break;
    }
    saveButton_->setEnabled(settings_.saveEnabled());
}

void SettingController::showSliderRow(int index, bool shown, bool animated)
{
    QWidget* row = sliderRows_.at(index);
    animated = animated && animationsEnabled() && isVisible();
    if (!shown) {
        if (animated)
            fade(row, false, fadeMilliseconds, QEasingCurve::Linear);
        else
            row->hide();
        return;
    }
    // The row comes down from under its switch.
    row->setGraphicsEffect(nullptr);
    row->setFixedHeight(rowHeight);
    row->show();
    if (!animated)
        return;
    row->setFixedHeight(0);
    auto* slide = new QVariantAnimation(row);
    slide->setDuration(slideMilliseconds);
    slide->setStartValue(0);
    slide->setEndValue(rowHeight);
    connect(slide, &QVariantAnimation::valueChanged, row,
            [row](const QVariant& height) { row->setFixedHeight(height.toInt()); });
    slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void SettingController::sliderChanged(int index, int position)
{
    settings_.sliderChanged(index, position);
    numbers_.at(index)->setText(QString::fromStdString(settings_.leadText(index)));
    updateSliderName(index);
    saveButton_->setEnabled(settings_.saveEnabled());
}

void SettingController::save()
{
    showWriteResult(this, settings_.save());
    saveButton_->setEnabled(settings_.saveEnabled());
}

}  // namespace kavenda
