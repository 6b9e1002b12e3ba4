// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/cities/ChosenCities.h"
#include "screens/cities/SearchControllerDelegate.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <functional>

class QListWidget;
class QScrollArea;

namespace kavenda {

class CustomUITabBarController;
class EditableCityList;
class MyDB;
class NavigationStack;
class SelectionControllerDelegate;
class UrlOpener;

// The chosen cities, always editable: remove, reorder, add through the search, and Done.
class SelectionController : public QWidget, public SearchControllerDelegate {
    Q_OBJECT

public:
    SelectionController(MyDB& db, std::function<void()> rebuildReminders, UrlOpener* urls = nullptr,
                        QWidget* parent = nullptr);

    void updateDataSource();
    void Done();
    void SearchControllerShow();
    // Opens the editor of a city the database lacks.
    void NewCityControllerShow();
    // The search is over.
    void closeForm() override;

public slots:
    // Opens the maker's web site in the desktop's browser; a control of a layout connects to it.
    void ShowWebSite();

public:
    const ChosenCities& cities() const { return cities_; }
    EditableCityList* tbl() const { return tbl_; }
    QScrollArea* tblScrollView() const { return tblScrollView_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void appear();
    void showCities();
    void remove(int row);
    void move(int from, int to);
    NavigationStack* navigationStack() const;
    CustomUITabBarController* tabBarController() const;

    MyDB& db_;
    UrlOpener* urls_;
    ChosenCities cities_;
    QScrollArea* tblScrollView_;
    QWidget* listHolder_;
    EditableCityList* tbl_;
    QListWidget* createNewCityTable_;
    // Owned by the navigation stack once shown in its bar.
    QPointer<QPushButton> btnSearch_;
    QPointer<QPushButton> btnDone_;
    bool barButtonsShown_ = false;
    SelectionControllerDelegate* delegate_ = nullptr;
};

}  // namespace kavenda
