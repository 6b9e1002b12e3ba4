#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

namespace kavenda {

class FlipTransition;

// The window's root content: a root screen and the modal screens presented over it.
class PresentationStack : public QWidget {
    Q_OBJECT

public:
    explicit PresentationStack(QWidget* parent = nullptr);
    ~PresentationStack() override;

    void setRoot(QWidget* screen);
    void present(QWidget* screen, bool animated);
    void dismiss(bool animated);
    QWidget* top() const;
    // 1 while only the root is shown.
    int depth() const;

signals:
    void topChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void adopt(QWidget* screen);
    QWidget* release(QWidget* screen);
    void flip(QWidget* from, QWidget* to, bool forward, bool animated);

    QList<QWidget*> screens_;
    QPointer<FlipTransition> transition_;
};

}  // namespace kavenda
