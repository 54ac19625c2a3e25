#include "tvx/empty_table_guide.h"

#include "tvx/available_table.h"
#include "tvx/selection_widgets.h"
#include "tvx/tvx_texts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

namespace Zudunmaf
{
namespace tvx
{

EmptyTableGuide::EmptyTableGuide(const SelectionWidgets &widgets, const FilterCriteria &criteria,
                                 QObject *parent)
    : QObject(parent)
    , m_widgets(widgets)
    , m_advice(widgets, criteria)
{
    connect(widgets.widenButton, &QPushButton::clicked, this, &EmptyTableGuide::useButton);
}

void EmptyTableGuide::update()
{
    const EmptyTableAdvice::Advice &advice = m_advice.advice();
    updateButton(advice);
    m_widgets.topView->emptyText().setText(advice.text);
}

void EmptyTableGuide::updateButton(const EmptyTableAdvice::Advice &advice)
{
    QPushButton *button = m_widgets.widenButton;
    const bool isUseful = advice.canWiden || !advice.firstLabel.isEmpty();
    if (isUseful) {
        QString label = advice.firstLabel;
        label.replace(QLatin1Char('&'), QLatin1String("&&"));
        button->setText(advice.canWiden ? textOf(texts::Widen) : textOf(texts::ShowFirst).arg(label));
        button->setAccessibleName(advice.canWiden ? spokenTextOf(texts::Widen)
                                                  : spokenTextOf(texts::ShowFirst).arg(advice.firstLabel));
    } else if (button->hasFocus()) {
        m_widgets.filterText->setFocus();
    }
    button->setVisible(isUseful);
}

void EmptyTableGuide::useButton()
{
    if (m_advice.advice().canWiden)
        widen();
    else
        showFirstMatch();
    m_widgets.filterText->setFocus();
}

void EmptyTableGuide::widen()
{
    m_widgets.groupList->setCurrentIndex(0);
    m_widgets.entityList->setCurrentIndex(m_widgets.entityList->count() - 1);
}

void EmptyTableGuide::showFirstMatch()
{
    const QString label = m_advice.advice().firstLabel;
    if (label.isEmpty())
        return;
    // A special character of the label must match itself.
    static const QRegularExpression special(QStringLiteral(R"([][*?\\])"));
    QString pattern = label;
    pattern.replace(special, QStringLiteral("?"));
    m_widgets.filterText->setText(pattern);
    if (makeLabelCurrent(label))
        return;
    widen();
    makeLabelCurrent(label);
}

/// Makes the first visible row with this label current. Returns false if there is none.
bool EmptyTableGuide::makeLabelCurrent(const QString &label)
{
    AvailableTable *top = m_widgets.topView;
    const QList<QTableWidgetItem *> visible = top->rowItems(true);
    for (const QTableWidgetItem *item : visible) {
        if (top->item(item->row(), AttributeTable::NameColumn)->text() != label)
            continue;
        top->makeItemCurrent(item);
        return true;
    }
    return false;
}

} // namespace tvx
} // namespace Zudunmaf
