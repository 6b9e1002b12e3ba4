// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SoundsViewController.h"

#include "platform/Alerts.h"
#include "screens/WriteFailureLine.h"
#include "screens/preferences/PreferencesTexts.h"
#include "screens/preferences/SaveButton.h"
#include "ui_SoundsViewController.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ListRowsAccessible.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QHideEvent>
#include <QListWidget>
#include <QPainter>
#include <QtConcurrent/QtConcurrentRun>

namespace kavenda {

namespace {

constexpr int rowHeight = 32;
constexpr int markSize = 20;

QIcon checkmark(bool shown)
{
    QPixmap mark(markSize, markSize);
    mark.fill(Qt::transparent);
    if (shown) {
        QPainter painter(&mark);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x32, 0x4f, 0x85), 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({QPointF(4, 10.5), QPointF(8.5, 15), QPointF(16, 5)}));
    }
    return QIcon(mark);
}

std::filesystem::path localPath(const QString& file)
{
    return std::filesystem::path(file.toStdString());
}

}  // namespace

SoundsViewController::SoundsViewController(MyDB& db, const Paths& paths, AudioPlayer* audio, PlayableCheck isPlayable,
                                           Alerts* alerts, QWidget* parent)
    : QWidget(parent), layout_(std::make_unique<::Ui::SoundsViewController>()), choice_(db, paths, audio),
      isPlayable_(std::move(isPlayable)), alerts_(alerts), saveButton_(makeSaveButton(this)),
      shippedButton_(new QPushButton(texts::preferences::shippedSound, this))
{
    installAccessibleInterface<QListWidget, ListRowsAccessible>();
    layout_->setupUi(this);
    shippedButton_->setObjectName(QStringLiteral("shippedButton"));
    shippedButton_->setAccessibleName(shippedButton_->text());
    layout_->screenLayout->addWidget(shippedButton_);
    layout_->tbl->setIconSize(QSize(markSize, markSize));
    layout_->btnOwnFile->setAccessibleName(layout_->btnOwnFile->text());
    choice_.load();
    buildRows();
    connect(layout_->tbl, &QListWidget::activated, this, [this](const QModelIndex& row) { didSelectRow(row.row()); });
    connect(saveButton_, &QPushButton::clicked, this, &SoundsViewController::save);
    connect(layout_->btnOwnFile, &QPushButton::clicked, this, &SoundsViewController::chooseOwnFile);
    connect(shippedButton_, &QPushButton::clicked, this, &SoundsViewController::useShippedRecording);
}

SoundsViewController::~SoundsViewController() = default;

QListWidget* SoundsViewController::tbl() const
{
    return layout_->tbl;
}

void SoundsViewController::buildRows()
{
    for (int row = 0; row < SoundChoice::rowCount; ++row) {
        auto* item = new QListWidgetItem(layout_->tbl);
        item->setSizeHint(QSize(0, rowHeight));
        choice_.cellForRow(row);
    }
    showCheckmark();
    if (const std::optional<int> stored = choice_.selectedPath())
        layout_->tbl->scrollToItem(layout_->tbl->item(*stored));
}

void SoundsViewController::showCheckmark()
{
    const std::optional<int> checked = choice_.selectedPath();
    for (int row = 0; row < layout_->tbl->count(); ++row) {
        QListWidgetItem* item = layout_->tbl->item(row);
        const QString label = QString::fromStdString(choice_.rowLabel(row));
        item->setText(label);
        item->setData(Qt::AccessibleTextRole, label);
        item->setIcon(checkmark(checked == row));
        item->setData(ListRowsAccessible::chosenRole, checked == row);
    }
    layout_->btnOwnFile->setEnabled(!copying_ && checked && choice_.acceptsOwnRecording(*checked));
    shippedButton_->setEnabled(!copying_ && checked && choice_.hasOwnRecording(*checked));
}

void SoundsViewController::didSelectRow(int row)
{
    choice_.didSelectRow(row);
    layout_->tbl->clearSelection();
    showCheckmark();
    saveButton_->setEnabled(choice_.saveEnabled());
}

void SoundsViewController::save()
{
    showWriteResult(this, choice_.save());
    saveButton_->setEnabled(choice_.saveEnabled());
}

void SoundsViewController::discard()
{
    choice_.stopPreview();
    choice_.load();
    for (int row = 0; row < SoundChoice::rowCount; ++row)
        choice_.cellForRow(row);
    showCheckmark();
    saveButton_->setEnabled(choice_.saveEnabled());
}

void SoundsViewController::chooseOwnFile()
{
    if (fileDialog_)
        return;
    fileDialog_ = new QFileDialog(this, texts::preferences::chooseSoundFile, QDir::homePath(),
                                  texts::preferences::soundFileFilter);
    fileDialog_->setFileMode(QFileDialog::ExistingFile);
    fileDialog_->setAttribute(Qt::WA_DeleteOnClose);
    // Checking the file waits for the media machinery: only once the dialog is gone.
    connect(fileDialog_, &QFileDialog::fileSelected, this, &SoundsViewController::useOwnRecording,
            Qt::QueuedConnection);
    fileDialog_->open();
}

void SoundsViewController::useOwnRecording(const QString& file)
{
    const std::optional<int> row = choice_.selectedPath();
    if (!row || copying_)
        return;
    if (const auto refused = choice_.refusal(*row, localPath(file), isPlayable_)) {
        refuseOwnRecording(file, *refused);
        emit ownRecordingSettled();
        return;
    }
    // A long file on a slow disk must not stop the window.
    copying_ = true;
    showCheckmark();
    auto* copy = new QFutureWatcher<SoundChoice::OwnRecording>(this);
    connect(copy, &QFutureWatcherBase::finished, this, [this, copy, file, row = *row] {
        copy->deleteLater();
        copying_ = false;
        if (copy->result() == SoundChoice::OwnRecording::copied)
            // Heard at once, as a tap on the row would play it.
            didSelectRow(row);
        else
            refuseOwnRecording(file, copy->result());
        showCheckmark();
        emit ownRecordingSettled();
    });
    copy->setFuture(QtConcurrent::run(&SoundChoice::copyOwnRecording, choice_.ownFolder(), *row, localPath(file)));
}

void SoundsViewController::refuseOwnRecording(const QString& file, SoundChoice::OwnRecording why)
{
    const std::optional<int> row = choice_.selectedPath();
    if (!alerts_ || !row)
        return;
    const QString label = QString::fromStdString(SoundChoice::label(*row));
    const QString reason = why == SoundChoice::OwnRecording::notPlayable ? texts::preferences::notPlayable
        : why == SoundChoice::OwnRecording::tooLarge                     ? texts::preferences::tooLarge
                                                                         : texts::preferences::notCopied;
    alerts_->show("", texts::preferences::ownFileRefused.arg(QFileInfo(file).fileName(), reason, label).toStdString(),
                  "Ok");
}

void SoundsViewController::useShippedRecording()
{
    const std::optional<int> row = choice_.selectedPath();
    if (!row)
        return;
    if (!choice_.useShippedRecording(*row) && alerts_)
        alerts_->show(
            "", texts::preferences::ownFileKept.arg(QString::fromStdString(SoundChoice::label(*row))).toStdString(),
            "Ok");
    showCheckmark();
}

void SoundsViewController::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    choice_.stopPreview();
}

}  // namespace kavenda
