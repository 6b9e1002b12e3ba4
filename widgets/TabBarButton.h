#pragma once

#include <QToolButton>

namespace kavenda {

// One tab of a tab bar: a checkable button that a screen reader finds as a page tab.
class TabBarButton : public QToolButton {
    Q_OBJECT

public:
    explicit TabBarButton(QWidget* parent = nullptr);
};

}  // namespace kavenda
