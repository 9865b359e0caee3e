#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QTest>
#include <QTimer>

namespace {

// Presses "Settings"; once the box stands, unchecks the preview and leaves by @p button.
void changePreview(DialogFixture &fixture, const QString &button)
{
    QTimer::singleShot(
        0, qApp,
        [] {
            QWidget *box = QApplication::activeModalWidget();
            if (box)
                box->findChild<QCheckBox *>(QStringLiteral("chbPhotoPreview"))->setChecked(false);
        });
    DialogFixture::boxDuring([&] { fixture.click("Settings"); }, button);
}

QByteArray settingsFile(const DialogFixture &fixture)
{
    QFile file(fixture.home() + QStringLiteral("/.halcyra_orvantacc.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** The settings box as the window opens it. */
class SettingsFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAcceptedBoxIsWrittenAndTakesEffectAtOnce();
    void aCancelledBoxChangesNothing();
    void settingsSurviveARestart();
    void aCameraFoundMissingSetsTheError();
};

void SettingsFlowTest::anAcceptedBoxIsWrittenAndTakesEffectAtOnce()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    changePreview(fixture, QStringLiteral("OK"));
    QVERIFY(settingsFile(fixture).contains("PhotoPreview=0"));
    QCOMPARE(dialog.displayMode(), LiveMode);
    fixture.click("Photo");
    QVERIFY(!fixture.button("Apply").isVisible());
}

void SettingsFlowTest::aCancelledBoxChangesNothing()
{
    DialogFixture fixture;
    fixture.build();
    changePreview(fixture, QStringLiteral("Cancel"));
    QVERIFY(settingsFile(fixture).isEmpty());
    fixture.click("Photo");
    QVERIFY(fixture.button("Apply").isVisible());
}

void SettingsFlowTest::settingsSurviveARestart()
{
    DialogFixture fixture;
    fixture.build();
    changePreview(fixture, QStringLiteral("OK"));
    fixture.build();
    fixture.click("Photo");
    QVERIFY(!fixture.button("Apply").isVisible());
}

void SettingsFlowTest::aCameraFoundMissingSetsTheError()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.child<LiveVideoWidget>().Release();
    DialogFixture::boxDuring([&] { fixture.click("Settings"); });
    QVERIFY(dialog.hasError());
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
}

QTEST_MAIN(SettingsFlowTest)
#include "tst_cvistreldlg_settings.moc"
