#include "base/base_checks.h"
#include "base/dialog_driver.h"
#include "walk.h"

#include "gdm/host/config_keys.h"
#include "gdm/host/gen_services.h"
#include "gdm/host/message_keys.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace Zudunmaf::hostcheck
{

namespace
{

constexpr Kind bothKinds[] = {Kind::Filter, Kind::Assign};

std::string shown(const QStringList &names)
{
    return names.isEmpty() ? "nothing" : names.join(QLatin1String(", ")).toStdString();
}

bool isAny(const DmlAttrDef &)
{
    return true;
}

/// Room for two numbers that are not the limits.
bool isWideInteger(const DmlAttrDef &definition)
{
    return definition.type == DmlAttrInteger && double(definition.intMax) - double(definition.intMin) >= 3;
}

bool isOther(const DmlAttrDef &definition)
{
    return !isWideInteger(definition);
}

QString allGroups(Kind kind)
{
    return messageText(kind == Kind::Filter ? keys::FilterAllGroupsRow : keys::FeatureAllGroupsRow);
}

/// A driver with at least two rows in the top view.
DialogDriver openDialog(const Settings &settings, Kind kind)
{
    attributesOf(settings);
    DialogDriver dialog(settings, kind);
    if (dialog.topView()->rowCount() < 2)
        notCheckable("fewer than two attributes are available " + dialog.where());
    return dialog;
}

void everythingIsAvailable(const Settings &settings)
{
    unsigned char withObsolete = 0, origin = 0;
    gen__cfg_get(keys::ShowObsolete, &withObsolete, &origin);
    for (Kind kind : bothKinds) {
        const unsigned int mask = kind == Kind::Filter ? EntityAll : EntityFeature;
        QStringList expected;
        for (const DmlAttrDef *definition : attributesOf(settings)) {
            if (isListed(*definition, mask, withObsolete))
                expected << QString(definition->name);
        }
        expected.sort();
        const DialogDriver dialog(settings, kind);
        expect(dialog->getEntityDID() >= 0, "a dictionary to walk", text(dialog->getEntityDID()));
        expect(dialog->getSelectedEntityMask() == int(mask),
               text("the last entity row with mask ", int(mask), " selected"),
               text("mask ", dialog->getSelectedEntityMask(), " ", dialog.where()));
        expect(dialog->getSelectedGroupName() == allGroups(kind),
               "the first group row \"" + allGroups(kind).toStdString() + "\" selected",
               '"' + dialog->getSelectedGroupName().toStdString() + "\" " + dialog.where());
        const QStringList names = dialog.availableNames(false);
        expect(names == expected, text("rows of ", expected.size(), " attributes ", dialog.where()),
               text(names.size(), " rows: ", shown(names)));
    }
}

void entityRowsGiveMasks(const Settings &settings)
{
    const DialogDriver dialog = openDialog(settings, Kind::Filter);
    QWidget *list = dialog.listWith(messageText(keys::FilterEntityLayer));
    const unsigned int masks[] = {EntityComponent, EntityFeature, EntityLayer, EntityJob, EntityStep,
                                  EntityNet,       EntitySymbol,  EntityWheel, EntityAll};
    for (int row = 0; row < int(std::size(masks)); ++row) {
        dialog.selectRow(list, row);
        expect(dialog->getSelectedEntityMask() == int(masks[row]),
               text("mask ", int(masks[row]), " of entity row ", row), text(dialog->getSelectedEntityMask()));
    }
}

void filterIsCalled(const Settings &settings)
{
    DialogDriver dialog = openDialog(settings, Kind::Filter);
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

void hiddenRowsAreFound(const Settings &settings)
{
    for (Kind kind : bothKinds) {
        const DialogDriver dialog = openDialog(settings, kind);
        QTableWidget *top = dialog.topView();
        const QStringList names = dialog.availableNames(false);
        for (int row = 0; row < top->rowCount(); ++row) {
            dialog->setTopViewRowsVisiblity(row, false);
            expect(top->isRowHidden(row), text("row ", row, " hidden"), "visible");
        }
        dialog->setFirstVisibleItemAsCurrent();
        expect(dialog.availableNames(false) == names, "hidden rows in getTopListItems(false)",
               shown(dialog.availableNames(false)));
        QTableWidgetItem *found = dialog->findItemByAttrName(names.last());
        expect(found && found->data(DmlAttrNameRole).toString() == names.last(),
               "the hidden item from findItemByAttrName(\"" + names.last().toStdString() + "\")",
               found ? "another one" : "null");
        expect(!dialog->findItemByAttrName(QStringLiteral("no such attribute")), "null for an unknown name",
               "an item");
        dialog->setTopViewRowsVisiblity(1, true);
        dialog->setFirstVisibleItemAsCurrent();
        expect(top->currentRow() == 1, "the first visible row current", text("row ", top->currentRow()));
        dialog->setTopViewRowsVisiblity(found->row(), true);
        dialog->setTopViewCurrentItem(found);
        expect(top->currentRow() == found->row(), text("row ", found->row(), " current on request"),
               text("row ", top->currentRow()));
    }
}

void wrongRowsAreIgnored(const Settings &settings)
{
    const DialogDriver dialog = openDialog(settings, Kind::Filter);
    const QStringList names = dialog.availableNames(true);
    for (int row : {-1, dialog.topView()->rowCount()})
        dialog->setTopViewRowsVisiblity(row, false);
    expect(dialog.availableNames(true) == names, "no change by a row out of range",
           shown(dialog.availableNames(true)));
}

void visibleRowsAreAskedFor(const Settings &settings)
{
    const DialogDriver dialog = openDialog(settings, Kind::Filter);
    dialog->setTopViewRowsVisiblity(0, false);
    const auto all = dialog->getTopListItems(false).size(), visible = dialog->getTopListItems(true).size();
    expect(visible == all - 1, text(all - 1, " visible rows from getTopListItems(true)"), text(visible));
}

void addCopies(const Settings &settings)
{
    for (Kind kind : bothKinds) {
        DialogDriver dialog = openDialog(settings, kind);
        QTableWidget *top = dialog.topView();
        dialog.clickRow(top, 0);
        dialog.clickRow(top, 1, Qt::ControlModifier);
        dialog.addSelected();
        QStringList chosen = dialog.chosenNames(), added = dialog.calls().added;
        chosen.sort();
        added.sort();
        expect(added == chosen, "a call of addButtonClickedCB() for each of " + shown(chosen),
               shown(added) + ' ' + dialog.where());
        for (const QTableWidgetItem *item : dialog->getChosenList()) {
            expect(dynamic_cast<const DmlAttrLWI *>(item), "attribute items in the chosen list",
                   "another class");
            expect(item->tableWidget() && item->tableWidget() != top && item->column() == 1,
                   "a copy in column 1 of the chosen list", text("an item of column ", item->column()));
        }
    }
}

void removeReports(const Settings &settings)
{
    for (Kind kind : bothKinds) {
        DialogDriver dialog = openDialog(settings, kind);
        dialog.add(0);
        dialog.add(dialog.topRowWhere(isAny, "second attribute"));
        const QStringList before = dialog.chosenNames();
        dialog.clickRow(dialog.chosenList(), 0);
        dialog.removeSelected();
        expect(dialog.chosenNames() == before.mid(1), "only " + shown(before.mid(1)) + " left",
               shown(dialog.chosenNames()));
        expect(dialog.calls().removed == before.mid(0, 1),
               "one call of removeButtonClickedCB() for " + before.first().toStdString(),
               shown(dialog.calls().removed));
        expect(dialog.availableNames(true).contains(before.first()),
               before.first().toStdString() + " available again", shown(dialog.availableNames(true)));
    }
}

void oneValueForEach(const Settings &settings)
{
    DialogDriver dialog = openDialog(settings, Kind::Assign);
    dialog.add(0);
    const QStringList chosen = dialog.chosenNames();
    // A new fill shows the row again.
    dialog->setDisplayUnits(dialog->displayUnits());
    dialog.clickRow(dialog.topView(), 0);
    dialog.addSelected();
    expect(dialog.chosenNames() == chosen, shown(chosen) + " once", shown(dialog.chosenNames()));
}

void menuIsShown(const Settings &settings)
{
    DialogDriver dialog = openDialog(settings, Kind::Filter);
    const int row = dialog.add(0);
    bool isShown = false, isFound = false;
    QTimer watch; // The menu may run an event loop of its own.
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            isShown = true;
            const QList<QAction *> entries = menu->actions();
            isFound = std::any_of(entries.begin(), entries.end(), [](const QAction *action) {
                return action->text() == messageText(keys::FilterSetCondition);
            });
            menu->close();
        }
    });
    watch.start(1);
    dialog.clickRow(dialog.chosenList(), row, Qt::NoModifier, Qt::RightButton);
    const bool isReady = QTest::qWaitFor([&isShown] { return isShown; }, 1000);
    expect(isReady && isFound,
           "the menu of setCustomContextMenu() after a click of the right button on a chosen row",
           isReady ? "another menu" : "no menu");
}

