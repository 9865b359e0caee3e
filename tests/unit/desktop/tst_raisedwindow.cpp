#include "CWindowManagement.h"
#include "Desktop.h"
#include "Patience.h"

#include <QWidget>
#include <QX11Info>

#include <X11/Xlib.h>

namespace {

const QRect place(200, 150, 300, 200);

// A window of one colour without a frame, so that the screen tells which one is in front.
class Coloured final : public QWidget {
public:
    explicit Coloured(const QColor &colour)
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setPalette(colour);
        setGeometry(place);
        show();
    }
};

} // namespace

// The raising as it is on a desktop: with an X server, and a window manager that has its own
// ideas.
class tst_RaisedWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_desktop.isOpen()); }

    void aWindowComesBackInFrontOfTheOneThatCoversIt();
    void aStoppedWindowStaysBehind();
    void aWindowThatIsGoneDoesNotEndTheProgram();

private:
    Desktop m_desktop;
};

void tst_RaisedWindow::aWindowComesBackInFrontOfTheOneThatCoversIt()
{
    Coloured camera(Qt::green);
    QVERIFY(QTest::qWaitForWindowActive(&camera));
    CWindowManagement management(&camera, 500, true, QString());
    Coloured other(Qt::red);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTRY_COMPARE_WITH_TIMEOUT(m_desktop.pixel(place.center()), QColor(Qt::green), 2000);
    QVERIFY(camera.isVisible());
}

void tst_RaisedWindow::aStoppedWindowStaysBehind()
{
    Coloured camera(Qt::green);
    QVERIFY(QTest::qWaitForWindowActive(&camera));
    CWindowManagement management(&camera, 100, true, QString());
    management.stop_window();
    Coloured other(Qt::red);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTRY_COMPARE(m_desktop.pixel(place.center()), QColor(Qt::red));
    QTest::qWait(500); // nothing to wait for: a raise that must not come
    QCOMPARE(m_desktop.pixel(place.center()), QColor(Qt::red));
}

void tst_RaisedWindow::aWindowThatIsGoneDoesNotEndTheProgram()
{
    Display *display = QX11Info::display();
    const Window gone =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 10, 10, 0, 0, 0);
    XDestroyWindow(display, gone);

    Coloured camera(Qt::green);
    Coloured other(Qt::red);
    QVERIFY(QTest::qWaitForWindowActive(&other));
    CWindowManagement management(&camera, 60000, true, QString());
    management.raiseQtWindowTop(gone);
    management.raiseWindowTop(gone);
    XSync(display, False); // by now the server has refused everything that was asked of the window
    QTest::qWait(50); // nothing to wait for: a raise that must not come
    QCOMPARE(m_desktop.pixel(place.center()), QColor(Qt::red));

    management.update_window();
    QTRY_COMPARE(m_desktop.pixel(place.center()), QColor(Qt::green));
}

QTEST_MAIN(tst_RaisedWindow)
#include "tst_raisedwindow.moc"
