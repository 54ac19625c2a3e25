#include "runner.h"

#include "loading.h"
#include "printable.h"

#include <csignal>
#include <cstring>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace Zudunmaf::hostcheck
{

namespace
{

Outcome outcomeOf(const Check &check, const Settings &settings)
{
    const std::string missing = missingFunctions(check.needs);
    if (!missing.empty())
        return {Verdict::NotCheckable, "missing " + missing};
    try {
        check.run(settings);
    } catch (const Violation &violation) {
        return {check.ifNot, "expected " + violation.expected + "; came " + violation.came};
    } catch (const Outcome &outcome) {
        return outcome;
    }
    return {Verdict::Kept, {}};
}

/// Runs checks in the child and sends two lines to the parent for each: "begin", group and promise before it, "end",
/// verdict and detail after it, separated by tabs. A last line, "done", shows that the host has not ended the process.
class Sender
{
public:
    Sender(FILE *pipe, int firstCheck, const Settings &settings)
        : m_pipe(pipe)
        , m_toSkip(firstCheck)
        , m_settings(settings)
    {
    }

    void run(const char *group, const std::vector<Check> &checks)
    {
        for (const Check &check : checks) {
            if (m_toSkip-- > 0)
                continue;
            send("begin", group, check.promise);
            // Ends the process if the host does not return.
            alarm(unsigned(m_settings.timeout));
            const Outcome outcome = outcomeOf(check, m_settings);
            alarm(0);
            send("end", std::to_string(int(outcome.verdict)), outcome.detail);
        }
    }

    void sendDone() { send("done", {}, {}); }

private:
    void send(const char *kind, const std::string &first, const std::string &second)
    {
        std::fprintf(m_pipe, "%s\t%s\t%s\n", kind, first.c_str(), printable(second).c_str());
        std::fflush(m_pipe);
    }

    FILE *m_pipe;
    int m_toSkip;
    const Settings &m_settings;
};

[[noreturn]] void runInChild(FILE *pipe, int firstCheck, const Settings &settings)
{
    // What the host prints must not get into the report.
    dup2(STDERR_FILENO, STDOUT_FILENO);
    Sender sender(pipe, firstCheck, settings);
    if (firstCheck > 0) {
        loadLibraries(settings);
        callSetup(settings);
    }
    sender.run("process", processChecks());
    sender.run("services", serviceChecks());
    sender.run("dictionary", dictionaryChecks());
    std::string error;
    const std::vector<Check> *checks = baseChecks(&error);
    if (checks && hostFunction(BaseVirtualTable))
        sender.run("base", *checks);
    else
        sender.run("base",
                   {{"All promises of the base dialog", Verdict::NotCheckable, "",
                     [](const Settings &) { notCheckable("no base dialog of the host is loaded"); }}});
    sender.sendDone();
    // Destructors of the host's libraries are not under check.
    _exit(EXIT_SUCCESS);
}

std::string ending(int status, int timeout)
{
    if (!WIFSIGNALED(status))
        return text("the end of the process with status ", WEXITSTATUS(status));
    if (WTERMSIG(status) == SIGALRM)
        return text("nothing within ", timeout, " seconds");
    return text("the end of the process by signal ", WTERMSIG(status), " (", strsignal(WTERMSIG(status)),
                ")");
}

/// Starts a child that runs the checks from `firstCheck` on. Returns its process, and the end of the pipe to read.
std::pair<pid_t, int> startChild(int firstCheck, const Settings &settings)
{
    int ends[2];
    const pid_t child = pipe(ends) == 0 ? fork() : -1;
    if (child < 0) {
        std::perror("zudunmaf-host-check: no process for the checks");
        std::exit(2);
    }
    if (child == 0) {
        close(ends[0]);
        runInChild(fdopen(ends[1], "w"), firstCheck, settings);
    }
    close(ends[1]);
    return {child, ends[0]};
}

/// Runs the checks from `firstCheck` on in one child. Returns the check to go on with, -1 if there is none.
int runSome(int firstCheck, const Settings &settings, const std::function<void(const Finding &)> &report)
{
    const auto [child, output] = startChild(firstCheck, settings);
    const Finding betweenChecks{"process", "The process goes on between two checks", {}};
    Finding finding = betweenChecks;
    int begun = 0;
    bool isDone = false;
    std::ifstream lines(text("/proc/self/fd/", output));
    for (std::string kind, first, second; std::getline(lines, kind, '\t') &&
                                          std::getline(lines, first, '\t') && std::getline(lines, second);) {
        if (kind == "begin") {
            ++begun;
            finding = {first, second, {}};
        } else if (kind == "done") {
            isDone = true;
        } else {
            finding.outcome = {Verdict(std::stoi(first)), second};
            report(finding);
            finding = betweenChecks;
        }
    }
    close(output);
    int status = 0;
    waitpid(child, &status, 0);
    if (isDone)
        return -1;
    finding.outcome = {Verdict::Broken,
                       "expected a return from the host; came " + ending(status, settings.timeout)};
    report(finding);
    // If no check has begun, the next child would end the same way.
    return begun > 0 ? firstCheck + begun : -1;
}

} // namespace

void runChecks(const Settings &settings, const std::function<void(const Finding &)> &report)
{
    for (int next = 0; next >= 0;)
        next = runSome(next, settings, report);
}

} // namespace Zudunmaf::hostcheck
