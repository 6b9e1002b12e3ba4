// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/calendar/MonthGrid.h"

#include <QAbstractButton>
#include <QPixmap>

#include <filesystem>

namespace kavenda {

// A day of a month page: its number in Persian digits over the background of its state, at
// its place in the page's right-to-left grid. Selection is the checked state, set only by the
// calendar, never by a click itself.
class DayButton : public QAbstractButton {
    Q_OBJECT

public:
    DayButton(const DayCell& cell, const std::filesystem::path& resourceFolder, QWidget* parent);

    int tag() const { return cell_.place.day; }
    // The title colour of the state the button is in.
    QColor titleColour() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override;

private:
    DayCell cell_;
    QPixmap normalBackground_;
    QPixmap selectedBackground_;
};

}  // namespace kavenda