void menuItemsHoldValues(const Settings &settings)
{
    for (Kind kind : bothKinds) {
        DialogDriver dialog = openDialog(settings, kind);
        dialog.clickRow(dialog.chosenList(), dialog.add(0));
        const auto items = dialog->getItemsForContextMenuCallback();
        expect(!items.isEmpty(), "the item of a chosen row that was clicked", "none");
        for (QTableWidgetItem *item : items)
            expect(dynamic_cast<DmlAttrLWI *>(item) && item->column() == 1, "attribute items of column 1",
                   "another item");
    }
}

void headersAreSet(const Settings &settings)
{
    const DialogDriver dialog = openDialog(settings, Kind::Filter);
    for (const QTableWidget *table : {dialog.topView(), dialog.chosenList()}) {
        const auto *header = table->model();
        const QStringList titles{header->headerData(0, Qt::Horizontal).toString(),
                                 header->headerData(1, Qt::Horizontal).toString()};
        const QStringList expected{messageText(keys::FilterHeaderName),
                                   messageText(keys::FilterHeaderCondition)};
        expect(titles == expected, "the titles " + shown(expected) + " in both tables", shown(titles));
    }
}

void listsCanBeBuiltAgain(const Settings &settings)
{
    const DialogDriver dialog = openDialog(settings, Kind::Filter);
    const auto count = [&dialog] {
        return text(DialogDriver::rowCount(dialog.listWith(messageText(keys::FilterEntityLayer))),
                    " entities, ", DialogDriver::rowCount(dialog.listWith(allGroups(Kind::Filter))),
                    " groups, ", dialog->getTopListItems(false).size(), " attributes");
    };
    const std::string before = count();
    dialog->buildInitialLists();
    expect(count() == before, before, count());
}

