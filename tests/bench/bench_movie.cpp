// What became of a lab camera's frames in a movie.
//
//   bench_movie FILE     prints "frames<TAB>COUNT<TAB>MISSING": different frames of the camera, and
//                        those between the first and the last that are not in it. Fails when the
//                        movie cannot be played.

#include "MovieFile.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const MovieFile movie(QCoreApplication::arguments().value(1));
    if (movie.frames().isEmpty() || !movie.complaints().isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(movie.complaints().join(' ')));
        return 1;
    }
    QVector<int> counters = movie.counters();
    std::sort(counters.begin(), counters.end());
    const auto different = std::unique(counters.begin(), counters.end()) - counters.begin();
    std::printf("frames\t%d\t%d\n", int(different), movie.missingFrames());
    return 0;
}
