#include "tvx/number_entry.h"

#include "tvx/attribute_facts.h"
#include "tvx/tvx_texts.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QValidator>

#include <algorithm>
#include <cmath>
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

/// Accepts every text while the user types; NumberEntry then judges it as a whole. If the box dropped the point, 12.5
/// in a box of whole numbers would become 125.
class EveryTextValidator : public QValidator
{
public:
    explicit EveryTextValidator(QAbstractSpinBox *box)
        : QValidator(box)
        , m_box(box)
    {
    }

    State validate(QString &input, int &position) const override
    {
        const QString point(m_box->locale().decimalPoint());
        input.replace(QLatin1Char(point == QLatin1String(".") ? ',' : '.'), point);
        return std::max(Intermediate, m_box->validate(input, position));
    }

private:
    const QAbstractSpinBox *m_box;
};

} // namespace

NumberEntry::NumberEntry(const QAbstractSpinBox &box)
    : m_box(box)
{
}

void NumberEntry::acceptEveryText(QAbstractSpinBox *box)
{
    if (holdsNumber(*box))
        lineOf(*box)->setValidator(new EveryTextValidator(box));
}

void NumberEntry::stepAdaptively(QAbstractSpinBox *box)
{
    if (auto *whole = qobject_cast<QSpinBox *>(box))
        whole->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(box))
        decimal->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
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
    if (!isNumber || !std::isfinite(number)) {
        const bool isSign = text.isEmpty() || text == QLatin1String("-") || text == QLatin1String("+");
        return isSign ? Unfinished : NoNumber;
    }
    const auto limits = limitsOf(m_box);
    if (number < limits.first)
        return TooLow;
    return number > limits.second ? TooHigh : TooPrecise;
}

bool NumberEntry::isUnfinished() const
{
    const QString text = m_box.text().trimmed();
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const auto [minimum, maximum] = limitsOf(m_box);
    switch (state()) {
    case Unfinished:
        return true;
    case TooLow:
        return !isNegative && canGrowToLimits(text, minimum, maximum);
    case TooHigh:
        return isNegative && canGrowToLimits(text.mid(1), -maximum, -minimum);
    default:
        return false;
    }
}

/// Returns true if a number from `minimum` to `maximum` begins with these digits.
bool NumberEntry::canGrowToLimits(const QString &digits, double minimum, double maximum) const
{
    double lowest = m_box.locale().toDouble(digits);
    const int point = int(digits.indexOf(m_box.locale().decimalPoint()));
    const int decimals = point < 0 ? 0 : int(digits.size()) - point - 1;
    // More decimals lead from the number up to, but not to, the next one with as many decimals as it has.
    double next = lowest + std::pow(10.0, -decimals);
    if (decimals < decimalsOf(m_box) && next > minimum)
        return true;
    // More digits before a point multiply both.
    while (point < 0 && lowest > 0 && next <= minimum && std::isfinite(next)) {
        lowest *= 10;
        next *= 10;
    }
    return point < 0 && next > minimum && lowest <= maximum;
}

QString NumberEntry::minimum() const
{
    return shortNumber(limitsOf(m_box).first, decimalsOf(m_box));
}

QString NumberEntry::maximum() const
{
    return shortNumber(limitsOf(m_box).second, decimalsOf(m_box));
}

void NumberEntry::goToLimit() const
{
    const auto limits = limitsOf(m_box);
    const State refused = state();
    if (refused == TooLow || refused == TooHigh)
        lineOf(m_box)->setText(
            QString::number(refused == TooLow ? limits.first : limits.second, 'f', decimalsOf(m_box)));
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
    case NoNumber:
        return textOf(texts::NumberNeeded).arg(minimum(), withUnits(maximum()));
    case Accepted:
        break;
    }
    return QString();
}

} // namespace tvx
} // namespace Zudunmaf
