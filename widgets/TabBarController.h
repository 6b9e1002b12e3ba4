#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

class QButtonGroup;
class QHBoxLayout;
class QStackedWidget;
class QToolButton;

namespace kavenda {

// Pages over a bar of tabs at the bottom; a disabled tab cannot be chosen by the user.
class TabBarController : public QWidget {
    Q_OBJECT

public:
    static constexpr int barHeight = 49;

    explicit TabBarController(QWidget* parent = nullptr);

    int addTab(QWidget* page, const QString& title, const QIcon& icon = {});
    void setTabEnabled(int index, bool enabled);
    bool isTabEnabled(int index) const;
    void setCurrentIndex(int index);
    int currentIndex() const;
    int count() const;
    QWidget* page(int index) const;
    void setTabBarHidden(bool hidden);
    bool isTabBarHidden() const;
    // The button of a tab, for tests that press it as a user would.
    QToolButton* tabButton(int index) const;

signals:
    void currentChanged(int index);

private:
    QStackedWidget* pages_;
    QWidget* bar_;
    QHBoxLayout* barLayout_;
    QButtonGroup* group_;
    QList<QToolButton*> buttons_;
};

}  // namespace kavenda
