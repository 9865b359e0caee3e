#include "BoxGlance.h"
#include "ContextTranslator.h"
#include "WebcamUtil.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QTest>

namespace {

/** What a user sees of a message box, noted before he presses its button. */
struct SeenBox {
    int count = 0;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QPoint corner; ///< with its frame
    QSize size;
    QWidget *parent = nullptr;
    bool modal = false;
    Qt::WindowFlags flags;
};

/** Runs what opens a box, reads the box as it stands on the screen and presses OK. */
template <typename Open> SeenBox see(Open open)
{
    SeenBox seen;
    const BoxGlance user([&seen](QWidget &widget) {
        const auto *box = qobject_cast<QMessageBox *>(&widget);
        if (!box || box->buttons().isEmpty())
            return;
        ++seen.count;
        seen.icon = box->icon();
        seen.title = box->windowTitle();
        seen.text = box->text();
        seen.buttons = box->standardButtons();
        seen.corner = box->pos();
        seen.size = box->size();
        seen.parent = box->parentWidget();
        seen.modal = box->isModal();
        seen.flags = box->windowFlags();
        box->buttons().constFirst()->click();
    });
    open();
    return seen;
}

QPoint cornerOfCentred(const QSize &size)
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    return {(desktop.width() - size.width()) / 2, (desktop.height() - size.height()) / 2};
}

const QString shortText = QStringLiteral("Save failed.");
const QString longText = QStringLiteral("A sentence that goes on. ").repeated(12);

} // namespace

using Show = void (*)(const QString &, QWidget *);
Q_DECLARE_METATYPE(Show)
Q_DECLARE_METATYPE(QMessageBox::Icon)

class WebcamUtilMessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBoxShowsItsTextWithOneButton_data();
    void aBoxShowsItsTextWithOneButton();
    void theLowDiskWarningIsJoinedFromTwoPieces();
    void boxesAreTranslatedInTheGeneralContext();
    void aBoxIsCentredOnTheDesktopWhereverItsParentIs_data();
    void aBoxIsCentredOnTheDesktopWhereverItsParentIs();
    void aWindowIsFixedAtItsPreferredSizeAndCentred();
    void noWindowIsLeftAlone();
};

void WebcamUtilMessagesTest::aBoxShowsItsTextWithOneButton_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("information") << Show(WebcamUtil::infoMessage) << QMessageBox::Information;
    QTest::newRow("warning") << Show(WebcamUtil::WarningMessage) << QMessageBox::Warning;
    QTest::newRow("critical") << Show(WebcamUtil::CriticalMessage) << QMessageBox::Critical;
}

void WebcamUtilMessagesTest::aBoxShowsItsTextWithOneButton()
{
    QFETCH(Show, show);
    QFETCH(QMessageBox::Icon, icon);
    QWidget parent;
    const SeenBox seen = see([&] { show(shortText, &parent); });
    QCOMPARE(seen.count, 1);
    QCOMPARE(seen.icon, icon);
    QCOMPARE(seen.title, QString("Orvanta"));
    QCOMPARE(seen.text, shortText);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(seen.parent, &parent);
    QVERIFY(seen.modal);
    QVERIFY(seen.flags & Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(parent.findChildren<QMessageBox *>().isEmpty());
}

void WebcamUtilMessagesTest::theLowDiskWarningIsJoinedFromTwoPieces()
{
    const SeenBox seen = see([] { WebcamUtil::ShowDiskWorningMessage(nullptr); });
    QCOMPARE(seen.count, 1);
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QCOMPARE(seen.title, QString("Orvanta"));
    QCOMPARE(seen.text,
             QString("The disk free space is insufficient.\n"
                     "Taking a picture is discontinued. Please secure the free space. "));
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void WebcamUtilMessagesTest::boxesAreTranslatedInTheGeneralContext()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const SeenBox lowDisk = see([] { WebcamUtil::ShowDiskWorningMessage(nullptr); });
    const SeenBox warning = see([] { WebcamUtil::WarningMessage(shortText, nullptr); });
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(lowDisk.title, QString("QObject: Orvanta"));
    QCOMPARE(lowDisk.text,
             QString("QObject: The disk free space is insufficient.\nQObject: Taking a picture is "
                     "discontinued. Please secure the free space. "));
    QCOMPARE(warning.title, QString("QObject: Orvanta"));
    QCOMPARE(warning.text, shortText);
}

void WebcamUtilMessagesTest::aBoxIsCentredOnTheDesktopWhereverItsParentIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("parent");
    QTest::newRow("top left") << shortText << QRect(0, 0, 200, 150);
    QTest::newRow("bottom right") << shortText << QRect(600, 450, 200, 150);
    QTest::newRow("a long text") << longText << QRect(0, 0, 200, 150);
}

void WebcamUtilMessagesTest::aBoxIsCentredOnTheDesktopWhereverItsParentIs()
{
    QFETCH(QString, text);
    QFETCH(QRect, parent);
    QWidget window;
    window.setGeometry(parent);
    window.show();
    const SeenBox seen = see([&] { WebcamUtil::WarningMessage(text, &window); });
    QCOMPARE(seen.count, 1);
    QCOMPARE(seen.corner, cornerOfCentred(seen.size));
}

void WebcamUtilMessagesTest::aWindowIsFixedAtItsPreferredSizeAndCentred()
{
    class Window : public QWidget {
    public:
        QSize sizeHint() const override { return {301, 151}; }
    };
    Window window;
    QWidget parent;
    WebcamUtil::moveToCenter(&window, &parent);
    QCOMPARE(window.minimumSize(), QSize(301, 151));
    QCOMPARE(window.maximumSize(), QSize(301, 151));
    QCOMPARE(window.pos(), cornerOfCentred({301, 151}));
}

void WebcamUtilMessagesTest::noWindowIsLeftAlone()
{
    QWidget parent;
    const QRect before = parent.geometry();
    WebcamUtil::moveToCenter(nullptr, &parent);
    QCOMPARE(parent.geometry(), before);
}

QTEST_MAIN(WebcamUtilMessagesTest)
#include "tst_webcamutilmessages.moc"
