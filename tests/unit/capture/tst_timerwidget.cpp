#include "Patience.h"
#include "SpareTime.h"
#include "TimerWidget.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

namespace {

const QString nothing;

QTimer *clockOf(const TimerWidget &widget)
{
    return widget.findChild<QTimer *>();
}

// What happens when a second is over, without waiting for it.
void tick(const TimerWidget &widget, int times = 1)
{
    for (int i = 0; i < times; ++i)
        QVERIFY(QMetaObject::invokeMethod(clockOf(widget), "timeout"));
}

void beBusyFor(int milliseconds)
{
    QElapsedTimer watch;
    watch.start();
    while (watch.elapsed() < milliseconds) { }
}

} // namespace

Q_DECLARE_METATYPE(TimerMode)

class TimerWidgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beginsIdleEmptyAndNotTicking();
    void isGreenOnBlackInAThinLargeFont();
    void ticksOnceASecondOnAPreciseTimer();
    void showsThreeTwoOneThenTakesThePhotoAndStartsOver();
    void showsTheNextNumberAfterARealSecond();
    void aCountOfZeroTakesAPhotoOnEveryTick();
    void aCountStartedWhileIdleShowsItsFirstNumberATickLater();
    void aSecondRunStartsTheCountOver();
    void showsItselfAtEachCountdownNumber();
    void writesTheRecordingTime_data();
    void writesTheRecordingTime();
    void announcesTheLimitAtTenMinutesAndOnEveryTickAfter();
    void aStoppedRecordingKeepsItsLastTimeOnShow();
    void pauseKeepsTheSecondsAndStopForgetsThem();
    void asksForThePlayingTimeOnRunAndOnEveryTick();
    void doesNothingWhileIdle();
    void resetEndsTheJob();
    void aNewModeIsHiddenEmptyAndAsWideAsItsLongestText_data();
    void aNewModeIsHiddenEmptyAndAsWideAsItsLongestText();
    void theSameModeAgainOnlyHides();
    void aNewModeForgetsTheRecordingTime();
    void slowTicksDoNotPushBackThoseAfterThem();
};

void TimerWidgetTest::beginsIdleEmptyAndNotTicking()
{
    TimerWidget widget;
    QSignalSpy shot(&widget, &TimerWidget::shot);
    QSignalSpy set(&widget, &TimerWidget::set);
    QSignalSpy over(&widget, &TimerWidget::movieTimeOver);
    QVERIFY(!clockOf(widget)->isActive());
    QCOMPARE(widget.text(), nothing);
    widget.run();
    tick(widget);
    QCOMPARE(widget.text(), nothing);
    QCOMPARE(shot.count() + set.count() + over.count(), 0);
}

void TimerWidgetTest::isGreenOnBlackInAThinLargeFont()
{
    const TimerWidget widget;
    QVERIFY(widget.autoFillBackground());
    for (const QPalette::ColorGroup group :
         {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(widget.palette().color(group, QPalette::Window), QColor(Qt::black));
        QCOMPARE(widget.palette().color(group, QPalette::WindowText), QColor(Qt::green));
    }
    QCOMPARE(widget.font().family(), QStringLiteral("Arial"));
    QCOMPARE(widget.font().pointSize(), 24);
    QCOMPARE(widget.font().weight(), 5);
    QVERIFY(!widget.font().italic());
}

void TimerWidgetTest::ticksOnceASecondOnAPreciseTimer()
{
    const TimerWidget widget;
    QCOMPARE(clockOf(widget)->interval(), 1000);
    QCOMPARE(clockOf(widget)->timerType(), Qt::PreciseTimer);
    QVERIFY(!clockOf(widget)->isSingleShot());
}

void TimerWidgetTest::showsThreeTwoOneThenTakesThePhotoAndStartsOver()
{
    TimerWidget widget;
    QSignalSpy shot(&widget, &TimerWidget::shot);
    widget.setcount(3);
    widget.SetMode(TimerCountdown);
    widget.run();
    QCOMPARE(widget.text(), QStringLiteral(" 3 second to capture"));
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral(" 2 second to capture"));
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral(" 1 second to capture"));
    QCOMPARE(shot.count(), 0);
    tick(widget);
    QCOMPARE(widget.text(), nothing);
    QCOMPARE(shot.count(), 1);
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral(" 3 second to capture"));
    QCOMPARE(shot.count(), 1);
}

