#include "gdm/editing/value_editing.h"

#include "gdm/editing/combo_editing.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/feature_attr_lwi.h"
#include "gdm/items/float_decimals.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

namespace Zudunmaf
{

namespace
{

/// Returns true if the editor of a text attribute lists choices besides free text.
bool hasChoices(const DmlAttrDef &definition)
{
    return definition.textChoiceCount >= 1;
}

QDoubleSpinBox *newDoubleSpinBox(QWidget *parent)
{
    QDoubleSpinBox *box = new QDoubleSpinBox(parent);
    box->setDecimals(FloatDecimals);
    return box;
}

void selectEntry(QComboBox *box, const QString &text)
{
    const int index = box->findText(text.trimmed(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        box->setCurrentIndex(index);
}

void loadOption(const QString &value, const DmlAttrDef &definition, QComboBox *box)
{
    box->clear();
    addOptions(box, definition);
    selectEntry(box, value);
}

/// Inserts the value before the choices, so that a value that is no choice is not lost.
void loadTextWithChoices(const QString &value, const DmlAttrDef &definition, QComboBox *box)
{
    box->clear();
    box->addItem(value);
    addOptions(box, definition);
    selectEntry(box, value);
    box->setEditable(true);
}

void loadText(const QString &value, const DmlAttrDef &definition, QWidget *editor)
{
    if (hasChoices(definition)) {
        if (QComboBox *box = qobject_cast<QComboBox *>(editor))
            loadTextWithChoices(value, definition, box);
    } else if (QLineEdit *line = qobject_cast<QLineEdit *>(editor)) {
        line->setText(value);
    }
}

void loadFloat(double value, const DmlAttrDef &definition, int displayUnits, QDoubleSpinBox *box)
{
    if (displayUnits == -1) {
        box->setMinimum(definition.floatMin);
        box->setMaximum(definition.floatMax);
        box->setValue(value);
        return;
    }
    float minimum = static_cast<float>(definition.floatMin);
    float maximum = static_cast<float>(definition.floatMax);
    float shown = static_cast<float>(value);
    gen__torvex_units_convert_2(&minimum, definition.unitsClass, displayUnits);
    gen__torvex_units_convert_2(&maximum, definition.unitsClass, displayUnits);
    gen__torvex_units_convert_2(&shown, definition.unitsClass, displayUnits);
    box->setMinimum(double(minimum));
    box->setMaximum(double(maximum));
    box->setValue(double(shown));
}

/// Converts a number from display units to the units of the definition.
double storedFloat(double shown, const DmlAttrDef &definition, int displayUnits)
{
    if (displayUnits == -1)
        return shown;
    float value = static_cast<float>(shown);
    int code = definition.unitsClass;
    gen__torvex_units_convert(nullptr, &code, displayUnits);
    gen__torvex_units_convert_f(&value, definition.unitsClass, code);
    return double(value);
}

void storeChoice(FeatureAttrLWI &item, const QComboBox *box)
{
    if (!box)
        return;
    if (box->currentIndex() != -1)
        item.setAttrValue(box->currentText());
    else if (const QLineEdit *line = box->lineEdit())
        item.setAttrValue(line->text());
}

} // namespace

QWidget *newValueEditor(const DmlAttrDef &definition, QWidget *parent)
{
    switch (definition.type) {
    case DmlAttrText:
        if (hasChoices(definition))
            return newComboBox(parent);
        return new QLineEdit(parent);
    case DmlAttrOption:
        return newComboBox(parent);
    case DmlAttrInteger:
        return new QSpinBox(parent);
    case DmlAttrFloat:
        return newDoubleSpinBox(parent);
    default:
        return nullptr;
    }
}

void loadValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor)
{
    const QVariant value = item.attrValue();
    if (compat::isNullVariant(value))
        return;
    switch (definition.type) {
    case DmlAttrText:
        loadText(value.toString(), definition, editor);
        break;
    case DmlAttrOption:
        if (QComboBox *box = qobject_cast<QComboBox *>(editor))
            loadOption(value.toString(), definition, box);
        break;
    case DmlAttrInteger:
        if (QSpinBox *box = qobject_cast<QSpinBox *>(editor)) {
            box->setMinimum(definition.intMin);
            box->setMaximum(definition.intMax);
            box->setValue(value.toInt());
        }
        break;
    case DmlAttrFloat:
        if (QDoubleSpinBox *box = qobject_cast<QDoubleSpinBox *>(editor))
            loadFloat(value.toDouble(), definition, item.displayUnits(), box);
        break;
    default:
        break;
    }
}

void storeValue(FeatureAttrLWI &item, const DmlAttrDef &definition, QWidget *editor)
{
    switch (definition.type) {
    case DmlAttrText:
        if (hasChoices(definition))
            storeChoice(item, qobject_cast<const QComboBox *>(editor));
        else if (const QLineEdit *line = qobject_cast<const QLineEdit *>(editor))
            item.setAttrValue(line->text());
        break;
    case DmlAttrOption:
        storeChoice(item, qobject_cast<const QComboBox *>(editor));
        break;
    case DmlAttrInteger:
        if (const QSpinBox *box = qobject_cast<const QSpinBox *>(editor))
            item.setAttrValue(box->value());
        break;
    case DmlAttrFloat:
        if (const QDoubleSpinBox *box = qobject_cast<const QDoubleSpinBox *>(editor))
            item.setAttrValue(storedFloat(box->value(), definition, item.displayUnits()));
        break;
    default:
        break;
    }
}

void setDefaultValue(QTableWidgetItem *item)
{
    FeatureAttrLWI *attribute = dynamic_cast<FeatureAttrLWI *>(item);
    if (!attribute)
        return;
    const DmlAttrDef *definition = definitionIn(attribute->dmlAttribute());
    const QVariant value = definition ? defaultValue(*definition) : QVariant();
    if (value.isValid())
        attribute->setAttrValue(value);
}

} // namespace Zudunmaf
