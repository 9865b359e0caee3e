#ifndef CONTEXTTRANSLATOR_H
#define CONTEXTTRANSLATOR_H

#include <QTranslator>

/**
 * Translates a text to the name of its context and itself, "PictureWidget: Photo", so that the
 * context shows.
 */
class ContextTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QStringLiteral("%1: %2").arg(QLatin1String(context), QLatin1String(text));
    }
    bool isEmpty() const override { return false; }
};

#endif
