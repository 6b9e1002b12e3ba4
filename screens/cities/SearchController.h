// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/cities/CitySearch.h"

#include <QWidget>

#include <memory>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace Ui {
class SearchController;
}

namespace kavenda {

class MyDB;
class SearchControllerDelegate;

// Finds a city (city mode) or a province (province mode) by part of its name while the user
// types, and hands the pick to the screen that opened it.
class SearchController : public QWidget {
    Q_OBJECT

public:
    explicit SearchController(MyDB& db, int typeID = CitySearch::cityMode, QWidget* parent = nullptr);
    ~SearchController() override;

    SearchControllerDelegate* delegate() const { return delegate_; }
    void setDelegate(SearchControllerDelegate* delegate) { delegate_ = delegate; }

    void updateDataSource(const QString& text);
    const CitySearch& search() const { return search_; }

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void textDidChange(const QString& text);
    void showCandidates();
    void pick(int row);
    void cancel();

    std::unique_ptr<Ui::SearchController> ui_;
    CitySearch search_;
    SearchControllerDelegate* delegate_ = nullptr;
};

}  // namespace kavenda