void chosenRowsOutliveUnits(const Settings &settings)
{
    for (Kind kind : bothKinds) {
        DialogDriver dialog = openDialog(settings, kind);
        dialog.add(0);
        const QStringList before = dialog.chosenNames();
        dialog->setDisplayUnits(settings.units.empty() ? 1 : settings.units.front());
        expect(dialog.chosenNames() == before, shown(before) + " chosen after a change of units",
               shown(dialog.chosenNames()));
    }
}

void rowsComeBack(const Settings &settings)
{
    DialogDriver dialog = openDialog(settings, Kind::Filter);
    const QStringList all = dialog.availableNames(true);
    dialog.setFilterText(QStringLiteral("no such attribute"));
    dialog->setDisplayUnits(dialog->displayUnits());
    dialog.setFilterText(QString());
    expect(dialog.availableNames(true) == all,
           text("all ", all.size(), " rows after a change of units under a filter text"),
           text(dialog.availableNames(true).size(), " rows"));
}

/// An open range editor of an integer condition, in the last of two chosen rows.
class OpenRange
{
public:
    explicit OpenRange(const Settings &settings)
        : dialog(openDialog(settings, Kind::Filter))
    {
        // Another attribute: a base may select the row of one that is chosen already.
        dialog.add(dialog.topRowWhere(isOther, "attribute of another type"));
        const int row = dialog.add(dialog.topRowWhere(isWideInteger, "integer attribute"));
        dialog.clickRow(dialog.chosenList(), row);
        dialog->editCurrentItem();
        QCoreApplication::processEvents();
        const QList<QSpinBox *> boxes = dialog.editorBoxes();
        m_boxCount = int(boxes.size());
        if (m_boxCount == 2)
            m_low = boxes.constFirst()->minimum() + 1;
    }

