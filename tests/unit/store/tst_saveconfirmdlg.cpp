#include "ContextTranslator.h"
#include "Patience.h"
#include "SaveConfirmDlg.h"

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace {

QStringList captionsFromLeftToRight(const SaveConfirmDlg &dialog)
{
    QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    std::sort(
        buttons.begin(), buttons.end(),
        [](const QPushButton *left, const QPushButton *right) { return left->x() < right->x(); });
    QStringList captions;
    for (const QPushButton *button : qAsConst(buttons))
        captions.append(button->text());
    return captions;
}

void press(SaveConfirmDlg &dialog, const QString &caption)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        if (button->text() == caption)
            QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

using Answer = std::function<void(SaveConfirmDlg &)>;
Q_DECLARE_METATYPE(Answer)

class SaveConfirmDlgTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theAnswerIsTheResult_data();
    void theAnswerIsTheResult();
    void discardIsTheResultBeforeAnyAnswer();
    void asksAboveItsThreeAnswers();
    void textsBelongToTheDialog();
    void usesTheThinFontThroughout();
    void theWindowStaysOnTopWithoutACloseOrHelpButton();
    void theSizeIsFixedAndFitsTheQuestion();
    void isShownCentredOverItsParent();
};

void SaveConfirmDlgTest::theAnswerIsTheResult_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("result");
    QTest::newRow("Yes") << Answer([](auto &dialog) { press(dialog, "Yes"); }) << 1;
    QTest::newRow("No") << Answer([](auto &dialog) { press(dialog, "No"); }) << -1;
    QTest::newRow("Cancel") << Answer([](auto &dialog) { press(dialog, "Cancel"); }) << 0;
    QTest::newRow("Escape") << Answer([](auto &dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    }) << 0;
    QTest::newRow("the window closed") << Answer([](auto &dialog) { dialog.close(); }) << 0;
}

void SaveConfirmDlgTest::theAnswerIsTheResult()
{
    QFETCH(Answer, answer);
    QFETCH(int, result);
    QWidget parent;
    SaveConfirmDlg dialog(&parent);
    QTimer user;
    connect(&user, &QTimer::timeout, &dialog, [&] { answer(dialog); });
    user.start(20);
    // An answer that goes unheard must not hold up the tests.
    QTimer end;
    connect(&end, &QTimer::timeout, &dialog, [&] { dialog.done(99); });
    end.start(patience);
    QCOMPARE(dialog.exec(), result);
}

void SaveConfirmDlgTest::discardIsTheResultBeforeAnyAnswer()
{
    const SaveConfirmDlg dialog;
    QCOMPARE(dialog.result(), -1);
}

void SaveConfirmDlgTest::asksAboveItsThreeAnswers()
{
    SaveConfirmDlg dialog;
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QString("Orvanta"));
    const auto *label = dialog.findChild<QLabel *>();
    QVERIFY(label);
    QCOMPARE(label->text(), QString("Do you want to save the Photo / Movie data?"));
    QCOMPARE(captionsFromLeftToRight(dialog), QStringList({"Yes", "No", "Cancel"}));
    for (const QPushButton *button : dialog.findChildren<QPushButton *>())
        QVERIFY(button->y() > label->geometry().bottom());
}

void SaveConfirmDlgTest::textsBelongToTheDialog()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    SaveConfirmDlg dialog;
    dialog.show();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(dialog.windowTitle(), QString("SaveConfirmDlg: Orvanta"));
    QCOMPARE(dialog.findChild<QLabel *>()->text(),
             QString("SaveConfirmDlg: Do you want to save the Photo / Movie data?"));
    QCOMPARE(captionsFromLeftToRight(dialog),
             QStringList({"SaveConfirmDlg: Yes", "SaveConfirmDlg: No", "SaveConfirmDlg: Cancel"}));
}

void SaveConfirmDlgTest::usesTheThinFontThroughout()
{
    const SaveConfirmDlg dialog;
    QList<QWidget *> widgets = {dialog.findChild<QLabel *>()};
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        widgets.append(button);
    QCOMPARE(widgets.size(), 4);
    for (const QWidget *widget : qAsConst(widgets)) {
        QCOMPARE(widget->font().family(), QString("Arial"));
        QCOMPARE(widget->font().pointSize(), 11);
        QCOMPARE(widget->font().weight(), 5);
        QVERIFY(!widget->font().italic());
    }
}

void SaveConfirmDlgTest::theWindowStaysOnTopWithoutACloseOrHelpButton()
{
    const SaveConfirmDlg dialog;
    const Qt::WindowFlags flags = dialog.windowFlags();
    QVERIFY(flags & Qt::WindowStaysOnTopHint);
    QVERIFY(flags & Qt::CustomizeWindowHint);
    QVERIFY(!(flags & Qt::WindowCloseButtonHint));
    QVERIFY(!(flags & Qt::WindowContextHelpButtonHint));
    QVERIFY(flags & Qt::WindowTitleHint);
}

void SaveConfirmDlgTest::theSizeIsFixedAndFitsTheQuestion()
{
    SaveConfirmDlg dialog;
    dialog.show();
    QCOMPARE(dialog.minimumSize(), dialog.size());
    QCOMPARE(dialog.maximumSize(), dialog.size());
    const auto *label = dialog.findChild<QLabel *>();
    QVERIFY(label->width() >= label->sizeHint().width());
    const QSize before = dialog.size();
    dialog.resize(before * 2);
    QCOMPARE(dialog.size(), before);
}

void SaveConfirmDlgTest::isShownCentredOverItsParent()
{
    QWidget parent;
    parent.setGeometry(40, 30, 600, 400);
    parent.show();
    SaveConfirmDlg dialog(&parent);
    dialog.show();
    const QPoint distance = dialog.geometry().center() - parent.geometry().center();
    // A window manager's frame, guessed or real, may shift the contents by its own width.
    QVERIFY2(qAbs(distance.x()) <= 15 && qAbs(distance.y()) <= 35,
             qPrintable(QString("%1, %2 from the middle").arg(distance.x()).arg(distance.y())));
}

QTEST_MAIN(SaveConfirmDlgTest)
#include "tst_saveconfirmdlg.moc"
