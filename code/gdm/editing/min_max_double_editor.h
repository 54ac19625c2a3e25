#ifndef GDM_EDITING_MIN_MAX_DOUBLE_EDITOR_H
#define GDM_EDITING_MIN_MAX_DOUBLE_EDITOR_H

#include <QWidget>

class QDoubleSpinBox;
class QHBoxLayout;
class QLabel;

namespace Zudunmaf
{

/// Cell editor of a float range with FloatDecimals; otherwise the same as MinMaxIntEditor. Limits and bounds are 32-bit
/// floats, in the units of the definition. Internal: not exported.
class MinMaxDoubleEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MinMaxDoubleEditor(QWidget *parent);
    ~MinMaxDoubleEditor() override;

    void setMinimum(float minimum);
    void setMaximum(float maximum);
    void setRange(float minimum, float maximum);

    void setFromValue(float value);
    float fromValue() const;
    void setToValue(float value);
    float toValue() const;

private:
    QHBoxLayout *horizontalLayout;
    QLabel *label_From;
    QDoubleSpinBox *doubleSpinBox_From;
    QLabel *label_To;
    QDoubleSpinBox *doubleSpinBox_To;
};

} // namespace Zudunmaf

#endif