    /// Types into whatever has the focus.
    void typeAndTab()
    {
        requireEditor();
        replaceBy(m_low);
        dialog.press(Qt::Key_Tab);
        replaceBy(m_low + 1);
    }
    /// Types into each box.
    void fill()
    {
        requireEditor();
        int number = m_low;
        for (QSpinBox *box : dialog.editorBoxes()) {
            box->setFocus();
            replaceBy(number++);
        }
    }

    int boxCount() const { return m_boxCount; }
    std::string typed() const { return text(m_low, " to ", m_low + 1); }
    std::string inBoxes() const
    {
        const QList<QSpinBox *> boxes = dialog.editorBoxes();
        return boxes.size() == 2 ? text(boxes[0]->value(), " to ", boxes[1]->value()) : "no editor";
    }
    /// The condition of a chosen row.
    std::string stored(int row) const
    {
        const auto *item = dynamic_cast<DmlAttrLWI *>(dialog->getChosenList().value(row));
        const auto *record =
            item ? static_cast<const DmlAttrValue *>(item->attrValue().value<void *>()) : nullptr;
        if (!record)
            return "no record";
        return record->isSet ? text(record->intLow, " to ", record->intHigh) : "no condition";
    }

    DialogDriver dialog;

private:
    void replaceBy(int number) const
    {
        dialog.press(Qt::Key_A, Qt::ControlModifier);
        dialog.type(QString::number(number));
    }

    void requireEditor() const
    {
        if (m_boxCount != 2)
            notCheckable("no range editor opens");
    }

    int m_boxCount = 0;
    int m_low = 0; ///< Within the limits of the boxes.
};

void editorOpens(const Settings &settings)
{
    const OpenRange range(settings);
    expect(range.boxCount() == 2, "an editor with two boxes from editCurrentItem()",
           text(range.boxCount(), " boxes"));
}

void keysReachEditor(const Settings &settings)
{
    OpenRange range(settings);
    range.typeAndTab();
    expect(range.inBoxes() == range.typed(), range.typed() + " in the boxes after digits, Tab, digits",
           range.inBoxes());
}

/// What the user, or the host, does while an editor is open.
enum class Way { Ok, Add, Remove, FilterText, Units };

template <Way way>
void openEditorIsKept(const Settings &settings)
{
    OpenRange range(settings);
    DialogDriver &dialog = range.dialog;
    range.fill();
    switch (way) {
    case Way::Ok:
        dialog.end(QDialogButtonBox::Ok);
        expect(!dialog->isVisible() && dialog->result() == QDialog::Accepted, "an accepted dialog",
               "another result");
        break;
    case Way::Add:
        dialog.add(dialog.topRowWhere(isOther, "attribute of another type"));
        break;
    case Way::Remove:
        dialog.clickRow(dialog.chosenList(), 0);
        dialog.removeSelected();
        break;
    case Way::FilterText:
        dialog.setFilterText(QStringLiteral("q"));
        break;
    case Way::Units:
        dialog->setDisplayUnits(dialog->displayUnits());
        dialog.clickRow(dialog.chosenList(), 0);
        break;
    }
    const std::string stored = range.stored(way == Way::Remove ? 0 : 1);
    expect(stored == range.typed(), range.typed(), stored);
}

