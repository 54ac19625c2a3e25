#ifndef DEMO_PRINTED_NUMBER_H
#define DEMO_PRINTED_NUMBER_H

#include <QString>

/// Numbers of lines that were printed before, compared with the limits of their attribute. Each function
/// answers null, or what is wrong with the text.
namespace Zudunmaf::demo::PrintedNumber
{

QString problemOfInteger(const QString &text, int minimum, int maximum);

/// Printing has cut the number to three decimals, so that much beyond a limit is still right.
QString problemOfFloat(const QString &text, double minimum, double maximum);

QString wrongOrder(const QString &low, const QString &high);

} // namespace Zudunmaf::demo::PrintedNumber

#endif
