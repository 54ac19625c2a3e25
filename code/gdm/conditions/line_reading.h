#ifndef GDM_CONDITIONS_LINE_READING_H
#define GDM_CONDITIONS_LINE_READING_H

#include "gdm/conditions/filter_lines.h"

namespace Zudunmaf
{

/// Reads a line as the condition of one attribute. The status is LineUnknown if the attribute cannot have given it.
/// Internal: not installed.
LineResult readLineAs(const DmlAttrDef &definition, bool byPrompt, const QString &line);

} // namespace Zudunmaf

#endif
