// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace kavenda {

// A card turning about its vertical axis from one picture to another, drawn over the
// screens while they change; it removes itself when the turn is over.
class FlipTransition : public QWidget {
    Q_OBJECT

public:
    FlipTransition(QWidget* parent, QPixmap from, QPixmap to, bool forward);

    // The picture the turn ends on: the incoming screen as it was when the turn began.
    const QPixmap& finalPicture() const { return to_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap from_;
    QPixmap to_;
    bool forward_;
    double progress_ = 0.0;
    QVariantAnimation animation_;
};

}  // namespace kavenda
