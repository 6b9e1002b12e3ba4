// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "screens/cities/NewCityDraft.h"
#include "screens/cities/SearchControllerDelegate.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <memory>

class QLabel;
class QLineEdit;
class QScrollArea;

namespace Ui {
class NewCityController;
}

namespace kavenda {

class MyDB;
class NavigationStack;
class FineSlider;

// Defines a city the database lacks: a name, its province (picked through the search) and
// six offsets in minutes from the province centre's times; Save adds it to the chosen cities.
class NewCityController : public QWidget, public SearchControllerDelegate {
    Q_OBJECT

public:
    static constexpr int offsetCount = NewCityDraft::offsetCount;

    explicit NewCityController(MyDB& db, QWidget* parent = nullptr);
    ~NewCityController() override;

    static QString offsetLabel(int index);
    static QString headerTitle();

    QScrollArea* tbl() const;
    QLabel* sectionHeader() const { return sectionHeader_; }
    FineSlider* slider(int index) const { return sliders_[static_cast<std::size_t>(index)]; }
    QLabel* rowLabel(int index) const { return rowLabels_[static_cast<std::size_t>(index)]; }

    // Shows every value from the draft again.
    void reloadData();
    void validate();
    // Takes the name in the field once the field has been edited.
    void dismissKeyboard();
    void save();

    void setProvince(int provinceId, const std::string& provinceName) override;
    void closeForm() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildNameSection(QWidget* content);
    void buildOffsetSection(QWidget* content);
    void commitName();
    void sliderChanged(int index);
    void showOffset(int index);
    void pickProvince();
    void back();

    std::unique_ptr<Ui::NewCityController> ui_;
    NewCityDraft draft_;
    MyDB& db_;
    QLineEdit* nameField_ = nullptr;
    QPushButton* provinceRow_ = nullptr;
    QLabel* provinceValue_ = nullptr;
    QLabel* sectionHeader_ = nullptr;
    std::array<QLabel*, offsetCount> rowLabels_{};
    std::array<FineSlider*, offsetCount> sliders_{};
    std::array<QLabel*, offsetCount> valueLabels_{};
    // Owned by the navigation stack once shown in its bar.
    QPointer<QPushButton> btnSave_;
    QPointer<QPushButton> btnBack_;
    bool editingField_ = false;
    bool barButtonsShown_ = false;
};

}  // namespace kavenda
