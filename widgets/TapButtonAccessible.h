#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

namespace kavenda {

// A button for screen readers as Qt's own button interface presents it (a check box while
// checkable, named by its accessible name, its text or its label), except that pressing or
// toggling it is a tap: the button clicks, slides and tells whoever listens. Qt's interface
// toggles without a click and is not exported for reuse.
class TapButtonAccessible : public QAccessibleWidget {
public:
    explicit TapButtonAccessible(QAbstractButton* button);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    QAbstractButton* button() const;
};

}  // namespace kavenda
