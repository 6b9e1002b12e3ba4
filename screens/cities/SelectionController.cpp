// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/SelectionController.h"

#include "platform/UrlOpener.h"
#include "screens/WriteFailureLine.h"
#include "screens/cities/CitiesTexts.h"
#include "screens/cities/CitySearch.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/EditableCityList.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/RoundedCorners.h"
#include "screens/cities/SearchController.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ListRowsAccessible.h"
#include "widgets/NavigationStack.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>

#include <utility>

namespace kavenda {

namespace {

constexpr int cornerRadius = 7;
constexpr int listWidth = 312;
// The list's content is narrower than its holder: the holder's scroll bar takes the rest.
constexpr int scrollContentWidth = 300;
constexpr int minimumListHeight = ChosenCities::minimumRows * EditableCityList::rowHeight;
constexpr int listX = 4;
constexpr int listY = 5;
constexpr int createRowY = 319;
constexpr int createRowHeight = 43;

// A slim bar in the strip beside the list's content, over the same white as the rows.
const char* const scrollerStyle = R"(
QScrollArea, QScrollArea > QWidget > QWidget { background: white; }
QScrollBar:vertical { width: 12px; background: white; margin: 0; }
QScrollBar::handle:vertical { background: rgba(0, 0, 0, 90); border-radius: 3px; min-height: 24px; margin: 2px 3px; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }
QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }
)";

// The nearest enclosing widget of a kind: the stack and the tab bar this screen sits in.
template <typename Container> Container* enclosing(const QWidget* widget)
{
    for (QWidget* up = widget->parentWidget(); up; up = up->parentWidget())
        if (auto* found = qobject_cast<Container*>(up))
            return found;
    return nullptr;
}

// The single row "create new city" with the disclosure indicator at its trailing end.
QListWidget* makeCreateRow(QWidget* parent)
{
    auto* table = new QListWidget(parent);
    table->setGeometry(listX, createRowY, listWidth, createRowHeight);
    table->setFrameShape(QFrame::NoFrame);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setFocusPolicy(Qt::TabFocus);
    table->setStyleSheet(QStringLiteral("activate-on-singleclick: 1;"));
    auto* item = new QListWidgetItem(table);
    item->setSizeHint(QSize(listWidth, createRowHeight));
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(14, 0, 12, 0);
    const QString& text = texts::cities::createCity;
    item->setData(Qt::AccessibleTextRole, text);
    table->setAccessibleName(text);
    layout->addWidget(new QLabel(text, row));
    layout->addStretch();
    auto* disclosure = new QLabel(row);
    // Onwards is to the left in the right-to-left screens.
    disclosure->setText(QStringLiteral("\u2039"));
    disclosure->setStyleSheet("color: #a0a0a0; font-size: 20px;");
    layout->addWidget(disclosure);
    table->setItemWidget(item, row);
    roundCorners(table, cornerRadius);
    return table;
}

}  // namespace

SelectionController::SelectionController(MyDB& db, std::function<void()> rebuildReminders, UrlOpener* urls,
                                         QWidget* parent)
    : QWidget(parent), db_(db), urls_(urls), cities_(db, std::move(rebuildReminders)),
      tblScrollView_(new QScrollArea(this)), listHolder_(new QWidget), tbl_(new EditableCityList(listHolder_)),
      btnSearch_(new QPushButton(texts::cities::search, this)), btnDone_(new QPushButton(texts::cities::done, this))
{
    installAccessibleInterface<QListWidget, ListRowsAccessible>();
    setWindowTitle(texts::cities::citiesTitle);
    btnSearch_->setObjectName(QStringLiteral("btnSearch"));
    btnDone_->setObjectName(QStringLiteral("btnDone"));
    setAutoFillBackground(true);
    QPalette page = palette();
    page.setColor(QPalette::Window, QColor(0xd6, 0xda, 0xe2));
    setPalette(page);

    tblScrollView_->setGeometry(listX, listY, listWidth, minimumListHeight);
    tblScrollView_->setFrameShape(QFrame::NoFrame);
    // The holder only scrolls the list; the list takes the keyboard.
    tblScrollView_->setFocusPolicy(Qt::NoFocus);
    tblScrollView_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tblScrollView_->setStyleSheet(QString::fromLatin1(scrollerStyle));
    tblScrollView_->setWidget(listHolder_);
    tbl_->setAccessibleName(texts::cities::chosenCities);
    tblScrollView_->setAccessibleName(tbl_->accessibleName());
    roundCorners(tblScrollView_, cornerRadius);

    createNewCityTable_ = makeCreateRow(this);
    createNewCityTable_->setObjectName(QStringLiteral("createNewCityTable"));
    connect(createNewCityTable_, &QListWidget::activated, this, &SelectionController::NewCityControllerShow);

    btnSearch_->hide();
    btnDone_->hide();
    btnDone_->setDefault(true);
    connect(btnSearch_, &QPushButton::clicked, this, &SelectionController::SearchControllerShow);
    connect(btnDone_, &QPushButton::clicked, this, &SelectionController::Done);
    connect(tbl_, &EditableCityList::deleteRequested, this, &SelectionController::remove);
    connect(tbl_, &EditableCityList::moveRequested, this, &SelectionController::move);
}

