#include "screens/preferences/SoundsViewController.h"

#include "desktop/AudioModule.h"
#include "platform/Alerts.h"
#include "screens/preferences/SaveButton.h"
#include "ui_SoundsViewController.h"
#include "widgets/AccessibleFactory.h"
#include "widgets/ListRowsAccessible.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHideEvent>
#include <QListWidget>
#include <QPainter>

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

SoundsViewController::SoundsViewController(MyDB& db, const Paths& paths, AudioPlayer* audio, Alerts* alerts,
                                           QWidget* parent)
    : QWidget(parent), layout_(std::make_unique<::Ui::SoundsViewController>()), choice_(db, paths, audio),
      alerts_(alerts), saveButton_(makeSaveButton(this))
{
    installAccessibleInterface<QListWidget, ListRowsAccessible>();
    layout_->setupUi(this);
    layout_->tbl->setIconSize(QSize(markSize, markSize));
    layout_->btnOwnFile->setAccessibleName(layout_->btnOwnFile->text());
    choice_.load();
    buildRows();
    connect(layout_->tbl, &QListWidget::activated, this, [this](const QModelIndex& row) { didSelectRow(row.row()); });
    connect(saveButton_, &QPushButton::clicked, this, &SoundsViewController::save);
    connect(layout_->btnOwnFile, &QPushButton::clicked, this, &SoundsViewController::chooseOwnFile);
}

SoundsViewController::~SoundsViewController() = default;

QListWidget* SoundsViewController::tbl() const
{
    return layout_->tbl;
}

QPushButton* SoundsViewController::ownFileButton() const
{
    return layout_->btnOwnFile;
}

void SoundsViewController::buildRows()
{
    for (int row = 0; row < SoundChoice::rowCount; ++row) {
        const QString label = QString::fromStdString(SoundChoice::label(row));
        auto* item = new QListWidgetItem(label, layout_->tbl);
        item->setData(Qt::AccessibleTextRole, label);
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
        item->setIcon(checkmark(checked == row));
        item->setData(ListRowsAccessible::chosenRole, checked == row);
    }
    layout_->btnOwnFile->setEnabled(checked && choice_.acceptsOwnRecording(*checked));
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
    choice_.save();
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
    fileDialog_ = new QFileDialog(this, QStringLiteral("انتخاب فایل صدا"), QDir::homePath(),
                                  QStringLiteral("صدا (*.wav *.ogg *.oga *.opus *.mp3 *.flac *.m4a);;همه فایل ها (*)"));
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
    if (!row)
        return;
    const QString label = QString::fromStdString(SoundChoice::label(*row));
    const SoundChoice::OwnRecording result = choice_.useOwnRecording(*row, localPath(file), AudioModule::isPlayable);
    if (result == SoundChoice::OwnRecording::copied) {
        // Heard at once, as a tap on the row would play it.
        didSelectRow(*row);
        return;
    }
    const QString reason = result == SoundChoice::OwnRecording::notPlayable ? QStringLiteral("صدایی نیست که پخش شود")
                                                                            : QStringLiteral("در پوشهٔ داده ها کپی نشد");
    if (alerts_)
        alerts_->show("",
                      QStringLiteral("فایل «%1» %2. صدای «%3» تغییری نکرد.")
                          .arg(QFileInfo(file).fileName(), reason, label)
                          .toStdString(),
                      "Ok");
}

void SoundsViewController::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    choice_.stopPreview();
}

}  // namespace kavenda
