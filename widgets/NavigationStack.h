// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <functional>

class QAbstractButton;
class QStackedWidget;
class QVariantAnimation;

namespace kavenda {

class NavigationBar;

// A navigation bar over a stack of screens; the bar shows the top screen's title and buttons.
class NavigationStack : public QWidget {
    Q_OBJECT

public:
    explicit NavigationStack(QWidget* parent = nullptr);
    ~NavigationStack() override;

    // The stack a screen sits in, or null.
    static NavigationStack* of(const QWidget* screen);

    void push(QWidget* screen, bool animated);
    // The root screen stays.
    void pop(bool animated);
    QWidget* top() const;
    int count() const;

    void setNavigationBarHidden(bool hidden, bool animated);
    bool isNavigationBarHidden() const;
    // The stack owns the buttons; they show while `screen` is on top.
    void setBarButtons(QWidget* screen, QAbstractButton* left, QAbstractButton* right);
    QString title() const;

signals:
    void topChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct BarButtons {
        QPointer<QAbstractButton> left;
        QPointer<QAbstractButton> right;
    };

    void forget(QWidget* screen);
    void showTop();
    void layoutContent();
    // Shows a screen that is no longer the stack's top while it slides.
    void slide(QWidget* screen, int fromX, int toX, std::function<void()> done);
    bool animates(bool animated) const;

    NavigationBar* bar_;
    QStackedWidget* content_;
    QHash<QWidget*, BarButtons> buttons_;
    bool barHidden_ = false;
    int barHeight_;
    QPointer<QVariantAnimation> barAnimation_;
};

}  // namespace kavenda
