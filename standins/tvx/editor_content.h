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

/// The content of an open cell editor, compared with that when it was loaded. A delegate stores whatever an editor
/// shows; this class says whether the user has changed it, and whether it is a number that the limits refuse. A child
/// of the editor.
///
/// Content that is changed and changed back counts as unchanged. But if the editor did not show the item's value when
/// it was loaded, as with a number outside the limits or an option without a value, entering the same content is a
/// change. An editor whose content cannot be read always counts as changed.
class EditorContent : public QObject
{
    Q_OBJECT

public:
    /// `editor` has been loaded from `item`, the value item of its row.
    EditorContent(QWidget *editor, const QTableWidgetItem &item);

    /// Takes the present content as unchanged. Must be called when the editor was loaded again or its content stored.
    void restart(const QTableWidgetItem &item);

    bool isChanged() const;
    /// Returns true if the limits refuse the entry, which must not be stored then.
    bool isRefused() const { return refusedBox() != nullptr; }
    /// Returns true if the box with the refused entry has the focus, and more typing can make its entry accepted.
    bool isUnfinished() const;
    /// Returns the box with the refused entry, of two the one with the focus; null if none is refused.
    const QAbstractSpinBox *refusedBox() const;
    /// Returns why the entry is refused, with the limit and its units; empty if it is not refused.
    QString refusal() const;
    /// Returns a sentence for each refused box, with its text and the reason.
    QString refusalSentences() const;
    /// Gives the focus to the box with the refused entry and selects it.
    void selectRefused() const;
    /// Makes `message` the accessible description of the box with the refused entry. The others say what they take.
    void describeRefused(const QString &message) const;
    /// Makes a screen reader read that description again.
    void announceRefused() const;

    /// Makes the spin boxes interpret their texts. Must not be called for a refused entry, which they would replace.
    void interpret() const;
    /// Counts a content that is not empty as changed if the item is a condition that is not set.
    void confirm();
    /// Returns true if confirm() would do so.
    bool isConfirmable() const;

Q_SIGNALS:
    /// Emitted when the user or the program has changed the content.
    void edited();

private:
    void connectParts();
    QString spokenTaken(const QWidget *part) const;
    void noteEdit();
    QStringList texts() const;
    QStringList content() const;
    bool showsValueOf(const QTableWidgetItem &item) const;
    QVector<const QAbstractSpinBox *> refusedBoxes() const;

    /// The widgets that hold the content.
    QVector<QWidget *> m_parts;
    QStringList m_loaded;
    QString m_units;
    /// What the attribute takes.
    QString m_taken;
    bool m_isUnset = false;
    bool m_showsValue = true;
    bool m_isTouched = false;
    bool m_isConfirmed = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
