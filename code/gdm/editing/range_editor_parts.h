#ifndef GDM_EDITING_RANGE_EDITOR_PARTS_H
#define GDM_EDITING_RANGE_EDITOR_PARTS_H

#include "gdm/host/host_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLatin1String>
#include <QSizePolicy>
#include <QWidget>

namespace Zudunmaf
{

/// Labels and spin boxes of both range editors. In a wider cell, the spin boxes grow and the labels do not.
namespace rangeParts
{

/// Creates the layout of an editor, which then covers the text of its cell.
inline QHBoxLayout *newRow(QWidget *editor)
{
    editor->setAutoFillBackground(true);
    QHBoxLayout *row = new QHBoxLayout(editor);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

inline QLabel *addLabel(QWidget *editor, QHBoxLayout *row, const char *objectName, const char *messageKey)
{
    QLabel *label = new QLabel(editor);
    label->setObjectName(QLatin1String(objectName));
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    policy.setHeightForWidth(label->sizePolicy().hasHeightForWidth());
    label->setSizePolicy(policy);
    label->setText(messageText(messageKey));
    row->addWidget(label);
    return label;
}

/// Creates a spin box. It is not yet in the row, because the caller sets the decimals first.
template <class SpinBox>
SpinBox *newSpinBox(QWidget *editor, const char *objectName)
{
    SpinBox *box = new SpinBox(editor);
    box->setObjectName(QLatin1String(objectName));
    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    policy.setHorizontalStretch(1);
    policy.setHeightForWidth(box->sizePolicy().hasHeightForWidth());
    box->setSizePolicy(policy);
    return box;
}

} // namespace rangeParts
} // namespace Zudunmaf

#endif
