#ifndef GDM_CONDITIONS_LABEL_INDEX_H
#define GDM_CONDITIONS_LABEL_INDEX_H

#include <QHash>
#include <QList>
#include <QString>

struct DmlAttrDef;

namespace Zudunmaf
{

/// Finds the attributes that a line can belong to. Each line is cut at every place where its label could end, so a line
/// costs its own length and not that of the dictionary. Internal: not installed.
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
    /// Attributes whose label has a placeholder, and may have another form in the line. Each line is tried with all of them.
    QList<const DmlAttrDef *> m_withPlaceholder;
};

} // namespace Zudunmaf

#endif
