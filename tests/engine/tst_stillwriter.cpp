#include "StillWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <future>

// Every pixel differs from its neighbours, so that a shifted row or a swapped colour is seen.
static QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x + y) * 3 % 256));
    return image;
}

// As a program draws it: no camera's noise.
static QImage page(const QSize &size)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont(QStringLiteral("Liberation Serif"), 12));
    for (int y = 20; y < size.height(); y += 20)
        painter.drawText(QPointF(10 + y % 7 / 7.0, y),
                         QStringLiteral("A page of text, line %1: black letters on white paper, "
                                        "smooth at their edges. ")
                             .arg(y)
                             .repeated(3));
    return image;
}

class TestStillWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFileHoldsExactlyThePicture_data();
    void theFileHoldsExactlyThePicture();
    void whatIsEvenAndWhatIsNotStandsInOnePicture();
    void aDrawnPageTakesNoMoreRoomThanTheToolkitsOwn();
    void aJpegHoldsThePictureNearly();
    void anOlderFileOfTheSameNameIsReplaced();
    void aFailureLeavesNothingBehind_data();
    void aFailureLeavesNothingBehind();
    void aFullDiskLeavesNothingBehind();
    void theRestOfAKilledProgramIsReplaced();
    void aLinkInThePlaceOfTheHiddenFileIsNotFollowed();
    void thePictureIsHeldWhileItIsWritten();

private:
    QStringList filesIn(const QString &folder) const
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStillWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestStillWriter::cleanup()
{
    m_folder.reset();
}

void TestStillWriter::theFileHoldsExactlyThePicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("full HD") << "photo.png" << QSize(1920, 1080);
    QTest::newRow("rows that are padded") << "photo.png" << QSize(641, 33);
    QTest::newRow("one pixel") << "photo.png" << QSize(1, 1);
    QTest::newRow("capital extension") << "photo.PNG" << QSize(64, 48);
    QTest::newRow("another format") << "photo.bmp" << QSize(64, 48);
    QTest::newRow("a name with letters of all kinds")
        << "f\u00f6to \u5199\u771f.png" << QSize(64, 48);
}

void TestStillWriter::theFileHoldsExactlyThePicture()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage expected = picture(size);
    QVERIFY(writeStill(expected, m_folder->filePath(name)));
    const QImage read(m_folder->filePath(name));
    QCOMPARE(read.convertToFormat(QImage::Format_RGB888), expected);
    QCOMPARE(filesIn(m_folder->path()), QStringList{name});
}

// Each kind is written in its own way.
void TestStillWriter::whatIsEvenAndWhatIsNotStandsInOnePicture()
{
    QImage expected = page({640, 1000});
    const QImage noise = picture({640, 400});
    std::memcpy(expected.scanLine(300), noise.constBits(), size_t(noise.sizeInBytes()));
    QVERIFY(writeStill(expected, m_folder->filePath("photo.png")));
    const QImage read(m_folder->filePath("photo.png"));
    QCOMPARE(read.convertToFormat(QImage::Format_RGB888), expected);
}

void TestStillWriter::aDrawnPageTakesNoMoreRoomThanTheToolkitsOwn()
{
    const QImage drawn = page({1920, 1080});
    const QString ours = m_folder->filePath("ours.png");
    const QString toolkits = m_folder->filePath("toolkits.png");
    QVERIFY(writeStill(drawn, ours));
    QVERIFY(drawn.save(toolkits));
    QVERIFY2(QFileInfo(ours).size() * 10 <= QFileInfo(toolkits).size() * 11,
             qPrintable(QString("%1 bytes, the toolkit's %2")
                            .arg(QFileInfo(ours).size())
                            .arg(QFileInfo(toolkits).size())));
}

void TestStillWriter::aJpegHoldsThePictureNearly()
{
    QImage grey(64, 48, QImage::Format_RGB888);
    grey.fill(QColor(100, 120, 140));
    QVERIFY(writeStill(grey, m_folder->filePath("photo.jpg")));
    const QColor read = QImage(m_folder->filePath("photo.jpg")).pixelColor(20, 20);
    QVERIFY(qAbs(read.red() - 100) < 6 && qAbs(read.blue() - 140) < 6);
}

void TestStillWriter::anOlderFileOfTheSameNameIsReplaced()
{
    const QString path = m_folder->filePath("photo.png");
    QVERIFY(writeStill(picture({64, 48}), path));
    QVERIFY(writeStill(picture({32, 16}), path));
    QCOMPARE(QImage(path).size(), QSize(32, 16));
}

