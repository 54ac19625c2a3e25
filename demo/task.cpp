#include "task.h"

#include "assign_task.h"
#include "filter_task.h"

namespace Zudunmaf::demo
{

Task::~Task() = default;

std::unique_ptr<Task> Task::create(Options::Dialog dialog, int did)
{
    if (dialog == Options::Dialog::Filter)
        return std::make_unique<FilterTask>(did);
    return std::make_unique<AssignTask>(did);
}

} // namespace Zudunmaf::demo
