#ifndef TVX_MIXED_COLOUR_H
#define TVX_MIXED_COLOUR_H

#include <QColor>

namespace Zudunmaf
{
namespace tvx
{

/// Returns `front` over `back`, with `share` as the opacity of `front`, from 0 to 1.
inline QColor mixedColour(const QColor &front, const QColor &back, qreal share)
{
    return QColor::fromRgbF(front.redF() * share + back.redF() * (1 - share),
                            front.greenF() * share + back.greenF() * (1 - share),
                            front.blueF() * share + back.blueF() * (1 - share));
}

} // namespace tvx
} // namespace Zudunmaf

#endif
