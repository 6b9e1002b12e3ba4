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
#include "tests/ui/main/MainScreenFixture.h"
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

bool isWhite(QRgb pixel)
{
    return qRed(pixel) > 230 && qGreen(pixel) > 230 && qBlue(pixel) > 230;
}

bool isBlack(QRgb pixel)
{
    return qRed(pixel) < 25 && qGreen(pixel) < 25 && qBlue(pixel) < 25;
}

QList<QPointer<CustomUIImageView>> tracked(const QList<CustomUIImageView*>& pages)
{
    return {pages.begin(), pages.end()};
}

QString accessibleName(QObject* object)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(object);
    return face ? face->text(QAccessible::Name) : QStringLiteral("(none)");
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
        QCOMPARE(main.scrollView()->contentWidth(), 960);
        QCOMPARE(main.scrollView()->contentOffset(), 640.0);
        QCOMPARE(main.pageControl()->numberOfPages(), 3);
        QCOMPARE(main.pageControl()->currentPage(), 2);
        f.saveScreenshot(QStringLiteral("main-1392-04-10.png"));
    }

    void aPageShowsItsDayInPersian()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran});
        f.show();
        const QStringList expected{QStringLiteral("تهران"),  QStringLiteral("روز صنعت و معدن و ..."),
                                   QStringLiteral("١٠ تیر"), QStringLiteral("٠٤:٥١"),
                                   QStringLiteral("٠٦:٢٦"),  QStringLiteral("١٣:٠٧"),
                                   QStringLiteral("٢٠:٢٥"),  QStringLiteral("٢٠:٤٥"),
                                   QStringLiteral("٠٠:١٦"),  QStringLiteral("٠٤:٥٢"),
                                   QStringLiteral("٠٦:٢٧")};
        QCOMPARE(MainScreenFixture::texts(f.pages().first()), expected);
    }

    void aCityThatIsNotACentreShowsItsOffsetsUnderItsOwnName()
    {
        MainScreenFixture f(summerDay);
        f.choose({varamin, tehran});
        f.show();
        const QStringList texts = MainScreenFixture::texts(f.pages().last());
        QCOMPARE(texts[0], QStringLiteral("ورامین"));
        // Five minutes before تهران's times, the next day's dawn and sunrise too.
        QCOMPARE(texts.mid(3),
                 (QStringList{QStringLiteral("٠٤:٤٦"), QStringLiteral("٠٦:٢١"), QStringLiteral("١٣:٠٢"),
                              QStringLiteral("٢٠:٢٠"), QStringLiteral("٢٠:٤٠"), QStringLiteral("٠٠:١١"),
                              QStringLiteral("٠٤:٤٧"), QStringLiteral("٠٦:٢٢")}));
        QCOMPARE(MainScreenFixture::texts(f.pages().first())[3], QStringLiteral("٠٤:٥١"));
    }

    void theIndicatorFollowsOnlyOffsetsThatRestOnAPage()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad, varamin});
        MainViewController& main = f.show();
        QCOMPARE(main.pageControl()->currentPage(), 3);

        const QList<QPair<double, int>> moves{{0, 0}, {639.5, 0}, {650, 0}, {640, 2}, {320.5, 2}, {320, 1}};
        for (const auto& [offset, page] : moves) {
            main.scrollView()->setContentOffset(offset, false);
            QCOMPARE(main.pageControl()->currentPage(), page);
        }
    }

    void theIndicatorScrollsToItsPage()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();
        main.pageControl()->setCurrentPage(1);
        main.pageAction();
        QTRY_COMPARE(main.scrollView()->contentOffset(), 320.0);
    }

    // A click on a dot goes to its page; a click beside the dots moves one page that way.
    void clickingTheIndicatorMovesThePages()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();
        PageIndicator* indicator = main.pageControl();
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
            QTRY_COMPARE(main.scrollView()->contentOffset(), 320.0 * page);
        }
    }

    // Inside the pager a label takes the viewport's text colour unless told otherwise.
    void theDayIsWrittenInWhiteWithABlackShadow()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran});
        f.show();
        const QImage artwork(QString::fromStdString((f.paths.resourceFolder() / "MainView.png").string()));
        if (artwork.isNull())
            QSKIP("the build made no artwork");
        const QImage shown = f.window().grab().toImage();
        CustomUIImageView* page = f.pages().first();
        for (const QLabel* label : page->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
            if (label->text().isEmpty())
                continue;
            int white = 0;
            int shadow = 0;
            const QRect frame(label->mapTo(&f.window(), QPoint(0, 0)), label->size());
            for (int y = frame.top(); y <= frame.bottom(); ++y) {
                for (int x = frame.left(); x <= frame.right(); ++x) {
                    const QRgb pixel = shown.pixel(x, y);
                    white += isWhite(pixel) && !isWhite(artwork.pixel(x, y)) ? 1 : 0;
                    shadow += isBlack(pixel) && !isBlack(artwork.pixel(x, y)) ? 1 : 0;
                }
            }
            QVERIFY2(white >= 10, qPrintable(label->text()));
            QVERIFY2(shadow >= 10, qPrintable(label->text()));
        }
    }

    void aRebuildThatFindsTheSameDayKeepsItsPages()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan});
        MainViewController& main = f.show();
        const auto before = tracked(f.pages());
        main.scrollView()->setContentOffset(0, false);

        main.refresh();
        main.closeForm();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(tracked(f.pages()), before);
        for (const auto& page : before)
            QVERIFY(page);
        // The rebuild still opens on the first city.
        QCOMPARE(main.scrollView()->contentOffset(), 320.0);
        QCOMPARE(main.pageControl()->currentPage(), 1);

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

    void theIndicatorAndThePagesReadToAScreenReader()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran, isfahan, mashhad});
        MainViewController& main = f.show();

        QAccessibleInterface* indicator = QAccessible::queryAccessibleInterface(main.pageControl());
        QCOMPARE(indicator->role(), QAccessible::Slider);
        QCOMPARE(indicator->text(QAccessible::Name), QStringLiteral("صفحه ٣ از ٣"));
        QVERIFY(indicator->valueInterface());
        QCOMPARE(indicator->valueInterface()->maximumValue().toInt(), 2);
        indicator->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        QCOMPARE(indicator->text(QAccessible::Name), QStringLiteral("صفحه ٢ از ٣"));
        QTRY_COMPARE(main.scrollView()->contentOffset(), 320.0);
        indicator->valueInterface()->setCurrentValue(0);
        QTRY_COMPARE(main.scrollView()->contentOffset(), 0.0);

        // Each page by its city and date; only the page on show is on screen.
        const auto pages = f.pages();
        QAccessibleInterface* first = QAccessible::queryAccessibleInterface(pages[0]);
        QCOMPARE(first->role(), QAccessible::Pane);
        QCOMPARE(first->text(QAccessible::Name), QStringLiteral("مشهد، ١٠ تیر"));
        QVERIFY(!first->state().offscreen);
        QVERIFY(QAccessible::queryAccessibleInterface(pages[2])->state().offscreen);

        // The times read as caption and value, in the order of the rows.
        QStringList readings;
        for (const QLabel* label : pages[2]->findChildren<QLabel*>(Qt::FindDirectChildrenOnly).mid(3))
            readings << accessibleName(const_cast<QLabel*>(label));
        QCOMPARE(readings.first(), QStringLiteral("اذان صبح ٠٤:٥١"));
        QCOMPARE(readings.last(), QStringLiteral("طلوع آفتاب فردا ٠٦:٢٧"));
        QCOMPARE(readings.size(), 8);
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
        QTest::mouseClick(selection->btnSearch(), Qt::LeftButton);
        auto* search = tabs->findChild<SearchController*>();
        QVERIFY(search);
        walk(QStringLiteral("search"));
        QTest::mouseClick(search->cancelButton(), Qt::LeftButton);

        QListWidget* createRow = selection->createNewCityTable();
        QTest::mouseClick(createRow->viewport(), Qt::LeftButton, {},
                          createRow->visualItemRect(createRow->item(0)).center());
        QVERIFY(tabs->findChild<NewCityController*>());
        walk(QStringLiteral("new city"));
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void aTallScreenGivesTheWindowItsHeight()
    {
        MainScreenFixture f(summerDay, 568);
        f.choose({tehran, isfahan});
        f.show();
        QCOMPARE(f.window().height(), 548);
        f.saveScreenshot(QStringLiteral("main-tall.png"));
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
        QCOMPARE(main.pageControl()->numberOfPages(), 1);
        QCOMPARE(MainScreenFixture::texts(f.pages().first()).first(), QStringLiteral("اصفهان"));
    }

    void theOptionsButtonOpensTheOptionsOverThePages()
    {
        MainScreenFixture f(summerDay);
        f.choose({tehran});
        MainViewController& main = f.show();
        QCOMPARE(f.presentation().depth(), 1);
        QTest::mouseClick(main.findChild<QAbstractButton*>(QStringLiteral("optionsButton")), Qt::LeftButton);
        QCOMPARE(f.presentation().depth(), 2);
        QVERIFY(qobject_cast<CustomUITabBarController*>(f.presentation().top()));
    }

    void aDayWithoutDataKeepsThePagesOfEveryCity()
    {
        MainScreenFixture f(test::tehran(2013, 7, 23, 12, 0));  // 1 Mordad 1392: not in the fixture
        f.choose({tehran, varamin});
        MainViewController& main = f.show();
        QCOMPARE(main.pageCount(), 2);
        QCOMPARE(main.pageControl()->numberOfPages(), 2);
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
