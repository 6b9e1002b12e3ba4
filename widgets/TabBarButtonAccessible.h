#pragma once

#include <QAccessibleWidget>

namespace kavenda {

class TabBarButton;

// A tab for screen readers: a page tab named by its title, selected while its page shows.
class TabBarButtonAccessible : public QAccessibleWidget {
public:
    explicit TabBarButtonAccessible(TabBarButton* button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    TabBarButton* button() const;
};

}  // namespace kavenda
