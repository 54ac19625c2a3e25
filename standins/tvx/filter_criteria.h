#ifndef TVX_FILTER_CRITERIA_H
#define TVX_FILTER_CRITERIA_H

#include <QStringList>

#include <memory>
#include <vector>

class QComboBox;
class QLineEdit;
class TvxDataItem;

namespace Zudunmaf
{
namespace tvx
{

class SelectionWidgets;

/// What the user has chosen to be offered: entity, group and filter text. It also knows whether the last fill
/// of the top view left rows out that the present choice may want back.
class FilterCriteria
{
public:
    /// `did` is the dictionary; -1 leaves it to the selected entity row. The widgets stay the dialog's.
    FilterCriteria(int did, const SelectionWidgets &widgets);
    ~FilterCriteria();

    /// Shows the rows, takes the objects over and selects the last row. No change is signalled.
    void setEntities(const QList<TvxDataItem *> &items);
    /// Shows the rows and selects the first one. No change is signalled.
    void setGroups(const QStringList &groups);

    int dictionary() const;
    int mask() const;
    QString group() const;
    QString text() const;

    /// True where not the last entity, the first group and an empty text are chosen.
    bool isNarrowed() const;
    /// The top view has just been filled under the present choice.
    void rememberFill();
    /// A fill is due: rememberFill() follows unless the dialog cannot read its attributes.
    void expectFill() { m_fillMissing = true; }
    /// True if the fill that was due last has not come: the rows, if any, are those of before.
    bool isFillMissing() const { return m_fillMissing; }
    /// True if a fill is missing, or the choice was narrowed at the last fill and has changed since.
    bool needsRefill() const;

private:
    Q_DISABLE_COPY(FilterCriteria)

    struct State {
        int dictionary;
        int mask;
        QString group;
        QString text;
        bool operator==(const State &other) const;
    };

    const TvxDataItem *entity() const;
    State state() const;

    int m_did;
    QComboBox *m_entityList;
    QComboBox *m_groupList;
    QLineEdit *m_filterText;
    std::vector<std::unique_ptr<TvxDataItem>> m_entities;
    State m_atLastFill{};
    bool m_lastFillNarrowed = false;
    bool m_fillMissing = true;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
