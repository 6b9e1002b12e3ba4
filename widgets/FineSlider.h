// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSlider>

#include <functional>

namespace kavenda {

// A slider of whole units that moves smoothly, as a finger does, in hundredths of a unit; what
// it stands for is its position made whole by the rule its owner gives. Assistive technology
// reads and sets it in whole units, a key press moves it by one.
class FineSlider : public QSlider {
    Q_OBJECT

public:
    static constexpr int stepsPerUnit = 100;
    using WholeRule = std::function<int(double position)>;

    FineSlider(int minimum, int maximum, WholeRule whole, QWidget* parent = nullptr);

    // In units, with the fraction the slider has been dragged to.
    double position() const { return static_cast<double>(value()) / stepsPerUnit; }
    void setPosition(double units);
    int wholeValue() const { return whole_(position()); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    WholeRule whole_;
};

}  // namespace kavenda
