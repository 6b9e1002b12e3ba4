#include "platform/qt/PageIndicator.h"

#include <QPainter>

#include <algorithm>

namespace kavenda {

namespace {

constexpr int kDot = 7;
constexpr int kGap = 9;

}  // namespace

PageIndicator::PageIndicator(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PageIndicator::setNumberOfPages(int pages) {
    pages_ = std::max(0, pages);
    current_ = std::clamp(current_, 0, std::max(0, pages_ - 1));
    updateGeometry();
    update();
}

int PageIndicator::numberOfPages() const { return pages_; }

void PageIndicator::setCurrentPage(int page) {
    current_ = std::clamp(page, 0, std::max(0, pages_ - 1));
    update();
}

int PageIndicator::currentPage() const { return current_; }

QSize PageIndicator::sizeHint() const { return {pages_ * (kDot + kGap) + kGap, kDot + 2 * kGap}; }

// Dots run left to right in page order, like the pages themselves.
void PageIndicator::paintEvent(QPaintEvent*) {
    if (pages_ < 2)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int span = pages_ * kDot + (pages_ - 1) * kGap;
    const int left = (width() - span) / 2;
    const int top = (height() - kDot) / 2;
    for (int i = 0; i < pages_; ++i) {
        painter.setBrush(i == current_ ? QColor(255, 255, 255) : QColor(255, 255, 255, 90));
        painter.drawEllipse(left + i * (kDot + kGap), top, kDot, kDot);
    }
}

}  // namespace kavenda
