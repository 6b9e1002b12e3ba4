#pragma once

#include <QSlider>

namespace kavenda {

// A slider of minutes from -10 to 10 that moves smoothly, as a finger does, in hundredths of a
// minute; what it stands for is its position floored to whole minutes. Assistive technology
// reads and sets it in minutes.
class OffsetSlider : public QSlider {
    Q_OBJECT

public:
    static constexpr int stepsPerMinute = 100;

    explicit OffsetSlider(QWidget* parent = nullptr);

    // In minutes, with the fraction the slider has been dragged to.
    double position() const { return static_cast<double>(value()) / stepsPerMinute; }
    void setPosition(double minutes);
    int minutes() const;
};

}  // namespace kavenda
