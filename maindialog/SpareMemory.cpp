#include "SpareMemory.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

static constexpr int quietTime = 2000; // ms, longer than from one photo to the next

static void giveBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

SpareMemory::SpareMemory(std::chrono::milliseconds pace)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(quietTime);
    m_soon.callOnTimeout(giveBack);
    m_againAndAgain.setInterval(pace);
    m_againAndAgain.callOnTimeout(giveBack);
}

void SpareMemory::giveBackSoon()
{
    m_soon.start();
    m_againAndAgain.start();
}
