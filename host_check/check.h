#ifndef HOST_CHECK_CHECK_H
#define HOST_CHECK_CHECK_H

#include <sstream>
#include <string>
#include <vector>

/// @file
/// One promise of the contract and how it is checked. Shared by the program and its module, which are always built
/// together.

namespace Zudunmaf::hostcheck
{

/// What the user says about the host.
struct Settings {
    std::vector<std::string> libraries; ///< Loaded in this order.
    std::string setup;      ///< Function of the host to call before the first check; may be empty.
    std::vector<int> units; ///< Codes to check besides those of the definitions.
    int dictionary = 0;     ///< Handed to dml__atr_next() and to the dialogs.
    int timeout = 60;       ///< Seconds for one check.
    bool strict = false;    ///< Advice counts as a failure.
    bool json = false;      ///< Prints JSON instead of lines.
};

enum class Verdict { Kept, Broken, Advice, NotCheckable };

/// Result of a check. Checks throw one as soon as they find something; a check that returns has found its promise kept.
struct Outcome {
    Verdict verdict;
    std::string detail;
};

struct Check {
    const char *promise;
    /// Broken if the contract demands it, Advice if the contract leaves it open.
    Verdict ifNot;
    void (*run)(const Settings &settings);
};

/// Checks of one part of the host.
enum class Group { Process, Services, Dictionary, Base, Dialogs };

/// A promise that was not kept. The table of checks decides whether that is broken or advice.
struct Violation {
    std::string expected, came;
};

/// Joins the parts, numbers included, to one text.
template <class... Parts>
std::string text(const Parts &...parts)
{
    std::ostringstream stream;
    (stream << ... << parts);
    return stream.str();
}

inline std::string quoted(const std::string &text)
{
    return '"' + text + '"';
}

/// Ends the running check unless `isKept`.
inline void expect(bool isKept, const std::string &expected, const std::string &came)
{
    if (!isKept)
        throw Violation{expected, came};
}

/// Ends the running check unless both are equal. `where` follows what was expected, as in "0 from gen__cfg_get()".
template <class Came, class Expected>
void expectEqual(const Came &came, const Expected &expected, const std::string &where)
{
    if constexpr (std::is_convertible_v<Came, std::string>)
        expect(came == expected, text(quoted(expected), " ", where), quoted(came));
    else
        expect(came == expected, text(std::boolalpha, expected, " ", where), text(std::boolalpha, came));
}

[[noreturn]] inline void notCheckable(const std::string &reason)
{
    throw Outcome{Verdict::NotCheckable, reason};
}

/// Adds a remark to a kept promise, such as the file in which something was found.
[[noreturn]] inline void keptWith(const std::string &remark)
{
    throw Outcome{Verdict::Kept, remark};
}

/// The checks of the program, in the order in which they run.
const std::vector<Check> &processChecks();
const std::vector<Check> &serviceChecks();
const std::vector<Check> &unitsChecks();
const std::vector<Check> &dictionaryChecks();

/// The checks of its module.
struct BaseChecks {
    std::vector<Check> base;    ///< The base library by itself: its declaration and its fills.
    std::vector<Check> dialogs; ///< Both dialogs over the base, driven by keys and by the mouse.
};
std::vector<Check> dialogChecks();

} // namespace Zudunmaf::hostcheck

#endif
