#pragma once

#include <QAccessibleWidget>

namespace kavenda {

class DayButton;

// A day for screen readers: a check box, checked while the day is picked, whose toggle picks
// the day as a tap does (Qt's own toggle would check the button and tell no one).
class DayButtonAccessible : public QAccessibleWidget {
public:
    explicit DayButtonAccessible(DayButton* button);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    DayButton* button() const;
};

}  // namespace kavenda
