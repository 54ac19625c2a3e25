#ifndef WALK_ASSIGN_WALK_H
#define WALK_ASSIGN_WALK_H

#include "walk.h"

namespace Zudunmaf::walk
{

/// Assigns values to a feature: adds and edits an attribute of each type, resets one to its default, removes one, and
/// changes the display units. Needs the demo's built-in dictionary.
class AssignWalk : public Walk
{
public:
    using Walk::Walk;

protected:
    std::vector<Step> steps() override;

private:
    void tryToEditBoolean();
    void removeBoolean();
    void changeUnits();
    void addInNewUnits();
};

} // namespace Zudunmaf::walk

#endif
