#ifndef TVX_CHOSEN_COUNTS_H
#define TVX_CHOSEN_COUNTS_H

#include <QHash>
#include <QObject>
#include <QString>

class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// How often each attribute is chosen. Counted when first asked for after the chosen rows have changed, so that a
/// series of additions takes no pass over the rows each. A child of the chosen table.
class ChosenCounts : public QObject
{
    Q_OBJECT

public:
    explicit ChosenCounts(AttributeTable *chosen);

    /// Returns the number of chosen rows of the attribute with this internal name.
    int countOf(const QString &name);
    /// Must be called after chosen rows have been replaced.
    void invalidate() { m_isCounted = false; }

private:
    AttributeTable *m_chosen;
    QHash<QString, int> m_counts;
    bool m_isCounted = false;
};

/// Returns the value item of each attribute whose newest row in the chosen table is a condition that is not set, by
/// internal name.
QHash<QString, QTableWidgetItem *> newestUnsetConditions(const AttributeTable &chosen);

} // namespace tvx
} // namespace Zudunmaf

#endif
