// Plays the events of a file on the program's window. One process a sequence, so that a crash or a
// standstill is a sequence's own and can be tried again.

#include "Monkey.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    Monkey monkey(fromText(file.readAll()));
    monkey.progress = [&](const QString &front) {
        std::printf("%d %s\n", monkey.played(), qPrintable(front));
        std::fflush(stdout);
    };
    const QString complaint = monkey.run();
    std::printf("longest %lld, after event %d\nlost %d\n%s%s\n",
                static_cast<long long>(monkey.longest()), monkey.afterWhich(), monkey.lost(),
                complaint.isEmpty() ? "held" : "complaint ", qPrintable(complaint));
    return complaint.isEmpty() ? 0 : 1;
}
