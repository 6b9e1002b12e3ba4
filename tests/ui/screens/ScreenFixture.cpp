// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ui/screens/ScreenFixture.h"

#include "app/PersianFont.h"
#include "data/Statements.h"
#include "desktop/AudioModule.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Format.h"
#include "widgets/Animations.h"
#include "widgets/EnterPressesButtons.h"
#include "widgets/Pager.h"

#include <QtTest>
#include <QtWidgets>

namespace kavenda::test {

namespace {

std::filesystem::path resourcesFor(const TempFolder& temp, ScreenFixture::Data data)
{
    const auto folder = temp.path() / "resources";
    if (data == ScreenFixture::Data::generated)
        return KAVENDA_RESOURCE_DIR;
    if (data == ScreenFixture::Data::mainScreen)
        return buildFixtureDatabase(folder, {"fixture-data.sql", "main-screen.sql"}).parent_path();
    return buildFixtureDatabase(folder, {"fixture-data.sql", "offset-city.sql", "cities.sql"}).parent_path();
}

}  // namespace

ScreenFixture::ScreenFixture(Instant now, Data data)
    : clock(now), paths(temp.path() / "documents", KAVENDA_RESOURCE_DIR),
      dataPaths_(paths.documentsFolder(), resourcesFor(temp, data))
{
    // As the program runs: its font, Enter pressing the focused button; and no transitions, so
    // that a change is complete at once.
    static const bool started = [] {
        usePersianFont();
        qApp->installEventFilter(new EnterPressesButtons(qApp));
        return true;
    }();
    Q_UNUSED(started);
    setAnimationsEnabled(false);
    db.emplace("Icons", dataPaths_, log);
    reminders.emplace(*db, clock, calendar, notifications, random, log);
}

ScreenFixture::~ScreenFixture() = default;

void ScreenFixture::choose(std::initializer_list<int> stateIds)
{
    int ordering = 0;
    for (int id : stateIds)
        QVERIFY(db->ExecuteNonQuery(formatSql(sql::insertChosenCity, {id, ordering++})));
}

void ScreenFixture::refuse(const std::string& trigger, const std::string& event)
{
    QVERIFY(db->ExecuteNonQuery("CREATE TRIGGER " + trigger + " BEFORE " + event
                                + " BEGIN SELECT RAISE(ABORT, 'disk full'); END"));
}

QStringList ScreenFixture::orderings()
{
    QStringList found;
    for (const auto& row : db->Execute("SELECT StateID, Ordering FROM tSelectedStates ORDER BY Ordering, StateID"))
        found.append(QString::fromStdString(row.at("StateID") + ":" + row.at("Ordering")));
    return found;
}

MainViewController& ScreenFixture::show()
{
    window_ = std::make_unique<QWidget>();
    window_->setFixedSize(320, screen.boundsHeight() - 20);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    presentation = new PresentationStack(window_.get());
    layout->addWidget(presentation);
    const auto rebuild = [this] {
        reminders->update();
        ++rebuilds;
    };
    main = new MainViewController(
        {*db, clock, calendar, screen, paths, rebuild, &log, &audio, AudioModule::isPlayable, &alerts, &urls},
        *presentation);
    presentation->setRoot(main);
    window_->show();
    window_->activateWindow();
    if (!QTest::qWaitForWindowActive(window_.get()))
        qFatal("the window never became active");
    return *main;
}

CustomUITabBarController& ScreenFixture::openOptions()
{
    QTest::mouseClick(main->findChild<QAbstractButton*>(QStringLiteral("optionsButton")), Qt::LeftButton);
    auto* tabs = qobject_cast<CustomUITabBarController*>(top());
    if (!tabs)
        qFatal("the options button opened no options");
    return *tabs;
}

void ScreenFixture::clickTab(int index)
{
    QTabBar* bar = find<QTabBar>();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
}

void ScreenFixture::click(QWidget* widget)
{
    QVERIFY(widget && widget->isVisible());
    QTest::mouseClick(widget, Qt::LeftButton);
}

void ScreenFixture::clickRow(QListWidget* list, int row)
{
    list->scrollToItem(list->item(row));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
}

QStringList ScreenFixture::texts(const QListWidget* list)
{
    QStringList found;
    for (int row = 0; row < list->count(); ++row)
        found.append(list->item(row)->text());
    return found;
}

void ScreenFixture::type(QWidget* field, const QString& text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
        QCoreApplication::sendEvent(field, &press);
    }
}

QList<QStringList> ScreenFixture::pages() const
{
    QList<QStringList> found;
    for (QWidget* page : main->findChild<Pager*>(QStringLiteral("scrollView"))->pages()) {
        found.append(QStringList());
        for (const QLabel* label : page->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
            found.last() << label->text();
    }
    return found;
}

void ScreenFixture::saveScreenshot(const QString& name)
{
    // Item views and layouts settle in posted events; let them before the picture.
    QTest::qWait(50);
    QDir().mkpath(QStringLiteral(KAVENDA_SCREENSHOT_DIR));
    QVERIFY(window_->grab().save(QStringLiteral(KAVENDA_SCREENSHOT_DIR "/") + name, "PNG"));
}

}  // namespace kavenda::test
