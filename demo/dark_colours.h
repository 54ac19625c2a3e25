#ifndef DEMO_DARK_COLOURS_H
#define DEMO_DARK_COLOURS_H

namespace Zudunmaf::demo
{

/// Gives the application a dark palette, in the style that honours every colour of it.
void useDarkColours();

} // namespace Zudunmaf::demo

#endif
