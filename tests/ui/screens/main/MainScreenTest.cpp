// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"
#include "desktop/SystemClock.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/NewCityController.h"
#include "screens/cities/SearchController.h"
#include "screens/main/MainViewController.h"
#include "tests/support/TehranTime.h"
#include "tests/ui/AccessibleWalk.h"
#include "tests/ui/screens/ScreenFixture.h"
#include "widgets/FocusRingStyle.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"
#include "widgets/PresentationStack.h"

#include <QListWidget>
#include <QPointer>
#include <QTabBar>
#include <QtTest>

namespace kavenda {
namespace {

using test::ScreenFixture;

// 10 Tir 1392, 12:00: a summer day of 1392, with the summer hour.
const Instant summerDay = test::tehran(2013, 7, 1, 12, 0);
constexpr int tehran = 32, isfahan = 33, mashhad = 34;

QList<QPointer<QWidget>> tracked(const QList<QWidget*>& pages)
{
    return {pages.begin(), pages.end()};
}

}  // namespace

class MainScreenTest : public QObject {
    Q_OBJECT

private slots:
    // The last chosen city on the left, the screen opening on the first; the indicator moves the pages.
    void threeCitiesOpenOnTheFirstAndTheIndicatorMovesThePages()
    {
        ScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();
        const QList<QStringList> pages = f.pages();
        QCOMPARE(pages.size(), 3);
        QCOMPARE((QStringList{pages[0][0], pages[1][0], pages[2][0]}),
                 (QStringList{QStringLiteral("مشهد"), QStringLiteral("اصفهان"), QStringLiteral("تهران")}));
        auto* pager = f.find<Pager>(QStringLiteral("scrollView"));
        auto* indicator = f.find<PageIndicator>(QStringLiteral("pageControl"));
        QCOMPARE(pager->contentOffset(), 640.0);
        QCOMPARE(indicator->numberOfPages(), 3);
        QCOMPARE(indicator->currentPage(), 2);
        f.saveScreenshot(QStringLiteral("main-1392-04-10.png"));

        // A click on a dot goes to its page, a click beside the dots one page that way: through
        // the window, as the desktop delivers a click, to whichever widget takes it there.
        const int middle = indicator->height() / 2;
        const QList<QPair<QPoint, int>> clicks{
            {indicator->dotRect(0).center(), 0},
            {indicator->dotRect(1).center() + QPoint(5, 0), 1},
            {QPoint(2, middle), 0},
            {QPoint(2, middle), 0},
            {QPoint(indicator->width() - 2, middle), 1},
        };
        for (const auto& [at, page] : clicks) {
            QTest::mouseClick(f.main->window()->windowHandle(), Qt::LeftButton, {},
                              indicator->mapTo(f.main->window(), at));
            QCOMPARE(indicator->currentPage(), page);
            QTRY_COMPARE(pager->contentOffset(), 320.0 * page);
        }

        // A rebuild that finds the same cities on the same day keeps its page widgets and opens
        // on the first city again; another day, or another list, makes new pages.
        const auto before = tracked(pager->pages());
        main.refresh();
        main.closeForm();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(tracked(pager->pages()), before);
        for (const auto& page : before)
            QVERIFY(page);
        QCOMPARE(pager->contentOffset(), 640.0);
        QCOMPARE(indicator->currentPage(), 2);
        main.closeCalendar(DateTimePersian::initWithPersianDate("920411", f.calendar), nullptr);
        main.updateDataSource();
        main.Bind();
        QCOMPARE(f.pages().first()[2], QStringLiteral("١١ تیر"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (const auto& page : before)
            QVERIFY(!page);
        f.choose({65});
        main.refresh();
        QCOMPARE(f.pages().size(), 4);
    }

    // Every screen and tab, walked as a screen reader meets it and as Tab moves through it in the
    // style the program runs with: every control has a Persian name and a role, and every place
    // Tab stops at looks different from the place before it.
    void everyScreenNamesItsControlsAndShowsItsFocus()
    {
        QApplication::setStyle(new FocusRingStyle);
        ScreenFixture f(summerDay);
        f.choose({tehran, isfahan});
        f.show();
        QStringList faults;
        const auto walk = [&](const QString& screen) {
            for (const QString& fault : test::unnamedControls(f.top()))
                faults << screen + QStringLiteral(": ") + fault;
            QImage before = f.main->window()->grab().toImage();
            QWidget* first = nullptr;
            for (int stop = 0; stop < 40; ++stop) {
                QWidget* focused = QApplication::focusWidget();
                QTest::keyClick(focused ? focused : f.main->window(), Qt::Key_Tab);
                focused = QApplication::focusWidget();
                const QImage after = f.main->window()->grab().toImage();
                if (after == before) {
                    faults << screen + QStringLiteral(": focus unseen on ")
                            + (focused ? QString::fromLatin1(focused->metaObject()->className()) + QLatin1Char(' ')
                                       + focused->objectName()
                                       : QStringLiteral("nothing"));
                    break;
                }
                before = after;
                if (focused == first)
                    break;
                first = first ? first : focused;
            }
        };
        walk(QStringLiteral("main"));
        f.click(QStringLiteral("calendarButton"));
        QCOMPARE(f.presentation->depth(), 2);
        walk(QStringLiteral("calendar"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(f.top(), f.main);

        CustomUITabBarController& tabs = f.openOptions();
        for (int tab = tabs.count() - 1; tab >= 0; --tab) {
            f.clickTab(tab);
            QCOMPARE(tabs.currentIndex(), tab);
            walk(QStringLiteral("tab ") + tabs.tabText(tab));
        }
        f.click(QStringLiteral("btnSearch"));
        QVERIFY(f.find<SearchController>());
        walk(QStringLiteral("search"));
        f.click(QStringLiteral("cancelButton"));
        f.clickRow(f.find<QListWidget>(QStringLiteral("createNewCityTable")), 0);
        QVERIFY(f.find<NewCityController>());
        walk(QStringLiteral("new city"));
        QApplication::setStyle(QStringLiteral("Fusion"));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void threeCitiesToday()
    {
        ScreenFixture f(SystemClock().now(), ScreenFixture::Data::generated);
        f.choose({39, 35, 42});  // تهران, اصفهان, مشهد of the generated database
        f.show();
        QCOMPARE(f.pages().size(), 3);
        QVERIFY(!f.pages().last()[3].isEmpty());
        f.saveScreenshot(QStringLiteral("main-today.png"));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::MainScreenTest)
#include "MainScreenTest.moc"
