// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/FineSlider.h"

#include "widgets/AccessibleFactory.h"
#include "widgets/FocusRingStyle.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <cmath>
#include <utility>

namespace kavenda {

namespace {

class FineSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit FineSliderAccessible(FineSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return QString::number(slider()->wholeValue());
        return QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider()->wholeValue(); }
    void setCurrentValue(const QVariant& value) override { slider()->setPosition(value.toDouble()); }
    QVariant maximumValue() const override { return slider()->maximum() / FineSlider::stepsPerUnit; }
    QVariant minimumValue() const override { return slider()->minimum() / FineSlider::stepsPerUnit; }
    QVariant minimumStepSize() const override { return 1; }

private:
    FineSlider* slider() const { return static_cast<FineSlider*>(widget()); }
};

}  // namespace

FineSlider::FineSlider(int minimum, int maximum, WholeRule whole, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), whole_(std::move(whole))
{
    installAccessibleInterface<FineSlider, FineSliderAccessible>();
    setRange(minimum * stepsPerUnit, maximum * stepsPerUnit);
    setSingleStep(stepsPerUnit);
    setPageStep(5 * stepsPerUnit);
}

void FineSlider::setPosition(double units)
{
    setValue(static_cast<int>(std::lround(units * stepsPerUnit)));
}

void FineSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);
    // Ringed as every other stop is, whatever the style draws on the handle.
    if (FocusRingStyle::showsFocus(this)) {
        QPainter painter(this);
        FocusRingStyle::drawFocusRing(&painter, rect(), palette(), height() / 2.0);
    }
}

}  // namespace kavenda
