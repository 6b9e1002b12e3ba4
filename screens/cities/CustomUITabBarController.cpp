#include "screens/cities/CustomUITabBarController.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTabBar>

namespace kavenda {

namespace {

const char* const barStyle = R"(
QTabWidget::pane { border: none; }
QTabBar { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #3a3a3a, stop:1 #141414); }
QTabBar::tab { color: #9a9a9a; background: transparent; border: none; border-radius: 4px; margin: 2px;
               width: 60px; height: 45px; font-size: 10px; }
QTabBar::tab:selected { color: white; background: rgba(255, 255, 255, 36); }
QTabBar::tab:disabled { color: #555555; }
)";

}  // namespace

CustomUITabBarController::CustomUITabBarController(QWidget* parent) : QTabWidget(parent)
{
    setTabPosition(QTabWidget::South);
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(true);
    tabBar()->setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QString::fromLatin1(barStyle));
    // A screen reader's press reaches a disabled tab too; it is refused as a click is.
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (index < 0 || isTabEnabled(index))
            shownTab_ = index;
        else
            setCurrentIndex(shownTab_);
    });
}

void CustomUITabBarController::setPreferencesEnabled(bool enabled)
{
    for (int tab = firstPreferenceTab; tab <= lastPreferenceTab && tab < count(); ++tab)
        setTabEnabled(tab, enabled);
}

void CustomUITabBarController::setTabBarHidden(bool hidden)
{
    tabBar()->setHidden(hidden);
    // The pages take the bar's room now, not at the next turn of the event loop.
    QEvent relayout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &relayout);
}

bool CustomUITabBarController::isTabBarHidden() const
{
    return tabBar()->isHidden();
}

}  // namespace kavenda
