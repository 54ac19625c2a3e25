#ifndef GDM_CONDITIONS_LABEL_INDEX_H
#define GDM_CONDITIONS_LABEL_INDEX_H

#include <QHash>
#include <QList>
#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Finds the attributes that can have given a line. Looks up each text of the line that could be the label, so the time
/// depends on the length of the line and not on the size of the dictionary. Internal: not installed.
class LabelIndex
{
public:
    explicit LabelIndex(bool byPrompt);

    void add(const DmlAttrDef *definition);

    /// Returns every attribute that could have given the line, each one once.
    QList<const DmlAttrDef *> candidates(const QString &line) const;

private:
    bool m_byPrompt;
    QHash<QString, QList<const DmlAttrDef *>> m_byLabel;
    /// Attributes whose label has a placeholder, which QString::arg() can have replaced. They are candidates for each
    /// line.
    QList<const DmlAttrDef *> m_withPlaceholder;
};

} // namespace Zudunmaf

#endif
