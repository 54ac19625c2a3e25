#ifndef TVX_LIVE_PREVIEW_H
#define TVX_LIVE_PREVIEW_H

#include <QString>

namespace Zudunmaf
{
namespace tvx
{

class ChosenTable;

/// Returns the result line of the current chosen row. While an editor is open, returns the line that the host would get
/// if Enter were pressed; empty if the limits refuse the entry.
QString currentResultLine(const ChosenTable &chosen);

} // namespace tvx
} // namespace Zudunmaf

#endif
