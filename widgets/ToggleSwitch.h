// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>
#include <QVariantAnimation>

namespace kavenda {

// An on/off switch: a rounded track and a knob that slides to the "on" end. A screen reader
// finds a check box named by the label whose buddy it is (or by its accessible name).
class ToggleSwitch : public QAbstractButton {
    Q_OBJECT

public:
    explicit ToggleSwitch(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void checkStateSet() override;
    void nextCheckState() override;

private:
    void slideKnob();

    double knob_ = 0.0;
    QVariantAnimation animation_;
};

}  // namespace kavenda
