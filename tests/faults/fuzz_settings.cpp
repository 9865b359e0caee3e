#include "Fuzzed.h"
#include "IniText.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

// Of what IniText lets pass, the toolkit makes no objects.
void Fuzzed::settings(const QByteArray &bytes)
{
    static const QVector<QVariant::Type> harmless = {
        QVariant::Invalid, QVariant::String, QVariant::StringList, QVariant::ByteArray,
        QVariant::Rect,    QVariant::Size,   QVariant::Point,      QVariant::List};
    static const QTemporaryDir folder;
    static int number = 0; // the toolkit remembers files by their names
    QFile file(folder.filePath(QString::number(++number)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("nowhere to write to");
    file.close();
    const QByteArray contents = IniText::contents(file.fileName());
    if (contents != bytes)
        qFatal("a settings file is not read as it stands");
    for (const char *key : {"locale", "SaveDirectory", "x", ""})
        (void)IniText::written(contents, key);
    if (IniText::isPlain(contents)) {
        const QSettings settings(file.fileName(), QSettings::IniFormat);
        for (const QString &key : settings.allKeys())
            if (!key.isEmpty() && !harmless.contains(settings.value(key).type()))
                qFatal("an object was restored");
    }
    file.remove();
}
