#ifndef HOST_CHECK_PRINTABLE_H
#define HOST_CHECK_PRINTABLE_H

#include <string>

namespace Zudunmaf::hostcheck
{

/// Returns a text of the host as UTF-8 on one line: each byte that is not UTF-8, or a control character, as \xNN.
std::string printable(std::string bytes);

} // namespace Zudunmaf::hostcheck

#endif