void cancelRejects(const Settings &settings)
{
    for (bool isClosed : {false, true}) {
        OpenRange range(settings);
        range.fill();
        if (isClosed)
            range.dialog->close();
        else
            range.dialog.end(QDialogButtonBox::Cancel);
        expect(!range.dialog->isVisible() && range.dialog->result() != QDialog::Accepted, "a rejected dialog",
               range.dialog->isVisible() ? "a visible one" : "an accepted one");
    }
}

} // namespace

std::vector<Check> baseDialogChecks()
{
    constexpr Verdict Must = Verdict::Broken, Should = Verdict::Advice;
    // The dialogs call all of these.
    static constexpr char All[] =
        "dml__atr_next gen__nls_nlst gen__nls_nlsa_get_att_prompt gen__cfg_get gen__log_status_check "
        "gen__mem_malloc gen__mem_free gen__str_cmp_nc gen__str_cmp_reg gen__torvex_units_convert_2 "
        "gen__torvex_units_convert gen__torvex_units_convert_f gen__torvex_cur_units_str "
        "gen__torvex_get_str_units";
    return {
        {"After a fill, everything is available", Must, All, everythingIsAvailable},
        {"Each entity row gives its mask", Must, All, entityRowsGiveMasks},
        {"The filter is called for each change", Must, All, filterIsCalled},
        {"Rows are hidden, and found all the same", Must, All, hiddenRowsAreFound},
        {"A row out of range is ignored", Should, All, wrongRowsAreIgnored},
        {"getTopListItems(true) gives the visible rows", Should, All, visibleRowsAreAskedFor},
        {"Add puts copies into the chosen list and calls the hook", Must, All, addCopies},
        {"Remove calls the hook with a live item", Must, All, removeReports},
        {"\"Assign Attributes\" takes one value for each attribute", Should, All, oneValueForEach},
        {"The context menu is shown", Should, All, menuIsShown},
        {"A menu action gets attribute items of column 1", Must, All, menuItemsHoldValues},
        {"Headers of both tables are set", Should, All, headersAreSet},
        {"The lists can be built again", Should, All, listsCanBeBuiltAgain},
        {"A change of units leaves the chosen rows alone", Must, All, chosenRowsOutliveUnits},
        {"Rows left out at a change of units come back", Should, All, rowsComeBack},
        {"editCurrentItem() opens the editor of the delegate", Must, All, editorOpens},
        {"Keys reach an open range editor", Should, All, keysReachEditor},
        {"OK keeps what an open editor shows", Should, All, openEditorIsKept<Way::Ok>},
        {"Add keeps what an open editor shows", Should, All, openEditorIsKept<Way::Add>},
        {"Remove keeps what an open editor shows", Should, All, openEditorIsKept<Way::Remove>},
        {"A filter text keeps what an open editor shows", Should, All, openEditorIsKept<Way::FilterText>},
        {"A change of units keeps what an open editor shows", Should, All, openEditorIsKept<Way::Units>},
        {"Cancel and closing the window reject the dialog", Should, All, cancelRejects},
    };
}

} // namespace Zudunmaf::hostcheck

/// The module's one entry. Makes the application, which lives until the process ends.
extern "C" GDM_EXPORT const std::vector<Zudunmaf::hostcheck::Check> *zudunmafBaseChecks()
{
    using namespace Zudunmaf::hostcheck;
    static int count = 1;
    static char name[] = "zudunmaf-host-check", *arguments[] = {name, nullptr};
    // The host may have made one. Never deleted: the process ends without destructors.
    static auto *const application =
        QApplication::instance() ? QApplication::instance() : new QApplication(count, arguments);
    Q_UNUSED(application);
    static const std::vector<Check> checks = [] {
        std::vector<Check> all = completenessChecks();
        if (all.size() > 1)
            return all;
        for (const std::vector<Check> &more : {baseClassChecks(), baseDialogChecks()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return &checks;
}
