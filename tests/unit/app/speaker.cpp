// Installs the translation that lies beside it and prints one text of the main window, one of the
// toolkit's box that chooses a folder, and the direction of the layout.

#include "CTranslator.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    translate();
    puts(qPrintable(QCoreApplication::translate("CVistrelDlg", "Photo")));
    puts(qPrintable(QCoreApplication::translate("QFileDialog", "New Folder")));
    puts(QApplication::layoutDirection() == Qt::RightToLeft ? "from the right" : "from the left");
    return 0;
}
