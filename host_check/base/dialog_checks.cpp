#include "base/dialog_driver.h"
#include "walk.h"

#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"

#include <QCoreApplication>

namespace Zudunmaf::hostcheck
{

namespace
{

QString allGroups(Kind kind)
{
    return messageText(kind == Kind::Filter ? keys::FilterAllGroupsRow : keys::FeatureAllGroupsRow);
}

void everythingIsAvailable(DialogDriver &dialog)
{
    unsigned char withObsolete = 0, origin = 0;
    gen__cfg_get(keys::ShowObsolete, &withObsolete, &origin);
    const unsigned int mask = dialog.kind() == Kind::Filter ? EntityAll : EntityFeature;
    const Definitions definitions = attributesOf(dialog.settings());
    QStringList expected;
    expected.reserve(int(definitions.size()));
    for (const DmlAttrDef *definition : definitions) {
        const bool isObsolete = gen__str_cmp_nc(definition->group, "Obsolete") == 0;
        if ((definition->entityMask & mask) && (withObsolete || !isObsolete))
            expected << QString(definition->name);
    }
    expected.sort();
    expect(dialog->getEntityDID() >= 0, "a dictionary to walk", text(dialog->getEntityDID()));
    expectEqual(dialog->getSelectedEntityMask(), int(mask), "as the mask of the last entity row, selected");
    expectEqual(dialog->getSelectedGroupName().toStdString(), allGroups(dialog.kind()).toStdString(),
                "as the first group row, selected");
    expectNames(dialog.availableNames(false), expected, "in the top view");
}

void entityRowsGiveMasks(DialogDriver &dialog)
{
    QWidget *list = dialog.listWith(messageText(keys::FilterEntityLayer));
    const unsigned int masks[] = {EntityComponent, EntityFeature, EntityLayer, EntityJob, EntityStep,
                                  EntityNet,       EntitySymbol,  EntityWheel, EntityAll};
    for (int row = 0; row < int(std::size(masks)); ++row) {
        dialog.selectRow(list, row);
        expectEqual(dialog->getSelectedEntityMask(), int(masks[row]),
                    text("as the mask of entity row ", row));
    }
}

void filterIsCalled(DialogDriver &dialog)
{
    const auto expectCall = [&dialog](const char *change, const std::function<void()> &act) {
        const int before = dialog.calls().filterings;
        act();
        expect(dialog.calls().filterings > before, text("a call of filterAttributeList() for ", change),
               "none");
    };
    dialog.setFilterText(QString());
    expectCall("a typed letter", [&] { dialog.setFilterText(QStringLiteral("q")); });
    expectCall("the removal of the text", [&] { dialog.setFilterText(QString()); });
    QWidget *entities = dialog.listWith(messageText(keys::FilterEntityLayer));
    expectCall("another entity", [&] { dialog.selectRow(entities, 0); });
    QWidget *groups = dialog.listWith(allGroups(Kind::Filter));
    if (DialogDriver::rowCount(groups) > 1)
        expectCall("another group", [&] { dialog.selectRow(groups, 1); });
}

void hiddenRowsAreFound(DialogDriver &dialog)
{
    QTableWidget *top = dialog.topView();
    const QStringList names = dialog.availableNames(false);
    for (int row = 0; row < top->rowCount(); ++row) {
        dialog->setTopViewRowsVisiblity(row, false);
        expect(top->isRowHidden(row), text("row ", row, " hidden"), "visible");
    }
    dialog->setFirstVisibleItemAsCurrent();
    expectNames(dialog.availableNames(false), names, "from getTopListItems(false), although hidden");
    QTableWidgetItem *found = dialog->findItemByAttrName(names.last());
    expect(found && found->data(DmlAttrNameRole).toString() == names.last(),
           "the hidden item from findItemByAttrName(\"" + names.last().toStdString() + "\")",
           found ? "another one" : "null");
    expect(!dialog->findItemByAttrName(QStringLiteral("no such attribute")), "null for an unknown name",
           "an item");
    dialog->setTopViewRowsVisiblity(1, true);
    dialog->setFirstVisibleItemAsCurrent();
    expectEqual(top->currentRow(), 1, "as the current row, the first visible one");
    dialog->setTopViewRowsVisiblity(found->row(), true);
    dialog->setTopViewCurrentItem(found);
    expectEqual(top->currentRow(), found->row(), "as the current row after setTopViewCurrentItem()");
}

void addCopies(DialogDriver &dialog)
{
    QTableWidget *top = dialog.topView();
    dialog.clickRow(top, 0);
    dialog.clickRow(top, 1, Qt::ControlModifier);
    dialog.clickButton(Button::Add);
    QStringList chosen = dialog.chosenNames(), added = dialog.calls().added;
    chosen.sort();
    added.sort();
    expectNames(added, chosen, "in calls of addButtonClickedCB(), as in the chosen list");
    for (const QTableWidgetItem *item : dialog->getChosenList()) {
        expect(dynamic_cast<const DmlAttrLWI *>(item), "attribute items in the chosen list", "another class");
        expect(item->tableWidget() && item->tableWidget() != top && item->column() == 1,
               "a copy in column 1 of the chosen list", text("an item of column ", item->column()));
    }
}

void removeReports(DialogDriver &dialog)
{
    dialog.add(0);
    dialog.add(dialog.topRowWhere([](const DmlAttrDef &) { return true; }, "second attribute"));
    const QStringList before = dialog.chosenNames();
    dialog.clickRow(dialog.chosenList(), 0);
    dialog.clickButton(Button::Remove);
    expectNames(dialog.chosenNames(), before.mid(1), "in the chosen list after the first was removed");
    expectNames(dialog.calls().removed, before.mid(0, 1), "in calls of removeButtonClickedCB()");
    expect(dialog.availableNames(true).contains(before.first()),
           before.first().toStdString() + " available again", "no visible row of it");
}

void oneValueForEach(DialogDriver &dialog)
{
    dialog.add(0);
    const QStringList chosen = dialog.chosenNames();
    // A new fill shows the row again.
    dialog->setDisplayUnits(dialog->displayUnits());
    dialog.clickRow(dialog.topView(), 0);
    dialog.clickButton(Button::Add);
    expectNames(dialog.chosenNames(), chosen, "in the chosen list after the same was added twice");
}

void menuGetsItems(DialogDriver &dialog)
{
    dialog.clickRow(dialog.chosenList(), dialog.add(0));
    const auto items = dialog->getItemsForContextMenuCallback();
    expect(!items.isEmpty(), "the item of a chosen row that was clicked", "none");
    for (QTableWidgetItem *item : items)
        expect(dynamic_cast<DmlAttrLWI *>(item) && item->column() == 1, "attribute items of column 1",
               "another item");
}

void chosenRowsOutliveUnits(DialogDriver &dialog)
{
    dialog.add(0);
    const QStringList before = dialog.chosenNames();
    const std::vector<int> &units = dialog.settings().units;
    dialog->setDisplayUnits(units.empty() ? 1 : units.front());
    expectNames(dialog.chosenNames(), before, "in the chosen list after a change of units");
}

void rowsComeBack(DialogDriver &dialog)
{
    const QStringList all = dialog.availableNames(true);
    dialog.setFilterText(QStringLiteral("no such attribute"));
    dialog->setDisplayUnits(dialog->displayUnits());
    dialog.setFilterText(QString());
    expectNames(dialog.availableNames(true), all, "available after a change of units under a filter text");
}

/// Room for two numbers that are not the limits.
bool isWideInteger(const DmlAttrDef &definition)
{
    return definition.type == DmlAttrInteger && double(definition.intMax) - double(definition.intMin) >= 3;
}

void editorOpens(DialogDriver &dialog)
{
    dialog.clickRow(dialog.chosenList(), dialog.add(dialog.topRowWhere(isWideInteger, "integer attribute")));
    dialog->editCurrentItem();
    QCoreApplication::processEvents();
    expectEqual(dialog.editorBoxes().size(), 2, "as the number of boxes in the open editor of an integer");
}

void openEditorIsKept(DialogDriver &dialog)
{
    editorOpens(dialog);
    const int low = dialog.editorBoxes().constFirst()->minimum() + 1;
    dialog.type(QString::number(low));
    dialog.press(Qt::Key_Tab);
    dialog.type(QString::number(low + 1));
    dialog.pressOk();
    expect(!dialog->isVisible() && dialog->result() == QDialog::Accepted, "an accepted dialog",
           "another result");
    const auto *item = dynamic_cast<DmlAttrLWI *>(dialog->getChosenList().value(0));
    const auto *record = item ? static_cast<DmlAttrValue *>(item->attrValue().value<void *>()) : nullptr;
    const std::string stored =
        record && record->isSet ? text(record->intLow, " to ", record->intHigh) : "no condition";
    expectEqual(stored, text(low, " to ", low + 1), "as the condition, after both were typed");
}

} // namespace

std::vector<Check> dialogChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    constexpr Kind Filter = Kind::Filter, Assign = Kind::Assign;
    return {
        {"After a fill, everything is available", Must, in<everythingIsAvailable, Filter, Assign>},
        {"Each entity row gives its mask", Must, in<entityRowsGiveMasks, Filter>},
        {"The filter is called for each change", Must, in<filterIsCalled, Filter>},
        {"Rows are hidden, and found all the same", Must, in<hiddenRowsAreFound, Filter, Assign>},
        {"Add puts copies into the chosen list and calls the hook", Must, in<addCopies, Filter, Assign>},
        {"Remove calls the hook with a live item", Must, in<removeReports, Filter, Assign>},
        {"\"Assign Attributes\" takes one value for each attribute", Should, in<oneValueForEach, Assign>},
        {"A menu action gets attribute items of column 1", Must, in<menuGetsItems, Filter, Assign>},
        {"A change of units leaves the chosen rows alone", Must, in<chosenRowsOutliveUnits, Filter, Assign>},
        {"Rows left out at a change of units come back", Should, in<rowsComeBack, Filter>},
        {"editCurrentItem() opens the editor of the delegate", Must, in<editorOpens, Filter>},
        {"OK keeps what an open editor shows", Should, in<openEditorIsKept, Filter>},
    };
}

} // namespace Zudunmaf::hostcheck
