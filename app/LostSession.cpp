#include "LostSession.h"

#include "AppLog.h"

#include <fcntl.h>
#include <unistd.h>

// Its macros must not meet the toolkit's headers.
#include <X11/ICE/ICElib.h>

// The toolkit goes on listening at a connection that is closed at the other end, which would wake
// it again and again: one where nothing ever comes takes its place.
static void bePutOff(IceConn connection)
{
    qCWarning(appLog) << "the session manager is gone";
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    dup3(ends[0], IceConnectionNumber(connection), O_CLOEXEC);
    close(ends[0]); // and the other end stays open, as long as the process lives
}

void LostSession::outlive()
{
    IceSetIOErrorHandler(bePutOff);
}
