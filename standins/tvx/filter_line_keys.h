#ifndef TVX_FILTER_LINE_KEYS_H
#define TVX_FILTER_LINE_KEYS_H

#include <QObject>

class QKeyEvent;
class QLineEdit;

namespace Zudunmaf
{
namespace tvx
{

class AvailableTable;
class RowMover;

/// Handles the keys that a line of text does not need while the user types into the filter: Up, Down and the page keys
/// move in the available table, Enter adds, Escape clears the text, and Undo and Redo act on the chosen rows once no
/// typing is left to undo or redo. Owned by the controller.
class FilterLineKeys : public QObject
{
    Q_OBJECT

public:
    FilterLineKeys(QLineEdit *line, AvailableTable *available, RowMover *mover, QObject *parent);

Q_SIGNALS:
    /// Emitted when Enter is pressed while the available table has no visible row.
    void enteredWithoutRows();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool filterKey(QKeyEvent *event);

    QLineEdit *m_line;
    AvailableTable *m_available;
    RowMover *m_mover;
};

/// Ends the search for attributes: forgets what was typed, so that Ctrl+Z undoes the last step of the chosen rows. If
/// the line has the focus, also selects the text, so that the next letter starts a new search.
void endSearch(QLineEdit *filterText);

} // namespace tvx
} // namespace Zudunmaf

#endif
