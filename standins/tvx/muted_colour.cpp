#include "tvx/muted_colour.h"

#include "tvx/mixed_colour.h"

#include <QStyleOptionViewItem>

#include <algorithm>
#include <cmath>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr double LeastContrast = 4.5;
constexpr double FirstShare = 0.5;
constexpr double ShareStep = 0.05;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast ratio of WCAG 2: from 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace

QPalette::ColorGroup colourGroupOf(const QStyleOptionViewItem &cell)
{
    if (!(cell.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return cell.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QColor mutedColour(const QPalette &palette, QPalette::ColorGroup group, bool isSelected)
{
    const QColor text = palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor back = palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor otherBack = isSelected ? back : palette.color(group, QPalette::AlternateBase);
    for (double share = FirstShare; share < 1; share += ShareStep) {
        const QColor colour = mixedColour(text, back, share);
        if (std::min(contrast(colour, back), contrast(colour, otherBack)) >= LeastContrast)
            return colour;
    }
    return text;
}

} // namespace tvx
} // namespace Zudunmaf
