#include "SpareMemory.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

static constexpr int quietTime = 2000; // ms, longer than from one photo to the next
static constexpr int backgroundTime = 20000; // ms, in which the encoders are tried at the latest

static void giveBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

SpareMemory::SpareMemory()
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(quietTime);
    m_soon.callOnTimeout(giveBack);
    m_later.setSingleShot(true);
    m_later.setInterval(backgroundTime);
    m_later.callOnTimeout(giveBack);
}

void SpareMemory::giveBackSoon()
{
    m_soon.start();
    m_later.start();
}
