#include "sql/parse/Identificadores.h"

#include <gtest/gtest.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Whether the call is still running after a while; it runs in a process of its own, which the alarm ends.
template <class Call>
bool NeverReturns(Call call) {
    const pid_t child = fork();
    if (child == 0) {
        const itimerval limit{{0, 0}, {0, 100'000}};
        setitimer(ITIMER_VIRTUAL, &limit, nullptr);
        call();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGVTALRM;
}

TEST(Identifiers, SearchOfAToWNeverEndsFromDialect3On) {
    for (const char* name : {"A", "NOME", "SELECT", "W1"}) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(NeverReturns([name] { mkIdent(3, name); }));
        EXPECT_TRUE(NeverReturns([name] { mkVARIdent(3, name); }));
    }
    EXPECT_FALSE(NeverReturns([] { mkIdent(3, "Y"); }));
}

}  // namespace
