#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <utility>

TvxDataItem::TvxDataItem(const QString &text, QVariant data, int did)
    : m_text(text)
    , m_data(std::move(data))
    , m_did(did)
{
}
