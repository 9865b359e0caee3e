#ifndef CTRANSLATOR_H
#define CTRANSLATOR_H

#include <QString>

/**
 * Which language the program speaks. Not the one of the desktop: a teacher who has set the
 * whiteboard application to one language gets the camera in the same one.
 */
class CTranslator {
public:
    CTranslator() = delete;

    /// The code of the language that the whiteboard application is set to, as far as dir holds a
    /// translation, a file named prefix + code + ".qm". "en", the language of the source, when
    /// nothing better is found.
    static QString getLocale(const QString &dir, const QString &prefix);
};

/**
 * Installs the translation that lies beside the program, and with it the toolkit's own one where
 * the system has it, and turns the layout round for languages that are read from the right. Called
 * once, with the application object there and no widget yet.
 */
void translate();

#endif
