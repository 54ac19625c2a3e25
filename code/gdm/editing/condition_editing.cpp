#include "gdm/editing/condition_editing.h"

#include "gdm/editing/combo_editing.h"
#include "gdm/editing/min_max_double_editor.h"
#include "gdm/editing/min_max_int_editor.h"
#include "gdm/editing/range_editor_filter.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_filter_lwi.h"

#include <QAbstractSpinBox>
#include <QLineEdit>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace Zudunmaf
{

namespace
{

void loadOption(const DmlAttrValue &condition, const DmlAttrDef &definition, QComboBox *box)
{
    box->clear();
    addOptions(box, definition);
    if (condition.option >= 0 && condition.option < box->count())
        box->setCurrentIndex(condition.option);
}

template <class Editor, class Number, class Limit>
void loadRange(Editor *editor, Limit minimum, Limit maximum, Limit low, Limit high)
{
    editor->setMinimum(static_cast<Number>(minimum));
    editor->setMaximum(static_cast<Number>(maximum));
    editor->setFromValue(static_cast<Number>(low));
    editor->setToValue(static_cast<Number>(high));
    const QList<QAbstractSpinBox *> boxes = editor->template findChildren<QAbstractSpinBox *>();
    RangeEditorFilter::install(editor, boxes.first(), boxes.last());
}

void markSet(DmlAttrValue &condition, const DmlAttrDef &definition)
{
    condition.isSet = 1;
    condition.type = definition.type;
}

void storeText(DmlAttrValue &condition, const QString &text)
{
    std::memset(condition.text, 0, sizeof condition.text);
    if (text.isEmpty())
        condition.isSet = 0;
    else
        std::snprintf(condition.text, sizeof condition.text, "%.199s", text.toLocal8Bit().constData());
}

void storeOption(DmlAttrValue &condition, const DmlAttrDef &definition, int index)
{
    const bool isEntry = index >= 0 && index < definition.optionCount;
    condition.option = isEntry ? index : -1;
    if (!isEntry)
        condition.isSet = 0;
}

} // namespace

QWidget *newConditionEditor(const DmlAttrDef &definition, QWidget *parent)
{
    switch (definition.type) {
    case DmlAttrText:
        return new QLineEdit(parent);
    case DmlAttrOption:
        return newComboBox(parent);
    case DmlAttrInteger:
        return new MinMaxIntEditor(parent);
    case DmlAttrFloat:
        return new MinMaxDoubleEditor(parent);
    default:
        return nullptr;
    }
}

void loadCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor)
{
    const DmlAttrValue *condition = recordIn<const DmlAttrValue>(item.attrValue());
    if (!condition)
        return;
    switch (definition.type) {
    case DmlAttrText:
        if (QLineEdit *line = qobject_cast<QLineEdit *>(editor))
            line->setText(fieldString(condition->text));
        break;
    case DmlAttrOption:
        if (QComboBox *box = qobject_cast<QComboBox *>(editor))
            loadOption(*condition, definition, box);
        break;
    case DmlAttrInteger:
        if (MinMaxIntEditor *range = qobject_cast<MinMaxIntEditor *>(editor))
            loadRange<MinMaxIntEditor, int>(range, definition.intMin, definition.intMax, condition->intLow,
                                            condition->intHigh);
        break;
    case DmlAttrFloat:
        if (MinMaxDoubleEditor *range = qobject_cast<MinMaxDoubleEditor *>(editor))
            loadRange<MinMaxDoubleEditor, float>(range, definition.floatMin, definition.floatMax,
                                                 condition->floatLow, condition->floatHigh);
        break;
    default:
        break;
    }
}

void storeCondition(AttrFilterLWI &item, const DmlAttrDef &definition, QWidget *editor)
{
    DmlAttrValue *condition = recordIn<DmlAttrValue>(item.attrValue());
    if (!condition)
        return;
    switch (definition.type) {
    case DmlAttrText:
        if (const QLineEdit *line = qobject_cast<const QLineEdit *>(editor)) {
            markSet(*condition, definition);
            storeText(*condition, line->text());
        }
        break;
    case DmlAttrOption:
        if (const QComboBox *box = qobject_cast<const QComboBox *>(editor)) {
            markSet(*condition, definition);
            storeOption(*condition, definition, box->currentIndex());
        }
        break;
    case DmlAttrInteger:
        if (const MinMaxIntEditor *range = qobject_cast<const MinMaxIntEditor *>(editor)) {
            markSet(*condition, definition);
            condition->intLow = std::min(range->fromValue(), range->toValue());
            condition->intHigh = std::max(range->fromValue(), range->toValue());
        }
        break;
    case DmlAttrFloat:
        if (const MinMaxDoubleEditor *range = qobject_cast<const MinMaxDoubleEditor *>(editor)) {
            markSet(*condition, definition);
            condition->floatLow = double(std::min(range->fromValue(), range->toValue()));
            condition->floatHigh = double(std::max(range->fromValue(), range->toValue()));
        }
        break;
    default:
        break;
    }
}

void clearCondition(QTableWidgetItem *item)
{
    const DmlAttrLWI *attribute = static_cast<const DmlAttrLWI *>(item);
    const DmlAttrDef *definition = definitionIn(attribute->dmlAttribute());
    DmlAttrValue *condition = recordIn<DmlAttrValue>(attribute->attrValue());
    if (definition && condition)
        prime(*condition, *definition);
}

} // namespace Zudunmaf
