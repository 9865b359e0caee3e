#include "LostScreen.h"

#include "AppLog.h"
#include "PromptEnd.h"

#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>
#include <utility>

static std::function<void()> completion; // null without an object

LostScreen::LostScreen(std::function<void()> complete)
{
    completion = std::move(complete);
    // To write to a server that has just ended is deadly by default.
    std::signal(SIGPIPE, SIG_IGN);
}

LostScreen::~LostScreen()
{
    completion = nullptr;
}

// In the place of the C library's, for the toolkit and for Xlib. A function for std::atexit() would
// come too late: libraries that were loaded after it was registered are tidied up before.
extern "C" void exit(int status) noexcept
{
    // Taken, since a call to the X server in there would lead to here once more.
    if (const std::function<void()> complete = std::exchange(completion, nullptr)) {
        PromptEnd::within(LostScreen::limit, status);
        qCWarning(appLog) << "the program is ended by force, as without a screen";
        complete();
        _exit(status);
    }
    using Exit = void (*)(int);
    if (const auto usual = reinterpret_cast<Exit>(dlsym(RTLD_NEXT, "exit")))
        usual(status);
    _exit(status);
}
