#include "LoginSession.h"

#include <QSocketNotifier>

#include <csignal>
#include <cstdlib>
#include <vector>

// Its headers define macros as common as Bool and Status: they come after every header of Qt.
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

struct LoginSession::Private {
    void accept(IceListenObj socket);
    void read();
    void forget();
    static LoginSession::Private &of(SmPointer data)
    {
        return *static_cast<LoginSession::Private *>(data);
    }

    int socketCount = 0;
    IceListenObj *sockets = nullptr;
    std::vector<std::unique_ptr<QSocketNotifier>> arrivals;
    IceConn connection = nullptr;
    std::unique_ptr<QSocketNotifier> words;
    SmsConn program = nullptr;
    bool isSettled = false;
    bool isLoggingOut = false;
    bool hasAsked = false;
    bool isReady = false;
    bool isCancelled = false;
};

static Bool letIn(char *)
{
    return True;
}

static Status meet(SmsConn program, SmPointer data, unsigned long *wanted, SmsCallbacks *calls,
                   char **)
{
    using Login = LoginSession::Private;
    Login::of(data).program = program;
    Login::of(data).isSettled = Login::of(data).isLoggingOut = false;
    *wanted = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask
        | SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask
        | SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask
        | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    *calls = {};
    calls->register_client = {[](SmsConn who, SmPointer, char *before) -> Status {
                                  char *name = before ? before : SmsGenerateClientID(who);
                                  SmsRegisterClientReply(who, name);
                                  // As the protocol wants it of one that is new.
                                  SmsSaveYourself(who, SmSaveLocal, False, SmInteractStyleNone,
                                                  False);
                                  free(name);
                                  return 1;
                              },
                              data};
    calls->interact_request = {[](SmsConn who, SmPointer login, int) {
                                   Login::of(login).hasAsked = true;
                                   SmsInteract(who);
                               },
                               data};
    calls->interact_done = {[](SmsConn who, SmPointer login, Bool isCancelled) {
                                if (!isCancelled)
                                    return;
                                Login::of(login).isCancelled = true;
                                SmsShutdownCancelled(who);
                            },
                            data};
    calls->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, data};
    calls->save_yourself_phase2_request = {
        [](SmsConn who, SmPointer) { SmsSaveYourselfPhase2(who); }, data};
    calls->save_yourself_done = {[](SmsConn who, SmPointer login, Bool) {
                                     if (Login::of(login).isLoggingOut)
                                         Login::of(login).isReady = true;
                                     else
                                         SmsSaveComplete(who);
                                     Login::of(login).isSettled = true;
                                 },
                                 data};
    calls->close_connection = {[](SmsConn who, SmPointer login, int count, char **reasons) {
                                   SmFreeReasons(count, reasons);
                                   SmsCleanUp(who);
                                   Login::of(login).program = nullptr;
                                   Login::of(login).words->setEnabled(false);
                                   IceCloseConnection(Login::of(login).connection);
                                   Login::of(login).connection = nullptr;
                               },
                               data};
    calls->set_properties = {[](SmsConn, SmPointer, int count, SmProp **properties) {
                                 for (int i = 0; i < count; ++i)
                                     SmFreeProperty(properties[i]);
                                 free(properties);
                             },
                             data};
    calls->delete_properties = {[](SmsConn, SmPointer, int count, char **names) {
                                    for (int i = 0; i < count; ++i)
                                        free(names[i]);
                                    free(names);
                                },
                                data};
    calls->get_properties = {[](SmsConn who, SmPointer) { SmsReturnProperties(who, 0, nullptr); },
                             data};
    return 1;
}

void LoginSession::Private::accept(IceListenObj socket)
{
    IceAcceptStatus status = IceAcceptFailure;
    connection = IceAcceptConnection(socket, &status);
    if (!connection)
        return;
    IceSetShutdownNegotiation(connection, False);
    words =
        std::make_unique<QSocketNotifier>(IceConnectionNumber(connection), QSocketNotifier::Read);
    QObject::connect(words.get(), &QSocketNotifier::activated, [this] { read(); });
}

void LoginSession::Private::read()
{
    if (!connection)
        return;
    const IceProcessMessagesStatus status = IceProcessMessages(connection, nullptr, nullptr);
    if (status == IceProcessMessagesIOError)
        forget();
}

// A program that ended without a word.
void LoginSession::Private::forget()
{
    words->setEnabled(false);
    if (program)
        SmsCleanUp(program);
    program = nullptr;
    if (connection)
        IceCloseConnection(connection);
    connection = nullptr;
}

LoginSession::LoginSession()
    : d(std::make_unique<Private>())
{
    char error[256] = "";
    // Left alone, either ends the process: a program may be gone before it is told to go.
    IceSetIOErrorHandler([](IceConn) {});
    std::signal(SIGPIPE, SIG_IGN);
    if (!SmsInitialize("Lab", "1", meet, d.get(), letIn, sizeof error, error)
        || !IceListenForConnections(&d->socketCount, &d->sockets, sizeof error, error))
        return;
    for (int i = 0; i < d->socketCount; ++i) {
        IceListenObj socket = d->sockets[i];
        IceSetHostBasedAuthProc(socket, letIn);
        d->arrivals.push_back(std::make_unique<QSocketNotifier>(
            IceGetListenConnectionNumber(socket), QSocketNotifier::Read));
        QObject::connect(d->arrivals.back().get(), &QSocketNotifier::activated,
                         [this, socket] { d->accept(socket); });
    }
}

LoginSession::~LoginSession()
{
    d->arrivals.clear();
    if (d->words)
        d->forget();
    if (d->sockets)
        IceFreeListenObjs(d->socketCount, d->sockets);
}

QString LoginSession::address() const
{
    if (d->socketCount == 0)
        return {};
    char *list = IceComposeNetworkIdList(d->socketCount, d->sockets);
    QString text = QString::fromLocal8Bit(list);
    free(list);
    return text;
}

bool LoginSession::hasProgram() const
{
    return d->program && d->isSettled;
}

void LoginSession::logOut(Interaction interaction)
{
    d->isLoggingOut = true;
    d->hasAsked = d->isReady = d->isCancelled = false;
    SmsSaveYourself(d->program, SmSaveBoth, True,
                    interaction == MayAsk ? SmInteractStyleAny : SmInteractStyleNone, False);
}

bool LoginSession::isReadyToEnd() const
{
    return d->isReady;
}

bool LoginSession::hasAsked() const
{
    return d->hasAsked;
}

bool LoginSession::isCancelled() const
{
    return d->isCancelled;
}

void LoginSession::crash()
{
    if (d->connection)
        d->forget();
}

void LoginSession::end()
{
    if (d->program)
        SmsDie(d->program);
}
