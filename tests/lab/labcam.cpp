// A camera that is a program. See LabCamera for what it sends, and the script labctl, which plugs
// it in and out.
//
//   labcam --name NAME --size WIDTHxHEIGHT [--size ...] [--rate 30] [--format UYVY] [--serial S]
//          [--description TEXT] [--beep SINK] [--dims-to RATE] [--scene PICTURE] [--times FILE]

#include "LabCamera.h"

#include <QCoreApplication>

#include <pipewire/pipewire.h>

#include <cstdio>
#include <string>

namespace {

bool addSize(const std::string &text, LabCamera::Options *options)
{
    const QStringList parts = QString::fromStdString(text).split('x');
    if (parts.size() != 2)
        return false;
    const QSize size(parts[0].toInt(), parts[1].toInt());
    options->sizes.push_back(size);
    return size.width() > 0 && size.height() > 0 && size.width() % 2 == 0 && size.height() % 2 == 0;
}

bool setRate(const std::string &text, int *rate)
{
    *rate = QString::fromStdString(text).toInt();
    return *rate >= 1 && *rate <= 120;
}

bool setOption(const std::string &option, const std::string &value, LabCamera::Options *options)
{
    if (option == "--name")
        options->name = value;
    else if (option == "--description")
        options->description = value;
    else if (option == "--serial")
        options->serial = value;
    else if (option == "--beep")
        options->beepSink = value;
    else if (option == "--scene")
        options->scene = value;
    else if (option == "--times")
        options->times = value;
    else if (option == "--size")
        return addSize(value, options);
    else if (option == "--rate")
        return setRate(value, &options->rate);
    else if (option == "--dims-to")
        return setRate(value, &options->dimRate);
    else if (option == "--format")
        return FramePainter::formatFromName(value, &options->format);
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv); // finds the picture plug-ins
    LabCamera::Options options;
    for (int i = 1; i < argc; i += 2) {
        if (i + 1 == argc || !setOption(argv[i], argv[i + 1], &options)) {
            std::fprintf(stderr, "labcam: cannot use %s\n", argv[i]);
            return 2;
        }
    }
    if (options.name.empty() || options.sizes.empty()) {
        std::fprintf(stderr, "labcam: a camera needs a name and a size\n");
        return 2;
    }
    if (options.description.empty())
        options.description = options.name;
    pw_init(&argc, &argv);
    int status = 0;
    {
        LabCamera camera(options);
        status = camera.run();
    }
    pw_deinit();
    return status;
}
