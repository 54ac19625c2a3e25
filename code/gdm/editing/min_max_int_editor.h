#ifndef GDM_EDITING_MIN_MAX_INT_EDITOR_H
#define GDM_EDITING_MIN_MAX_INT_EDITOR_H

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QSpinBox;

namespace Zudunmaf
{

/// Cell editor of an integer range: "From:" and "To:", each with a spin box. Both spin boxes have the same limits and
/// are otherwise independent: From can be greater than To, and storeCondition() sorts them. Internal: not exported.
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