void TimerWidgetTest::showsTheNextNumberAfterARealSecond()
{
    TimerWidget widget;
    QSignalSpy shot(&widget, &TimerWidget::shot);
    QElapsedTimer watch;
    widget.setcount(1);
    widget.SetMode(TimerCountdown);
    watch.start();
    widget.run();
    QVERIFY(shot.wait(3000));
    QVERIFY2(watch.elapsed() >= 990, qPrintable(QString::number(watch.elapsed())));
    QVERIFY2(watch.elapsed() < 1900, qPrintable(QString::number(watch.elapsed())));
}

void TimerWidgetTest::aCountOfZeroTakesAPhotoOnEveryTick()
{
    TimerWidget widget;
    QSignalSpy shot(&widget, &TimerWidget::shot);
    widget.setcount(0);
    widget.SetMode(TimerCountdown);
    widget.run();
    QCOMPARE(shot.count(), 1);
    tick(widget, 2);
    QCOMPARE(shot.count(), 3);
    QCOMPARE(widget.text(), nothing);
}

void TimerWidgetTest::aCountStartedWhileIdleShowsItsFirstNumberATickLater()
{
    TimerWidget widget;
    widget.setcount(3);
    widget.run();
    widget.SetMode(TimerCountdown);
    QCOMPARE(widget.text(), nothing);
    QVERIFY(widget.isHidden());
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral(" 3 second to capture"));
    QVERIFY(widget.isVisible());
}

void TimerWidgetTest::aSecondRunStartsTheCountOver()
{
    TimerWidget widget;
    widget.setcount(3);
    widget.SetMode(TimerCountdown);
    widget.run();
    tick(widget);
    widget.Stop();
    QVERIFY(!clockOf(widget)->isActive());
    widget.run();
    QVERIFY(clockOf(widget)->isActive());
    QCOMPARE(widget.text(), QStringLiteral(" 3 second to capture"));
}

void TimerWidgetTest::showsItselfAtEachCountdownNumber()
{
    TimerWidget widget;
    widget.setcount(2);
    widget.SetMode(TimerCountdown);
    widget.run();
    QVERIFY(widget.isVisible());
    widget.hide();
    tick(widget);
    QVERIFY(widget.isVisible());
}

void TimerWidgetTest::writesTheRecordingTime_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("at once") << 0 << "00:00";
    QTest::newRow("one second") << 1 << "00:01";
    QTest::newRow("just below a minute") << 59 << "00:59";
    QTest::newRow("a minute") << 60 << "01:00";
    QTest::newRow("the limit") << 600 << "10:00";
    QTest::newRow("minutes of three digits") << 6001 << "100:01";
}

void TimerWidgetTest::writesTheRecordingTime()
{
    QFETCH(int, seconds);
    QFETCH(QString, text);
    TimerWidget widget;
    widget.SetMode(TimerRecordTime);
    widget.run();
    tick(widget, seconds);
    QCOMPARE(widget.text(), text);
}

void TimerWidgetTest::announcesTheLimitAtTenMinutesAndOnEveryTickAfter()
{
    TimerWidget widget;
    QSignalSpy over(&widget, &TimerWidget::movieTimeOver);
    widget.SetMode(TimerRecordTime);
    widget.run();
    tick(widget, 599);
    QCOMPARE(over.count(), 0);
    tick(widget);
    QCOMPARE(over.count(), 1);
    tick(widget, 2);
    QCOMPARE(over.count(), 3);
}

void TimerWidgetTest::aStoppedRecordingKeepsItsLastTimeOnShow()
{
    TimerWidget widget;
    widget.SetMode(TimerRecordTime);
    widget.run();
    tick(widget, 5);
    widget.Stop();
    widget.RecordTime();
    QCOMPARE(widget.text(), QStringLiteral("00:05"));
}

void TimerWidgetTest::pauseKeepsTheSecondsAndStopForgetsThem()
{
    TimerWidget widget;
    QSignalSpy over(&widget, &TimerWidget::movieTimeOver);
    widget.SetMode(TimerRecordTime);
    widget.run();
    tick(widget, 599);
    widget.Pause();
    QVERIFY(!clockOf(widget)->isActive());
    widget.RecordTime();
    QCOMPARE(over.count(), 1);
    QCOMPARE(widget.text(), QStringLiteral("09:59"));
    widget.Stop();
    widget.RecordTime();
    QCOMPARE(over.count(), 1);
}

