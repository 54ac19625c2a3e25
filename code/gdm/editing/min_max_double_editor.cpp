#include "gdm/editing/min_max_double_editor.h"

#include "gdm/editing/range_editor_parts.h"
#include "gdm/host/message_keys.h"
#include "gdm/items/float_decimals.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>

namespace Zudunmaf
{

MinMaxDoubleEditor::MinMaxDoubleEditor(QWidget *parent)
    : QWidget(parent)
{
    horizontalLayout = rangeParts::newRow(this);
    horizontalLayout->setObjectName(QLatin1String("horizontalLayout"));
    label_From = rangeParts::addLabel(this, horizontalLayout, "label_From", keys::FloatRangeFrom);
    doubleSpinBox_From = rangeParts::newSpinBox<QDoubleSpinBox>(this, "doubleSpinBox_From");
    doubleSpinBox_From->setDecimals(FloatDecimals);
    horizontalLayout->addWidget(doubleSpinBox_From);
    label_To = rangeParts::addLabel(this, horizontalLayout, "label_To", keys::FloatRangeTo);
    doubleSpinBox_To = rangeParts::newSpinBox<QDoubleSpinBox>(this, "doubleSpinBox_To");
    doubleSpinBox_To->setDecimals(FloatDecimals);
    horizontalLayout->addWidget(doubleSpinBox_To);
}

MinMaxDoubleEditor::~MinMaxDoubleEditor() = default;

void MinMaxDoubleEditor::setMinimum(float minimum)
{
    doubleSpinBox_From->setMinimum(double(minimum));
    doubleSpinBox_To->setMinimum(double(minimum));
}

void MinMaxDoubleEditor::setMaximum(float maximum)
{
    doubleSpinBox_From->setMaximum(double(maximum));
    doubleSpinBox_To->setMaximum(double(maximum));
}

void MinMaxDoubleEditor::setRange(float minimum, float maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

void MinMaxDoubleEditor::setFromValue(float value)
{
    doubleSpinBox_From->setValue(double(value));
}

float MinMaxDoubleEditor::fromValue() const
{
    return static_cast<float>(doubleSpinBox_From->value());
}

void MinMaxDoubleEditor::setToValue(float value)
{
    doubleSpinBox_To->setValue(double(value));
}

float MinMaxDoubleEditor::toValue() const
{
    return static_cast<float>(doubleSpinBox_To->value());
}

} // namespace Zudunmaf
