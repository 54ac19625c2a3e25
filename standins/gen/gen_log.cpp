#include "gdm/host/gen_services.h"

#include "gen/gen_control.h"

#include <cstdio>
#include <string>

namespace
{

std::string &lastFailure()
{
    static std::string text;
    return text;
}

} // namespace

void Zudunmaf::gen::noteFailure(const char *text)
{
    lastFailure() = text ? text : "";
}

void gen__log_status_check(const char *file, int line)
{
    std::string &failure = lastFailure();
    std::fprintf(stderr, "zudunmaf: %s (%s:%d)\n",
                 failure.empty() ? "a service failed without saying why" : failure.c_str(), file ? file : "?",
                 line);
    // The next report is about another failed call.
    failure.clear();
}
