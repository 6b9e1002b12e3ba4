// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <functional>

namespace kavenda {

// A row of dots, one per page, the current one lit. A click on a dot picks its page, a click
// beside the dots moves one page towards it, and so do the arrow keys; each change the user
// makes is reported with valueChanged.
class PageIndicator : public QWidget {
    Q_OBJECT

public:
    explicit PageIndicator(QWidget* parent = nullptr);

    void setNumberOfPages(int pages);
    int numberOfPages() const;
    void setCurrentPage(int page);
    int currentPage() const;
    // Where the dot of a page is drawn.
    QRect dotRect(int page) const;
    // The page a click at this horizontal position asks for.
    int pageAt(double x) const;
    // Moves to a page as the user does: reported when it changes the current page.
    void choosePage(int page);

    // What a screen reader reads for a page (counted from 0) of so many; the page number by default.
    using PageText = std::function<QString(int page, int pages)>;
    void setPageText(PageText text) { pageText_ = std::move(text); }
    QString pageText() const;

    QSize sizeHint() const override;

signals:
    void valueChanged(int page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int dotsLeft() const;

    int pages_ = 0;
    int current_ = 0;
    PageText pageText_;
};

}  // namespace kavenda
