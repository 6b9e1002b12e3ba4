#include "widgets/TabBarController.h"

#include "widgets/TabBarButton.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace kavenda {

namespace {

constexpr int iconSize = 26;

const char* const barStyle = R"(
#tabBar { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #3a3a3a, stop:1 #141414); }
#tabBar QToolButton { color: #9a9a9a; border: none; border-radius: 4px; margin: 2px; font-size: 10px; }
#tabBar QToolButton:checked { color: white; background: rgba(255, 255, 255, 36); }
#tabBar QToolButton:disabled { color: #555555; }
)";

}  // namespace

TabBarController::TabBarController(QWidget* parent)
    : QWidget(parent), pages_(new QStackedWidget(this)), bar_(new QWidget(this)), barLayout_(new QHBoxLayout(bar_)),
      group_(new QButtonGroup(this))
{
    bar_->setObjectName(QStringLiteral("tabBar"));
    bar_->setAttribute(Qt::WA_StyledBackground);
    bar_->setStyleSheet(QString::fromLatin1(barStyle));
    bar_->setFixedHeight(barHeight);
    barLayout_->setContentsMargins(0, 0, 0, 0);
    barLayout_->setSpacing(0);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pages_, 1);
    layout->addWidget(bar_);
    group_->setExclusive(true);
    connect(group_, &QButtonGroup::idClicked, this, &TabBarController::setCurrentIndex);
}

int TabBarController::addTab(QWidget* page, const QString& title, const QIcon& icon)
{
    const int index = pages_->addWidget(page);
    auto* button = new TabBarButton(bar_);
    button->setText(title);
    button->setIcon(icon);
    button->setIconSize(QSize(iconSize, iconSize));
    button->setToolButtonStyle(icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextUnderIcon);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setChecked(index == pages_->currentIndex());
    group_->addButton(button, index);
    barLayout_->addWidget(button);
    buttons_.append(button);
    return index;
}

void TabBarController::setTabEnabled(int index, bool enabled)
{
    if (QToolButton* button = tabButton(index))
        button->setEnabled(enabled);
}

bool TabBarController::isTabEnabled(int index) const
{
    const QToolButton* button = tabButton(index);
    return button && button->isEnabled();
}

void TabBarController::setCurrentIndex(int index)
{
    if (index < 0 || index >= count() || index == currentIndex())
        return;
    pages_->setCurrentIndex(index);
    buttons_[index]->setChecked(true);
    emit currentChanged(index);
}

int TabBarController::currentIndex() const
{
    return pages_->currentIndex();
}

int TabBarController::count() const
{
    return pages_->count();
}

QWidget* TabBarController::page(int index) const
{
    return pages_->widget(index);
}

void TabBarController::setTabBarHidden(bool hidden)
{
    bar_->setHidden(hidden);
}

bool TabBarController::isTabBarHidden() const
{
    return bar_->isHidden();
}

QToolButton* TabBarController::tabButton(int index) const
{
    return index >= 0 && index < buttons_.size() ? buttons_[index] : nullptr;
}

}  // namespace kavenda
