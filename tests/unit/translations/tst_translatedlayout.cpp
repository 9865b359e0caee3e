// Every language in the real widgets, with the real fonts: nothing may be clipped on a screen of
// 1024x768, and no letter may be missing from the fonts.

#include "ButtonGeometry.h"
#include "CStretchBitmapButton.h"
#include "Languages.h"
#include "SaveConfirmDlg.h"
#include "SelectDeviceDlg.h"
#include "Setting.h"
#include "TimerWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGlyphRun>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextLayout>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {

const QSize kScreen(1024, 768);
// What a bitmap of the row and half of one come to on that screen.
const QSize kMainButton(170, 77);
const QSize kSmallButton(170, 38);
// Of the caption's label, at its right: a text up to the very rim of the bitmap looks cut off.
constexpr int kRimPx = 6;

struct Caption {
    const char *baseName;
    const char *text;
};

constexpr Caption kCaptions[] = {
    {"Live", "Live"},
    {"Photo", "Photo"},
    {"PhotoMulti", "Continuous\nCapture"},
    {"Movie", "Movie"},
    {"MovieStop", "Stop"},
    {"List", "List"},
    {"Settings", "Settings"},
    {"Close", "Exit"},
    {"Apply", "Accept"},
    {"Retry", "Retry"},
    {"MoviePlay", "Play"},
    {"MoviePause", "Pause"},
    {"Show", "View"},
    {"SwitchPhoto", "Movie /\n    Photo"},
    {"SwitchMovie", "Photo /\n    Movie"},
    {"Back", "Back"},
    {"PutPhoto", "Paste"},
};

QSize sizeOf(const QString &baseName)
{
    return baseName == QLatin1String("Settings") || baseName == QLatin1String("Close")
        ? kSmallButton
        : kMainButton;
}

/// What the label needs for its text at its own width. A word that is too long makes it wider.
QSize neededBy(const QLabel &label)
{
    const int wrap = label.wordWrap() ? Qt::TextWordWrap : 0;
    return label.fontMetrics()
        .boundingRect(label.contentsRect(), int(label.alignment()) | wrap, label.text())
        .size();
}

bool fits(QSize needed, QSize available)
{
    return needed.width() <= available.width() && needed.height() <= available.height();
}

QByteArray complaint(const QString &text, QSize needed, QSize available)
{
    return QStringLiteral("\"%1\" needs %2x%3 of %4x%5")
        .arg(text)
        .arg(needed.width())
        .arg(needed.height())
        .arg(available.width())
        .arg(available.height())
        .toUtf8();
}

/// The texts of a box that do not have the room that they ask for, or that run out of the row that
/// holds them; empty when all is well.
QByteArray clippedTextsOf(const QWidget &box)
{
    QByteArray clipped;
    const auto look = [&](const QWidget &widget, const QString &text) {
        const QSize visible =
            widget.geometry().intersected(widget.parentWidget()->contentsRect()).size();
        if (!text.isEmpty() && !fits(widget.sizeHint(), visible)) {
            clipped += complaint(text, widget.sizeHint(), visible) + '\n';
        }
    };
    for (const QLabel *label : box.findChildren<QLabel *>()) {
        look(*label, label->text());
    }
    for (const QAbstractButton *button : box.findChildren<QAbstractButton *>()) {
        look(*button, button->text());
    }
    return clipped;
}

bool hasALetterWithoutAShape(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return runs.isEmpty() || std::any_of(runs.cbegin(), runs.cend(), [](const QGlyphRun &run) {
               return run.glyphIndexes().contains(0);
           });
}

} // namespace

class TranslatedLayoutTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyCaptionFitsItsButton_data() { addLanguageRows(); }
    void everyCaptionFitsItsButton();
    void aCaptionTooLongForItsButtonIsNoticed();
    void theFontsHaveEveryLetter_data() { addLanguageRows(); }
    void theFontsHaveEveryLetter();
    void aLetterThatNoFontHasIsNoticed();
    void aTextTooLongForItsRowIsNoticed();
    void theChooserShowsItsTextsWhole_data() { addLanguageRows(); }
    void theChooserShowsItsTextsWhole();
    void theSettingsShowTheirTextsWhole_data() { addLanguageRows(); }
    void theSettingsShowTheirTextsWhole();
    void theSaveQuestionFitsTheScreen_data() { addLanguageRows(); }
    void theSaveQuestionFitsTheScreen();
    void theCountdownHasRoomForTwoDigits_data() { addLanguageRows(); }
    void theCountdownHasRoomForTwoDigits();

private:
    void speak(const QString &language);
    static QSize neededByCaption(CStretchBitmapButton &button, const QString &text);

    std::unique_ptr<QTranslator> m_translator;
};

void TranslatedLayoutTest::init()
{
    m_translator = std::make_unique<QTranslator>();
}

