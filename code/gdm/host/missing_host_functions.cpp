#include "gdm/host/missing_host_functions.h"

#include <QByteArray>

#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <typeinfo>

namespace Zudunmaf
{

namespace
{

// Names, not addresses: taking the address of a function would bind it when the library is loaded.
const char *const serviceNames[] = {
    "gen__nls_nlst",
    "gen__nls_nlsa_get_att_prompt",
    "gen__cfg_get",
    "gen__log_status_check",
    "gen__mem_malloc",
    "gen__mem_free",
    "gen__str_cmp_nc",
    "gen__str_cmp_reg",
    "gen__torvex_units_convert_2",
    "gen__torvex_units_convert",
    "gen__torvex_units_convert_f",
    "gen__torvex_cur_units_str",
    "gen__torvex_get_str_units",
    "dml__atr_next",
};

/// A member function of TvxAttributesSelectionDialog in the encoding of the C++ ABI for symbol names. Pure
/// virtual functions are the library's own, and those of Q_OBJECT are needed to load it.
struct BaseFunction {
    /// "K" for a const function.
    const char *qualifier;
    /// With its length in front; C2 and D2 are constructor and destructor.
    const char *name;
    /// "v" for none; "" for a const QStringList &, whose encoding depends on the version of Qt.
    const char *parameters;
};

const BaseFunction baseFunctions[] = {
    {"", "C2", "iP7QWidget6QFlagsIN2Qt10WindowTypeEE"},
    {"", "D2", "v"},
    {"", "15setDisplayUnits", "i"},
    {"", "18addButtonClickedCB", "P16QTableWidgetItem"},
    {"", "21removeButtonClickedCB", "P16QTableWidgetItem"},
    {"", "19connectSignal2Slots", "v"},
    {"K", "12getEntityDID", "v"},
    {"K", "21getSelectedEntityMask", "v"},
    {"K", "20getSelectedGroupName", "v"},
    {"", "17getUserFilterText", "v"},
    {"", "12displayUnits", "v"},
    {"K", "15getTopListItems", "b"},
    {"", "23setTopViewRowsVisiblity", "ib"},
    {"", "28setFirstVisibleItemAsCurrent", "v"},
    {"", "21setTopViewCurrentItem", "P16QTableWidgetItem"},
    {"", "18findItemByAttrName", "RK7QString"},
    {"K", "13getChosenList", "v"},
    {"", "15setItemDelegate", "P19QStyledItemDelegate"},
    {"", "14setHeaderTitle", "iRK7QString"},
    {"", "15setButtonPixmap", "NS_12Buttons_EnumERK7QString"},
    {"", "20setCustomContextMenu", "P5QMenu"},
    {"", "30getItemsForContextMenuCallback", "v"},
    {"", "15editCurrentItem", "v"},
    {"", "14fillEntityList", "RK5QListIP11TvxDataItemE"},
    {"", "14fillGroupsList", ""},
    {"", "17fillAttributeList", "RK5QListIP16QTableWidgetItemE"},
    {"", "10closeEvent", "P11QCloseEvent"},
};

QByteArray symbolName(const BaseFunction &function)
{
    const QByteArray parameters = *function.parameters ? QByteArray(function.parameters)
                                                       : QByteArray("RK") + typeid(QStringList).name();
    return QByteArray("_ZN") + function.qualifier + "28TvxAttributesSelectionDialog" + function.name + 'E' +
           parameters;
}

void addIfMissing(const char *symbol, QStringList *missing)
{
    if (dlsym(RTLD_DEFAULT, symbol))
        return;
    char *readable = abi::__cxa_demangle(symbol, nullptr, nullptr, nullptr);
    missing->append(QString::fromLatin1(readable ? readable : symbol));
    std::free(readable);
}

} // namespace

QStringList missingHostFunctions()
{
    QStringList missing;
    for (const char *service : serviceNames)
        addIfMissing(service, &missing);
    addIfMissing("_ZN11TvxDataItemC1ERK7QString8QVarianti", &missing);
    for (const BaseFunction &function : baseFunctions)
        addIfMissing(symbolName(function).constData(), &missing);
    return missing;
}

} // namespace Zudunmaf
