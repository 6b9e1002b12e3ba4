// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/NavigationBar.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>

namespace kavenda {

namespace {

constexpr int buttonMargin = 6;

}  // namespace

NavigationBar::NavigationBar(QWidget* parent) : QWidget(parent), title_(new QLabel(this))
{
    setFixedHeight(barHeight);
    title_->setAlignment(Qt::AlignCenter);
    QFont font = title_->font();
    font.setBold(true);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 1.15);
    else
        font.setPixelSize(qRound(font.pixelSize() * 1.15));
    title_->setFont(font);
    title_->setStyleSheet(QStringLiteral("color: white;"));
}

void NavigationBar::setTitle(const QString& title)
{
    title_->setText(title);
}

QString NavigationBar::title() const
{
    return title_->text();
}

void NavigationBar::showButtons(QAbstractButton* left, QAbstractButton* right)
{
    for (QAbstractButton* old : {left_.data(), right_.data()})
        if (old && old != left && old != right)
            old->hide();
    left_ = left;
    right_ = right;
    for (QAbstractButton* button : {left, right}) {
        if (!button)
            continue;
        button->setParent(this);
        button->show();
        button->raise();
    }
    place();
}

void NavigationBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void NavigationBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0.0, QColor(0x3f, 0x6f, 0x8f));
    gradient.setColorAt(1.0, QColor(0x22, 0x4a, 0x66));
    painter.fillRect(rect(), gradient);
    painter.setPen(QColor(0x16, 0x30, 0x44));
    painter.drawLine(0, height() - 1, width(), height() - 1);
}

// Left and right are the bar's own ends, whatever the direction of the text.
void NavigationBar::place()
{
    title_->setGeometry(rect());
    const auto size = [this](QAbstractButton* button) {
        return button->sizeHint().boundedTo(QSize(width() / 3, height() - 2 * buttonMargin));
    };
    if (left_) {
        const QSize s = size(left_);
        left_->setGeometry(buttonMargin, (height() - s.height()) / 2, s.width(), s.height());
    }
    if (right_) {
        const QSize s = size(right_);
        right_->setGeometry(width() - buttonMargin - s.width(), (height() - s.height()) / 2, s.width(), s.height());
    }
}

}  // namespace kavenda
