#ifndef DEMO_WALK_OF_FILTER_H
#define DEMO_WALK_OF_FILTER_H

#include "walk.h"

namespace Zudunmaf::demo
{

/// Conditions for layers: an integer range, an option and a text, the last of which is cleared again. Needs
/// the dictionary that the program carries.
class WalkOfFilter : public Walk
{
public:
    using Walk::Walk;

protected:
    std::vector<Step> steps() override;

private:
    void chooseLayer();
    void filterByPart();
};

} // namespace Zudunmaf::demo

#endif
