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

/// What an open cell editor holds, compared with what it held when it was loaded. The delegate stores whatever an editor
/// shows; this class says whether the user has changed it, and whether it is a number that the limits refuse. A child
/// of the editor.
///
/// Content that is changed and changed back counts as unchanged. But if the editor did not show the item's value when it
/// was loaded, such as for a number outside the limits or an option without a value, entering just what it showed is a
/// change. An editor without any content that can be read always counts as changed.
class EditorContent : public QObject
{
    Q_OBJECT

public:
    /// `editor` has been loaded from `item`, the value item of its row.
    EditorContent(QWidget *editor, const QTableWidgetItem &item);

    /// Takes the present content as the unchanged one: the editor has been loaded again, or its content stored.
    void restart(const QTableWidgetItem &item);

    bool isChanged() const;
    /// True for an entry that must not be stored.
    bool isRefused() const { return refusedBox() != nullptr; }
    /// True if the refused entry may become a number as the user types on.
    bool isUnfinished() const;
    /// The box with the refused entry, that which has the focus if there are two; null if none is refused.
    const QAbstractSpinBox *refusedBox() const;
    /// Why the entry is refused, with the limit and its units; empty if it is not.
    QString refusal() const;
    /// The same as sentences, one for each refused box, with the texts in the boxes.
    QString refusalSentences() const;
    /// Gives the focus to the box with the refused entry and selects it.
    void selectRefused() const;
    /// Makes `message` the accessible description of the box with the refused entry, and clears that of the others.
    void describeRefused(const QString &message) const;
    /// Has a screen reader read that description once more.
    void announceRefused() const;

    /// Makes the spin boxes read their texts. Not for a refused entry, which they would replace.
    void interpret() const;
    /// Counts what the editor shows as entered if the item is a condition that is not set. An empty text does not count.
    void confirm();

Q_SIGNALS:
    /// Emitted at each change of the content, by the user or by the program.
    void edited();

private:
    void connectParts();
    void noteEdit();
    QStringList texts() const;
    QStringList content() const;
    bool showsValueOf(const QTableWidgetItem &item) const;
    QVector<const QAbstractSpinBox *> refusedBoxes() const;

    /// The widgets that hold the content.
    QVector<QWidget *> m_parts;
    QStringList m_loaded;
    QString m_units;
    bool m_isUnset = false;
    bool m_showsValue = true;
    bool m_isTouched = false;
    bool m_isConfirmed = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