void TranslatedLayoutTest::cleanup()
{
    m_translator.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TranslatedLayoutTest::speak(const QString &language)
{
    QVERIFY(m_translator->load(QStringLiteral("qvexplugin_") + language,
                               QStringLiteral(PROGRAM_FOLDER)));
    QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
    if (language == QLatin1String("ar") || language == QLatin1String("he")) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
}

/// The room for the text in the caption's label, once the button has its size on a screen of 1024
/// px. The screen of the test is another one, so the font is set to what it is there.
QSize TranslatedLayoutTest::neededByCaption(CStretchBitmapButton &button, const QString &text)
{
    auto *caption = button.findChild<QLabel *>(QStringLiteral("caption"));
    QFont font = caption->font();
    font.setPointSize(ButtonGeometry::captionPointSize(kScreen.width()));
    caption->setFont(font);
    button.resize(sizeOf(button.objectName()));
    button.setCaptionText(text);
    button.show();
    return neededBy(*caption);
}

void TranslatedLayoutTest::everyCaptionFitsItsButton()
{
    QFETCH(QString, language);
    speak(language);
    QByteArray clipped;
    for (const Caption &row : kCaptions) {
        CStretchBitmapButton button(row.baseName, nullptr);
        const QString text = QCoreApplication::translate("CVistrelDlg", row.text);
        const QSize needed = neededByCaption(button, text);
        const QSize available =
            button.findChild<QLabel *>(QStringLiteral("caption"))->size() - QSize(kRimPx, 0);
        QVERIFY(available.width() > 90);
        if (!fits(needed, available)) {
            clipped += complaint(text, needed, available) + '\n';
        }
    }
    QVERIFY2(clipped.isEmpty(), clipped.constData());
}

void TranslatedLayoutTest::aCaptionTooLongForItsButtonIsNoticed()
{
    CStretchBitmapButton button(QStringLiteral("Settings"), nullptr);
    const QSize longWord = neededByCaption(button, QStringLiteral("Grundeinstellungen"));
    const QSize available = button.findChild<QLabel *>(QStringLiteral("caption"))->size();
    QVERIFY(longWord.width() > available.width());
    QVERIFY(neededByCaption(button, QStringLiteral("a\nb\nc")).height() > available.height());
}

void TranslatedLayoutTest::theFontsHaveEveryLetter()
{
    QFETCH(QString, language);
    speak(language);
    const QFont font(QStringLiteral("Arial"), 11);
    const struct {
        const char *context;
        const char *text;
    } samples[] = {{"CVistrelDlg", "Back to the live picture"},
                   {"PictureWidget", "Shows this photo as large as possible"},
                   {"TimerWidget", "Self-timer, recording time or playing time"},
                   {"SaveConfirmDlg", "Do you want to save the Photo / Movie data?"}};
    for (const auto &sample : samples) {
        const QString text = QCoreApplication::translate(sample.context, sample.text);
        QVERIFY2(!hasALetterWithoutAShape(text, font), qPrintable(text));
    }
    for (const Caption &row : kCaptions) {
        QString text = QCoreApplication::translate("CVistrelDlg", row.text);
        text.remove(QLatin1Char('\n'));
        QVERIFY2(!hasALetterWithoutAShape(text, font), qPrintable(text));
    }
}

void TranslatedLayoutTest::aLetterThatNoFontHasIsNoticed()
{
    QVERIFY(hasALetterWithoutAShape(QString(QChar(0xE123)), QFont(QStringLiteral("Arial"), 11)));
}

void TranslatedLayoutTest::aTextTooLongForItsRowIsNoticed()
{
    QWidget box;
    auto *row = new QWidget(&box);
    row->setGeometry(0, 0, 100, 40);
    auto *columns = new QHBoxLayout(row);
    auto *label = new QLabel(QStringLiteral("Short"), row);
    columns->addWidget(label);
    box.show();
    QVERIFY(clippedTextsOf(box).isEmpty());
    label->setText(QStringLiteral("Longer than a hundred pixels"));
    columns->activate();
    QVERIFY(!clippedTextsOf(box).isEmpty());
}

void TranslatedLayoutTest::theChooserShowsItsTextsWhole()
{
    QFETCH(QString, language);
    speak(language);
    SelectDeviceDlg chooser(nullptr);
    chooser.show();
    const QByteArray clipped = clippedTextsOf(chooser);
    QVERIFY2(clipped.isEmpty(), clipped.constData());
}

void TranslatedLayoutTest::theSettingsShowTheirTextsWhole()
{
    QFETCH(QString, language);
    speak(language);
    Setting settings(nullptr);
    settings.show();
    QCOMPARE(settings.windowTitle(), QCoreApplication::translate("Setting", "Settings"));
    const QByteArray clipped = clippedTextsOf(settings);
    QVERIFY2(clipped.isEmpty(), clipped.constData());
}

void TranslatedLayoutTest::theSaveQuestionFitsTheScreen()
{
    QFETCH(QString, language);
    speak(language);
    SaveConfirmDlg question(nullptr, {});
    question.show();
    QVERIFY(fits(question.size(), kScreen));
    const QByteArray clipped = clippedTextsOf(question);
    QVERIFY2(clipped.isEmpty(), clipped.constData());
}

void TranslatedLayoutTest::theCountdownHasRoomForTwoDigits()
{
    QFETCH(QString, language);
    speak(language);
    QWidget window;
    TimerWidget countdown(&window, {});
    countdown.setcount(30); // the longest self-timer
    countdown.SetMode(TimerCountdown);
    countdown.run();
    countdown.Stop();
    QVERIFY(countdown.text().contains(QStringLiteral("30")));
    const QSize needed = neededBy(countdown);
    QVERIFY2(fits(needed, countdown.size()),
             complaint(countdown.text(), needed, countdown.size()).constData());
    QVERIFY(needed.width() < kScreen.width() / 2);
}

QTEST_MAIN(TranslatedLayoutTest)
#include "tst_translatedlayout.moc"
