#include "tvx/number_entry.h"

#include "tvx/tvx_texts.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <QSpinBox>
#include <QValidator>

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

bool holdsNumber(const QAbstractSpinBox &box)
{
    return qobject_cast<const QSpinBox *>(&box) || qobject_cast<const QDoubleSpinBox *>(&box);
}

int decimalsOf(const QAbstractSpinBox &box)
{
    const auto *decimal = qobject_cast<const QDoubleSpinBox *>(&box);
    return decimal ? decimal->decimals() : 0;
}

std::pair<double, double> limitsOf(const QAbstractSpinBox &box)
{
    if (const auto *whole = qobject_cast<const QSpinBox *>(&box))
        return {whole->minimum(), whole->maximum()};
    const auto *decimal = qobject_cast<const QDoubleSpinBox *>(&box);
    return decimal ? std::make_pair(decimal->minimum(), decimal->maximum()) : std::make_pair(0.0, 0.0);
}

/// Accepts what the box accepts, and holds every other number as one that is not finished. A fraction is a number for
/// a box of whole numbers too: with the point dropped, 12.5 would read 125.
class EveryNumberValidator : public QValidator
{
public:
    explicit EveryNumberValidator(QAbstractSpinBox *box)
        : QValidator(box)
        , m_box(box)
        , m_number(QStringLiteral("^\\s*[+-]?\\d*([.,]\\d*)?\\s*$"))
    {
    }

    State validate(QString &input, int &position) const override
    {
        const QString point(m_box->locale().decimalPoint());
        input.replace(QLatin1Char(point == QLatin1String(".") ? ',' : '.'), point);
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
    if (holdsNumber(*box))
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
    if (!holdsNumber(m_box) || m_box.validate(text, position) == QValidator::Acceptable)
        return Accepted;
    bool isNumber = false;
    const double number = m_box.locale().toDouble(text.trimmed(), &isNumber);
    if (!isNumber)
        return Unfinished;
    const auto limits = limitsOf(m_box);
    if (number < limits.first)
        return TooLow;
    return number > limits.second ? TooHigh : TooPrecise;
}

QString NumberEntry::minimum() const
{
    return written(limitsOf(m_box).first);
}

QString NumberEntry::maximum() const
{
    return written(limitsOf(m_box).second);
}

QString NumberEntry::written(double number) const
{
    return QString::number(number, 'f', decimalsOf(m_box));
}

QString NumberEntry::refusal(const QString &units) const
{
    const auto withUnits = [&units](const QString &number) {
        return units.isEmpty() ? number : number + QLatin1Char(' ') + units;
    };
    const int decimals = decimalsOf(m_box);
    switch (state()) {
    case TooLow:
        return textOf(texts::AtLeast).arg(withUnits(minimum()));
    case TooHigh:
        return textOf(texts::AtMost).arg(withUnits(maximum()));
    case TooPrecise:
        if (decimals > 0)
            return textOf(texts::MostDecimals).arg(decimals);
        return textOf(texts::WholeNumberNeeded).arg(minimum(), withUnits(maximum()));
    case Unfinished:
        return textOf(texts::NumberNeeded).arg(minimum(), withUnits(maximum()));
    case Accepted:
        break;
    }
    return QString();
}

} // namespace tvx
} // namespace Zudunmaf
