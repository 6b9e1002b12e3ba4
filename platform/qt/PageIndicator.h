#pragma once

#include <QWidget>

namespace kavenda {

// A row of dots, one per page, the current one lit.
class PageIndicator : public QWidget {
    Q_OBJECT

public:
    explicit PageIndicator(QWidget* parent = nullptr);

    void setNumberOfPages(int pages);
    int numberOfPages() const;
    void setCurrentPage(int page);
    int currentPage() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int pages_ = 0;
    int current_ = 0;
};

}  // namespace kavenda
