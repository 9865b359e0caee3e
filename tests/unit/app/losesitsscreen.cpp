// A program that is ended by exit() from within, with a library that is never done with tidying up.
// With an argument it was not to be asked any more by then.

#include "LostScreen.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
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

int main(int argc, char **)
{
    const bool isOver = argc > 1;
    auto lostScreen = std::make_unique<LostScreen>([] {
        puts("completed");
        fflush(stdout);
    });
    static const StuckLibrary library(!isOver); // which came later
    if (isOver)
        lostScreen.reset();
    exit(7);
}
