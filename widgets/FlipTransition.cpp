// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/FlipTransition.h"

#include <QPainter>
#include <QTransform>

#include <utility>

namespace kavenda {

namespace {

constexpr int flipMilliseconds = 450;

}  // namespace

FlipTransition::FlipTransition(QWidget* parent, QPixmap from, QPixmap to, bool forward)
    : QWidget(parent), from_(std::move(from)), to_(std::move(to)), forward_(forward)
{
    setGeometry(parent->rect());
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
    animation_.setDuration(flipMilliseconds);
    animation_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        progress_ = value.toDouble();
        update();
    });
    connect(&animation_, &QVariantAnimation::finished, this, &QObject::deleteLater);
    raise();
    show();
    animation_.start();
}

void FlipTransition::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The first half turns the old picture edge-on, the second brings the new one round.
    const bool firstHalf = progress_ < 0.5;
    const double turn = firstHalf ? progress_ * 180.0 : (progress_ - 1.0) * 180.0;
    const double angle = forward_ ? turn : -turn;
    const QPointF centre = QRectF(rect()).center();
    QTransform transform;
    transform.translate(centre.x(), centre.y());
    transform.rotate(angle, Qt::YAxis);
    transform.translate(-centre.x(), -centre.y());
    painter.setTransform(transform);
    painter.drawPixmap(0, 0, firstHalf ? from_ : to_);
}

}  // namespace kavenda
