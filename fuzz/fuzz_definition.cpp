// 256 bytes as a definition and 224 bytes as a condition, in both kinds of item and their editors. Pointers are valid, as
// the contract requires; numbers, types and texts are arbitrary.
#include "gdm/editing/attr_item_delegate.h"
#include "gdm/gdm_qt.h"

#include <QApplication>
#include <QTableWidget>

#include <cstring>
#include <memory>

using namespace Zudunmaf;

static const char *const entries[] = {"red", nullptr, "", "\xff\xfe deep"};

static void setPointers(DmlAttrDef *definition)
{
    if (definition->type == DmlAttrText)
        definition->defaultText = entries[definition->defaultOption & 3];
    if (definition->type != DmlAttrText && definition->type != DmlAttrOption)
        return;
    definition->optionList = definition->intMax & 1 ? entries : nullptr;
    definition->optionCount = qMin(definition->optionCount, 4);
}

static void work(QTableWidget *table, DmlAttrLWI *item)
{
    static const AttrItemDelegate delegate(nullptr);
    const QModelIndex index = table->model()->index(0, 1);
    table->setItem(0, 1, item);
    const std::unique_ptr<QWidget> editor(delegate.createEditor(table->viewport(), {}, index));
    for (int step = 0; step < 2; ++step) {
        table->setItem(0, 0, item->clone());
        for (int role : {0, 3, 137, 138, 139, 140, 141, 142})
            (void)(item->data(role), table->item(0, 0)->data(role));
        (void)(item->toString(), item->valueAsString());
        delegate.setEditorData(editor.get(), index);
        delegate.setModelData(editor.get(), table->model(), index);
    }
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < sizeof(DmlAttrDef))
        return 0;
    DmlAttrDef definition;
    DmlAttrValue condition = {};
    std::memcpy(&definition, data, sizeof definition);
    std::memcpy(&condition, data + sizeof definition, qMin(size - sizeof definition, sizeof condition));
    definition.type = definition.type & 0x40000000 ? definition.type : definition.type & 7;
    setPointers(&definition);

    static QTableWidget table(1, 2);
    DmlAttrLWI *items[] = {new AttrFilterLWI, new FeatureAttrLWI};
    for (DmlAttrLWI *item : items) {
        item->setDisplayUnits(definition.reserved244[0]);
        item->setDisplayPrompt(definition.reserved244[1] & 1);
        item->setDisplayValue(true);
        item->setDmlAttribute(QVariant::fromValue<void *>(&definition));
        if (item->itemType() == DmlAttrLWI::ItemType_AttrFilter)
            item->setAttrValue(QVariant::fromValue<void *>(&condition));
        work(&table, item);
    }
    table.clear();
    return 0;
}
