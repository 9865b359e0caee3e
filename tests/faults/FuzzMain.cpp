#include "Fuzzed.h"

#include <QGuiApplication>

// The two functions that a fuzzer calls. FUZZ_TARGET is the one of Fuzzed.h that it is to try.

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uchar *data, size_t size);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uchar *data, size_t size)
{
    Fuzzed::FUZZ_TARGET(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
