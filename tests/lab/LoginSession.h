#ifndef LOGINSESSION_H
#define LOGINSESSION_H

#include <QByteArray>
#include <QString>

#include <memory>

// The session manager of a desktop, for one program: tells it that the user logs out and hears
// whether he stays. Works while the event loop runs. One object in a process's life; programs may
// come to it one after the other.
class LoginSession {
public:
    LoginSession();
    ~LoginSession();
    LoginSession(const LoginSession &) = delete;
    LoginSession &operator=(const LoginSession &) = delete;

    // What $SESSION_MANAGER is for the program; empty when nobody can be heard.
    QString address() const;
    // A program is there and has settled in.
    bool hasProgram() const;

    enum Interaction { MayAsk, MayNotAsk };
    // Begins to log out.
    void logOut(Interaction interaction);
    // The program is done with it: the session could end now.
    bool isReadyToEnd() const;
    // The program wanted to ask the user.
    bool hasAsked() const;
    // The user would rather stay: the logging out is over.
    bool isCancelled() const;
    // The session ends for the program.
    void end();
    // The program's connection is cut without a word, as when a session manager crashes. Another
    // program may come.
    void crash();

    struct Private;

private:
    std::unique_ptr<Private> d;
};

#endif // LOGINSESSION_H
