#include "widgets/RowChoice.h"

#include <QKeyEvent>
#include <QListWidget>

namespace kavenda {

namespace {

class EnterChoosesRow : public QObject {
public:
    EnterChoosesRow(QListWidget* list, std::function<void(int)> chosen)
        : QObject(list), list_(list), chosen_(std::move(chosen))
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        const QListWidgetItem* item = list_->currentItem();
        if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !item || !(item->flags() & Qt::ItemIsEnabled))
            return QObject::eventFilter(watched, event);
        chosen_(list_->row(item));
        return true;
    }

private:
    QListWidget* list_;
    std::function<void(int)> chosen_;
};

}  // namespace

void onRowChosen(QListWidget* list, std::function<void(int row)> chosen)
{
    QObject::connect(list, &QListWidget::itemClicked, list,
                     [list, chosen](QListWidgetItem* item) { chosen(list->row(item)); });
    list->installEventFilter(new EnterChoosesRow(list, chosen));
}

}  // namespace kavenda
