// A USB camera that is a program. A kernel on the same machine takes it by USB/IP and sees a
// document camera, which its own driver for such cameras serves.
//
//   uvccam [--port 3240] [--name TEXT] [--serial TEXT] [--id 1209:0001] [--mode MJPG:640x480:30]...
//
// Commands are read from the standard input, a line each: see UvcCamera. What happens is told on
// the standard output, a line each: "listens PORT", "taken", "plugged", "streams MJPG 640x480 30",
// "rests", "free", and "does ..." for each command. It ends with its input.

#include "UvcCamera.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstdio>

#include <unistd.h>

namespace {

struct Options {
    UvcIdentity identity;
    quint16 port = 3240; // of the protocol
};

bool setId(const QString &text, UvcIdentity *identity)
{
    const QStringList parts = text.split(':');
    bool isVendor = false;
    bool isProduct = false;
    identity->vendor = parts.value(0).toUShort(&isVendor, 16);
    identity->product = parts.value(1).toUShort(&isProduct, 16);
    return isVendor && isProduct;
}

bool setOption(const QString &option, const QString &value, Options *options)
{
    if (option == "--port")
        options->port = value.toUShort();
    else if (option == "--name")
        options->identity.name = value;
    else if (option == "--serial")
        options->identity.serial = value;
    else if (option == "--id")
        return setId(value, &options->identity);
    else if (option == "--mode")
        options->identity.modes.append(uvcModeFromText(value));
    else
        return false;
    return options->identity.modes.isEmpty() || !options->identity.modes.last().size.isEmpty();
}

// Of a camera that shows documents: large pictures are quick as JPEG only.
QVector<UvcMode> usualModes()
{
    QVector<UvcMode> modes;
    for (const char *text :
         {"MJPG:1920x1080:30", "MJPG:640x480:30", "YUYV:1280x720:10", "YUYV:640x480:30"})
        modes.append(uvcModeFromText(text));
    return modes;
}

void report(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

// Whole lines; false at the end of the input.
bool readCommands(UvcCamera &camera, QByteArray *text)
{
    char bytes[1000];
    const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0)
        return false;
    text->append(bytes, int(count));
    for (int end = 0; (end = text->indexOf('\n')) >= 0; text->remove(0, end + 1))
        if (!camera.command(QString::fromUtf8(text->left(end))))
            std::fprintf(stderr, "uvccam: no command: %s\n", text->left(end).constData());
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv); // finds the picture plug-ins
    Options options;
    for (int i = 1; i < argc; i += 2) {
        if (i + 1 == argc || !setOption(argv[i], argv[i + 1], &options)) {
            std::fprintf(stderr, "uvccam: cannot use %s\n", argv[i]);
            return 2;
        }
    }
    if (options.identity.modes.isEmpty())
        options.identity.modes = usualModes();
    UvcCamera camera(options.identity);
    camera.setReport(report);
    if (!camera.listen(options.port)) {
        std::fprintf(stderr, "uvccam: port %d is taken\n", options.port);
        return 1;
    }
    QByteArray text;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&] {
        if (!readCommands(camera, &text)) {
            input.setEnabled(false);
            QCoreApplication::quit();
        }
    });
    return QCoreApplication::exec();
}
