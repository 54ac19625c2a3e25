#include "report.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <getopt.h>

using namespace Zudunmaf::hostcheck;

namespace
{

constexpr char Usage[] = R"(Usage: zudunmaf-host-check [OPTION]... LIBRARY...
Loads the libraries of a host in the order given, then libzudunmaf.so, and checks what the library relies on: services,
dictionary and base dialog. Prints one line for each promise:

  kept           the host keeps it
  broken         the host does not keep it: what was expected, and what came
  advice         the contract leaves it open, and the dialogs work better with it
  not checkable  something else is missing that the check needs

  --dictionary ID  dictionary to walk (default 0)
  --units CODE,... units to check besides those of the attributes
  --setup FUNCTION extern "C" int FUNCTION(void) of the host, called before the first check, such as one that
                   opens the dictionary; 0 is success
  --strict         advice counts like broken
  --json           print JSON
  --timeout SEC    longest time for one check (default 60)
  --help           print this text

What the host prints goes to standard error. A check that the host crashes is broken. Without QT_QPA_PLATFORM in the
environment, the dialogs are checked offscreen.

Exit status: 0 if nothing is broken, 1 if something is, 2 for wrong arguments, 3 if nothing is broken but no promise of
a group, such as the dictionary, is checkable.
)";

[[noreturn]] void refuse(const std::string &reason)
{
    std::fprintf(stderr, "zudunmaf-host-check: %s\nTry --help.\n", reason.c_str());
    std::exit(2);
}

int numberIn(const std::string &text)
{
    char *end = nullptr;
    const long number = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0' || number != int(number))
        refuse("\"" + text + "\" is not a whole number");
    return int(number);
}

/// Returns the absolute path of a file, because the loader searches its own directories for a name without a slash.
std::string libraryPath(const char *file)
{
    if (!std::filesystem::is_regular_file(file))
        refuse(std::string("there is no file \"") + file + '"');
    return std::filesystem::absolute(file);
}

Settings settingsFrom(int argc, char *argv[])
{
    const option options[] = {{"dictionary", required_argument, nullptr, 'd'},
                              {"units", required_argument, nullptr, 'u'},
                              {"setup", required_argument, nullptr, 'c'},
                              {"strict", no_argument, nullptr, 's'},
                              {"json", no_argument, nullptr, 'j'},
                              {"timeout", required_argument, nullptr, 't'},
                              {"help", no_argument, nullptr, 'h'},
                              {nullptr, 0, nullptr, 0}};
    Settings settings;
    for (int option = 0; (option = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        if (option == 'd') {
            settings.dictionary = numberIn(optarg);
        } else if (option == 'u') {
            std::istringstream codes(optarg);
            for (std::string code; std::getline(codes, code, ',');)
                settings.units.push_back(numberIn(code));
        } else if (option == 'c') {
            settings.setup = optarg;
        } else if (option == 's') {
            settings.strict = true;
        } else if (option == 'j') {
            settings.json = true;
        } else if (option == 't') {
            settings.timeout = std::max(1, numberIn(optarg));
        } else if (option == 'h') {
            std::fputs(Usage, stdout);
            std::exit(0);
        } else {
            refuse("unknown or incomplete option");
        }
    }
    for (int index = optind; index < argc; ++index)
        settings.libraries.push_back(libraryPath(argv[index]));
    if (settings.libraries.empty())
        refuse("no library is given");
    return settings;
}

} // namespace

int main(int argc, char *argv[])
{
    const Settings settings = settingsFrom(argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    return runChecks(settings);
}
