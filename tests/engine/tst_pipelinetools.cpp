#include "PipelineTools.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestPipelineTools : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aPipelineHasItsName();
    void aLineThatCannotBeBuiltIsNoPipelineAndTheLogSaysWhy_data();
    void aLineThatCannotBeBuiltIsNoPipelineAndTheLogSaysWhy();
    void anErrorNamesItsSourceAndAllThatItSays();
    void anErrorWithoutDetailsSaysSo();
    void aPipelineIsDrawnFromAnyOfItsParts();
    void whatIsNoPipelineIsNotDrawn();

private:
    QStringList graphs() const;

    QTemporaryDir m_folder;
};

void TestPipelineTools::initTestCase()
{
    // GStreamer looks for it once, when it starts.
    qputenv("GST_DEBUG_DUMP_DOT_DIR", QFile::encodeName(m_folder.path()));
    gst_init(nullptr, nullptr);
}

QStringList TestPipelineTools::graphs() const
{
    return QDir(m_folder.path()).entryList({"*.dot"});
}

void TestPipelineTools::aPipelineHasItsName()
{
    const auto pipeline = parsePipeline("desk", "fakesrc name=first ! fakesink");
    QVERIFY(pipeline);
    const GlibString name(gst_object_get_name(GST_OBJECT(pipeline.get())));
    QCOMPARE(QByteArray(name.get()), QByteArray("desk"));
    QVERIFY(GstObjectHandle<GstElement>(gst_bin_get_by_name(GST_BIN(pipeline.get()), "first")));
}

void TestPipelineTools::aLineThatCannotBeBuiltIsNoPipelineAndTheLogSaysWhy_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no such element") << QByteArray("fakesrc ! nosuchelement ! fakesink");
    QTest::newRow("no such property") << QByteArray("fakesrc colour=3 ! fakesink");
    QTest::newRow("it does not link") << QByteArray("fakesink ! fakesink");
}

void TestPipelineTools::aLineThatCannotBeBuiltIsNoPipelineAndTheLogSaysWhy()
{
    QFETCH(QByteArray, line);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^the pipeline \"desk\" cannot be built: .+"));
    QVERIFY(!parsePipeline("desk", line));
}

static QString textOf(const char *details)
{
    const auto element = ownFloating(gst_element_factory_make("fakesrc", "lens"));
    const GlibErrorHandle error(
        g_error_new_literal(GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_READ, "It is dark."));
    const GstMiniHandle<GstMessage> message(
        gst_message_new_error(GST_OBJECT(element.get()), error.get(), details));
    return errorText(message.get());
}

void TestPipelineTools::anErrorNamesItsSourceAndAllThatItSays()
{
    QCOMPARE(textOf("the cap is on"), QString("lens: It is dark. (the cap is on)"));
}

void TestPipelineTools::anErrorWithoutDetailsSaysSo()
{
    QCOMPARE(textOf(nullptr), QString("lens: It is dark. (no details)"));
}

void TestPipelineTools::aPipelineIsDrawnFromAnyOfItsParts()
{
    const auto pipeline = parsePipeline("desk", "fakesrc name=first ! fakesink");
    dumpPipeline(pipeline.get(), "whole");
    QCOMPARE(graphs().filter(QRegularExpression("desk-whole\\.dot$")).size(), 1);
    const GstObjectHandle<GstElement> part(gst_bin_get_by_name(GST_BIN(pipeline.get()), "first"));
    dumpPipeline(part.get(), "part");
    QCOMPARE(graphs().filter(QRegularExpression("desk-part\\.dot$")).size(), 1);
}

void TestPipelineTools::whatIsNoPipelineIsNotDrawn()
{
    const QStringList before = graphs();
    const auto lonely = ownFloating(gst_element_factory_make("fakesrc", nullptr));
    dumpPipeline(lonely.get(), "lonely");
    dumpPipeline(nullptr, "nothing");
    QCOMPARE(graphs(), before);
}

QTEST_GUILESS_MAIN(TestPipelineTools)
#include "tst_pipelinetools.moc"
