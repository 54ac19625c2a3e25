#ifndef TVX_EDITOR_CONTENT_H
#define TVX_EDITOR_CONTENT_H

#include <QObject>
#include <QStringList>
#include <QVector>

class QAbstractSpinBox;
class QTableWidgetItem;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

/// What an open cell editor holds, compared with what it held when it was opened. The delegate stores whatever an
/// editor shows; this class tells whether the user has changed it, and whether it is a number that the limits refuse.
/// A child of the editor.
///
/// Content that is changed and changed back counts as unchanged. But where the editor showed something else than the
/// item's value when it opened, as a number outside the limits or the first entry of an option without a value, to pick
/// or type just that is a change.
class EditorContent : public QObject
{
    Q_OBJECT

public:
    /// `editor` has been loaded from `item`, the value item of its row.
    EditorContent(QWidget *editor, const QTableWidgetItem &item);

    bool isChanged() const;
    /// True for an entry that must not be stored.
    bool isRefused() const { return refusedBox() != nullptr; }
    /// Why the entry is refused, as a sentence with the limit and its units; empty where it is not.
    QString refusal() const;
    /// The text of the refused entry; empty where none is refused.
    QString refusedText() const;
    /// Gives the focus to the box with the refused entry and selects it.
    void selectRefused() const;

    /// Has the spin boxes read their texts. Not for a refused entry, which they would replace.
    void interpret() const;
    /// Enter was pressed: what the editor shows counts as entered where the item is a condition that is not set. An empty
    /// text does not.
    void confirm();
    /// Takes the present content, which has just been stored, as the unchanged one.
    void remember();

Q_SIGNALS:
    /// Emitted at each change of the content, by the user or by the program.
    void edited();

private:
    void connectParts();
    void noteEdit();
    QStringList content() const;
    bool showsValueOf(const QTableWidgetItem &item) const;
    const QAbstractSpinBox *refusedBox() const;

    QVector<QWidget *> m_parts;
    QStringList m_atOpening;
    QString m_units;
    bool m_isUnset;
    bool m_showsValue = true;
    bool m_isTouched = false;
    bool m_isConfirmed = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
