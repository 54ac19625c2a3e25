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

/// The criteria of the filter: entity, group and filter text. Also knows whether the rows of the available table were
/// filled under narrower criteria and must be filled again. Owned by the controller. Does not call the dialog.
class FilterCriteria
{
public:
    /// `did` is the dictionary; -1 means that of the selected entity row.
    FilterCriteria(int did, const SelectionWidgets &widgets);
    ~FilterCriteria();

    /// Fills the entity list, takes ownership of the items and selects the last row. Emits no signal.
    void setEntities(const QList<TvxDataItem *> &items);
    /// Fills the group list and selects the first row. Emits no signal.
    void setGroups(const QStringList &groups);

    int dictionary() const;
    int mask() const;
    QString group() const;
    QString text() const;

    /// Returns false only if every attribute is available: last entity row, first group row, no text.
    bool isNarrowed() const;
    /// Returns true if an entity or a group is selected, and not all of them.
    bool isNarrowedByList() const;
    /// Returns true if the last fill may have left attributes out.
    bool wasFillNarrowed() const { return m_wasNarrowedAtFill; }
    /// Must be called when the available table was filled under the present criteria.
    void rememberFill();
    /// Must be called when a fill is due. rememberFill() follows unless the dialog cannot read its attributes.
    void expectFill() { m_isFillMissing = true; }
    /// Returns true if the fill that was due has not come. The rows, if any, are outdated.
    bool isFillMissing() const { return m_isFillMissing; }
    /// Returns true if a fill is missing, or if the criteria were narrowed at the last fill and have changed since.
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
    State m_stateAtFill{};
    bool m_wasNarrowedAtFill = false;
    bool m_isFillMissing = true;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
