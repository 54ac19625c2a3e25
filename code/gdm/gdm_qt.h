#ifndef GDM_GDM_QT_H
#define GDM_GDM_QT_H

/// Main header of the library: records and roles, items, conditions and values, dialogs.
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
