#pragma once

#include <QAccessibleWidget>

namespace kavenda {

class ToggleSwitch;

// The switch for screen readers: a check box, checked while on, named by its accessible name
// or else by the label of its row (the label whose buddy it is).
class ToggleSwitchAccessible : public QAccessibleWidget {
public:
    explicit ToggleSwitchAccessible(ToggleSwitch* toggle);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    ToggleSwitch* toggle() const;
};

}  // namespace kavenda
