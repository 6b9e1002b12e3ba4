// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/CustomUITabBarController.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QTabBar>

namespace kavenda {

namespace {

const char* const barStyle = R"(
QTabWidget::pane { border: none; }
QTabBar { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #3a3a3a, stop:1 #141414); }
QTabBar::tab { color: #d0d0d0; background: transparent; border: none; border-radius: 4px; margin: 2px;
               width: 60px; height: 45px; }
QTabBar::tab:selected { color: white; background: rgba(255, 255, 255, 36); }
QTabBar::tab:disabled { color: #8a8a8a; }
)";

}  // namespace

CustomUITabBarController::CustomUITabBarController(QWidget* parent) : QTabWidget(parent)
{
    setTabPosition(QTabWidget::South);
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(true);
    tabBar()->setAttribute(Qt::WA_StyledBackground);
    // Never smaller than the desktop's smallest readable text.
    QFont labels = tabBar()->font();
    const QFont smallest = QFontDatabase::systemFont(QFontDatabase::SmallestReadableFont);
    if (labels.pointSizeF() > 0 && smallest.pointSizeF() > labels.pointSizeF())
        labels.setPointSizeF(smallest.pointSizeF());
    tabBar()->setFont(labels);
    setStyleSheet(QString::fromLatin1(barStyle));
    // A screen reader's press reaches a disabled tab too; it is refused as a click is. A tab
    // with unsaved changes is left only once the person has answered for them.
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (index == shownTab_)
            return;
        if (index < 0 || (isTabEnabled(index) && mayLeave(shownTab_)))
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
    // The bar is the tab widget's focus proxy: a Tab stop at a hidden bar keeps the focus
    // where it was, and the last control of the screen would hold it for good.
    setFocusPolicy(hidden ? Qt::NoFocus : Qt::TabFocus);
    // The pages take the bar's room now, not at the next turn of the event loop.
    QEvent relayout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &relayout);
}

void CustomUITabBarController::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        emit closeRequested();
    else
        QTabWidget::keyPressEvent(event);
}

bool CustomUITabBarController::isTabBarHidden() const
{
    return tabBar()->isHidden();
}

}  // namespace kavenda
