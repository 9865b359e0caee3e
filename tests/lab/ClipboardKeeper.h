#ifndef CLIPBOARDKEEPER_H
#define CLIPBOARDKEEPER_H

#include <QByteArray>
#include <QMap>

#include <memory>

class QSocketNotifier;

// The program of a desktop that keeps the clipboard when its owner ends: fetches all of it when it
// is told to. Works while the event loop runs, over a connection of its own to the X server.
class ClipboardKeeper {
public:
    ClipboardKeeper();
    ~ClipboardKeeper();
    ClipboardKeeper(const ClipboardKeeper &) = delete;
    ClipboardKeeper &operator=(const ClipboardKeeper &) = delete;

    bool isInCharge() const;
    // What was left with it, by the names of the formats; empty before.
    QMap<QByteArray, QByteArray> kept() const { return m_kept; }

private:
    void handleEvents();
    void fetchNext();
    void takeFetched(unsigned long property);
    void answer(bool isDone);

    struct _XDisplay *m_display;
    unsigned long m_window = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
    unsigned long m_asker = 0; // who wants to end, and where and how it hears that it can
    unsigned long m_askersTarget = 0;
    unsigned long m_askersProperty = 0;
    QList<unsigned long> m_formats; // that are still to be fetched; the first is being fetched
    QMap<QByteArray, QByteArray> m_kept;
};

#endif // CLIPBOARDKEEPER_H
