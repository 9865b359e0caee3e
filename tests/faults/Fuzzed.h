#ifndef FUZZED_H
#define FUZZED_H

#include <QByteArray>

/**
 * What reads foreign bytes in this program, each as a function of the bytes alone, for a fuzzer and
 * for the test that does without one. They end the process when something is wrong with the
 * outcome. Files are made in the temporary folder; a QGuiApplication is needed.
 */
namespace Fuzzed {

void settings(const QByteArray &bytes); ///< a settings file
void names(const QByteArray &bytes); ///< names of files in the temporary area, one a line
void pictures(const QByteArray &bytes); ///< a picture's file
void caps(const QByteArray &bytes); ///< what a camera says it can deliver, as text

} // namespace Fuzzed

#endif
