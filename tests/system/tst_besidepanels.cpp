#include "Patience.h"
#include "Session.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QWidget>

#include <memory>

// A desktop with a panel along its top and a dock at its left: the window fills what they leave.
class TestBesidePanels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theWindowFillsTheFreeAreaAndCoversNoPanel();
    void theOtherTwoSidesAreLeftFreeToo();
    void theWindowTakesThePlaceOfAPanelThatGoes();
    void theWindowGoesThereByItself();

private:
    static std::unique_ptr<QWidget> panel(QRect place, const QString &strut);
    static QString rootProperty(const QString &name);

    void putPanels(bool areTopAndLeft);

    const QRect m_free{90, 40, 1190, 760};
    const QRect m_otherFree{0, 0, 1200, 740};
    std::unique_ptr<QWidget> m_top;
    std::unique_ptr<QWidget> m_left;
    std::unique_ptr<QWidget> m_right;
    std::unique_ptr<QWidget> m_bottom;
};

// A panel of the desktop keeps its edge of the screen free by telling the window manager.
std::unique_ptr<QWidget> TestBesidePanels::panel(QRect place, const QString &strut)
{
    auto panel = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    panel->setAttribute(Qt::WA_X11NetWmWindowTypeDock);
    panel->setStyleSheet("background: #308040");
    panel->setGeometry(place);
    const bool told =
        QProcess::execute("xprop",
                          {"-id", QString::number(panel->winId()), "-f", "_NET_WM_STRUT_PARTIAL",
                           "32c", "-set", "_NET_WM_STRUT_PARTIAL", strut})
        == 0;
    panel->show();
    return told ? std::move(panel) : nullptr;
}

QString TestBesidePanels::rootProperty(const QString &name)
{
    QProcess xprop;
    xprop.start("xprop", {"-root", name});
    xprop.waitForFinished(5000);
    return QString::fromUtf8(xprop.readAll());
}

void TestBesidePanels::putPanels(bool areTopAndLeft)
{
    for (std::unique_ptr<QWidget> *each : {&m_top, &m_left, &m_right, &m_bottom})
        each->reset();
    if (areTopAndLeft) {
        m_top = panel({0, 0, 1280, 40}, "0, 0, 40, 0, 0, 0, 0, 0, 0, 1279, 0, 0");
        m_left = panel({0, 40, 90, 760}, "90, 0, 0, 0, 40, 799, 0, 0, 0, 0, 0, 0");
        QVERIFY(m_top && m_left);
    } else {
        m_right = panel({1200, 0, 80, 800}, "0, 80, 0, 0, 0, 0, 0, 799, 0, 0, 0, 0");
        m_bottom = panel({0, 740, 1200, 60}, "0, 0, 0, 60, 0, 0, 0, 0, 0, 0, 0, 1199");
        QVERIFY(m_right && m_bottom);
    }
    QTRY_COMPARE(QGuiApplication::primaryScreen()->availableGeometry(),
                 areTopAndLeft ? m_free : m_otherFree);
}

void TestBesidePanels::initTestCase()
{
    putPanels(true);
}

void TestBesidePanels::theWindowFillsTheFreeAreaAndCoversNoPanel()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_free);
    QVERIFY(user.startLive());
    QCOMPARE(user.mainWindow().geometry, m_free);
    QVERIFY(user.waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    const QColor green("#308040");
    for (const QPoint onPanel :
         {QPoint(640, 20), QPoint(45, 400), QPoint(89, 799), QPoint(1279, 39)})
        QCOMPARE(user.desktop().pixel(onPanel), green);
    QVERIFY(user.takePhotoForPreview());
    QTRY_VERIFY(user.isStillAt(user.map().previewPhotoRect()));
}

void TestBesidePanels::theOtherTwoSidesAreLeftFreeToo()
{
    putPanels(false);
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_otherFree);
    QVERIFY(user.startLive());
    const QColor green("#308040");
    for (const QPoint onPanel : {QPoint(1201, 400), QPoint(600, 741), QPoint(1279, 799)})
        QCOMPARE(user.desktop().pixel(onPanel), green);
}

void TestBesidePanels::theWindowTakesThePlaceOfAPanelThatGoes()
{
    putPanels(false);
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_otherFree);
    QVERIFY(user.startLive());
    m_bottom.reset();
    QVERIFY(user.waitForMainWindowAt({0, 0, 1200, 800}));
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
    putPanels(true);
}

// A window manager would put a window of that size there in any case, so this one ends and leaves
// only the word of where the free area is.
void TestBesidePanels::theWindowGoesThereByItself()
{
    const QString itsWindow = rootProperty("_NET_SUPPORTING_WM_CHECK").section('#', 1).trimmed();
    QCOMPARE(QProcess::execute("openbox", {"--exit"}), 0);
    QTRY_VERIFY(QProcess::execute("xprop", {"-id", itsWindow}) != 0);
    QCOMPARE(QProcess::execute("xprop",
                               {"-root", "-f", "_NET_WORKAREA", "32c", "-set", "_NET_WORKAREA",
                                "90, 40, 1190, 760"}),
             0);
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_free);
    user.program().start();
    QTRY_VERIFY_WITH_TIMEOUT(user.isLiveAt(user.map().videoRect()), 60000);
}

QTEST_MAIN(TestBesidePanels)
#include "tst_besidepanels.moc"
