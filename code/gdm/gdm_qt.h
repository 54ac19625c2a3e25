#ifndef GDM_GDM_QT_H
#define GDM_GDM_QT_H

/// Main header of the library: records and roles, items, conditions and values, dialogs.
#include <QtGlobal>

// Installed with the library only: built as part of a host's sources, the library has the host's Qt.
#ifdef __has_include
#    if __has_include("gdm/zudunmaf_qt.h")
#        include "gdm/zudunmaf_qt.h"
#    endif
#endif
#if defined(ZUDUNMAF_BUILT_WITH_QT) && ZUDUNMAF_BUILT_WITH_QT != (QT_VERSION >> 16)
#    error "The installed Zudunmaf was built with another major version of Qt."
#endif

#include "gdm/items/attr_records.h"
#include "gdm/items/attr_roles.h"

#include "gdm/items/dml_attr_lwi.h"

#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/feature_attr_lwi.h"

#include "gdm/conditions/attr_assignment.h"
#include "gdm/conditions/attr_condition.h"
#include "gdm/conditions/attr_documents.h"
#include "gdm/conditions/attr_restoring.h"
#include "gdm/conditions/chosen_items.h"
#include "gdm/conditions/condition_matcher.h"
#include "gdm/conditions/filter_lines.h"

#include "gdm/dialogs/attributes_filter_dialog.h"
#include "gdm/dialogs/feature_attributes_dialog.h"

#include "gdm/host/missing_host_functions.h"

#endif