void TestStillWriter::aFailureLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no such folder") << "missing/photo.png" << QSize(8, 8);
    QTest::newRow("a folder has the name") << "folder.png" << QSize(8, 8);
    QTest::newRow("unknown format") << "photo.xyz" << QSize(8, 8);
    QTest::newRow("no extension") << "photo" << QSize(8, 8);
    QTest::newRow("no picture") << "photo.png" << QSize();
}

void TestStillWriter::aFailureLeavesNothingBehind()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QVERIFY(QDir(m_folder->path()).mkdir("folder.png"));
    const QImage image = size.isValid() ? picture(size) : QImage();
    QVERIFY(!writeStill(image, m_folder->filePath(name)));
    QCOMPARE(filesIn(m_folder->path()), QStringList());
}

// A limit on file sizes fails a write in the same way, half of it done.
void TestStillWriter::aFullDiskLeavesNothingBehind()
{
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit normal = {};
    getrlimit(RLIMIT_FSIZE, &normal);
    rlimit tight = normal;
    tight.rlim_cur = 4096;
    setrlimit(RLIMIT_FSIZE, &tight);
    const bool png = writeStill(picture({640, 480}), m_folder->filePath("photo.png"));
    const bool bmp = writeStill(picture({640, 480}), m_folder->filePath("photo.bmp"));
    setrlimit(RLIMIT_FSIZE, &normal);
    std::signal(SIGXFSZ, before);
    QVERIFY(!png);
    QVERIFY(!bmp);
    QCOMPARE(filesIn(m_folder->path()), QStringList());
}

void TestStillWriter::theRestOfAKilledProgramIsReplaced()
{
    QFile rest(m_folder->filePath(".photo.png"));
    QVERIFY(rest.open(QIODevice::WriteOnly));
    rest.write(QByteArray(1000000, 'x'));
    rest.close();
    QVERIFY(writeStill(picture({64, 48}), m_folder->filePath("photo.png")));
    QCOMPARE(QImage(m_folder->filePath("photo.png")).size(), QSize(64, 48));
    QVERIFY(QFileInfo(m_folder->filePath("photo.png")).size() < 1000000);
    QCOMPARE(filesIn(m_folder->path()), QStringList("photo.png"));
}

void TestStillWriter::aLinkInThePlaceOfTheHiddenFileIsNotFollowed()
{
    QFile letter(m_folder->filePath("letter.txt"));
    QVERIFY(letter.open(QIODevice::ReadWrite));
    letter.write("of somebody");
    QVERIFY(letter.flush());
    QVERIFY(QFile::link(letter.fileName(), m_folder->filePath(".photo.png")));
    QVERIFY(writeStill(picture({64, 48}), m_folder->filePath("photo.png")));
    QVERIFY(letter.seek(0));
    QCOMPARE(letter.readAll(), QByteArray("of somebody"));
    QVERIFY(!QFileInfo(m_folder->filePath("photo.png")).isSymLink());
    QCOMPARE(QImage(m_folder->filePath("photo.png")).size(), QSize(64, 48));
}

// Looked at from the moment the file is there until it is gone, beside the writer: as the first
// copy of the program does when another one is taking a photo.
void TestStillWriter::thePictureIsHeldWhileItIsWritten()
{
    const QString path = m_folder->filePath("photo.bmp");
    const QByteArray hidden = QFile::encodeName(m_folder->filePath(".photo.bmp"));
    std::atomic<int> held(0);
    std::atomic<bool> isDone(false);
    std::future<bool> writer = std::async(std::launch::async, [&] {
        bool all = true;
        for (int i = 0; i < 200 && all && held == 0; ++i)
            all = writeStill(picture({1280, 720}), path);
        isDone = true;
        return all;
    });
    while (!isDone && held == 0) {
        const int file = open(hidden.constData(), O_RDWR | O_CLOEXEC);
        if (file < 0)
            continue;
        struct stat status = {};
        // Without any contents it may be younger than its lock.
        if (fstat(file, &status) == 0 && status.st_size > 0 && flock(file, LOCK_SH | LOCK_NB) != 0)
            ++held;
        close(file);
    }
    QVERIFY(writer.get());
    QVERIFY(held > 0);
}

QTEST_MAIN(TestStillWriter)
#include "tst_stillwriter.moc"
