#include "gdm/editing/min_max_int_editor.h"

#include "gdm/editing/range_editor_parts.h"
#include "gdm/host/message_keys.h"

#include <QHBoxLayout>
#include <QSpinBox>

namespace Zudunmaf
{

MinMaxIntEditor::MinMaxIntEditor(QWidget *parent)
    : QWidget(parent)
{
    horizontalLayout = rangeParts::newRow(this);
    label_From = rangeParts::addLabel(this, horizontalLayout, "label_From", keys::IntRangeFrom);
    spinBox_From = rangeParts::newSpinBox<QSpinBox>(this, "spinBox_From");
    horizontalLayout->addWidget(spinBox_From);
    label_To = rangeParts::addLabel(this, horizontalLayout, "label_To", keys::IntRangeTo);
    spinBox_To = rangeParts::newSpinBox<QSpinBox>(this, "spinBox_To");
    horizontalLayout->addWidget(spinBox_To);
}

MinMaxIntEditor::~MinMaxIntEditor() = default;

void MinMaxIntEditor::setMinimum(int minimum)
{
    spinBox_From->setMinimum(minimum);
    spinBox_To->setMinimum(minimum);
}

void MinMaxIntEditor::setMaximum(int maximum)
{
    spinBox_From->setMaximum(maximum);
    spinBox_To->setMaximum(maximum);
}

void MinMaxIntEditor::setRange(int minimum, int maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

void MinMaxIntEditor::setFromValue(int value)
{
    spinBox_From->setValue(value);
}

int MinMaxIntEditor::fromValue() const
{
    return spinBox_From->value();
}

void MinMaxIntEditor::setToValue(int value)
{
    spinBox_To->setValue(value);
}

int MinMaxIntEditor::toValue() const
{
    return spinBox_To->value();
}

} // namespace Zudunmaf
