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
/// A completer would either replace what is typed or open a popup, which takes the next click for itself. The list is
/// a plain child of the table's viewport and leaves the focus to the editor. It is deleted with the editor.
class TextChoices : public QListWidget
{
    Q_OBJECT

public:
    /// Makes the editor of a text with choices one in which every text can be typed, and attaches such a list to it. Any
    /// other editor is left as it is. `item` is the value item of the row.
    ///
    /// An item without a value leaves its editor empty; the choices are added here. Returns the list, which the caller
    /// hides when the edit ends; null for any other editor.
    static TextChoices *attach(QWidget *editor, const QTableWidgetItem &item);

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
