// A program that is done, with a library that never is: what tidies up after main waits for ever.
// Argument: how long it may take, in ms.

#include "PromptEnd.h"

#include <cstdlib>
#include <unistd.h>

namespace {

class StuckLibrary {
public:
    ~StuckLibrary()
    {
        for (;;)
            pause();
    }
};

} // namespace

int main(int, char **argv)
{
    static const StuckLibrary library;
    PromptEnd::within(std::chrono::milliseconds(atoi(argv[1])), 7);
    return 7;
}
