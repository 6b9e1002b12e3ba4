// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ToggleSwitch.h"

#include "widgets/AccessibleFactory.h"
#include "widgets/Animations.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/TapButtonAccessible.h"

#include <QPainter>

namespace kavenda {

namespace {

constexpr int slideMilliseconds = 150;
constexpr int margin = 2;

}  // namespace

ToggleSwitch::ToggleSwitch(QWidget* parent) : QAbstractButton(parent)
{
    installAccessibleInterface<ToggleSwitch, TapButtonAccessible>();
    setCheckable(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    animation_.setDuration(slideMilliseconds);
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        knob_ = value.toDouble();
        update();
    });
}

QSize ToggleSwitch::sizeHint() const
{
    return {51, 31};
}

// setChecked from code: the knob goes straight to its end.
void ToggleSwitch::checkStateSet()
{
    animation_.stop();
    knob_ = isChecked() ? 1.0 : 0.0;
    update();
}

void ToggleSwitch::nextCheckState()
{
    QAbstractButton::nextCheckState();
    slideKnob();
}

void ToggleSwitch::slideKnob()
{
    const double target = isChecked() ? 1.0 : 0.0;
    animation_.stop();
    if (!animationsEnabled() || !isVisible()) {
        knob_ = target;
        update();
        return;
    }
    animation_.setStartValue(knob_);
    animation_.setEndValue(target);
    animation_.start();
}

void ToggleSwitch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = track.height() / 2.0;
    const QColor off(0xe3, 0xe3, 0xe3);
    const QColor on(0x4c, 0xd9, 0x64);
    const QColor fill = QColor::fromRgbF(static_cast<float>(off.redF() + (on.redF() - off.redF()) * knob_),
                                         static_cast<float>(off.greenF() + (on.greenF() - off.greenF()) * knob_),
                                         static_cast<float>(off.blueF() + (on.blueF() - off.blueF()) * knob_));
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1.0));
    painter.setBrush(isEnabled() ? fill : fill.lighter(115));
    painter.drawRoundedRect(track, radius, radius);
    // "On" is the end where reading finishes.
    const double diameter = track.height() - 2 * margin;
    const double travel = track.width() - diameter - 2 * margin;
    const double along = isRightToLeft() ? 1.0 - knob_ : knob_;
    const QRectF knob(track.left() + margin + travel * along, track.top() + margin, diameter, diameter);
    painter.setPen(QPen(QColor(0, 0, 0, 50), 1.0));
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);
    if (FocusRingStyle::showsFocus(this))
        FocusRingStyle::drawFocusRing(&painter, rect(), palette(), radius);
}

}  // namespace kavenda