void TimerWidgetTest::asksForThePlayingTimeOnRunAndOnEveryTick()
{
    TimerWidget widget;
    QSignalSpy set(&widget, &TimerWidget::set);
    widget.SetMode(TimerPlayTime);
    widget.run();
    QCOMPARE(set.count(), 1);
    tick(widget, 3);
    QCOMPARE(set.count(), 4);
    QCOMPARE(widget.text(), nothing);
}

void TimerWidgetTest::doesNothingWhileIdle()
{
    TimerWidget widget;
    QSignalSpy shot(&widget, &TimerWidget::shot);
    widget.SetMode(TimerCountdown);
    widget.SetMode(TimerIdle);
    widget.run();
    tick(widget, 2);
    QVERIFY(clockOf(widget)->isActive());
    QCOMPARE(shot.count(), 0);
    QCOMPARE(widget.text(), nothing);
}

void TimerWidgetTest::resetEndsTheJob()
{
    TimerWidget widget;
    widget.setcount(3);
    widget.SetMode(TimerCountdown);
    widget.run();
    widget.reset();
    QVERIFY(!clockOf(widget)->isActive());
    QCOMPARE(widget.text(), nothing);
    widget.run();
    QCOMPARE(widget.text(), nothing); // idle now: no number
}

void TimerWidgetTest::aNewModeIsHiddenEmptyAndAsWideAsItsLongestText_data()
{
    QTest::addColumn<TimerMode>("mode");
    QTest::addColumn<QString>("longest");
    QTest::newRow("countdown") << TimerCountdown << "0 second to capture  ";
    QTest::newRow("playing time") << TimerPlayTime << "00:00/00:00";
    QTest::newRow("recording time") << TimerRecordTime << "00:00";
}

void TimerWidgetTest::aNewModeIsHiddenEmptyAndAsWideAsItsLongestText()
{
    QFETCH(TimerMode, mode);
    QFETCH(QString, longest);
    QWidget window;
    TimerWidget widget(&window);
    widget.move(12, 34);
    window.show();
    QVERIFY(widget.isVisible());
    QLabel ruler(longest);
    ruler.setFont(widget.font());

    widget.SetMode(mode);
    QVERIFY(widget.isHidden());
    QCOMPARE(widget.text(), nothing);
    QCOMPARE(widget.size(), ruler.sizeHint());
    const int screenWidth = QGuiApplication::primaryScreen()->availableGeometry().width();
    QCOMPARE(widget.pos(), QPoint(screenWidth - ruler.sizeHint().width(), 34));
}

void TimerWidgetTest::theSameModeAgainOnlyHides()
{
    TimerWidget widget;
    widget.SetMode(TimerRecordTime);
    widget.run();
    widget.show();
    tick(widget, 5);
    widget.SetMode(TimerRecordTime);
    QVERIFY(widget.isHidden());
    QCOMPARE(widget.text(), QStringLiteral("00:05"));
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral("00:06"));
}

void TimerWidgetTest::aNewModeForgetsTheRecordingTime()
{
    TimerWidget widget;
    widget.SetMode(TimerRecordTime);
    widget.run();
    tick(widget, 5);
    widget.SetMode(TimerPlayTime);
    widget.SetMode(TimerRecordTime);
    QVERIFY(clockOf(widget)->isActive());
    tick(widget);
    QCOMPARE(widget.text(), QStringLiteral("00:00"));
}

void TimerWidgetTest::slowTicksDoNotPushBackThoseAfterThem()
{
    constexpr int tickMs = 100;
    constexpr int workMs = 40;
    constexpr int ticks = 8;
    TimerWidget widget;
    widget.setTickInterval(tickMs);
    widget.SetMode(TimerPlayTime);
    QSignalSpy set(&widget, &TimerWidget::set);
    connect(&widget, &TimerWidget::set, &widget, [] { beBusyFor(workMs); });
    const SpareTime spare;
    QElapsedTimer watch;
    watch.start();
    widget.run();
    QTRY_COMPARE(set.count(), 1 + ticks);
    // Pushed back by its own work each tick, the last would come 320 ms late.
    const int late = int(watch.elapsed()) - ticks * tickMs;
    QVERIFY2(late < ticks * workMs / 2 + workMs + int(spare.lateness() * 1000),
             qPrintable(QString::number(late)));
}

QTEST_MAIN(TimerWidgetTest)
#include "tst_timerwidget.moc"