void SelectionController::updateDataSource()
{
    cities_.updateDataSource();
    showCities();
}

void SelectionController::showCities()
{
    tbl_->setCities(cities_);
    if (btnDone_)
        btnDone_->setEnabled(cities_.canFinish());
    if (auto* tabs = tabBarController())
        tabs->setPreferencesEnabled(cities_.preferencesEnabled());
    // The holder is always a point taller than the list; a bar shows only when rows are hidden.
    const int listHeight = cities_.shownRows() * EditableCityList::rowHeight;
    tblScrollView_->setVerticalScrollBarPolicy(listHeight > minimumListHeight ? Qt::ScrollBarAsNeeded
                                                                              : Qt::ScrollBarAlwaysOff);
    tbl_->setGeometry(0, 0, scrollContentWidth, listHeight);
    listHolder_->resize(scrollContentWidth, listHeight + 1);
    // The rows are laid out now, not at the next turn of the event loop: a flip that brings
    // this screen in takes its picture before then.
    tbl_->doItemsLayout();
}

void SelectionController::remove(int row)
{
    const bool written = cities_.remove(row);
    showCities();
    showWriteResult(this, written);
}

void SelectionController::move(int from, int to)
{
    const bool written = cities_.move(from, to);
    tbl_->setCities(cities_);
    showWriteResult(this, written);
}

// Refused while no city is chosen, as the button is, and while a tab keeps unsaved changes.
void SelectionController::Done()
{
    CustomUITabBarController* tabs = tabBarController();
    if (!cities_.canFinish() || (tabs && !tabs->mayLeave(tabs->currentIndex())))
        return;
    cities_.Done(delegate_);
}

void SelectionController::ShowWebSite()
{
    if (urls_)
        urls_->open(KAVENDA_HOMEPAGE);
}

void SelectionController::SearchControllerShow()
{
    NavigationStack* navigation = navigationStack();
    if (!navigation || navigation->top() != this)
        return;
    auto* search = new SearchController(db_, CitySearch::cityMode);
    search->setDelegate(this);
    if (auto* tabs = tabBarController())
        tabs->setTabBarHidden(true);
    navigation->push(search, true);
    navigation->setNavigationBarHidden(true, true);
}

void SelectionController::NewCityControllerShow()
{
    createNewCityTable_->clearSelection();
    NavigationStack* navigation = navigationStack();
    if (!navigation || navigation->top() != this)
        return;
    if (auto* tabs = tabBarController())
        tabs->setTabBarHidden(true);
    navigation->push(new NewCityController(db_), true);
}

void SelectionController::closeForm()
{
    if (NavigationStack* navigation = navigationStack()) {
        navigation->pop(true);
        navigation->setNavigationBarHidden(false, true);
    }
    if (auto* tabs = tabBarController())
        tabs->setTabBarHidden(false);
    updateDataSource();
}

void SelectionController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        appear();
}

void SelectionController::appear()
{
    const bool openSearch = cities_.appear();
    NavigationStack* navigation = navigationStack();
    if (navigation && !barButtonsShown_) {
        navigation->setBarButtons(this, btnSearch_, btnDone_);
        barButtonsShown_ = true;
    }
    showCities();
    if (auto* tabs = tabBarController()) {
        delegate_ = tabs->parentDelegate();
        connect(tabs, &CustomUITabBarController::closeRequested, this, &SelectionController::Done,
                Qt::UniqueConnection);
        // Back from the new-city editor, which has the whole height.
        tabs->setTabBarHidden(false);
    }
    // Once the appearance is complete: a push from inside a show event would change the
    // stack while it is still showing this screen.
    if (openSearch)
        QMetaObject::invokeMethod(this, &SelectionController::SearchControllerShow, Qt::QueuedConnection);
}

NavigationStack* SelectionController::navigationStack() const
{
    return enclosing<NavigationStack>(this);
}

CustomUITabBarController* SelectionController::tabBarController() const
{
    return enclosing<CustomUITabBarController>(this);
}

}  // namespace kavenda
