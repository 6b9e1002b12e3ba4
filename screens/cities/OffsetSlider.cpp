#include "screens/cities/OffsetSlider.h"

#include "screens/cities/NewCityDraft.h"

#include <QAccessibleWidget>

#include <cmath>

namespace kavenda {

namespace {

class OffsetSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit OffsetSliderAccessible(OffsetSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return QString::number(slider()->minutes());
        return QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider()->minutes(); }
    void setCurrentValue(const QVariant& value) override { slider()->setPosition(value.toDouble()); }
    QVariant maximumValue() const override { return NewCityDraft::maximumOffset; }
    QVariant minimumValue() const override { return NewCityDraft::minimumOffset; }
    QVariant minimumStepSize() const override { return 1; }

private:
    OffsetSlider* slider() const { return static_cast<OffsetSlider*>(widget()); }
};

QAccessibleInterface* offsetSliderAccessible(const QString& className, QObject* object)
{
    if (className == QLatin1String(OffsetSlider::staticMetaObject.className()) && object && object->isWidgetType())
        return new OffsetSliderAccessible(static_cast<OffsetSlider*>(object));
    return nullptr;
}

}  // namespace

OffsetSlider::OffsetSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent)
{
    static const bool installed = [] {
        QAccessible::installFactory(&offsetSliderAccessible);
        return true;
    }();
    Q_UNUSED(installed);
    setRange(NewCityDraft::minimumOffset * stepsPerMinute, NewCityDraft::maximumOffset * stepsPerMinute);
    // A key press is a whole minute.
    setSingleStep(stepsPerMinute);
    setPageStep(5 * stepsPerMinute);
}

void OffsetSlider::setPosition(double minutes)
{
    setValue(static_cast<int>(std::lround(minutes * stepsPerMinute)));
}

int OffsetSlider::minutes() const
{
    return NewCityDraft::offsetAt(position());
}

}  // namespace kavenda
