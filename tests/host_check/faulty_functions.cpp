// One faulty function for each library that is built of this file. Loaded before the example's libraries, it takes the
// place of the function there.
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/dml_dictionary.h"
#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

#include <QAbstractItemDelegate>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fnmatch.h>
#include <string>
#include <strings.h>
#include <unistd.h>

namespace
{

/// The example's function that is replaced, by the end of its symbol.
template <class... Arguments>
[[maybe_unused]] auto realFunction(const char *symbol)
{
    void *base = dlopen("libzudunmaf_tvx.so.1", RTLD_LAZY | RTLD_NOLOAD);
    return reinterpret_cast<void (*)(TvxAttributesSelectionDialog *, Arguments...)>(
        dlsym(base, (std::string("_ZN28TvxAttributesSelectionDialog") + symbol).c_str()));
}

} // namespace

#if defined(FAULT_case_sensitive_match)
bool gen__str_cmp_reg(const char *text, const char *pattern)
{
    return fnmatch((std::string("*") + pattern + '*').c_str(), text, FNM_NOESCAPE) == 0;
}

#elif defined(FAULT_inverted_comparison)
int gen__str_cmp_nc(const char *a, const char *b)
{
    return strcasecmp(a, b) == 0;
}

#elif defined(FAULT_stuck_cursor)
int dml__atr_next(int did, int, unsigned int, int *, DmlAttrDef **definition)
{
    static DmlAttrDef width = {};
    std::strcpy(width.name, "width");
    *definition = &width;
    return did == 0 ? 0 : 1;
}

#elif defined(FAULT_empty_dictionary)
int dml__atr_next(int, int, unsigned int, int *, DmlAttrDef **definition)
{
    *definition = nullptr;
    return 0;
}

#elif defined(FAULT_other_encoding)
int dml__atr_next(int, int, unsigned int, int *cursor, DmlAttrDef **definition)
{
    static DmlAttrDef height = {};
    std::strcpy(height.name, "height");
    std::strcpy(height.prompt, "\"H\xF6he\"\n");
    height.entityMask = Zudunmaf::EntityAll;
    *definition = (*cursor)++ == 0 ? &height : nullptr;
    return 0;
}

#elif defined(FAULT_null_prompt)
const char *gen__nls_nlsa_get_att_prompt(const char *, const char *prompt)
{
    return *prompt ? prompt : nullptr;
}

#elif defined(FAULT_units_do_not_come_back)
void gen__torvex_units_convert_f(float *, int, int) {}

#elif defined(FAULT_crash)
void gen__log_status_check(const char *, int)
{
    std::abort();
}

#elif defined(FAULT_end)
void gen__log_status_check(const char *, int)
{
    std::_Exit(EXIT_SUCCESS);
}

#elif defined(FAULT_endless_report)
void gen__log_status_check(const char *, int)
{
    for (;;)
        pause();
}

#elif defined(FAULT_other_entity)
void TvxAttributesSelectionDialog::fillEntityList(const QList<TvxDataItem *> &items)
{
    realFunction<const QList<TvxDataItem *> &>("14fillEntityListERK5QListIP11TvxDataItemE")(this, items);
    findChild<QComboBox *>()->setCurrentIndex(1);
}

#elif defined(FAULT_range_dropped_on_ok)
void TvxAttributesSelectionDialog::connectSignal2Slots()
{
    realFunction<>("19connectSignal2SlotsEv")(this);
    // OK takes no focus, so that the editor is open when it is pressed, and then closes it.
    QPushButton *ok = findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    ok->setFocusPolicy(Qt::NoFocus);
    connect(ok, &QPushButton::pressed, this, [this] {
        for (const QTableWidget *table : findChildren<QTableWidget *>()) {
            for (QWidget *editor :
                 table->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
                Q_EMIT table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
        }
    });
}
#endif
