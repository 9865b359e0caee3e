#include "Session.h"

#include <QFile>
#include <QTest>

class TestLightStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noGraphicsCardsDriverIsLoaded();
};

void TestLightStart::noGraphicsCardsDriverIsLoaded()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QFile maps(QStringLiteral("/proc/%1/maps").arg(user.program().pid()));
    QVERIFY(maps.open(QFile::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("libqxcb.so"));
    for (const char *part : {"libqxcb-glx-integration", "libqxcb-egl-integration", "_dri.so",
                             "libgallium", "libGLX_mesa", "libEGL_mesa"})
        QVERIFY2(!loaded.contains(part), part);
}

QTEST_MAIN(TestLightStart)
#include "tst_lightstart.moc"
