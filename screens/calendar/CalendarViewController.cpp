// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/CalendarViewController.h"

#include "screens/calendar/CalendarViewControllerDelegate.h"
#include "screens/calendar/DayButton.h"
#include "ui_CalendarViewController.h"
#include "widgets/Animations.h"
#include "widgets/PresentationStack.h"
#include "widgets/ResourcePixmap.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPalette>
#include <QVariantAnimation>

#include <algorithm>

namespace kavenda {

namespace {

constexpr int slideMilliseconds = 350;
constexpr int tableFontPixels = 15;
constexpr int tableRowHeight = 17;
constexpr int week = 7;

// The grid runs right to left: Left goes on to the next day.
std::optional<int> gridStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return 1;
    case Qt::Key_Right:
        return -1;
    case Qt::Key_Up:
        return -week;
    case Qt::Key_Down:
        return week;
    default:
        return std::nullopt;
    }
}

}  // namespace

CalendarViewController::CalendarViewController(const DateTimePersian& date, const Services& services, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::CalendarViewController>()), resourceFolder_(services.resourceFolder),
      grid_(services.db, services.calendar, date, DateTimePersian::init(services.clock, services.calendar))
{
    ui_->setupUi(this);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0x1d, 0x35, 0x53));
    setPalette(colours);

    content_ = new QWidget(ui_->scrl);
    content_->setGeometry(0, 0, ui_->scrl->width(), 3 * ui_->scrl->height());
    const QList<QAbstractButton*> steps{ui_->previousButton, ui_->nextButton};
    for (QAbstractButton* step : steps)
        connect(step, &QAbstractButton::clicked, this, [this, step] { changeMonth(step->property("tag").toInt()); });
    connect(ui_->todayButton, &QPushButton::clicked, this, &CalendarViewController::showToday);
    connect(ui_->detailsButton, &QPushButton::clicked, this, &CalendarViewController::showDetails);

    apply(grid_.viewDidLoad());
    reloadData();
}

CalendarViewController::~CalendarViewController()
{
    if (slide_)
        slide_->stop();
}

std::map<int, DayButton*> CalendarViewController::dayButtons() const
{
    std::map<int, DayButton*> buttons;
    const auto shown = pageViews_.find(grid_.pages().back().id);
    if (shown != pageViews_.end())
        for (DayButton* button : shown->second->findChildren<DayButton*>())
            buttons[button->tag()] = button;
    return buttons;
}

void CalendarViewController::changeMonth(int step)
{
    if (const std::optional<MonthGrid::Switch> done = grid_.changeMonth(step)) {
        apply(*done);
        reloadData();
    }
}

void CalendarViewController::showEvents(int page, DayButton* button)
{
    grid_.showEvents({page, button->tag()});
    showSelection();
    reloadData();
    focusDay(button->tag(), focusedDay() != nullptr);
}

void CalendarViewController::showToday()
{
    if (const std::optional<MonthGrid::Switch> done = grid_.showToday()) {
        apply(*done);
        reloadData();
    }
}

void CalendarViewController::showDetails()
{
    const std::optional<DateTimePersian> date = grid_.showDetails();
    if (date && delegate_)
        delegate_->closeCalendar(*date, this);
}

void CalendarViewController::apply(const MonthGrid::Switch& done)
{
    ui_->monthLbl->setText(QString::fromStdString(grid_.title()));
    updateSteps();
    if (!done.built) {
        setOffset(slotY(MonthGrid::Slot::middle));
        showSelection();
        return;
    }
    QWidget* page = makePage(grid_.pages().back());
    page->move(0, slotY(done.slot));
    showSelection();
    if (!done.animated || !animationsEnabled()) {
        if (done.animated)
            scrollViewDidEndScrollingAnimation();
        else
            setOffset(slotY(MonthGrid::Slot::middle));
        return;
    }
    auto* slide = new QVariantAnimation(this);
    slide->setStartValue(slotY(MonthGrid::Slot::middle));
    slide->setEndValue(slotY(done.slot));
    slide->setDuration(slideMilliseconds);
    slide->setEasingCurve(QEasingCurve::InOutCubic);
    connect(slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& y) { setOffset(y.toInt()); });
    connect(slide, &QAbstractAnimation::finished, this, &CalendarViewController::scrollViewDidEndScrollingAnimation);
    slide_ = slide;
    slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void CalendarViewController::scrollViewDidEndScrollingAnimation()
{
    grid_.scrollViewDidEndScrollingAnimation();
    const int kept = grid_.pages().front().id;
    for (auto view = pageViews_.begin(); view != pageViews_.end();) {
        if (view->first == kept) {
            view->second->move(0, slotY(MonthGrid::Slot::middle));
            ++view;
        } else {
            // Hidden at once, so that nothing on it keeps a place in the focus chain.
            view->second->hide();
            view->second->deleteLater();
            view = pageViews_.erase(view);
        }
    }
    setOffset(slotY(MonthGrid::Slot::middle));
}

