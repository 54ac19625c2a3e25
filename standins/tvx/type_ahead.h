#ifndef TVX_TYPE_AHEAD_H
#define TVX_TYPE_AHEAD_H

#include <QElapsedTimer>
#include <QString>

namespace Zudunmaf
{
namespace tvx
{

class AttributeTable;

/// Finds the row whose name begins with what the user types into a table. Letters that follow each other within
/// QApplication::keyboardInputInterval() form one text; the same letter repeated goes through the rows that begin with
/// it. Selects nothing.
class TypeAhead
{
public:
    /// Returns the next visible row that matches after `letters` were typed, searching from the current row and going
    /// on at the first row; -1 if none matches.
    int rowFor(const QString &letters, const AttributeTable &table);

private:
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
