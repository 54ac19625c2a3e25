#include "tvx/editor_content.h"

#include "tvx/attribute_facts.h"
#include "tvx/attribute_item.h"
#include "tvx/number_entry.h"
#include "tvx/tvx_texts.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSpinBox>

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Returns the widgets that have a user property, which is their content. Skips widgets within those.
QVector<QWidget *> partsOf(QWidget *widget)
{
    if (widget->metaObject()->userProperty().isValid())
        return {widget};
    QVector<QWidget *> parts;
    const auto children = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children)
        parts += partsOf(child);
    return parts;
}

/// Returns the line edit of a widget; null if it has none.
QLineEdit *lineOf(QWidget *part)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(part))
        return NumberEntry::lineOf(*box);
    if (const auto *box = qobject_cast<const QComboBox *>(part))
        return box->lineEdit();
    return qobject_cast<QLineEdit *>(part);
}

QString textOf(const QWidget *part)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(part))
        return box->text();
    if (const auto *box = qobject_cast<const QComboBox *>(part))
        return box->currentText();
    return part->metaObject()->userProperty().read(part).toString();
}

} // namespace

EditorContent::EditorContent(QWidget *editor, const QTableWidgetItem &item)
    : QObject(editor)
    , m_parts(partsOf(editor))
    , m_units(AttributeFacts(item, -1).units())
    , m_taken(AttributeFacts(item, -1).taken())
{
    restart(item);
    connectParts();
    describeRefused(QString());
}

void EditorContent::restart(const QTableWidgetItem &item)
{
    m_loaded = content();
    m_isUnset = isCondition(item) && !item.data(DmlAttrValueRole).isValid();
    m_showsValue = showsValueOf(item);
    m_isTouched = false;
    m_isConfirmed = false;
}

void EditorContent::connectParts()
{
    for (QWidget *part : std::as_const(m_parts)) {
        if (const QLineEdit *line = lineOf(part)) {
            // textEdited() is also emitted when a text is replaced by the same one.
            connect(line, &QLineEdit::textEdited, this, &EditorContent::noteEdit);
            connect(line, &QLineEdit::textChanged, this, &EditorContent::noteEdit);
        }
        // A step of a spin box changes the text of its line edit without a signal.
        if (const auto *box = qobject_cast<const QSpinBox *>(part))
            connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &EditorContent::noteEdit);
        if (const auto *box = qobject_cast<const QDoubleSpinBox *>(part))
            connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                    &EditorContent::noteEdit);
        if (const auto *box = qobject_cast<const QComboBox *>(part)) {
            connect(box, QOverload<int>::of(&QComboBox::activated), this, &EditorContent::noteEdit);
            connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &EditorContent::noteEdit);
        }
    }
}

void EditorContent::noteEdit()
{
    m_isTouched = true;
    Q_EMIT edited();
}

QStringList EditorContent::texts() const
{
    QStringList texts;
    texts.reserve(m_parts.size());
    for (const QWidget *part : m_parts)
        texts.append(textOf(part));
    return texts;
}

QStringList EditorContent::content() const
{
    QStringList content = texts();
    content.reserve(2 * m_parts.size());
    // Entries of a list may have equal texts.
    for (const QWidget *part : m_parts) {
        const auto *box = qobject_cast<const QComboBox *>(part);
        if (box && !box->isEditable())
            content.append(QString::number(box->currentIndex()));
    }
    return content;
}

/// Compares texts: the cell has the same decimals as the editor, a range reads "5 to 9", and a value has its units.
bool EditorContent::showsValueOf(const QTableWidgetItem &item) const
{
    const QString cell = item.text();
    const QString shown = texts().join(QLatin1String(" to "));
    const bool isNumber = m_parts.size() == 1 && qobject_cast<const QAbstractSpinBox *>(m_parts.first());
    return cell == shown || (isNumber && cell.startsWith(shown + QLatin1Char(' ')));
}

bool EditorContent::isChanged() const
{
    return m_parts.isEmpty() || m_isConfirmed || content() != m_loaded || (m_isTouched && !m_showsValue);
}

QVector<const QAbstractSpinBox *> EditorContent::refusedBoxes() const
{
    QVector<const QAbstractSpinBox *> refused;
    refused.reserve(m_parts.size());
    if (content() == m_loaded)
        return refused;
    for (const QWidget *part : m_parts) {
        const auto *box = qobject_cast<const QAbstractSpinBox *>(part);
        if (box && NumberEntry(*box).state() != NumberEntry::Accepted)
            refused.append(box);
    }
    return refused;
}

const QAbstractSpinBox *EditorContent::refusedBox() const
{
    const auto boxes = refusedBoxes();
    for (const QAbstractSpinBox *box : boxes) {
        if (box->hasFocus())
            return box;
    }
    return boxes.value(0);
}

bool EditorContent::isUnfinished() const
{
    const QAbstractSpinBox *box = refusedBox();
    return box && box->hasFocus() && NumberEntry(*box).isUnfinished();
}

QString EditorContent::refusal() const
{
    const QAbstractSpinBox *box = refusedBox();
    return box ? NumberEntry(*box).refusal(m_units) : QString();
}

QString EditorContent::refusalSentences() const
{
    QStringList sentences;
    const auto boxes = refusedBoxes();
    sentences.reserve(boxes.size());
    for (const QAbstractSpinBox *box : boxes)
        sentences.append(tvx::textOf(texts::NotStored)
                             .arg(box->accessibleName(), box->text(), NumberEntry(*box).refusal(m_units)));
    return sentences.join(QLatin1Char(' '));
}

void EditorContent::selectRefused() const
{
    for (QWidget *part : m_parts) {
        if (part != refusedBox())
            continue;
        part->setFocus();
        if (QLineEdit *line = lineOf(part))
            line->selectAll();
        return;
    }
}

void EditorContent::describeRefused(const QString &message) const
{
    const QWidget *refused = refusedBox();
    for (QWidget *part : m_parts) {
        const bool hasMessage = refused && part == refused && !message.isEmpty();
        const QString description = hasMessage ? message : spokenTaken(part);
        if (part->accessibleDescription() != description)
            part->setAccessibleDescription(description);
    }
}

/// Returns what the attribute takes, as a description of a part.
QString EditorContent::spokenTaken(const QWidget *part) const
{
    // Qt on Unix reads the current text of a combo box as its name.
    const bool isList = qobject_cast<const QComboBox *>(part);
    return isList ? part->accessibleName() + QLatin1String(": ") + m_taken : m_taken;
}

void EditorContent::announceRefused() const
{
    for (QWidget *part : m_parts) {
        QAccessibleEvent event(part, QAccessible::DescriptionChanged);
        if (part == refusedBox())
            QAccessible::updateAccessibility(&event);
    }
}

void EditorContent::interpret() const
{
    for (QWidget *part : m_parts) {
        if (auto *box = qobject_cast<QAbstractSpinBox *>(part))
            box->interpretText();
    }
}

void EditorContent::confirm()
{
    m_isConfirmed = isConfirmable();
}

bool EditorContent::isConfirmable() const
{
    return m_isUnset && !texts().join(QString()).isEmpty();
}

} // namespace tvx
} // namespace Zudunmaf
