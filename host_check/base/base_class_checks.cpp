#include "base/base_checks.h"

#include "gdm/gdm_qt.h"

#include <QRegularExpression>
#include <QTableWidget>

#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
#include <memory>
#include <new>

namespace Zudunmaf::hostcheck
{

namespace
{

using Base = TvxAttributesSelectionDialog;
using Items = QList<QTableWidgetItem *>;

/// The base with nothing of the library in it.
class BareDialog : public Base
{
public:
    BareDialog()
        : Base(0, nullptr, Qt::WindowFlags())
    {
    }
    void buildInitialLists() override {}
    void filterAttributeList() override {}
    void setupContextMenu() override {}
    using Base::fillAttributeList;
};

/// Has bytes after the base, which only a base of another size writes to.
class PaddedDialog : public BareDialog
{
public:
    PaddedDialog() {} // leaves the padding as it is
    unsigned char padding[256];
};

class NamedItem : public DmlAttrLWI
{
public:
    explicit NamedItem(const QString &name)
        : m_name(name)
    {
    }
    QTableWidgetItem *clone() const override { return new NamedItem(*this); }
    QVariant data(int role) const override
    {
        return role == DmlAttrNameRole || role == Qt::DisplayRole ? QVariant(m_name) : DmlAttrLWI::data(role);
    }

private:
    QString m_name;
};

size_t sizeOfSymbol(void *address)
{
    Dl_info info;
    void *symbol = nullptr;
    if (!dladdr1(address, &info, &symbol, RTLD_DL_SYMENT) || !symbol)
        return 0;
    return static_cast<const ElfW(Sym) *>(symbol)->st_size;
}

/// Index of a virtual function in its table, from a pointer to the member.
template <class Member>
size_t slotOf(Member member)
{
    size_t offset = 0;
    std::memcpy(&offset, &member, sizeof offset);
    return offset / sizeof(void *); // the lowest bit may mark a virtual function
}

QStringList missingFunctions()
{
    return missingHostFunctions().filter(QRegularExpression(QStringLiteral("^Tvx")));
}

void baseIsComplete(const Settings &)
{
    const QStringList missing = missingFunctions();
    expect(missing.isEmpty(), "a definition of each function",
           "none of " + missing.join(QLatin1String(", ")).toStdString());
}

void virtualTableMatches(const Settings &)
{
    // The first two words are the offset to the top and the type.
    auto *table = static_cast<void **>(dlsym(RTLD_DEFAULT, "_ZTV28TvxAttributesSelectionDialog"));
    if (!table)
        notCheckable("the base has no virtual table in the global scope");
    const struct {
        size_t slot;
        const char *symbol, *name;
    } functions[] = {{slotOf(&Base::setDisplayUnits), "_ZN28TvxAttributesSelectionDialog15setDisplayUnitsEi",
                      "setDisplayUnits()"},
                     {slotOf(&Base::addButtonClickedCB),
                      "_ZN28TvxAttributesSelectionDialog18addButtonClickedCBEP16QTableWidgetItem",
                      "addButtonClickedCB()"},
                     {slotOf(&Base::removeButtonClickedCB),
                      "_ZN28TvxAttributesSelectionDialog21removeButtonClickedCBEP16QTableWidgetItem",
                      "removeButtonClickedCB()"}};
    for (const auto &function : functions)
        expect(table[2 + function.slot] == dlsym(RTLD_DEFAULT, function.symbol),
               text(function.name, " in slot ", function.slot),
               "another function: the base was compiled with another declaration");
    auto *ofDialog = dlsym(RTLD_DEFAULT, "_ZTVN8Zudunmaf22AttributesFilterDialogE");
    expect(!ofDialog || sizeOfSymbol(table) == sizeOfSymbol(ofDialog),
           text(sizeOfSymbol(ofDialog), " bytes, as in the dialogs' tables"),
           text(sizeOfSymbol(table), " bytes"));
}

void objectFits(const Settings &)
{
    constexpr unsigned char Pattern = 0x5A;
    const std::unique_ptr<unsigned char[]> memory(new unsigned char[sizeof(PaddedDialog)]);
    // Volatile, since otherwise the compiler knows that a constructor ends the life of these bytes.
    volatile unsigned char *const bytes = memory.get();
    std::fill_n(bytes, sizeof(PaddedDialog), Pattern);
    auto *dialog = new (memory.get()) PaddedDialog;
    const size_t end = sizeof(Base);
    const bool isUntouched = std::all_of(bytes + end, bytes + sizeof(PaddedDialog),
                                         [](unsigned char byte) { return byte == Pattern; });
    expect(isUntouched, text("an object of ", end, " bytes"), "a base that writes beyond its end");
    dialog->~PaddedDialog();
}

void metaObjectsChain(const Settings &)
{
    const QMetaObject &base = Base::staticMetaObject;
    expect(std::strcmp(base.className(), "TvxAttributesSelectionDialog") == 0, "TvxAttributesSelectionDialog",
           base.className());
    expect(base.superClass() == &QDialog::staticMetaObject, "QDialog above it",
           base.superClass() ? base.superClass()->className() : "nothing");
    for (const QMetaObject *dialog :
         {&AttributesFilterDialog::staticMetaObject, &FeatureAttributesDialog::staticMetaObject})
        expect(dialog->superClass() == &base, text("this meta-object above that of ", dialog->className()),
               "another one: moc runs over the declaration twice");
}

void dataItemKeepsItsData(const Settings &)
{
    const TvxDataItem item(QStringLiteral("Layer"), QVariant(8), 7);
    expect(item.text() == QLatin1String("Layer") && item.data().toInt() == 8 && item.did() == 7,
           "a row with the text \"Layer\", the mask 8 and the number 7",
           text('"', item.text().toStdString(), "\", ", item.data().toInt(), " and ", item.did()));
}

Items namedItems(const QStringList &names)
{
    Items items;
    items.reserve(names.size());
    for (const QString &name : names)
        items << new NamedItem(name);
    return items;
}

void fillCopies(const Settings &)
{
    BareDialog dialog;
    const Items items =
        namedItems({QStringLiteral("width"), QStringLiteral("depth"), QStringLiteral("plated")});
    dialog.fillAttributeList(items);
    const Items rows = dialog.getTopListItems(false);
    for (QTableWidgetItem *item : items)
        expect(!item->tableWidget() && !rows.contains(item), "copies of the items in the rows",
               "an item of the caller");
    qDeleteAll(items);
    expect(dialog.getTopListItems(false).size() == 3, "3 rows after 3 items were deleted by their owner",
           text(dialog.getTopListItems(false).size()));
    for (const QTableWidgetItem *row : dialog.getTopListItems(false)) {
        for (int column : {0, 1})
            expect(row->tableWidget() &&
                       dynamic_cast<const NamedItem *>(row->tableWidget()->item(row->row(), column)),
                   text("an item of the caller's class in column ", column, " of each row"),
                   "another class or no table");
    }
}

void fillReplaces(const Settings &)
{
    BareDialog dialog;
    for (const QStringList &names : {QStringList{QStringLiteral("width"), QStringLiteral("depth")},
                                     QStringList{QStringLiteral("plated")}, QStringList()}) {
        const Items items = namedItems(names);
        dialog.fillAttributeList(items);
        qDeleteAll(items);
        const Items rows = dialog.getTopListItems(false);
        expect(rows.size() == names.size(), text(names.size(), " rows"), text(rows.size()));
        for (const QTableWidgetItem *item : rows) {
            expect(!item->tableWidget()->isRowHidden(item->row()), "visible rows after a fill",
                   "a hidden row");
            dialog.setTopViewRowsVisiblity(item->row(), false);
        }
    }
}

void stateIsStored(const Settings &)
{
    BareDialog dialog;
    dialog.setFirstVisibleItemAsCurrent();
    dialog.editCurrentItem();
    expect(dialog.getChosenList().isEmpty() && dialog.getItemsForContextMenuCallback().isEmpty() &&
               !dialog.findItemByAttrName(QStringLiteral("width")),
           "no items in an empty dialog", "some");
    for (int units : {3, 0, -1}) {
        dialog.setDisplayUnits(units);
        expect(dialog.displayUnits() == units, text("the units ", units), text(dialog.displayUnits()));
    }
}

} // namespace

std::vector<Check> completenessChecks()
{
    std::vector<Check> checks{{"The base dialog defines all functions", Verdict::Broken, "", baseIsComplete}};
    if (!missingFunctions().isEmpty())
        checks.push_back({"All other promises of the base dialog", Verdict::NotCheckable, "",
                          [](const Settings &) { notCheckable("the base dialog lacks functions"); }});
    return checks;
}

std::vector<Check> baseClassChecks()
{
    constexpr Verdict Must = Verdict::Broken;
    return {
        {"The virtual table has the slots of the declaration", Must, "", virtualTableMatches},
        {"An object has the size of the declaration", Must, "", objectFits},
        {"The meta-objects of both dialogs lead to the base's", Must, "", metaObjectsChain},
        {"A row of the entity list keeps text, mask and number", Must, "", dataItemKeepsItsData},
        {"An empty dialog stands each call, and stores the units", Must, "", stateIsStored},
        {"A fill copies the items and leaves the caller's alone", Must, "", fillCopies},
        {"A fill replaces the rows, and all are visible", Must, "", fillReplaces},
    };
}

} // namespace Zudunmaf::hostcheck
