#ifndef GDM_DIALOGS_ATTRIBUTE_OFFER_H
#define GDM_DIALOGS_ATTRIBUTE_OFFER_H

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class QTableWidgetItem;
struct DmlAttrDef;

/// What both dialogs do when they fill their lists. Internal: not installed.
namespace Zudunmaf
{

/// Items on their way to the base dialog, which copies them: they end with the list.
class OwnedItems
{
public:
    OwnedItems() = default;
    ~OwnedItems();

    void append(QTableWidgetItem *item) { m_items.append(item); }
    const QList<QTableWidgetItem *> &list() const { return m_items; }

private:
    OwnedItems(const OwnedItems &);
    OwnedItems &operator=(const OwnedItems &);

    QList<QTableWidgetItem *> m_items;
};

/// The groups of a dictionary, each once, in the order in which they are met. A group that is called like the
/// first row gets no row of its own.
class GroupNames
{
public:
    explicit GroupNames(const QString &firstRow);

    void add(const DmlAttrDef &definition);
    const QStringList &list() const { return m_names; }

private:
    QStringList m_names;
    QSet<QString> m_seen;
};

/// The rule that decides which attributes get a row in the top view. It differs on purpose from RowFilter,
/// which decides which rows are visible: here the group's case is ignored, obsolete attributes are left out,
/// and the text is matched by the host.
struct AttributeOffer {
    int entityMask = 0;
    QString group;
    bool allGroups = false;
    bool byPrompt = false;
    bool showObsolete = false;

    /// Takes what the user has typed: at most its first 64 bytes in the local encoding, "*" for nothing.
    void setFilterText(const QString &text);
    bool takes(const DmlAttrDef &definition) const;

private:
    bool textMatches(const DmlAttrDef &definition) const;

    char m_pattern[65] = "*";
};

} // namespace Zudunmaf

#endif
