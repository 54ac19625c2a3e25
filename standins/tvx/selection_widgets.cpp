#include "tvx/selection_widgets.h"

#include "gdm/host/message_keys.h"
#include "tvx/available_table.h"
#include "tvx/button_picture.h"
#include "tvx/chosen_table.h"
#include "tvx/description_label.h"
#include "tvx/name_column_width.h"
#include "tvx/picture_button.h"
#include "tvx/text_lines.h"
#include "tvx/tvx_texts.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

template <class Widget>
Widget *named(Widget *widget, const char *objectName, const char *spokenName)
{
    widget->setObjectName(QLatin1String(objectName));
    widget->setAccessibleName(spokenTextOf(spokenName));
    return widget;
}

/// A click must not move the focus: it would end an open edit before the slot of the button decides to store or drop
/// it.
QPushButton *button(QDialog *dialog, const char *objectName, const char *text, const char *hint)
{
    QPushButton *button = named(new PictureButton(textOf(text), dialog), objectName, text);
    button->setToolTip(textOf(hint));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QLabel *label(const char *text, QWidget *buddy)
{
    auto *label = new QLabel(textOf(text), buddy->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

/// Returns a combo box whose width does not depend on its items: a long group name must not widen the dialog.
QComboBox *comboBox(QDialog *dialog)
{
    auto *box = new QComboBox(dialog);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    box->setMaxVisibleItems(20);
    return box;
}

} // namespace

SelectionWidgets::SelectionWidgets(QDialog *dialog)
{
    createCriteria(dialog);
    createTables(dialog);
    createButtons(dialog);
    createTexts(dialog);
    arrange(dialog);
    const QFontMetrics metrics = dialog->fontMetrics();
    QSize size(metrics.averageCharWidth() * 110, metrics.height() * 40);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize() * 9 / 10);
    dialog->resize(size);
    fitToFont();
    dialog->setSizeGripEnabled(true);
    filterText->setFocus();
}

void SelectionWidgets::createCriteria(QDialog *dialog)
{
    entityList = named(comboBox(dialog), "entityList", texts::Entity);
    groupList = named(comboBox(dialog), "groupList", texts::Group);
    filterText = named(new QLineEdit(dialog), "filterText", texts::Filter);
    filterText->setPlaceholderText(textOf(texts::FilterHint));
    filterText->setClearButtonEnabled(true);
}

void SelectionWidgets::createTables(QDialog *dialog)
{
    topView = named(new AvailableTable(dialog), "topView", texts::Available);
    chosenList = named(new ChosenTable(dialog), "chosenList", texts::Chosen);
    widenButton = button(dialog, "widenButton", texts::Widen, texts::WidenHint);
    widenButton->setEnabled(true);
    topView->emptyText().setButton(widenButton);
    chosenList->emptyText().setText(textOf(texts::NothingChosen));
}

void SelectionWidgets::createButtons(QDialog *dialog)
{
    addButton = button(dialog, "addButton", texts::Add, texts::AddHint);
    removeButton = button(dialog, "removeButton", texts::Remove, texts::RemoveHint);
    setButtonPicture(addButton, TvxAttributesSelectionDialog::Buttons_Add, QLatin1String("Add.ico"));
    setButtonPicture(removeButton, TvxAttributesSelectionDialog::Buttons_Remove, QLatin1String("Delete.ico"));
    undoButton = button(dialog, "undoButton", texts::Undo, texts::UndoHint);
    clearButton = button(dialog, "clearButton", texts::ClearAll, texts::ClearAllHint);

    buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    buttonBox->setObjectName(QLatin1String("buttonBox"));
    // The standard texts of QDialogButtonBox have no mnemonics.
    buttonBox->button(QDialogButtonBox::Ok)->setText(textOf(texts::Ok));
    buttonBox->button(QDialogButtonBox::Cancel)->setText(textOf(texts::Cancel));
    const auto ends = buttonBox->buttons();
    for (QAbstractButton *end : ends) {
        end->setFocusPolicy(Qt::TabFocus);
        // Some platforms set pictures, which PictureButton could not place here.
        end->setIcon(QIcon());
    }
}

void SelectionWidgets::createTexts(QDialog *dialog)
{
    description = named(new DescriptionLabel(dialog), "description", texts::Description);
    auto *result = named(new TextLines(dialog), "preview", texts::Preview);
    result->setLeadingAlignment(Qt::AlignVCenter);
    preview = result;
    availableLabel = label(texts::Available, topView);
    availableLabel->setObjectName(QLatin1String("availableLabel"));
    chosenLabel = label(texts::Chosen, chosenList);
    chosenLabel->setObjectName(QLatin1String("chosenLabel"));
    chosenLabel->setToolTip(textOf(texts::ChosenHint));
}

void SelectionWidgets::arrange(QDialog *dialog)
{
    auto *ends = new QHBoxLayout;
    ends->addWidget(preview, 1);
    ends->addWidget(buttonBox, 0, Qt::AlignBottom);

    auto *layout = new QVBoxLayout(dialog);
    layout->addLayout(criteriaLayout());
    layout->addWidget(tablesWidget(dialog), 1);
    layout->addWidget(description);
    layout->addLayout(ends);

    // Tab order defaults to creation order; make it match the layout.
    QWidget::setTabOrder(topView, widenButton);
    QWidget::setTabOrder(clearButton, chosenList);
    QWidget::setTabOrder(chosenList, buttonBox->button(QDialogButtonBox::Ok));
}

QLayout *SelectionWidgets::criteriaLayout() const
{
    const int gap = 2 * filterText->fontMetrics().averageCharWidth();
    auto *lists = new QHBoxLayout;
    lists->addWidget(label(texts::Entity, entityList));
    lists->addWidget(entityList, 1);
    lists->addSpacing(gap);
    lists->addWidget(label(texts::Group, groupList));
    lists->addWidget(groupList, 1);

    auto *filter = new QHBoxLayout;
    filter->addWidget(label(texts::Filter, filterText));
    filter->addWidget(filterText, 1);
    filter->addSpacing(gap);
    filter->addWidget(availableLabel);

    auto *layout = new QVBoxLayout;
    layout->addLayout(lists);
    layout->addLayout(filter);
    return layout;
}

QWidget *SelectionWidgets::tablesWidget(QDialog *dialog) const
{
    // Added to the splitter before its children: the splitter asks for size hints as soon as a widget is added.
    auto *lower = new QWidget(dialog);
    auto *splitter = new QSplitter(Qt::Vertical, dialog);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(topView);
    splitter->addWidget(lower);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(addButton);
    buttons->addWidget(removeButton);
    buttons->addWidget(undoButton);
    buttons->addWidget(clearButton);
    buttons->addStretch(1);
    buttons->addWidget(chosenLabel);

    auto *layout = new QVBoxLayout(lower);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(chosenList, 1);
    return splitter;
}

void SelectionWidgets::fitToFont()
{
    const QFontMetrics metrics = description->fontMetrics();
    description->setFixedHeight(2 * metrics.lineSpacing());
    preview->setFixedHeight(2 * metrics.lineSpacing());
    // Two spin boxes with their labels, each wide enough for the longest whole number.
    const auto widthOf = [&metrics](const char *key) { return metrics.horizontalAdvance(textOf(key)); };
    const int labels = std::max(widthOf(keys::IntRangeFrom) + widthOf(keys::IntRangeTo),
                                widthOf(keys::FloatRangeFrom) + widthOf(keys::FloatRangeTo));
    const int rangeWidth =
        labels + 2 * metrics.horizontalAdvance(QLatin1String("-2147483648")) + 7 * metrics.height();
    topView->nameColumnWidth()->setMinimumValueWidth(rangeWidth);
    chosenList->nameColumnWidth()->setMinimumValueWidth(rangeWidth);
}

} // namespace tvx
} // namespace Zudunmaf
