#include "tvx/text_choices.h"

#include "tvx/attribute_item.h"
#include "tvx/editor_note.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MostVisibleChoices = 8;

void addChoices(QComboBox *box, const DmlAttrDef &definition)
{
    box->addItem(QString());
    const int count = definition.optionList ? definition.optionCount : 0;
    for (int index = 0; index < count; ++index)
        box->addItem(QString(definition.optionList[index]));
}

} // namespace

TextChoices *TextChoices::attach(QWidget *editor, const QTableWidgetItem &item)
{
    auto *box = qobject_cast<QComboBox *>(editor);
    const auto *definition = definitionOf(item);
    if (!box || !definition || definition->type != DmlAttrText)
        return nullptr;
    if (box->count() == 0)
        addChoices(box, *definition);
    box->setEditable(true);
    // Both would replace a typed text by a choice that differs in case only.
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->lineEdit()->selectAll();
    return new TextChoices(box);
}

TextChoices::TextChoices(QComboBox *box)
    : QListWidget(box->parentWidget())
    , m_box(box)
{
    hide();
    setObjectName(QLatin1String("textChoices"));
    // A click must not give the focus to the table, which would end the edit.
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(box);
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, QToolTip::palette().color(QPalette::ToolTipBase));
    colours.setColor(QPalette::Text, QToolTip::palette().color(QPalette::ToolTipText));
    setPalette(colours);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->installEventFilter(this);
    connect(box, &QObject::destroyed, this, &QObject::deleteLater);
    connect(box->lineEdit(), &QLineEdit::textEdited, this, &TextChoices::showMatches);
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem *choice) {
        m_box->setEditText(choice->text());
        hide();
    });
}

void TextChoices::showMatches(const QString &typed)
{
    m_typed = typed;
    clear();
    addItems(matches(typed));
    if (count() > 0)
        showBeside(this, *m_box);
    else
        hide();
}

void TextChoices::place()
{
    if (!isHidden())
        showBeside(this, *m_box);
}

/// Returns each matching choice once, without the typed text itself.
QStringList TextChoices::matches(const QString &typed) const
{
    QStringList found;
    for (int index = 0; index < m_box->count() && !typed.isEmpty(); ++index) {
        const QString choice = m_box->itemText(index);
        if (choice != typed && choice.startsWith(typed, Qt::CaseInsensitive))
            found.append(choice);
    }
    found.removeDuplicates();
    return found;
}

/// Puts the next or previous choice into the editor, or the typed text before the first choice.
bool TextChoices::pick(int step)
{
    const int row = std::clamp(currentRow() + step, -1, count() - 1);
    setCurrentRow(row);
    m_box->setEditText(row < 0 ? m_typed : item(row)->text());
    return true;
}

bool TextChoices::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !isVisible())
        return QListWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    return !(key->modifiers() & Qt::AltModifier) && filterKey(key->key());
}

bool TextChoices::filterKey(int key)
{
    switch (key) {
    case Qt::Key_Down:
        return pick(1);
    case Qt::Key_Up:
        return pick(-1);
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

QSize TextChoices::sizeHint() const
{
    const int rows = std::min(count(), MostVisibleChoices);
    const int width = std::max(m_box->width(), sizeHintForColumn(0) + 2 * frameWidth());
    return QSize(width, rows * sizeHintForRow(0) + 2 * frameWidth());
}

} // namespace tvx
} // namespace Zudunmaf
