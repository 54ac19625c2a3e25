#ifndef DEMO_CONDITION_ROWS_H
#define DEMO_CONDITION_ROWS_H

#include "start_rows.h"

struct DmlAttrValue;

namespace Zudunmaf::demo
{

/// Conditions from lines such as "5 <= width <= 9", "finish = matt" and "width", the last of which sets none.
/// Bounds are in the units of the definition, whatever the display units are.
class ConditionRows : public StartRows
{
public:
    using StartRows::StartRows;

protected:
    QString takeLine(const QString &line) override;

private:
    QString takeRange(const QString &low, const QString &name, const QString &high);
    QString takeText(const QString &name, const QString &text);
    QString addRow(const DmlAttrLWI &offered, DmlAttrValue &condition, const QString &problem);

    static QString setIntegers(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &low,
                               const QString &high);
    static QString setFloats(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &low,
                             const QString &high);
    static QString setText(DmlAttrValue &condition, const QString &text);
    static QString setOption(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &text);
};

} // namespace Zudunmaf::demo

#endif
