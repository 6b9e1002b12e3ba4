#include "screens/calendar/CalendarViewController.h"

#include "screens/calendar/CalendarViewControllerDelegate.h"
#include "screens/calendar/DayButton.h"
#include "ui_CalendarViewController.h"
#include "widgets/Animations.h"

#include <QLabel>
#include <QListWidget>
#include <QPalette>
#include <QVariantAnimation>

namespace kavenda {

namespace {

constexpr int slideMilliseconds = 350;
constexpr int tableFontPixels = 15;

int slotY(MonthGrid::Slot slot)
{
    switch (slot) {
    case MonthGrid::Slot::top:
        return 0;
    case MonthGrid::Slot::middle:
        return MonthGrid::pageHeight;
    case MonthGrid::Slot::bottom:
        return 2 * MonthGrid::pageHeight;
    }
    return MonthGrid::pageHeight;
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
    content_->setGeometry(0, 0, MonthGrid::pageWidth, 3 * MonthGrid::pageHeight);
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

QWidget* CalendarViewController::scrl() const
{
    return ui_->scrl;
}

QLabel* CalendarViewController::monthLbl() const
{
    return ui_->monthLbl;
}

QListWidget* CalendarViewController::tblEvents() const
{
    return ui_->tblEvents;
}

std::map<int, DayButton*> CalendarViewController::dayButtons() const
{
    std::map<int, DayButton*> buttons;
    const auto shown = pageViews_.find(grid_.pages().front().id);
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
    ui_->monthLbl->setText(QString::fromStdString(grid_.monthName()));
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
    view->setPixmap(QPixmap(QString::fromStdString((resourceFolder_ / "calendarBG.png").string())));
    view->resize(MonthGrid::pageWidth, MonthGrid::pageHeight);
    for (const DayCell& cell : page.cells) {
        auto* button = new DayButton(cell, resourceFolder_, view);
        connect(button, &QAbstractButton::clicked, this, [this, id = page.id, button] { showEvents(id, button); });
    }
    view->show();
    pageViews_[page.id] = view;
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
        item->setSizeHint(QSize(0, MonthGrid::rowHeight));
    }
}

void CalendarViewController::setOffset(int y)
{
    content_->move(0, -y);
}

}  // namespace kavenda
