// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PageIndicator.h"

#include "widgets/FocusRingStyle.h"

#include "widgets/AccessibleFactory.h"
#include "widgets/PageIndicatorAccessible.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavenda {

namespace {

constexpr int dot = 7;
constexpr int gap = 9;

}  // namespace

PageIndicator::PageIndicator(QWidget* parent) : QWidget(parent)
{
    installAccessibleInterface<PageIndicator, PageIndicatorAccessible>();
    setFocusPolicy(Qt::TabFocus);
}

void PageIndicator::setNumberOfPages(int pages)
{
    pages_ = std::max(0, pages);
    current_ = std::clamp(current_, 0, std::max(0, pages_ - 1));
    updateGeometry();
    update();
}

int PageIndicator::numberOfPages() const
{
    return pages_;
}

void PageIndicator::setCurrentPage(int page)
{
    const int before = current_;
    current_ = std::clamp(page, 0, std::max(0, pages_ - 1));
    update();
    if (current_ != before && QAccessible::isActive()) {
        QAccessibleValueChangeEvent changed(this, current_);
        QAccessible::updateAccessibility(&changed);
        QAccessibleEvent renamed(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&renamed);
    }
}

int PageIndicator::currentPage() const
{
    return current_;
}

// Each dot owns the gap around it; beside the row of dots a click steps one page that way.
int PageIndicator::pageAt(double x) const
{
    const double column = std::floor((x - dotsLeft() + gap / 2.0) / (dot + gap));
    if (column < 0)
        return std::max(0, current_ - 1);
    if (column >= pages_)
        return std::min(pages_ - 1, current_ + 1);
    return static_cast<int>(column);
}

void PageIndicator::choosePage(int page)
{
    const int before = current_;
    setCurrentPage(page);
    if (current_ != before)
        emit valueChanged(current_);
}

QSize PageIndicator::sizeHint() const
{
    return {pages_ * (dot + gap) + gap, dot + 2 * gap};
}

int PageIndicator::dotsLeft() const
{
    const int span = pages_ * dot + (pages_ - 1) * gap;
    return (width() - span) / 2;
}

QRect PageIndicator::dotRect(int page) const
{
    return {dotsLeft() + page * (dot + gap), (height() - dot) / 2, dot, dot};
}

// Dots run left to right in page order, like the pages themselves.
void PageIndicator::paintEvent(QPaintEvent*)
{
    if (pages_ < 2)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (FocusRingStyle::showsFocus(this)) {
        const QRectF dots = QRectF(dotRect(0)).united(dotRect(pages_ - 1));
        FocusRingStyle::drawFocusRing(&painter, dots.adjusted(-gap / 2.0, -gap / 2.0, gap / 2.0, gap / 2.0), palette(),
                                      7);
    }
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < pages_; ++i) {
        painter.setBrush(i == current_ ? QColor(255, 255, 255) : QColor(255, 255, 255, 90));
        painter.drawEllipse(dotRect(i));
    }
}

// The press is the indicator's, so that it does not reach the pages beneath.
void PageIndicator::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void PageIndicator::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint()) || pages_ == 0)
        return;
    choosePage(pageAt(event->position().x()));
}

void PageIndicator::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        choosePage(current_ - 1);
        break;
    case Qt::Key_Right:
        choosePage(current_ + 1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

QString PageIndicator::pageText() const
{
    if (pageText_)
        return pageText_(current_, pages_);
    return QString::number(current_ + 1);
}

}  // namespace kavenda
