#ifndef TVX_NUMBER_ENTRY_H
#define TVX_NUMBER_ENTRY_H

#include <QString>

class QAbstractSpinBox;
class QLineEdit;

namespace Zudunmaf
{
namespace tvx
{

/// The number that is being typed into a spin box: whether the box accepts it, and which limit it breaks.
/// Refers to the box, which must outlive it.
///
/// A spin box of Qt drops each key that would lead beyond a limit, so that 150 becomes 15. After
/// acceptEveryNumber() its text is what was typed, pasted or dropped, while its value stays the last one within
/// the limits.
class NumberEntry
{
public:
    enum State { Accepted, TooLow, TooHigh, NoNumber };

    explicit NumberEntry(const QAbstractSpinBox &box);

    /// Lets the user type any number, with a point or a comma as its decimal separator.
    static void acceptEveryNumber(QAbstractSpinBox *box);
    /// The line of text inside a spin box.
    static QLineEdit *lineOf(const QAbstractSpinBox &box);

    State state() const;
    /// The limits as the box writes numbers.
    QString minimum() const;
    QString maximum() const;
    /// A sentence on why the entry is refused, with the limits in `units`; empty for an accepted entry.
    QString refusal(const QString &units) const;

private:
    const QAbstractSpinBox &m_box;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
