#ifndef TVX_NUMBER_ENTRY_H
#define TVX_NUMBER_ENTRY_H

#include <QString>

class QAbstractSpinBox;
class QLineEdit;

namespace Zudunmaf
{
namespace tvx
{

/// The number that is being typed into a QSpinBox or QDoubleSpinBox: whether the box accepts it, and which limit it
/// breaks. Every text in a spin box of another class is accepted. Refers to the box, which must outlive it.
///
/// QSpinBox drops each key that would lead beyond a limit, so that 150 becomes 15. After acceptEveryText() its text is
/// what was typed or pasted, while its value stays the last one within the limits. A blank that is typed is still
/// dropped, so that "12 5" reads 125 at once; a pasted one is refused.
class NumberEntry
{
public:
    enum State {
        Accepted,
        Unfinished, ///< empty, or a sign alone
        NoNumber,
        TooLow,
        TooHigh,
        TooPrecise ///< more decimals than the box has
    };

    explicit NumberEntry(const QAbstractSpinBox &box);

    /// Lets the user type any text, with a point or a comma as its decimal separator. Does nothing to a spin box of
    /// another class.
    static void acceptEveryText(QAbstractSpinBox *box);
    /// Makes Up and Down step by a tenth of the number's power of ten, so that they suit inches and microns alike. Does
    /// nothing to a spin box of another class.
    static void stepAdaptively(QAbstractSpinBox *box);
    /// Returns the line edit of a spin box.
    static QLineEdit *lineOf(const QAbstractSpinBox &box);

    State state() const;
    /// Returns true if the entry is refused, but typing more at its end can make it accepted: a sign alone, or 0. for
    /// 0.3.
    bool isUnfinished() const;
    /// Replaces a number beyond a limit by the limit. Does nothing in another state.
    void goToLimit() const;
    /// Returns why the entry is refused, with the limits in `units`; empty for an accepted entry.
    QString refusal(const QString &units) const;

private:
    bool canGrowToLimits(const QString &digits, double minimum, double maximum) const;
    QString minimum() const;
    QString maximum() const;

    const QAbstractSpinBox &m_box;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
