#ifndef LABCOMMANDS_H
#define LABCOMMANDS_H

#include <QByteArray>
#include <QStringList>

/// Changes the lab that the test runs in, see tests/lab/labctl. The event loop of the test runs on
/// meanwhile. False when the change did not happen.
bool labctl(const QStringList &arguments);

/// Has the desktop want texts of so many pixels to the inch in programs that begin from then on.
/// Needs no application object.
bool wantTexts(int dpi);

/// The process of a server of this lab, "pipewire" or "pipewire-pulse"; 0 when it does not run.
qint64 labServer(const QByteArray &name);

/// A server of this lab stands still and answers nobody, for as long as the object lives.
class StoppedServer {
public:
    explicit StoppedServer(const QByteArray &name);
    ~StoppedServer();
    Q_DISABLE_COPY(StoppedServer)

    bool isStopped() const { return m_isStopped; }

private:
    qint64 m_process;
    bool m_isStopped;
};

#endif
