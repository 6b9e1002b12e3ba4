// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QListWidget>

namespace kavenda {

class ChosenCities;

// The chosen cities in permanent editing mode: each row has a delete control, which asks for
// a confirmation, and a grip to drag it to another place in the order; the keyboard does the
// same. Nothing is selected.
class EditableCityList : public QListWidget {
    Q_OBJECT

public:
    static constexpr int rowHeight = 44;

    explicit EditableCityList(QWidget* parent = nullptr);

    // Shows the cities in their order; only the first keeps the default colour.
    void setCities(const ChosenCities& cities);

    int confirmingRow() const { return confirmingRow_; }
    int draggedRow() const { return draggedRow_; }

    QRect deleteControlRect(int row) const;
    QRect confirmRect(int row) const;
    QRect gripRect(int row) const;

signals:
    void deleteRequested(int row);
    void moveRequested(int from, int to);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int rowAt(const QPoint& position) const;
    // The place a dragged row would take if dropped at this height.
    int dropRowAt(int y) const;
    void setConfirmingRow(int row);

    int confirmingRow_ = -1;
    int draggedRow_ = -1;
    int dropRow_ = -1;
};

}  // namespace kavenda
