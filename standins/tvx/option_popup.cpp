#include "tvx/option_popup.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MostVisibleEntries = 15;

} // namespace

OptionPopup *OptionPopup::attach(QWidget *editor)
{
    auto *box = qobject_cast<QComboBox *>(editor);
    return box && !box->isEditable() ? new OptionPopup(box) : nullptr;
}

OptionPopup::OptionPopup(QComboBox *box)
    : QObject(box)
    , m_box(box)
{
    // With the popup of Fusion, which covers the box as a menu does, QComboBox ignores the number of visible entries.
    if (box->styleSheet().isEmpty())
        box->setStyleSheet(QStringLiteral("combobox-popup: 0"));
    box->setMaxVisibleItems(MostVisibleEntries);
    box->view()->parentWidget()->installEventFilter(this);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, &OptionPopup::noteChoice);
    for (QTimer *timer : {&m_opening, &m_hiding, &m_picking})
        timer->setSingleShot(true);
    connect(&m_opening, &QTimer::timeout, box, &QComboBox::showPopup);
    connect(&m_picking, &QTimer::timeout, this, &OptionPopup::reportPick);
}

void OptionPopup::openAfterRelease(QWidget *viewport)
{
    viewport->installEventFilter(this);
}

bool OptionPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched != m_box->view()->parentWidget()) {
        watched->removeEventFilter(this);
        m_opening.start();
    } else if (event->type() == QEvent::Hide && watched == m_box->view()->parentWidget()) {
        m_hiding.start();
    }
    return QObject::eventFilter(watched, event);
}

void OptionPopup::noteChoice()
{
    // Later, because picked() closes the editor, and with it the box that is reporting the choice.
    if (m_hiding.isActive() || m_box->view()->isVisible())
        m_picking.start();
}

void OptionPopup::reportPick()
{
    if (m_box->isVisible())
        Q_EMIT picked();
}

} // namespace tvx
} // namespace Zudunmaf
