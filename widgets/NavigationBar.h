// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QLabel;

namespace kavenda {

// The bar over a navigation stack: the title centred on the whole width, whatever the
// buttons at its ends take.
class NavigationBar : public QWidget {
    Q_OBJECT

public:
    static constexpr int barHeight = 44;

    explicit NavigationBar(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const;
    // Shows these buttons (either may be null) in place of the ones shown before.
    void showButtons(QAbstractButton* left, QAbstractButton* right);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    QLabel* title_;
    QPointer<QAbstractButton> left_;
    QPointer<QAbstractButton> right_;
};

}  // namespace kavenda
