#include "loading.h"
#include "report.h"

#include <csignal>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Zudunmaf::hostcheck
{

namespace
{

/// In memory that the program and its children share.
struct Run {
    Report report;
    int begun = 0; ///< Number of checks so far.
    bool isDone = false;
    Group group = Group::Process;
    char promise[200] = ""; ///< The one that is checked.

    void setRunning(Group inGroup, const char *itsPromise)
    {
        group = inGroup;
        std::snprintf(promise, sizeof promise, "%s", itsPromise);
    }
    void setBetweenChecks() { setRunning(Group::Process, "The process goes on between two checks"); }
};

Outcome outcomeOf(const Check &check, const Settings &settings)
{
    try {
        check.run(settings);
    } catch (const Violation &violation) {
        return {check.ifNot, "expected " + violation.expected + "; came " + violation.came};
    } catch (const Outcome &outcome) {
        return outcome;
    }
    return {Verdict::Kept, {}};
}

void runInChild(Run &run, const Settings &settings)
{
    int toSkip = run.begun;
    if (toSkip > 0)
        loadHost(settings);
    const auto runAll = [&](Group group, const std::vector<Check> &checks) {
        for (const Check &check : checks) {
            if (toSkip-- > 0)
                continue;
            ++run.begun;
            run.setRunning(group, check.promise);
            // Ends the process if the host does not return.
            alarm(unsigned(settings.timeout));
            const Outcome outcome = outcomeOf(check, settings);
            alarm(0);
            run.setBetweenChecks();
            run.report.add(group, check.promise, outcome);
        }
    };
    runAll(Group::Process, processChecks());
    runAll(Group::Services, serviceChecks());
    runAll(Group::Services, unitsChecks());
    runAll(Group::Dictionary, dictionaryChecks());
    if (baseModule().checks && dlsym(RTLD_DEFAULT, BaseVirtualTable)) {
        runAll(Group::Base, baseModule().checks->base);
        runAll(Group::Dialogs, baseModule().checks->dialogs);
    }
    run.isDone = true;
}

std::string ending(int status, int timeout)
{
    if (!WIFSIGNALED(status))
        return text("the end of the process with status ", WEXITSTATUS(status));
    const int signal = WTERMSIG(status);
    return signal == SIGALRM
               ? text("nothing within ", timeout, " seconds")
               : text("the end of the process by signal ", signal, " (", strsignal(signal), ")");
}

[[noreturn]] void giveUp()
{
    std::perror("zudunmaf-host-check: no process for the checks");
    std::exit(2);
}

} // namespace

int runChecks(const Settings &settings)
{
    void *memory = mmap(nullptr, sizeof(Run), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        giveUp();
    Run &run = *new (memory) Run{Report(settings.json)};
    // Ends if a child has begun no check: the next one would do no better.
    for (int before = -1; !run.isDone && run.begun > before;) {
        before = run.begun;
        run.setBetweenChecks();
        const pid_t child = fork();
        if (child == 0) {
            runInChild(run, settings);
            _exit(EXIT_SUCCESS); // Destructors of the host's libraries are not under check.
        }
        int status = 0;
        if (waitpid(child, &status, 0) != child)
            giveUp();
        if (!run.isDone)
            run.report.add(run.group, run.promise,
                           {Verdict::Broken,
                            "expected a return from the host; came " + ending(status, settings.timeout)});
    }
    return run.report.finish(settings.strict);
}

} // namespace Zudunmaf::hostcheck
