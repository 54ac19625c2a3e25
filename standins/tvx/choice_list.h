#ifndef TVX_CHOICE_LIST_H
#define TVX_CHOICE_LIST_H

#include <QComboBox>

namespace Zudunmaf
{
namespace tvx
{

/// A list to choose one row of, as wide as the layout has room, whatever its rows hold: neither a long name of a
/// group nor the measuring of all of them has a part in the layout.
class ChoiceList : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceList(QWidget *parent);

    QSize sizeHint() const override { return minimumSizeHint(); }
};

} // namespace tvx
} // namespace Zudunmaf

#endif
