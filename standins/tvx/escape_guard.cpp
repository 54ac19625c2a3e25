#include "tvx/escape_guard.h"

#include "tvx/attribute_item.h"
#include "tvx/chosen_table.h"
#include "tvx/tvx_texts.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace Zudunmaf
{
namespace tvx
{

EscapeGuard::EscapeGuard(const ChosenTable &chosen, QObject *parent)
    : QObject(parent)
    , m_chosen(chosen)
{
}

EscapeGuard::~EscapeGuard() = default;

void EscapeGuard::rememberRows()
{
    setWarning(false);
    if (m_haveRows)
        return;
    m_haveRows = true;
    m_unchanged = rows();
}

void EscapeGuard::rememberRow(const QTableWidgetItem &item)
{
    if (m_haveRows)
        m_unchanged.append(contentOf(item));
}

QStringList EscapeGuard::rows() const
{
    QStringList rows;
    const QList<QTableWidgetItem *> items = m_chosen.rowItems(false);
    rows.reserve(items.size());
    for (const QTableWidgetItem *item : items)
        rows.append(contentOf(*item));
    return rows;
}

bool EscapeGuard::holdsBack(const QKeyEvent &key)
{
    if (!key.matches(QKeySequence::Cancel))
        return false;
    // The repeated key would confirm its own warning, or close the dialog after it has cleared the filter text.
    if (key.isAutoRepeat())
        return true;
    if (m_isWarning)
        return false;
    QStringList now = rows();
    now.sort();
    m_unchanged.sort();
    setWarning(now != m_unchanged);
    return m_isWarning;
}

QString EscapeGuard::warning() const
{
    return m_isWarning ? textOf(texts::EscapeWarning) : QString();
}

void EscapeGuard::setWarning(bool isWarning)
{
    if (m_isWarning == isWarning)
        return;
    m_isWarning = isWarning;
    // Of the whole application: the dialog itself gets only keys that no widget has used.
    if (isWarning)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
    Q_EMIT warningChanged();
}

bool EscapeGuard::eventFilter(QObject *watched, QEvent *event)
{
    // A key that triggers a shortcut comes as an override only.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const bool isEscape = isKey && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel);
    if (watched->isWidgetType() && !isEscape && (isKey || event->type() == QEvent::MouseButtonPress))
        setWarning(false);
    return QObject::eventFilter(watched, event);
}

} // namespace tvx
} // namespace Zudunmaf
