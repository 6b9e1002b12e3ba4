// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ui/screens/cities/OptionsFixture.h"

#include "desktop/AudioModule.h"
#include "screens/cities/CustomUITabBarController.h"
#include "screens/cities/EditableCityList.h"
#include "screens/cities/OptionsViewController.h"
#include "screens/cities/SearchController.h"
#include "screens/cities/SelectionController.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/TehranTime.h"
#include "widgets/NavigationStack.h"
#include "widgets/PresentationStack.h"

#include <QDir>
#include <QLabel>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtTest>

namespace kavenda::test {

namespace {

std::filesystem::path resourcesOf(const TempFolder& temp)
{
    const auto folder = temp.path() / "resources";
    buildFixtureDatabase(folder, {"fixture-data.sql", "offset-city.sql", "cities.sql"});
    return folder;
}

}  // namespace

OptionsFixture::OptionsFixture()
    : paths_(temp_.path() / "documents", resourcesOf(temp_)), db_("Icons", paths_, log_),
      clock_(tehran(2013, 5, 22, 0, 1)), reminders_(db_, clock_, calendar_, notifications, random_, log_),
      window_(std::make_unique<QWidget>())
{
    window_->setFixedSize(320, 460);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    presentation_ = new PresentationStack(window_.get());
    layout->addWidget(presentation_);
    presentation_->setRoot(new QLabel(QStringLiteral("main")));
    window_->show();
}

OptionsFixture::~OptionsFixture() = default;

void OptionsFixture::choose(std::initializer_list<int> stateIds)
{
    int ordering = 0;
    for (int id : stateIds)
        QVERIFY(db_.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(" + std::to_string(id) + ", "
                                    + std::to_string(ordering++) + ")"));
}

void OptionsFixture::open(OptionServices services)
{
    auto* options = new OptionsViewController(
        {db_, services.paths ? *services.paths : paths_, [this] { reminders_.update(); },
         services.log ? services.log : &log_, services.audio, AudioModule::isPlayable, services.alerts, services.urls});
    tabs_ = options->tabBarControl();
    tabs_->setParentDelegate(this);
    presentation_->present(tabs_, true);
    QCoreApplication::processEvents();
}

void OptionsFixture::closeForm()
{
    pendingAtClose.append(static_cast<int>(notifications.records.size()));
    presentation_->dismiss(true);
}

NavigationStack* OptionsFixture::navigation() const
{
    return qobject_cast<NavigationStack*>(tabs_->widget(0));
}

SelectionController* OptionsFixture::selection() const
{
    return navigation()->findChild<SelectionController*>();
}

SearchController* OptionsFixture::search() const
{
    return qobject_cast<SearchController*>(navigation()->top());
}

QStringList OptionsFixture::listedNames() const
{
    QStringList names;
    const EditableCityList* list = selection()->tbl();
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text());
    return names;
}

QStringList OptionsFixture::orderings()
{
    QStringList found;
    for (const auto& row : db_.Execute("SELECT StateID, Ordering FROM tSelectedStates ORDER BY Ordering, StateID"))
        found.append(QString::fromStdString(row.at("StateID") + ":" + row.at("Ordering")));
    return found;
}

int OptionsFixture::countOf(const char* sql)
{
    return std::stoi(db_.ExecuteScaler(sql).value_or("-1"));
}

void OptionsFixture::clickTab(int index) const
{
    QTest::mouseClick(tabs_->tabBar(), Qt::LeftButton, {}, tabs_->tabBar()->tabRect(index).center());
}

void OptionsFixture::saveScreenshot(const QString& name) const
{
    // Item views and layouts settle in posted events; let them before the picture.
    QTest::qWait(50);
    QDir().mkpath(QStringLiteral(KAVENDA_SCREENSHOT_DIR));
    QVERIFY(window_->grab().save(QStringLiteral(KAVENDA_SCREENSHOT_DIR) + QLatin1Char('/') + name, "PNG"));
}

}  // namespace kavenda::test
