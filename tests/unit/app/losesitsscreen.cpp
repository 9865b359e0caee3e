// A program that is ended by exit() from within, with a library that is never done with tidying up.
// With the argument "over" it was not to be asked any more by then, with "writing" it writes to a
// server that is gone.

#include "LostScreen.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

class StuckLibrary {
public:
    explicit StuckLibrary(bool isStuck)
        : m_isStuck(isStuck)
    {
    }
    ~StuckLibrary()
    {
        while (m_isStuck)
            pause();
    }

private:
    const bool m_isStuck;
};

} // namespace

static void writeToNobody()
{
    int ends[2];
    if (pipe(ends) == 0 && close(ends[0]) == 0 && write(ends[1], "", 1) < 0)
        puts("not written");
}

int main(int argc, char **argv)
{
    const std::string argument = argc > 1 ? argv[1] : "";
    const bool isOver = argument == "over";
    auto lostScreen = std::make_unique<LostScreen>([] {
        puts("completed");
        fflush(stdout);
    });
    static const StuckLibrary library(!isOver); // which came later
    if (isOver)
        lostScreen.reset();
    if (argument == "writing")
        writeToNobody();
    exit(7);
}
