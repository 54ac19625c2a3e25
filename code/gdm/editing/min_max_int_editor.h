#ifndef GDM_EDITING_MIN_MAX_INT_EDITOR_H
#define GDM_EDITING_MIN_MAX_INT_EDITOR_H

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QSpinBox;

namespace Zudunmaf
{

/// Editor of an integer range, for the length of one edit of one cell: "From:" and "To:", each with a spin
/// box. The two bounds share one pair of limits and are otherwise independent: From may stand above To, and
/// whoever reads them puts them in order. Internal: not exported.
class MinMaxIntEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MinMaxIntEditor(QWidget *parent);
    ~MinMaxIntEditor() override;

    void setMinimum(int minimum);
    void setMaximum(int maximum);
    void setRange(int minimum, int maximum);

    void setFromValue(int value);
    int fromValue() const;
    void setToValue(int value);
    int toValue() const;

private:
    QHBoxLayout *horizontalLayout;
    QLabel *label_From;
    QSpinBox *spinBox_From;
    QLabel *label_To;
    QSpinBox *spinBox_To;
};

} // namespace Zudunmaf

#endif
