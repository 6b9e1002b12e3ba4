// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/MainViewController.h"

#include "platform/Paths.h"
#include "platform/Screen.h"
#include "screens/calendar/CalendarViewController.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/OptionsViewController.h"
#include "screens/main/CustomUIImageView.h"
#include "screens/main/MainTexts.h"
#include "text/Format.h"
#include "text/Utility.h"
#include "widgets/ImageButton.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"
#include "widgets/PresentationStack.h"
#include "widgets/ResourcePixmap.h"

#include <QPalette>

namespace kavenda {

namespace {

constexpr int tallScreenHeight = 568;
// The tall screen moves the controls at the bottom down by the extra height.
constexpr int tallShift = 88;

// The "i" in a white ring.
QAbstractButton* informationButton(const std::filesystem::path& resourceFolder, QWidget* parent)
{
    return new ImageButton(resourcePixmap(resourceFolder / "infoBtn.pam"), 9, true, parent);
}

QAbstractButton* calendarButton(const std::filesystem::path& resourceFolder, QWidget* parent)
{
    return new ImageButton(resourcePixmap(resourceFolder / "calendarBtn.pam"), 4, false, parent);
}

}  // namespace

MainViewController::MainViewController(const Services& services, PresentationStack& presentation, QWidget* parent)
    : QWidget(parent), services_(services), presentation_(presentation), pages_(services.db)
{
    setObjectName(QStringLiteral("MainViewController"));
    setAccessibleName(texts::main::screenName);
    viewDidLoad();
    connect(&presentation_, &PresentationStack::topChanged, this, &MainViewController::presentationChanged);
}

// The stack reports its new top while this screen is being destroyed.
MainViewController::~MainViewController()
{
    disconnect(&presentation_, nullptr, this, nullptr);
}

void MainViewController::viewDidLoad()
{
    if (!localDtp_)
        localDtp_ = DateTimePersian::init(services_.clock, services_.calendar);

    const int shift = tallScreen() ? tallShift : 0;
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    setPalette(colours);

    scrollView_ = new Pager(this);
    scrollView_->setObjectName(QStringLiteral("scrollView"));
    scrollView_->setGeometry(0, 0, CityPages::pageWidth, CustomUIImageView::pageHeight + shift);
    scrollView_->setAccessibleName(texts::main::cities);
    connect(scrollView_, &Pager::didScroll, this, &MainViewController::scrollViewDidScroll);

    pageControl_ = new PageIndicator(this);
    pageControl_->setObjectName(QStringLiteral("pageControl"));
    pageControl_->setPageText([](int page, int pages) {
        return QString::fromStdString(Utility::ConvertToPersian(format(texts::main::pageOf, {page + 1, pages})));
    });
    pageControl_->setGeometry(0, 425 + shift, 320, 36);
    connect(pageControl_, &PageIndicator::valueChanged, this, &MainViewController::pageAction);

    QAbstractButton* options = informationButton(services_.paths.resourceFolder(), this);
    options->setObjectName(QStringLiteral("optionsButton"));
    options->setAccessibleName(texts::main::options);
    options->setGeometry(290, 430 + shift, 18, 19);
    connect(options, &QAbstractButton::clicked, this, &MainViewController::showSelector);

    QAbstractButton* calendar = calendarButton(services_.paths.resourceFolder(), this);
    calendar->setObjectName(QStringLiteral("calendarButton"));
    calendar->setAccessibleName(texts::main::calendar);
    calendar->setGeometry(15, 425 + shift, 34, 32);
    connect(calendar, &QAbstractButton::clicked, this, &MainViewController::showCalendar);

    if (!datasource().empty())
        Bind();
}

bool MainViewController::tallScreen() const
{
    return services_.screen.boundsHeight() == tallScreenHeight;
}

void MainViewController::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Later appearances come from the presentation stack; showing the window again is a
    // return to the foreground, which the shell handles.
    if (!appeared_) {
        appeared_ = true;
        viewDidAppear();
    }
}

void MainViewController::presentationChanged()
{
    if (appeared_ && presentation_.top() == this)
        viewDidAppear();
}

void MainViewController::viewDidAppear()
{
    updateDataSource();
    if (!datasource().empty())
        Bind();
    else
        showSelector();
}

void MainViewController::refresh()
{
    localDtp_ = DateTimePersian::init(services_.clock, services_.calendar);
    updateDataSource();
    Bind();
    emit refreshed();
}

void MainViewController::updateDataSource()
{
    pages_.updateDataSource(*localDtp_);
}

// Pages are made from their rows and the date alone, so the pages on show serve again when
// neither changed: the rebuilds that follow one another at start and on return cost no widgets.
void MainViewController::Bind()
{
    pageCount_ = static_cast<int>(datasource().size());
    const std::string dateKey = localDtp_->getPersianDate();
    if (datasource() != boundRows_ || dateKey != boundDate_) {
        QList<QWidget*> pageViews;
        for (int i = 0; i < pageCount_; ++i)
            pageViews.append(new CustomUIImageView(datasource()[static_cast<std::size_t>(i)], i, *localDtp_,
                                                   tallScreen(), services_.paths.resourceFolder()));
        scrollView_->setPages(pageViews);
        boundRows_ = datasource();
        boundDate_ = dateKey;
    }
    scrollView_->setContentOffset(CityPages::lastPageOffset(pageCount_, scrollView_->width()), false);
    pageControl_->setNumberOfPages(pageCount_);
    pageControl_->setCurrentPage(pageCount_ - 1);
}

void MainViewController::showSelector()
{
    auto* options =
        new OptionsViewController({services_.db, services_.paths, services_.rebuildReminders, services_.log,
                                   services_.audio, services_.isPlayable, services_.alerts, services_.urls});
    CustomUITabBarController* tabs = options->tabBarControl();
    tabs->setParentDelegate(this);
    presentation_.present(tabs, true);
}

void MainViewController::closeForm()
{
    updateDataSource();
    Bind();
    presentation_.dismiss(true);
}

void MainViewController::showCalendar()
{
    auto* calendar = new CalendarViewController(
        *localDtp_, {services_.db, services_.clock, services_.calendar, services_.paths.resourceFolder()});
    calendar->setDelegate(this);
    presentation_.present(calendar, true);
}

void MainViewController::closeCalendar(const DateTimePersian& date, QWidget* calendar)
{
    localDtp_ = DateTimePersian::initWithPersianDate(date.getPersianDate(), services_.calendar);
    if (presentation_.top() == calendar)
        presentation_.dismiss(true);
}

void MainViewController::pageAction()
{
    scrollView_->setContentOffset(double(scrollView_->width()) * pageControl_->currentPage(), true);
}

void MainViewController::scrollViewDidScroll(double offset)
{
    if (const std::optional<int> page = CityPages::settledPage(offset))
        pageControl_->setCurrentPage(*page);
}

}  // namespace kavenda
