#ifndef DEMO_VALUE_ROWS_H
#define DEMO_VALUE_ROWS_H

#include "start_rows.h"

namespace Zudunmaf::demo
{

/// Values from lines "name<TAB>value". The value is as FeatureAttrLWI writes it; a name alone stands for the
/// attribute's default.
class ValueRows : public StartRows
{
public:
    using StartRows::StartRows;

protected:
    QString takeLine(const QString &line) override;

private:
    static QString problemOf(const DmlAttrDef &definition, const QString &value);
    static QString problemOfFloat(const DmlAttrDef &definition, const QString &value);
    static QString problemOfOption(const DmlAttrDef &definition, const QString &value);
};

} // namespace Zudunmaf::demo

#endif
