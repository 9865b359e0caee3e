#ifndef DIALOGFIXTURE_H
#define DIALOGFIXTURE_H

#include "CVistrelDlg.h"

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

/**
 * The real main window over the scripted engine, in folders of its own: an empty home and an empty
 * temporary area for each fixture. Script the engine before build().
 *
 * The offscreen screen is 800x600 px, so a main button is 133x68 px and a small one 133x34.
 */
class DialogFixture {
public:
    DialogFixture();
    ~DialogFixture();

    /// Builds the window as the program does, and shows it.
    CVistrelDlg &build();
    CVistrelDlg &dialog() const { return *m_dialog; }
    bool isBuilt() const { return m_dialog != nullptr; }

    /// The child of class @p Child; fails the test when there is none.
    template <typename Child> Child &child() const
    {
        auto *found = m_dialog->findChild<Child *>(QString(), Qt::FindDirectChildrenOnly);
        Q_ASSERT(found);
        return *found;
    }
    QWidget &button(const char *baseName) const;
    /// Clicks the button, and waits for a photo that it takes unless the script writes slowly.
    void click(const char *baseName) const;

    /// "Live 1,532 133x68" for each button shown, sorted as the buttons were made.
    QStringList shownButtons() const;
    /// Base names of the buttons shown that can be pressed.
    QStringList usableButtons() const;

    /// Writes the settings file, lines such as "AutoShoot=0". To be called before build().
    void setSettings(const QByteArray &lines) const;

    /// A movie of @p frames frames at 10 a second, without sound; empty when it cannot be made.
    static QByteArray movieOf(int frames);

    QString temporaryArea() const;
    QString home() const;
    /// Bare names in the temporary area, hidden ones included.
    QStringList captures() const;
    /// Makes the temporary area unusable, which counts as too little space.
    static void fillTheDisk();

    /// Runs @p action, answers the modal box it opens by pressing its button named @p answer, and
    /// returns the box's text; a null string when no box came. A box that stays open fails.
    static QString boxDuring(const std::function<void()> &action,
                             const QString &answer = QStringLiteral("OK"));

private:
    // Destroyed last: later fixtures make their folders where the test was told to.
    struct RestoredVariable {
        explicit RestoredVariable(const char *variable);
        ~RestoredVariable();
        const char *name;
        QByteArray value;
    };
    RestoredVariable m_oldHome{"HOME"};
    RestoredVariable m_oldTemporary{"TMPDIR"};
    QTemporaryDir m_home;
    QTemporaryDir m_temporary;
    std::unique_ptr<CVistrelDlg> m_dialog;
};

#endif
