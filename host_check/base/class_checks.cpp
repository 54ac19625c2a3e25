#include "check.h"

#include "gdm/gdm_qt.h"

#include <QApplication>
#include <QTableWidget>

#include <algorithm>
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

class OwnItem : public DmlAttrLWI
{
public:
    QTableWidgetItem *clone() const override { return new OwnItem(*this); }
};

size_t sizeOfSymbol(const char *name)
{
    Dl_info info;
    void *symbol = nullptr;
    if (!dladdr1(dlsym(RTLD_DEFAULT, name), &info, &symbol, RTLD_DL_SYMENT) || !symbol)
        notCheckable(text("no symbol ", name));
    return static_cast<const ElfW(Sym) *>(symbol)->st_size;
}

void virtualTableMatches(const Settings &)
{
    // The dialogs add no virtual function.
    expectEqual(sizeOfSymbol("_ZTV28TvxAttributesSelectionDialog"),
                sizeOfSymbol("_ZTVN8Zudunmaf22AttributesFilterDialogE"),
                "bytes in the virtual table: the base was compiled with another declaration");
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

void fillCopies(const Settings &)
{
    BareDialog dialog;
    for (int count : {3, 1, 0}) {
        Items items;
        items.reserve(count);
        for (int index = 0; index < count; ++index)
            items << new OwnItem;
        dialog.fillAttributeList(items);
        const Items rows = dialog.getTopListItems(false);
        for (QTableWidgetItem *item : items)
            expect(!item->tableWidget() && !rows.contains(item), "copies of the items in the rows",
                   "an item of the caller");
        qDeleteAll(items);
        expectEqual(int(rows.size()), count, "as the number of rows after a fill");
        for (const QTableWidgetItem *row : rows) {
            const QTableWidget *table = row->tableWidget();
            for (int column : {0, 1})
                expect(table && dynamic_cast<const OwnItem *>(table->item(row->row(), column)),
                       text("an item of the caller's class in column ", column, " of each row"),
                       "another class or no table");
            expect(!table->isRowHidden(row->row()), "visible rows after a fill", "a hidden row");
            dialog.setTopViewRowsVisiblity(row->row(), false);
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
        expectEqual(dialog.displayUnits(), units, "from displayUnits()");
    }
}

const std::string &missingFunctions()
{
    static const std::string missing =
        missingHostFunctions().filter(QStringLiteral("Tvx")).join(QLatin1String(", ")).toStdString();
    return missing;
}

void definesAllFunctions(const Settings &)
{
    expect(missingFunctions().empty(), "a definition of each function", "none of " + missingFunctions());
}

BaseChecks baseChecks()
{
    constexpr Verdict Must = Verdict::Broken;
    const Check completeness{"The base dialog defines all functions", Must, definesAllFunctions};
    if (!missingFunctions().empty())
        return {{completeness}, {}};
    return {{completeness,
             {"The virtual table has the size of the declaration", Must, virtualTableMatches},
             {"An object has the size of the declaration", Must, objectFits},
             {"An empty dialog gives no items and stores the units", Must, stateIsStored},
             {"A fill makes visible rows of copies, in place of the rows before", Must, fillCopies}},
            dialogChecks()};
}

} // namespace

} // namespace Zudunmaf::hostcheck

/// The module's one entry. Makes the application, which lives until the process ends.
extern "C" GDM_EXPORT const Zudunmaf::hostcheck::BaseChecks *zudunmafBaseChecks()
{
    static int count = 1;
    static char name[] = "zudunmaf-host-check", *arguments[] = {name, nullptr};
    // The host may have made one. Never deleted: the process ends without destructors.
    static auto *const application =
        QApplication::instance() ? QApplication::instance() : new QApplication(count, arguments);
    Q_UNUSED(application);
    static const Zudunmaf::hostcheck::BaseChecks checks = Zudunmaf::hostcheck::baseChecks();
    return &checks;
}
