// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/ShadowedLabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>

namespace kavenda {

namespace {

// Wide enough that the one line never breaks.
constexpr qreal unbrokenLineWidth = 0x01000000;

}  // namespace

ShadowedLabel::ShadowedLabel(const QString& text, const QRect& frame, QPoint offset, QWidget* parent)
    : QLabel(text, parent), offset_(offset)
{
    const int left = std::max(0, -offset.x());
    const int top = std::max(0, -offset.y());
    const int right = std::max(0, offset.x());
    const int bottom = std::max(0, offset.y());
    setGeometry(frame.adjusted(-left, -top, right, bottom));
    setContentsMargins(left, top, right, bottom);
}

ShadowedLabel::~ShadowedLabel() = default;

void ShadowedLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        layout_.reset();
    QLabel::changeEvent(event);
}

// One line, elided to the frame's width when it is longer.
QTextLayout& ShadowedLabel::layout()
{
    if (layout_ && laidOut_ == text())
        return *layout_;
    laidOut_ = text();
    QTextOption option;
    option.setTextDirection(laidOut_.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout_ = std::make_unique<QTextLayout>(laidOut_, font(), this);
    layout_->setTextOption(option);
    for (bool elided = false;; elided = true) {
        layout_->beginLayout();
        QTextLine line = layout_->createLine();
        line.setLineWidth(unbrokenLineWidth);
        layout_->endLayout();
        const int width = contentsRect().width();
        if (elided || line.horizontalAdvance() <= width)
            return *layout_;
        layout_->setText(fontMetrics().elidedText(laidOut_, Qt::ElideRight, width));
    }
}

// Both passes draw one layout, placed in the label's frame as QPainter::drawText places a line
// in a rectangle. drawText would also ask the font for its leading, which makes Qt load the face
// a second time, for the script of digits and punctuation, when the face covers no Latin, as
// Nazli does: a second fontconfig match for every size on the first page.
void ShadowedLabel::paintEvent(QPaintEvent*)
{
    if (text().isEmpty())
        return;
    const QTextLine line = layout().lineAt(0);
    const QRectF frame = contentsRect();
    const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), this->alignment());
    QPointF origin = frame.topLeft();
    const qreal height = line.ascent() + line.descent();
    if (alignment & Qt::AlignBottom)
        origin.ry() += frame.height() - height;
    else if (alignment & Qt::AlignVCenter)
        origin.ry() += (frame.height() - height) / 2;
    if (alignment & Qt::AlignRight)
        origin.rx() += frame.width() - line.horizontalAdvance();
    else if (alignment & Qt::AlignHCenter)
        origin.rx() += (frame.width() - line.horizontalAdvance()) / 2;

    QPainter painter(this);
    painter.setPen(Qt::black);
    line.draw(&painter, origin + offset_);
    painter.setPen(palette().color(foregroundRole()));
    line.draw(&painter, origin);
}

}  // namespace kavenda
