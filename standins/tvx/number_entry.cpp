#include "tvx/number_entry.h"

#include "tvx/tvx_texts.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QValidator>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

int decimalsOf(const QAbstractSpinBox &box)
{
    const auto *decimal = qobject_cast<const QDoubleSpinBox *>(&box);
    return decimal ? decimal->decimals() : 0;
}

/// Accepts what the box accepts, and holds every other number as one that is not finished. A fraction is a number for
/// a box of whole numbers too: with the point dropped, 12.5 would read 125.
class EveryNumberValidator : public QValidator
{
public:
    explicit EveryNumberValidator(QAbstractSpinBox *box)
        : QValidator(box)
        , m_box(box)
        , m_number(QStringLiteral("^\\s*[+-]?\\d*(\\.\\d{0,%1})?\\s*$").arg(qMax(1, decimalsOf(*box))))
    {
    }

    State validate(QString &input, int &position) const override
    {
        input.replace(QLatin1Char(','), QLatin1Char('.'));
        const State state = m_box->validate(input, position);
        return state == Invalid && m_number.match(input).hasMatch() ? Intermediate : state;
    }

private:
    const QAbstractSpinBox *m_box;
    QRegularExpression m_number;
};

} // namespace

NumberEntry::NumberEntry(const QAbstractSpinBox &box)
    : m_box(box)
{
}

void NumberEntry::acceptEveryNumber(QAbstractSpinBox *box)
{
    lineOf(*box)->setValidator(new EveryNumberValidator(box));
}

QLineEdit *NumberEntry::lineOf(const QAbstractSpinBox &box)
{
    return box.findChild<QLineEdit *>();
}

NumberEntry::State NumberEntry::state() const
{
    QString text = m_box.text();
    int position = 0;
    if (m_box.validate(text, position) == QValidator::Acceptable)
        return Accepted;
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (isNumber && number < QLocale::c().toDouble(minimum()))
        return TooLow;
    if (isNumber && number > QLocale::c().toDouble(maximum()))
        return TooHigh;
    return NoNumber;
}

QString NumberEntry::minimum() const
{
    if (const auto *box = qobject_cast<const QSpinBox *>(&m_box))
        return QString::number(box->minimum());
    const auto *box = qobject_cast<const QDoubleSpinBox *>(&m_box);
    return box ? QString::number(box->minimum(), 'f', box->decimals()) : QString();
}

QString NumberEntry::maximum() const
{
    if (const auto *box = qobject_cast<const QSpinBox *>(&m_box))
        return QString::number(box->maximum());
    const auto *box = qobject_cast<const QDoubleSpinBox *>(&m_box);
    return box ? QString::number(box->maximum(), 'f', box->decimals()) : QString();
}

QString NumberEntry::refusal(const QString &units) const
{
    const auto withUnits = [&units](const QString &number) {
        return units.isEmpty() ? number : number + QLatin1Char(' ') + units;
    };
    switch (state()) {
    case TooLow:
        return textOf(texts::AtLeast).arg(withUnits(minimum()));
    case TooHigh:
        return textOf(texts::AtMost).arg(withUnits(maximum()));
    case NoNumber:
        return textOf(decimalsOf(m_box) > 0 ? texts::NumberNeeded : texts::WholeNumberNeeded)
            .arg(minimum(), withUnits(maximum()));
    case Accepted:
        break;
    }
    return QString();
}

} // namespace tvx
} // namespace Zudunmaf
