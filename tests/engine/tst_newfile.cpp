#include "EncoderSearch.h"
#include "GstStart.h"
#include "MovieRecorder.h"
#include "NewFile.h"
#include "Patience.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <unistd.h>

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

// What is captured goes into files of its own, never into one that is there.
class TestNewFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aMissingFileIsMade();
    void whatIsThereIsLeftAsItIs_data();
    void whatIsThereIsLeftAsItIs();
    void aMovieIsNotWrittenOverWhatIsThere_data() { whatIsThereIsLeftAsItIs_data(); }
    void aMovieIsNotWrittenOverWhatIsThere();

private:
    /// Lays something into the place of the new file.
    void lay(const QString &what) const;
    bool isAsLaid(const QString &what) const;
    QString path() const { return m_folder->filePath("movie1.mov"); }
    QString letter() const { return m_folder->filePath("letter.txt"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

static QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void TestNewFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestNewFile::lay(const QString &what) const
{
    if (what == "file")
        write(path(), "older");
    if (what == "link")
        write(letter(), "of somebody");
    if (what != "file")
        QVERIFY(QFile::link(letter(), path()));
}

bool TestNewFile::isAsLaid(const QString &what) const
{
    if (what == "file")
        return contents(path()) == "older" && !QFileInfo(path()).isSymLink();
    return QFileInfo(path()).isSymLink()
        && contents(letter()) == (what == "link" ? QByteArray("of somebody") : QByteArray())
        && QFile::exists(letter()) == (what == "link");
}

void TestNewFile::aMissingFileIsMade()
{
    const int file = createNewFile(path());
    QVERIFY(file >= 0);
    QCOMPARE(::write(file, "new", 3), ssize_t(3));
    QCOMPARE(close(file), 0);
    QCOMPARE(contents(path()), QByteArray("new"));
    QCOMPARE(createNewFile(m_folder->filePath("missing/movie1.mov")), -1);
}

void TestNewFile::whatIsThereIsLeftAsItIs_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("an older file") << "file";
    QTest::newRow("a link to a file") << "link";
    QTest::newRow("a link to nowhere") << "dangling";
}

void TestNewFile::whatIsThereIsLeftAsItIs()
{
    QFETCH(QString, what);
    lay(what);
    QCOMPARE(createNewFile(path()), -1);
    QVERIFY(isAsLaid(what));
}

void TestNewFile::aMovieIsNotWrittenOverWhatIsThere()
{
    QFETCH(QString, what);
    QVERIFY(startGstreamer());
    const MovieEncoding encoding =
        EncoderSearch({640, 480}, 30).waitUntil(steady_clock::now() + seconds(30));
    QVERIFY(encoding.isComplete());
    GstVideoInfo format;
    gst_video_info_set_format(&format, GST_VIDEO_FORMAT_I420, 640, 480);
    lay(what);
    QVERIFY(!MovieRecorder::start(path(), format, encoding));
    QVERIFY(isAsLaid(what));

    // Beside it there is room. A movie without a frame leaves no file.
    const QString other = m_folder->filePath("movie2.mov");
    const auto recorder = MovieRecorder::start(other, format, encoding);
    QVERIFY(recorder);
    QVERIFY(QFile::exists(other));
    recorder->finish(milliseconds(2000)); // a slow machine ends it later
    QTRY_VERIFY(!QFile::exists(other));
}

QTEST_GUILESS_MAIN(TestNewFile)
#include "tst_newfile.moc"
