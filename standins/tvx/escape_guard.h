#ifndef TVX_ESCAPE_GUARD_H
#define TVX_ESCAPE_GUARD_H

#include <QObject>
#include <QStringList>

class QKeyEvent;
class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;

/// Lets the first Escape only warn if closing the dialog would discard changes of the chosen rows. The next key or
/// click other than Escape takes the warning back. Cancel and the window's close button do not come here. Owned by the
/// controller.
class EscapeGuard : public QObject
{
    Q_OBJECT

public:
    EscapeGuard(const ChosenTable &chosen, QObject *parent);
    ~EscapeGuard() override;

    /// Takes the chosen rows as unchanged if this is the first call, or the first one after forgetRows(). Must be
    /// called when the dialog is shown.
    void rememberRows();
    /// Must be called when the dialog was closed. After a mere hide() the changes may still be discarded.
    void forgetRows() { m_haveRows = false; }
    /// Takes a row that the host has added as unchanged.
    void rememberRow(const QTableWidgetItem &item);
    /// Returns true if a key that has reached the dialog must not close it, and warns. Returns false for other keys
    /// than Escape.
    bool holdsBack(const QKeyEvent &key);
    /// Returns the warning; empty if the next Escape discards nothing or has not been warned of.
    QString warning() const;

Q_SIGNALS:
    void warningChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList rows() const;
    void setWarning(bool isWarning);

    const ChosenTable &m_chosen;
    /// The content of each unchanged row, in any order.
    QStringList m_unchanged;
    bool m_haveRows = false;
    bool m_isWarning = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
