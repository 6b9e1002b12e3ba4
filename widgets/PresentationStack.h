// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QStackedWidget>

namespace kavenda {

class FlipTransition;

// The window's root content: a root screen and the modal screens presented over it, the last
// one on show.
class PresentationStack : public QStackedWidget {
    Q_OBJECT

public:
    explicit PresentationStack(QWidget* parent = nullptr);
    ~PresentationStack() override;

    void setRoot(QWidget* screen);
    void present(QWidget* screen, bool animated);
    void dismiss(bool animated);
    QWidget* top() const { return currentWidget(); }
    // 1 while only the root is shown.
    int depth() const { return count(); }

signals:
    void topChanged();

private:
    QPixmap pictureOf(QWidget* screen, bool animated) const;
    void flip(const QPixmap& before, bool forward);

    QPointer<FlipTransition> transition_;
};

}  // namespace kavenda
