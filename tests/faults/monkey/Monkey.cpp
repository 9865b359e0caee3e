#include "Monkey.h"

#include "CStretchBitmapButton.h"
#include "FakeEngine.h"
#include "MonkeyWorld.h"
#include "SaveConfirmDlg.h"
#include "TimerWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>

static constexpr int stepsOut = 40; // presses, boxes answered among them; four would do

// How long (ns) the system has kept this thread from running that wanted to.
static qint64 delayed()
{
    QFile file("/proc/thread-self/schedstat");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> numbers = file.readAll().split(' ');
    return numbers.value(1).toLongLong();
}

Monkey::Monkey(MonkeyEvents events)
    : m_events(std::move(events))
{
    QImage picture(64, 36, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    FakeEngine::script().picture = picture;
    m_watch = std::make_unique<CaptureWatch>(m_fixture.temporaryArea(), m_fixture.home());
    qApp->installEventFilter(this);
}

QString Monkey::run()
{
    QTimer::singleShot(0, this, &Monkey::round);
    QApplication::exec();
    return m_complaint;
}

void Monkey::fail(const QString &why)
{
    if (!m_complaint.isEmpty())
        return;
    m_complaint = QString("after event %1: %2").arg(m_played).arg(why);
    QApplication::exit();
}

// One event a round. What an event opens is a loop of its own, in which the rounds go on; what only
// lets the toolkit catch up in the middle of an event is none.
void Monkey::round()
{
    if (!m_complaint.isEmpty())
        return;
    const int level = QThread::currentThread()->loopLevel();
    if (level == m_actsIn) {
        QTimer::singleShot(1, this, &Monkey::round);
        return;
    }
    noteAnswer();
    QTimer::singleShot(0, this, &Monkey::round);
    if (level == 1) {
        const bool isOpen = m_fixture.isBuilt() && m_fixture.dialog().isVisible();
        if (isOpen)
            look();
        m_isClosing = m_isClosing && isOpen;
        if (!isOpen && m_played >= m_events.size())
            return QApplication::exit();
        if (!isOpen)
            return start();
    }
    if (!m_complaint.isEmpty())
        return;
    progress(front());
    const int actedIn = std::exchange(m_actsIn, level);
    if (m_isClosing)
        closeTopmost();
    else if (m_played < m_events.size())
        play(m_events[m_played++]);
    else
        leave();
    m_actsIn = actedIn;
}

void Monkey::start()
{
    m_clicked.clear();
    m_isStarting = true;
    const int actedIn = std::exchange(m_actsIn, QThread::currentThread()->loopLevel());
    CVistrelDlg &dialog = m_fixture.build();
    for (auto *button :
         dialog.findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly))
        connect(button, &QAbstractButton::clicked, this, [this, button] {
            m_clicked.append(button->objectName());
            if (button->objectName() == "Retry")
                m_watch->retried();
        });
    if (dialog.isDeviceSelected())
        dialog.chkdevice();
    m_isStarting = false;
    m_actsIn = actedIn;
}

void Monkey::play(const MonkeyEvent &event)
{
    if (MonkeyWorld::change(event)) {
        m_wasDisturbed = true;
        return;
    }
    switch (event.kind) {
    case MonkeyEvent::Second:
        passSeconds(int(event.first % 8) + 1);
        return;
    case MonkeyEvent::Wait:
        QTest::qWait(int(event.first % 30)); // nothing to wait for: time passes
        return;
    case MonkeyEvent::CloseWindow:
        m_isClosing = true;
        m_wasDisturbed = true;
        return;
    case MonkeyEvent::LogOut:
        logOut();
        return;
    default:
        m_hands.act(event, m_fixture.isBuilt() ? &m_fixture.dialog() : nullptr);
    }
}

// The clock's own timer, told that its time has come.
void Monkey::passSeconds(int seconds)
{
    if (!m_fixture.isBuilt() || m_isStarting)
        return;
    const auto *clock = m_fixture.child<TimerWidget>().findChild<QTimer *>();
    m_wasDisturbed = m_wasDisturbed || clock->isActive();
    for (int second = 0; second < seconds && clock->isActive(); ++second) {
        QTimerEvent tick(clock->timerId());
        QApplication::sendEvent(const_cast<QTimer *>(clock), &tick);
    }
}

void Monkey::logOut()
{
    if (!m_fixture.isBuilt() || m_isStarting || !m_fixture.dialog().isVisible())
        return;
    m_wasDisturbed = true;
    m_fixture.dialog().leaveWithSession([] { return true; });
}

// As at the end of a session that asks nobody.
void Monkey::closeTopmost()
{
    if (QWidget *menu = QApplication::activePopupWidget())
        menu->close();
    else if (QWidget *box = QApplication::activeModalWidget())
        box->close();
    else if (m_fixture.isBuilt())
        m_fixture.dialog().close();
}

// Whatever box stands is answered; then it is "Exit", or what leads there.
void Monkey::leave()
{
    if (m_steps == 0)
        MonkeyWorld::change({MonkeyEvent::Written, 0, 0});
    if (++m_steps > stepsOut)
        return fail("there is no way out");
    QWidget *front = MonkeyHands::inFront(&m_fixture.dialog());
    if (front != &m_fixture.dialog()) {
        const auto buttons = MonkeyHands::buttonsOf(*front, true);
        // Each in turn: many a button leads nowhere.
        if (buttons.isEmpty() || QApplication::activePopupWidget() || m_steps % 8 == 0)
            front->close();
        else
            MonkeyHands::click(buttons[m_steps % buttons.size()]);
        return;
    }
    if (!pressFirstOf({"Close", "Apply", "MovieStop", "Live", "List"}))
        fail("nothing can be pressed");
}

bool Monkey::pressFirstOf(const QStringList &names)
{
    const auto buttons = MonkeyHands::buttonsOf(m_fixture.dialog(), true);
    for (const QString &name : names)
        for (QAbstractButton *each : buttons)
            if (each->objectName() == name)
                return MonkeyHands::click(each, 0x100010), true;
    return false;
}

// The question at exit, wherever it comes from; and that there was a box at all.
bool Monkey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto *box = qobject_cast<QDialog *>(watched);
    if (!box)
        return false;
    m_wasDisturbed = true;
    if (qobject_cast<SaveConfirmDlg *>(box))
        connect(
            box, &QDialog::finished, this,
            [this](int answer) {
                if (answer != QDialog::Accepted && answer != QDialog::Rejected)
                    m_watch->discarded();
            },
            Qt::UniqueConnection);
    return false;
}

void Monkey::noteAnswer()
{
    const qint64 delay = delayed();
    if (m_sinceRound.isValid()) {
        const qint64 answer = m_sinceRound.elapsed() - (delay - m_delayBefore) / 1000000;
        if (answer > m_longest)
            m_afterWhich = m_played;
        m_longest = qMax(m_longest, answer);
    }
    m_sinceRound.start();
    m_delayBefore = delay;
}
