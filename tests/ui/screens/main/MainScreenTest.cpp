// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PersianFont.h"
#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SelectionController.h"
#include "screens/main/CustomUIImageView.h"
#include "screens/main/MainViewController.h"
#include "tests/support/TehranTime.h"
#include "tests/ui/AccessibleWalk.h"
#include "tests/ui/screens/main/MainScreenFixture.h"
#include "widgets/Animations.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"
#include "widgets/PresentationStack.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QtTest>

namespace kavenda {
namespace {

using test::MainScreenFixture;

// 10 Tir 1392, 12:00: a summer day of 1392, with the summer hour.
const Instant summerDay = test::tehran(2013, 7, 1, 12, 0);
constexpr int tehran = 32, isfahan = 33, mashhad = 34, varamin = 64;

QList<QPointer<CustomUIImageView>> tracked(const QList<CustomUIImageView*>& pages)
{
    return {pages.begin(), pages.end()};
}

}  // namespace

class MainScreenTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        usePersianFont();
    }

    void threeCitiesOpenOnTheFirstCityOnTheLastPage()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();

        QCOMPARE(main.pageCount(), 3);
        const auto pages = f.pages();
        QCOMPARE(pages.size(), 3);
        QCOMPARE(MainScreenFixture::texts(pages[0]).first(), QStringLiteral("مشهد"));
        QCOMPARE(MainScreenFixture::texts(pages[1]).first(), QStringLiteral("اصفهان"));
        QCOMPARE(MainScreenFixture::texts(pages[2]).first(), QStringLiteral("تهران"));
        QCOMPARE(pages[2]->geometry(), QRect(640, 0, 320, 460));
        QCOMPARE(main.findChild<Pager*>(QStringLiteral("scrollView"))->contentWidth(), 960);
        QCOMPARE(main.findChild<Pager*>(QStringLiteral("scrollView"))->contentOffset(), 640.0);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->numberOfPages(), 3);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->currentPage(), 2);
        f.saveScreenshot(QStringLiteral("main-1392-04-10.png"));
    }

    // A click on a dot goes to its page; a click beside the dots moves one page that way.
    void clickingTheIndicatorMovesThePages()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();
        PageIndicator* indicator = main.findChild<PageIndicator*>(QStringLiteral("pageControl"));
        const int middle = indicator->height() / 2;
        const QList<QPair<QPoint, int>> clicks{
            {indicator->dotRect(0).center(), 0},
            {indicator->dotRect(1).center() + QPoint(5, 0), 1},
            {indicator->dotRect(2).topLeft(), 2},
            {QPoint(2, middle), 1},
            {QPoint(2, middle), 0},
            {QPoint(2, middle), 0},
            {QPoint(indicator->width() - 2, middle), 1},
        };
        // Through the window, as the desktop delivers a click: to whichever widget takes it there.
        QWindow* window = f.window().windowHandle();
        for (const auto& [at, page] : clicks) {
            QTest::mouseClick(window, Qt::LeftButton, {}, indicator->mapTo(&f.window(), at));
            QCOMPARE(indicator->currentPage(), page);
            QTRY_COMPARE(main.findChild<Pager*>(QStringLiteral("scrollView"))->contentOffset(), 320.0 * page);
        }
    }

    void aRebuildThatFindsTheSameDayKeepsItsPages()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan});
        MainViewController& main = f.show();
        const auto before = tracked(f.pages());
        main.findChild<Pager*>(QStringLiteral("scrollView"))->setContentOffset(0, false);

        main.refresh();
        main.closeForm();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(tracked(f.pages()), before);
        for (const auto& page : before)
            QVERIFY(page);
        // The rebuild still opens on the first city.
        QCOMPARE(main.findChild<Pager*>(QStringLiteral("scrollView"))->contentOffset(), 320.0);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->currentPage(), 1);

        // Another day, or another list, makes new pages.
        main.closeCalendar(DateTimePersian::initWithPersianDate("920411", f.calendar), nullptr);
        main.updateDataSource();
        main.Bind();
        QCOMPARE(MainScreenFixture::texts(f.pages().first())[2], QStringLiteral("١١ تیر"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const auto& page : before)
            QVERIFY(!page);
        f.choose({mashhad});
        main.refresh();
        QCOMPARE(main.pageCount(), 3);
    }

    // Every screen and tab, walked as a screen reader meets it.
    void everyControlOfEveryScreenHasAPersianNameAndARole()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan});
        MainViewController& main = f.show();
        QStringList faults;
        const auto walk = [&](const QString& screen) {
            QWidget* top = f.presentation().top();
            QVERIFY(top);
            for (const QString& fault : test::unnamedControls(top))
                faults << screen + QStringLiteral(": ") + fault;
        };
        walk(QStringLiteral("main"));

        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("calendarButton")), Qt::LeftButton);
        QCOMPARE(f.presentation().depth(), 2);
        walk(QStringLiteral("calendar"));
        QTest::keyClick(f.presentation().top(), Qt::Key_Escape);
        QCOMPARE(f.presentation().top(), &main);

        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("optionsButton")), Qt::LeftButton);
        auto* tabs = qobject_cast<CustomUITabBarController*>(f.presentation().top());
        QVERIFY(tabs);
        QTabBar* bar = tabs->tabBar();
        for (int tab = bar->count() - 1; tab >= 0; --tab) {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
            QCOMPARE(tabs->currentIndex(), tab);
            walk(QStringLiteral("tab ") + bar->tabText(tab));
        }

        auto* selection = tabs->findChild<SelectionController*>();
        QTest::mouseClick(selection->window()->findChild<QPushButton*>(QStringLiteral("btnSearch")), Qt::LeftButton);
        auto* search = tabs->findChild<SearchController*>();
        QVERIFY(search);
        walk(QStringLiteral("search"));
        QTest::mouseClick(search->findChild<QPushButton*>(QStringLiteral("cancelButton")), Qt::LeftButton);

        QListWidget* createRow = selection->findChild<QListWidget*>(QStringLiteral("createNewCityTable"));
        QTest::mouseClick(createRow->viewport(), Qt::LeftButton, {},
                          createRow->visualItemRect(createRow->item(0)).center());
        QVERIFY(tabs->findChild<NewCityController*>());
        walk(QStringLiteral("new city"));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void aPickedDayStaysUntilTheNextRefresh()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran});
        MainViewController& main = f.show();
        auto* calendar = new QWidget;
        f.presentation().present(calendar, false);

        main.closeCalendar(DateTimePersian::initWithPersianDate("920411", f.calendar), calendar);
        QCOMPARE(f.presentation().top(), &main);
        QCOMPARE(main.localDtp().getPersianDate(), std::string("920411"));
        QCOMPARE(MainScreenFixture::texts(f.pages().first())[2], QStringLiteral("١١ تیر"));

        main.refresh();
        QCOMPARE(main.localDtp().getPersianDate(), std::string("920410"));
        QCOMPARE(MainScreenFixture::texts(f.pages().first())[2], QStringLiteral("١٠ تیر"));
    }

    void withoutACityTheOptionsOpenAndDoneBringsThePagesBack()
    {
        MainScreenFixture f(summerDay);
        MainViewController& main = f.show();
        QCOMPARE(f.presentation().depth(), 2);
        auto* options = qobject_cast<CustomUITabBarController*>(f.presentation().top());
        QVERIFY(options);
        QCOMPARE(options->parentDelegate(), static_cast<SelectionControllerDelegate*>(&main));
        QCOMPARE(main.pageCount(), 0);

        f.choose({isfahan});
        options->parentDelegate()->closeForm();
        QCOMPARE(f.presentation().top(), &main);
        QCOMPARE(main.pageCount(), 1);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->numberOfPages(), 1);
        QCOMPARE(MainScreenFixture::texts(f.pages().first()).first(), QStringLiteral("اصفهان"));
    }

    void aDayWithoutDataKeepsThePagesOfEveryCity()
    {
        MainScreenFixture f(test::tehran(2013, 7, 23, 12, 0));  // 1 Mordad 1392: not in the fixture
        f.choose({tehran, varamin});
        MainViewController& main = f.show();
        QCOMPARE(main.pageCount(), 2);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->numberOfPages(), 2);
        const QStringList texts = MainScreenFixture::texts(f.pages().first());
        QCOMPARE(texts.mid(0, 3), (QStringList{QStringLiteral("ورامین"), QString(), QStringLiteral("٠١ مرداد")}));
        QCOMPARE(texts.mid(3), QStringList(8, QString()));
    }

    void threeCitiesToday()
    {
        SystemClock system;
        MainScreenFixture f(system.now(), 480, MainScreenFixture::Data::shippedWhereBuilt);
        if (!f.shipped)
            f.copyDay(DateTimePersian::init(f.clock, f.calendar).getPersianDate());
        f.choose({f.centreNamed("تهران"), f.centreNamed("اصفهان"), f.centreNamed("مشهد")});
        MainViewController& main = f.show();
        QCOMPARE(main.pageCount(), 3);
        QVERIFY(!MainScreenFixture::texts(f.pages().last())[3].isEmpty());
        f.saveScreenshot(QStringLiteral("main-today.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::MainScreenTest)
#include "MainScreenTest.moc"