QWidget* CalendarViewController::makePage(const MonthPage& page)
{
    auto* view = new QLabel(content_);
    view->setObjectName(QStringLiteral("monthPage"));
    view->setPixmap(resourcePixmap(resourceFolder_ / "calendarBG.png"));
    view->resize(ui_->scrl->size());
    // The grid's stop comes after the arrows and before the buttons under the table.
    QWidget* before = ui_->nextButton;
    for (const DayCell& cell : page.cells) {
        auto* button = new DayButton(cell, resourceFolder_, view);
        connect(button, &QAbstractButton::clicked, this, [this, id = page.id, button] { showEvents(id, button); });
        button->installEventFilter(this);
        // Qt leaves a widget that takes no focus out of the chain; focusDay() then narrows it.
        button->setFocusPolicy(Qt::TabFocus);
        setTabOrder(before, button);
        before = button;
    }
    view->show();
    pageViews_[page.id] = view;
    focusDay(stopDay(), false);
    return view;
}

// The buttons follow the grid's selection.
void CalendarViewController::showSelection()
{
    for (const MonthPage& page : grid_.pages()) {
        const auto view = pageViews_.find(page.id);
        if (view == pageViews_.end())
            continue;
        for (DayButton* button : view->second->findChildren<DayButton*>())
            if (const DayCell* cell = page.cell(button->tag()))
                button->setChecked(cell->selected);
    }
}

void CalendarViewController::reloadData()
{
    QListWidget* table = ui_->tblEvents;
    table->clear();
    QFont font = table->font();
    font.setPixelSize(tableFontPixels);
    for (int row = 0; row < grid_.numberOfRows(); ++row) {
        auto* item = new QListWidgetItem(QString::fromStdString(grid_.cellText(row)), table);
        // A long occasion is cut at the row's end; the whole text is a hover away.
        item->setToolTip(item->text());
        item->setFont(font);
        item->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        item->setSizeHint(QSize(0, tableRowHeight));
    }
}

void CalendarViewController::setOffset(int y)
{
    content_->move(0, -y);
}

int CalendarViewController::slotY(MonthGrid::Slot slot) const
{
    switch (slot) {
    case MonthGrid::Slot::top:
        return 0;
    case MonthGrid::Slot::middle:
        break;
    case MonthGrid::Slot::bottom:
        return 2 * ui_->scrl->height();
    }
    return ui_->scrl->height();
}

// An arrow is live only where its step leads somewhere.
void CalendarViewController::updateSteps()
{
    ui_->previousButton->setEnabled(grid_.canStep(-1));
    ui_->nextButton->setEnabled(grid_.canStep(+1));
}

int CalendarViewController::stopDay() const
{
    if (grid_.today() != 0)
        return grid_.today();
    const std::optional<ButtonRef> today = grid_.todayBtn();
    return today && today->page == grid_.pages().back().id ? today->day : 1;
}

void CalendarViewController::focusDay(int day, bool focus)
{
    for (const auto& [tag, button] : dayButtons()) {
        button->setFocusPolicy(tag == day ? Qt::TabFocus : Qt::NoFocus);
        if (tag == day && focus)
            button->setFocus(Qt::OtherFocusReason);
    }
}

DayButton* CalendarViewController::focusedDay() const
{
    return qobject_cast<DayButton*>(QApplication::focusWidget());
}

void CalendarViewController::dismissWithoutPick()
{
    for (QWidget* above = parentWidget(); above; above = above->parentWidget())
        if (auto* stack = qobject_cast<PresentationStack*>(above)) {
            if (stack->top() == this)
                stack->dismiss(true);
            return;
        }
    QWidget::close();
}

// The arrows move through the grid, before the button's own arrows walk the focus chain.
bool CalendarViewController::eventFilter(QObject* watched, QEvent* event)
{
    auto* day = qobject_cast<DayButton*>(watched);
    const std::optional<int> step =
        event->type() == QEvent::KeyPress ? gridStep(static_cast<QKeyEvent*>(event)->key()) : std::nullopt;
    if (!day || !step)
        return QWidget::eventFilter(watched, event);
    // The keyboard moved the focus, so the ring shows.
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    focusDay(grid_.dayAfter(day->tag(), *step), true);
    return true;
}

void CalendarViewController::keyPressEvent(QKeyEvent* event)
{
    const bool inGrid = focusedDay() != nullptr;
    const auto shown = [this] { return std::pair{grid_.year(), grid_.month()}; };
    const auto before = shown();
    switch (event->key()) {
    case Qt::Key_Escape:
        dismissWithoutPick();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        // The same day of the next month, or its last day when it is shorter.
        const int day = inGrid ? focusedDay()->tag() : stopDay();
        changeMonth(event->key() == Qt::Key_PageUp ? -1 : +1);
        if (shown() != before)
            focusDay(std::min(day, static_cast<int>(dayButtons().size())), inGrid);
        return;
    }
    case Qt::Key_Home:
        if (grid_.canChange()) {
            showToday();
            focusDay(grid_.dayNow(), true);
        }
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CalendarViewController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        focusDay(stopDay(), true);
}

}  // namespace kavenda
