// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace kavenda {

// A button drawn straight over a picture, as the main screen's are: its image in the middle, a
// translucent white while it is held down, and around it a white ring when asked for, or the
// focus ring. It paints itself: a style sheet would load Qt's whole style sheet machinery for
// the first screen.
class ImageButton : public QAbstractButton {
    Q_OBJECT

public:
    ImageButton(const QPixmap& image, double cornerRadius, bool ringed, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap image_;
    double cornerRadius_;
    bool ringed_;
};

}  // namespace kavenda
