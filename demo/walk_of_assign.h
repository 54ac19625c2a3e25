#ifndef DEMO_WALK_OF_ASSIGN_H
#define DEMO_WALK_OF_ASSIGN_H

#include "walk.h"

namespace Zudunmaf::demo
{

/// Values of a feature: an attribute of each type is added and edited in its cell, one gets its default back,
/// one is removed, and the host changes the display units. Needs the dictionary that the program carries.
class WalkOfAssign : public Walk
{
public:
    using Walk::Walk;

protected:
    std::vector<Step> steps() override;

private:
    void tryBoolean();
    void removeBoolean();
    void changeUnits();
    void addInNewUnits();
};

} // namespace Zudunmaf::demo

#endif
