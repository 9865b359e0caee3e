#include "Desktop.h"
#include "Patience.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

QPoint centreOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

// The eyes and hands of the system tests, tried on windows whose behaviour is known.
class TestDesktop : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theScreenHasTheSizeTheLabWasAskedFor();
    void aScreenshotShowsWhatAWindowPaints();
    void aWindowIsListedWithTitleOwnerAndPlace();
    void theLastRaisedWindowIsTheHighest();
    void aClickPressesTheButtonUnderTheMouse();
    void aWindowThatIsNotOnTheScreenIsNotListed();
    void aHeldMouseButtonKeepsTheButtonDown();
    void keysReachTheActiveWindow();
    void anOpenComboBoxIsAPopup();
    void aClosedWindowIsAskedAndGone();

private:
    Desktop m_desktop;
    QWidget *m_window = nullptr;
};

void TestDesktop::init()
{
    QVERIFY(m_desktop.isOpen());
    m_window = new QWidget;
    m_window->setWindowTitle("Blackboard");
    m_window->setGeometry(200, 150, 300, 200);
    m_window->setStyleSheet("background: #123456");
    m_window->setLayout(new QVBoxLayout);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void TestDesktop::cleanup()
{
    delete m_window;
    QTRY_VERIFY(m_desktop.windowsOf(QCoreApplication::applicationPid()).isEmpty());
}

void TestDesktop::theScreenHasTheSizeTheLabWasAskedFor()
{
    QCOMPARE(m_desktop.screen(), QRect(0, 0, 1280, 800));
    QCOMPARE(m_desktop.screenshot().size(), QSize(1280, 800));
}

void TestDesktop::aScreenshotShowsWhatAWindowPaints()
{
    QTRY_COMPARE(m_desktop.pixel(centreOf(m_window)), QColor("#123456"));
}

void TestDesktop::aWindowIsListedWithTitleOwnerAndPlace()
{
    const auto own = [this] { return m_desktop.topWindowOf(QCoreApplication::applicationPid()); };
    QTRY_COMPARE(own().title, QString("Blackboard"));
    QTRY_COMPARE(own().geometry, m_window->geometry());
    QTRY_VERIFY(own().isActive);
    QCOMPARE(own().id, quint32(m_window->winId()));
}

void TestDesktop::theLastRaisedWindowIsTheHighest()
{
    QWidget other;
    other.setWindowTitle("Chalk");
    other.resize(100, 100);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    other.raise();
    QTRY_COMPARE(m_desktop.windows().last().title, QString("Chalk"));
    m_window->raise();
    QTRY_COMPARE(m_desktop.windows().last().title, QString("Blackboard"));
}

void TestDesktop::aClickPressesTheButtonUnderTheMouse()
{
    QPushButton button("Press", m_window);
    button.setGeometry(20, 20, 80, 30);
    button.show();
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    m_desktop.click(centreOf(&button));
    QTRY_COMPARE(clicked.count(), 1);
    m_desktop.click(centreOf(&button) + QPoint(100, 0));
    m_desktop.click(centreOf(&button));
    QTRY_COMPARE(clicked.count(), 2);
}

// The window manager knows of more: of those put away, and of a new one before it puts it on the
// screen. A press on such a window goes to whatever is below.
void TestDesktop::aWindowThatIsNotOnTheScreenIsNotListed()
{
    const auto listed = [this] { return m_desktop.windowsOf(QCoreApplication::applicationPid()); };
    QTRY_COMPARE(listed().size(), 1);
    m_window->showMinimized();
    QTRY_COMPARE(listed().size(), 0);
    m_window->showNormal();
    QTRY_COMPARE(listed().size(), 1);
}

void TestDesktop::aHeldMouseButtonKeepsTheButtonDown()
{
    QPushButton button("Press", m_window);
    button.setGeometry(20, 20, 80, 30);
    button.show();
    m_desktop.pressMouse(centreOf(&button));
    QTRY_VERIFY(button.isDown());
    m_desktop.releaseMouse();
    QTRY_VERIFY(!button.isDown());
}

void TestDesktop::keysReachTheActiveWindow()
{
    QLineEdit edit(m_window);
    edit.show();
    edit.setFocus();
    m_desktop.type("/tmp/Tst_a-1.b");
    QTRY_COMPARE(edit.text(), QString("/tmp/Tst_a-1.b"));
    m_desktop.pressKey("BackSpace");
    QTRY_COMPARE(edit.text(), QString("/tmp/Tst_a-1."));
}

void TestDesktop::anOpenComboBoxIsAPopup()
{
    QComboBox box(m_window);
    box.addItems({"one", "two", "three"});
    box.setGeometry(20, 20, 120, 30);
    box.show();
    const int before = m_desktop.popups().size();
    m_desktop.click(centreOf(&box));
    QTRY_COMPARE(m_desktop.popups().size(), before + 1);
    m_desktop.pressKey("Escape");
    QTRY_COMPARE(m_desktop.popups().size(), before);
}

void TestDesktop::aClosedWindowIsAskedAndGone()
{
    m_desktop.closeWindow(quint32(m_window->winId()));
    QTRY_VERIFY(!m_window->isVisible());
}

QTEST_MAIN(TestDesktop)
#include "tst_desktop.moc"
