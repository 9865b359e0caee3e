#include "Patience.h"
#include "SelectDeviceDlg.h"
#include "WebcamUtil.h"

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace {

QComboBox *boxOf(const SelectDeviceDlg &dialog)
{
    return dialog.findChild<QComboBox *>();
}

QStringList shownNames(const SelectDeviceDlg &dialog)
{
    QStringList names;
    for (int i = 0; i < boxOf(dialog)->count(); ++i)
        names.append(boxOf(dialog)->itemText(i));
    return names;
}

} // namespace

Q_DECLARE_METATYPE(QVector<int>)

class SelectDeviceDlgTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void putsTheOwnCameraFirstAndRemembersPositions_data();
    void putsTheOwnCameraFirstAndRemembersPositions();
    void anEmptyListLeavesTheBoxEmpty();
    void okAccepts();
    void closingRejects();
    void staysOnTopWithoutAHelpButton();
    void asksInAThinFontFromTopToBottom();
    void aLongNameDoesNotWidenTheDialog();
    void keepsItsWidthInTheMiddleOfTheDesktop();
    void aLongPromptTakesTwoLines();
    void tellsAScreenReaderWhatTheBoxIsFor();
};

void SelectDeviceDlgTest::putsTheOwnCameraFirstAndRemembersPositions_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QVector<int>>("positions");
    QTest::newRow("one camera") << QStringList{"A"} << QStringList{"A"} << QVector<int>{0};
    QTest::newRow("the second is the own model")
        << QStringList{"A", "Tavelin VX-2K", "C"} << QStringList{"Tavelin VX-2K", "A", "C"}
        << QVector<int>{1, 0, 2};
    QTest::newRow("the model within a longer name")
        << QStringList{"A", "USB Tavelin VX-2K (rev 2)"}
        << QStringList{"USB Tavelin VX-2K (rev 2)", "A"} << QVector<int>{1, 0};
    QTest::newRow("two of the own model keep their order")
        << QStringList{"A", "Tavelin VX-2K #1", "C", "Tavelin VX-2K #2"}
        << QStringList{"Tavelin VX-2K #1", "Tavelin VX-2K #2", "A", "C"}
        << QVector<int>{1, 3, 0, 2};
    QTest::newRow("another letter case is another model")
        << QStringList{"A", "TAVELIN VX-2K", "tavelin vx-2k"}
        << QStringList{"A", "TAVELIN VX-2K", "tavelin vx-2k"} << QVector<int>{0, 1, 2};
    QTest::newRow("equal names stay apart")
        << QStringList{"A", "A", "Tavelin VX-2K"} << QStringList{"Tavelin VX-2K", "A", "A"}
        << QVector<int>{2, 0, 1};
}

void SelectDeviceDlgTest::putsTheOwnCameraFirstAndRemembersPositions()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, shown);
    QFETCH(QVector<int>, positions);
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList(given);
    QCOMPARE(shownNames(dialog), shown);
    QCOMPARE(boxOf(dialog)->currentIndex(), 0);
    for (int i = 0; i < positions.size(); ++i) {
        boxOf(dialog)->setCurrentIndex(i);
        QCOMPARE(dialog.getVideoDevice(), positions.at(i));
        QCOMPARE(dialog.getVideoDeviceName(), given.at(positions.at(i)));
    }
}

void SelectDeviceDlgTest::anEmptyListLeavesTheBoxEmpty()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({});
    QCOMPARE(boxOf(dialog)->count(), 0);
    QCOMPARE(dialog.getVideoDeviceName(), QString());
}

void SelectDeviceDlgTest::okAccepts()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({"A", "B"});
    auto *ok = dialog.findChild<QPushButton *>();
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QTimer hand;
    connect(&hand, &QTimer::timeout, &dialog, [ok] { QTest::mouseClick(ok, Qt::LeftButton); });
    hand.start(0);
    QTimer end;
    connect(&end, &QTimer::timeout, &dialog, &QDialog::reject);
    end.start(patience);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void SelectDeviceDlgTest::closingRejects()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({"A", "B"});
    bool closed = false;
    QTimer hand;
    connect(&hand, &QTimer::timeout, &dialog, [&] { closed = dialog.close(); });
    hand.start(0);
    QTimer end;
    connect(&end, &QTimer::timeout, &dialog, &QDialog::accept);
    end.start(patience);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(closed);
}

void SelectDeviceDlgTest::staysOnTopWithoutAHelpButton()
{
    const SelectDeviceDlg dialog;
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Orvanta"));
    QVERIFY(dialog.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(dialog.windowFlags() & Qt::CustomizeWindowHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
}

void SelectDeviceDlgTest::asksInAThinFontFromTopToBottom()
{
    SelectDeviceDlg dialog;
    auto *prompt = dialog.findChild<QLabel *>();
    auto *ok = dialog.findChild<QPushButton *>();
    QCOMPARE(prompt->text(), QStringLiteral("Please select a device:"));
    for (const QWidget *widget : {static_cast<QWidget *>(prompt), static_cast<QWidget *>(ok)}) {
        QCOMPARE(widget->font().family(), QStringLiteral("Arial"));
        QCOMPARE(widget->font().pointSize(), 11);
        QCOMPARE(widget->font().weight(), 5);
        QVERIFY(!widget->font().italic());
    }
    dialog.show();
    QVERIFY(prompt->geometry().bottom() < boxOf(dialog)->y());
    QVERIFY(boxOf(dialog)->geometry().bottom() < ok->y());
}

void SelectDeviceDlgTest::aLongNameDoesNotWidenTheDialog()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({QString(120, 'W'), "B"});
    dialog.show();
    QCOMPARE(dialog.width(), 200);
    QVERIFY(dialog.layout()->minimumSize().width() <= 200);
    QVERIFY(boxOf(dialog)->geometry().right() < 200);
}

void SelectDeviceDlgTest::keepsItsWidthInTheMiddleOfTheDesktop()
{
    SelectDeviceDlg dialog;
    dialog.setVideoDeviceList({"A", "B"});
    WebcamUtil::moveToCenter(&dialog, nullptr); // makes it as large as it asks to be
    dialog.show();
    QCOMPARE(dialog.width(), 200);
    const QSize desktop = dialog.screen()->virtualSize();
    QCOMPARE(dialog.pos(),
             QPoint((desktop.width() - 200) / 2, (desktop.height() - dialog.height()) / 2));
}

void SelectDeviceDlgTest::aLongPromptTakesTwoLines()
{
    SelectDeviceDlg dialog;
    auto *prompt = dialog.findChild<QLabel *>();
    const int oneLine = dialog.sizeHint().height();
    prompt->setText(QStringLiteral("Bitte wählen Sie ein Gerät aus der Liste:"));
    WebcamUtil::moveToCenter(&dialog, nullptr);
    dialog.show();
    QCOMPARE(dialog.height(), oneLine + prompt->fontMetrics().lineSpacing());
    QVERIFY(prompt->height() >= prompt->heightForWidth(prompt->width()));
}

void SelectDeviceDlgTest::tellsAScreenReaderWhatTheBoxIsFor()
{
    const SelectDeviceDlg dialog;
    QVERIFY(!boxOf(dialog)->accessibleName().isEmpty());
    QCOMPARE(boxOf(dialog)->accessibleDescription(), QStringLiteral("Please select a device:"));
}

QTEST_MAIN(SelectDeviceDlgTest)
#include "tst_selectdevicedlg.moc"
