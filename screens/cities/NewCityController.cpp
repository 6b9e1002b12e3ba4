// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/NewCityController.h"

#include "screens/cities/CitiesTexts.h"
#include "screens/cities/CitySearch.h"
#include "screens/cities/SearchController.h"
#include "text/Utility.h"
#include "ui_NewCityController.h"
#include "widgets/FineSlider.h"
#include "widgets/NavigationStack.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QShowEvent>
#include <QStyle>

namespace kavenda {

namespace {

constexpr int rowHeight = 44;
constexpr int sectionX = 10;
constexpr int sectionWidth = 300;
constexpr int nameSectionY = 10;
constexpr int headerY = nameSectionY + 2 * rowHeight;
constexpr int headerHeight = 30;
constexpr int offsetSectionY = headerY + headerHeight;
constexpr int contentHeight = offsetSectionY + NewCityController::offsetCount * rowHeight + 10;
constexpr int labelWidth = 95;

// The offsets' captions shrink to fit the longest.
constexpr int captionPixels[NewCityController::offsetCount] = {17, 16, 17, 16, 17, 12};

// Frames are given in a row the screen's width from its leading edge (the section's box is
// inset within it); right to left they are mirrored, as the lists are.
void place(QWidget* widget, int x, int y, int width, int height)
{
    const QWidget* parent = widget->parentWidget();
    widget->setGeometry(QStyle::visualRect(parent->layoutDirection(), parent->rect(), QRect(x, y, width, height)));
}

// The white rounded box of a table section, behind its rows, with a line between rows.
void addSection(QWidget* content, int y, int rows)
{
    auto* box = new QFrame(content);
    box->setObjectName(QStringLiteral("section"));
    place(box, sectionX, y, sectionWidth, rows * rowHeight);
    for (int row = 1; row < rows; ++row) {
        auto* line = new QFrame(content);
        line->setObjectName(QStringLiteral("separator"));
        place(line, sectionX + 10, y + row * rowHeight, sectionWidth - 10, 1);
    }
}

// A row's caption at its leading end.
QLabel* addCaption(QWidget* parent, const QString& text, int x, int y, int height)
{
    auto* label = new QLabel(text, parent);
    place(label, x, y, labelWidth, height);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QFont pixelFont(const QFont& base, int size, bool bold)
{
    QFont font = base;
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

}  // namespace

NewCityController::NewCityController(MyDB& db, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::NewCityController>()), draft_(db), db_(db),
      btnSave_(new QPushButton(texts::cities::save, this)), btnBack_(new QPushButton(texts::cities::back, this))
{
    ui_->setupUi(this);
    setWindowTitle(texts::cities::newCityTitle);
    btnSave_->setObjectName(QStringLiteral("btnSave"));
    btnBack_->setObjectName(QStringLiteral("btnBack"));
    ui_->failureLine->hide();

    QWidget* content = ui_->tblContent;
    content->setFixedSize(sectionX * 2 + sectionWidth, contentHeight);
    buildNameSection(content);
    buildOffsetSection(content);

    btnSave_->setDefault(true);
    btnSave_->hide();
    btnBack_->hide();
    connect(btnSave_, &QPushButton::clicked, this, &NewCityController::save);
    connect(btnBack_, &QPushButton::clicked, this, &NewCityController::back);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &NewCityController::back);

    reloadData();
    validate();
}

NewCityController::~NewCityController() = default;

QString NewCityController::offsetLabel(int index)
{
    return texts::cities::offsetCaptions[index];
}

QString NewCityController::headerTitle()
{
    return texts::cities::offsetsHeader;
}

QScrollArea* NewCityController::tbl() const
{
    return ui_->tbl;
}

void NewCityController::buildNameSection(QWidget* content)
{
    addSection(content, nameSectionY, 2);
    QLabel* nameCaption = addCaption(content, texts::cities::cityName, sectionX + 10, nameSectionY, rowHeight);
    nameField_ = new QLineEdit(content);
    nameField_->setObjectName(QStringLiteral("nameField"));
    place(nameField_, 110, nameSectionY + 10, 185, 30);
    nameField_->setPlaceholderText(texts::cities::unnamed);
    // A screen reader names the field by its caption.
    nameCaption->setBuddy(nameField_);
    nameField_->setFrame(false);
    nameField_->setStyleSheet(QStringLiteral("color: black; background: transparent;"));
    nameField_->installEventFilter(this);
    connect(nameField_, &QLineEdit::textEdited, this, [this] { editingField_ = true; });
    // Return and leaving the field both commit the name.
    connect(nameField_, &QLineEdit::editingFinished, this, &NewCityController::commitName);

    provinceRow_ = new QPushButton(content);
    provinceRow_->setObjectName(QStringLiteral("provinceRow"));
    place(provinceRow_, sectionX, nameSectionY + rowHeight, sectionWidth, rowHeight);
    provinceRow_->setFlat(true);
    provinceRow_->setStyleSheet(QStringLiteral("QPushButton { border: none; background: transparent; }"
                                               "QPushButton:pressed { background: #d0dcee; }"));
    provinceRow_->setAccessibleName(addCaption(provinceRow_, texts::cities::province, 10, 0, rowHeight)->text());
    provinceValue_ = new QLabel(provinceRow_);
    provinceValue_->setObjectName(QStringLiteral("provinceValue"));
    place(provinceValue_, 110, 0, 160, rowHeight);
    provinceValue_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    provinceValue_->setStyleSheet(QStringLiteral("color: #385487;"));
    provinceValue_->setAttribute(Qt::WA_TransparentForMouseEvents);
    // Onwards is to the left in the right-to-left screens.
    auto* disclosure = new QLabel(QStringLiteral("\u2039"), provinceRow_);
    place(disclosure, sectionWidth - 22, 0, 14, rowHeight);
    disclosure->setStyleSheet(QStringLiteral("color: #a0a0a0; font-size: 20px;"));
    disclosure->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(provinceRow_, &QPushButton::clicked, this, &NewCityController::pickProvince);
}

void NewCityController::buildOffsetSection(QWidget* content)
{
    sectionHeader_ = new QLabel(headerTitle(), content);
    sectionHeader_->setObjectName(QStringLiteral("sectionHeader"));
    place(sectionHeader_, sectionX + 10, headerY, sectionWidth - 20, headerHeight);
    sectionHeader_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    sectionHeader_->setFont(pixelFont(font(), 14, true));

    addSection(content, offsetSectionY, offsetCount);
    for (int i = 0; i < offsetCount; ++i) {
        const int y = offsetSectionY + i * rowHeight;
        QLabel* caption = addCaption(content, offsetLabel(i), sectionX + 10, y, rowHeight);
        caption->setFont(pixelFont(font(), captionPixels[i], true));
        rowLabels_[static_cast<std::size_t>(i)] = caption;

        auto* value = new QLabel(content);
        place(value, 286, y + 15, 22, 15);
        value->setFont(pixelFont(font(), 15, false));
        value->setAlignment(Qt::AlignCenter);
        // The sign stays before the digits: "-٣", not "٣-".
        value->setLayoutDirection(Qt::LeftToRight);
        valueLabels_[static_cast<std::size_t>(i)] = value;

        auto* slider =
            new FineSlider(NewCityDraft::minimumOffset, NewCityDraft::maximumOffset, &NewCityDraft::offsetAt, content);
        place(slider, 110, y + 13, 170, 23);
        slider->setAccessibleName(offsetLabel(i));
        sliders_[static_cast<std::size_t>(i)] = slider;
        connect(slider, &QSlider::valueChanged, this, [this, i] { sliderChanged(i); });
    }
}

void NewCityController::reloadData()
{
    nameField_->setText(QString::fromStdString(draft_.cityName()));
    const QString province = QString::fromStdString(draft_.provinceName());
    provinceValue_->setText(province);
    provinceRow_->setAccessibleDescription(province);
    for (int i = 0; i < offsetCount; ++i) {
        FineSlider* slider = sliders_[static_cast<std::size_t>(i)];
        const QSignalBlocker quiet(slider);
        slider->setPosition(draft_.difArray()[static_cast<std::size_t>(i)]);
        showOffset(i);
    }
}

void NewCityController::showOffset(int index)
{
    const int minutes = draft_.difArray()[static_cast<std::size_t>(index)];
    valueLabels_[static_cast<std::size_t>(index)]->setText(
        QString::fromStdString(Utility::ConvertToPersian(std::to_string(minutes))));
}

void NewCityController::validate()
{
    if (btnSave_)
        btnSave_->setEnabled(draft_.validate());
}

void NewCityController::commitName()
{
    nameField_->clearFocus();
    draft_.commitName(nameField_->text().toStdString());
    validate();
}

void NewCityController::dismissKeyboard()
{
    if (editingField_)
        commitName();
    validate();
}

void NewCityController::sliderChanged(int index)
{
    dismissKeyboard();
    draft_.setOffset(index, sliders_[static_cast<std::size_t>(index)]->position());
    showOffset(index);
}

void NewCityController::pickProvince()
{
    NavigationStack* navigation = NavigationStack::of(this);
    if (!navigation || navigation->top() != this)
        return;
    auto* search = new SearchController(db_, CitySearch::provinceMode);
    search->setDelegate(this);
    dismissKeyboard();
    navigation->push(search, true);
    navigation->setNavigationBarHidden(true, true);
}

void NewCityController::setProvince(int provinceId, const std::string& provinceName)
{
    draft_.setProvince(provinceId, provinceName);
    reloadData();
    validate();
}

void NewCityController::closeForm()
{
    if (NavigationStack* navigation = NavigationStack::of(this)) {
        navigation->pop(true);
        navigation->setNavigationBarHidden(false, true);
    }
}

void NewCityController::save()
{
    if (!draft_.validate())
        return;
    if (!draft_.save()) {
        ui_->failureLine->setText(texts::cities::cityNotSaved);
        ui_->failureLine->show();
        return;
    }
    back();
}

void NewCityController::back()
{
    NavigationStack* navigation = NavigationStack::of(this);
    if (navigation && navigation->top() == this)
        navigation->pop(true);
}

void NewCityController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    NavigationStack* navigation = NavigationStack::of(this);
    if (event->spontaneous() || !navigation || barButtonsShown_)
        return;
    barButtonsShown_ = true;
    navigation->setBarButtons(this, btnBack_, btnSave_);
    navigation->setNavigationBarHidden(false, true);
}

bool NewCityController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == nameField_ && event->type() == QEvent::FocusIn)
        editingField_ = true;
    return QWidget::eventFilter(watched, event);
}

}  // namespace kavenda
