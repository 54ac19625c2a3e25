#ifndef TVX_TEXT_CHOICES_H
#define TVX_TEXT_CHOICES_H

#include <QListWidget>
#include <QStringList>

class QComboBox;
class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

/// Lists the choices of a text that begin with what is being typed, below the editor. Up and Down put one of them into
/// the editor, and so does a click.
///
/// QCompleter would either replace what is typed or open a popup, which consumes the next click. The list is a child of
/// the table's viewport, leaves the focus to the editor and is deleted with it.
class TextChoices : public QListWidget
{
    Q_OBJECT

public:
    /// Makes the editor of a text with choices accept every text, and attaches a list to it. Adds the choices to the
    /// editor if the delegate has not, as for an item without a value. `item` is the value item of the row.
    ///
    /// Returns the list, which the caller hides when the edit ends. Returns null, and does nothing, for any other
    /// editor.
    static TextChoices *attach(QWidget *editor, const QTableWidgetItem &item);

    /// Moves the list to the editor again. Must be called when the editor has moved.
    void place();
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit TextChoices(QComboBox *box);
    void showMatches(const QString &typed);
    QStringList matches(const QString &typed) const;
    bool pick(int step);
    bool filterKey(int key);

    QComboBox *m_box;
    QString m_typed;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
