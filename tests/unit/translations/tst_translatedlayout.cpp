// Every language in the real widgets, with the real fonts: nothing may be clipped on the lab's
// screen, of 1024x768 but for the largest texts, and no letter may be missing from the fonts.

#include "BoxGlance.h"
#include "CStretchBitmapButton.h"
#include "DialogFixture.h"
#include "Languages.h"
#include "PictureWidget.h"
#include "SaveConfirmDlg.h"
#include "SelectDeviceDlg.h"
#include "Setting.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGlyphRun>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTextLayout>
#include <QTranslator>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

QSize screenSize; // px
constexpr int mostTiles = 9;
// Of the caption's label, at its right: a text up to the very rim of the bitmap looks cut off.
constexpr int rimPx = 6;

struct Text {
    const char *context;
    const char *source;
};

// What boxes say, but for the full disk, whose two pieces come from the store.
constexpr Text boxTexts[] = {
    {"CVistrelDlg", "Save failed."},
    {"CVistrelDlg", "Cannot find Video / Audio Devices."},
    {"CVistrelDlg", "Cannot find Audio Devices."},
    {"CVistrelDlg", "Cannot find Video Devices."},
    {"CVistrelDlg",
     "The video device is invalid. Please confirm whether the device is correctly connected. "},
    {"LiveVideoWidget", "Not Suport"},
    {"LiveVideoWidget",
     "The video device and the audio device are invalid. Please confirm whether "
     "the device is correctly connected. "},
    {"LiveVideoWidget",
     "The audio device is invalid. Please confirm whether the device is correctly connected."},
    {"PictureListView", "You can not select 10 or more."},
    {"Setting", "Please specify the save location."},
    {"Setting", "Invalid PATH is specified."},
};

QString inLanguage(const Text &text)
{
    return QCoreApplication::translate(text.context, text.source);
}

// What the label needs for its text at its own width. A word that is too long makes it wider.
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

// The texts of a box that do not have the room that they ask for, or that run out of the row that
// holds them; empty when all is well.
QByteArray clippedTextsOf(const QWidget &box)
{
    QByteArray clipped;
    const auto look = [&](const QWidget &widget, const QString &text, QSize needed) {
        const QSize visible =
            widget.geometry().intersected(widget.parentWidget()->contentsRect()).size();
        if (!text.isEmpty() && !fits(needed, visible))
            clipped += complaint(text, needed, visible) + '\n';
    };
    for (const QLabel *label : box.findChildren<QLabel *>())
        look(*label, label->text(), label->wordWrap() ? neededBy(*label) : label->sizeHint());
    for (const QAbstractButton *button : box.findChildren<QAbstractButton *>())
        look(*button, button->text(), button->sizeHint());
    for (const QComboBox *choice : box.findChildren<QComboBox *>())
        look(*choice, choice->currentText(), choice->sizeHint());
    return clipped;
}

// The buttons of the window's screens. "Back" is on none of them: tiles bring their own.
QList<CStretchBitmapButton *> buttonsOf(const QWidget &window)
{
    auto buttons =
        window.findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly);
    buttons.removeOne(window.findChild<CStretchBitmapButton *>(QStringLiteral("Back"),
                                                               Qt::FindDirectChildrenOnly));
    return buttons;
}

QLabel *captionOf(const CStretchBitmapButton &button)
{
    return button.findChild<QLabel *>(QStringLiteral("caption"));
}

// The captions of a window that their buttons have no room for, at the size that the window gave
// them; empty when all is well.
QByteArray clippedCaptionsOf(const QWidget &window)
{
    QByteArray clipped;
    for (CStretchBitmapButton *button : buttonsOf(window)) {
        button->show(); // each has its place, but no screen has all of them
        button->layout()->activate();
        const QLabel *caption = captionOf(*button);
        const QSize needed = neededBy(*caption);
        const QSize available = caption->size() - QSize(rimPx, 0);
        if (!fits(needed, available))
            clipped += complaint(caption->text(), needed, available) + '\n';
    }
    return clipped;
}

// What is wrong with the message box that an action shows; it is closed at once.
QByteArray troubleWithBoxOf(const std::function<void()> &action)
{
    QByteArray trouble = "no box came";
    QElapsedTimer sinceFirst;
    const BoxGlance user([&](QWidget &box) {
        if (!sinceFirst.isValid())
            sinceFirst.start();
        const bool isInside = QRect(QPoint(), screenSize).contains(box.geometry());
        if (!isInside && sinceFirst.elapsed() < 5000)
            return; // the window manager may be about to place it
        trouble = clippedTextsOf(box);
        if (!isInside)
            trouble += complaint("a box beyond the screen", box.frameSize(), screenSize);
        box.close();
    });
    action();
    return trouble;
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
    void initTestCase();
    void init();
    void cleanup();
    void everyCaptionFitsItsButton_data() { addLanguageRows(); }
    void everyCaptionFitsItsButton();
    void aCaptionTooLongForItsButtonIsNoticed();
    void tilesShowTheirNumbersAndButtonsWhole_data() { addLanguageRows(); }
    void tilesShowTheirNumbersAndButtonsWhole();
    void theFontsHaveEveryLetter_data() { addLanguageRows(); }
    void theFontsHaveEveryLetter();
    void aLetterThatNoFontHasIsNoticed();
    void aTextTooLongForItsRowIsNoticed();
    void messagesAreShownWhole_data() { addLanguageRows(); }
    void messagesAreShownWhole();
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

    std::unique_ptr<QTranslator> m_translator;
};

void TranslatedLayoutTest::initTestCase()
{
    screenSize = QGuiApplication::primaryScreen()->availableGeometry().size();
    const int height = 768;
    QCOMPARE(screenSize,
             QSize(qEnvironmentVariableIntValue("QT_FONT_DPI") > 144 ? 1366 : 1024, height));
}

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
    if (language == QLatin1String("ar") || language == QLatin1String("he"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
}

void TranslatedLayoutTest::everyCaptionFitsItsButton()
{
    QFETCH(QString, language);
    speak(language);
    DialogFixture fixture;
    const CVistrelDlg &window = fixture.build();
    const auto buttons = buttonsOf(window);
    QVERIFY(buttons.size() >= 17);
    const QByteArray clipped = clippedCaptionsOf(window);
    QVERIFY2(clipped.isEmpty(), clipped.constData());
    for (const CStretchBitmapButton *button : buttons) {
        QVERIFY2(!captionOf(*button)->text().isEmpty(), qPrintable(button->objectName()));
        QVERIFY2(captionOf(*button)->width() > 90, qPrintable(button->objectName()));
    }
}

void TranslatedLayoutTest::aCaptionTooLongForItsButtonIsNoticed()
{
    DialogFixture fixture;
    const CVistrelDlg &window = fixture.build();
    auto &settings = static_cast<CStretchBitmapButton &>(fixture.button("Settings"));
    settings.setCaptionText(QStringLiteral("Grundeinstellungen"));
    QVERIFY(clippedCaptionsOf(window).startsWith("\"Grundeinstellungen\""));
    settings.setCaptionText(QStringLiteral("1\n2\n3\n4"));
    QVERIFY(clippedCaptionsOf(window).startsWith("\"1\n2\n3\n4\""));
    settings.setCaptionText(QStringLiteral("Settings"));
    QCOMPARE(clippedCaptionsOf(window), QByteArray());
}

void TranslatedLayoutTest::tilesShowTheirNumbersAndButtonsWhole()
{
    QFETCH(QString, language);
    speak(language);
    DialogFixture fixture;
    CVistrelDlg &window = fixture.build();
    QStringList names;
    for (int i = 0; i < mostTiles; ++i)
        names.append(QStringLiteral("photo%1.png").arg(i)); // none is there: the tiles stay black
    window.SetPictureListMode(names);
    int tiles = 0;
    for (PictureWidget *tile :
         window.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        const auto *zoom = tile->findChild<CStretchBitmapButton *>(QStringLiteral("Zoom"));
        if (!zoom)
            continue; // the view of single photos
        ++tiles;
        QVERIFY(zoom->isVisible() && !zoom->size().isEmpty());
        QVERIFY(tile->rect().contains(zoom->geometry()));
        QCOMPARE(captionOf(*zoom)->text(), QString()); // the bitmap says it all
        const QByteArray clipped = clippedTextsOf(*tile);
        QVERIFY2(clipped.isEmpty(), clipped.constData());
    }
    QCOMPARE(tiles, mostTiles);
}

void TranslatedLayoutTest::theFontsHaveEveryLetter()
{
    QFETCH(QString, language);
    speak(language);
    const QFont font(QStringLiteral("Arial"), 11);
    QStringList texts;
    for (const Text &text : {Text{"CVistrelDlg", "Back to the live picture"},
                             Text{"PictureWidget", "Shows this photo as large as possible"},
                             Text{"TimerWidget", "Self-timer, recording time or playing time"},
                             Text{"SaveConfirmDlg", "Do you want to save the Photo / Movie data?"},
                             Text{"QPlatformTheme", "Cancel"}})
        texts.append(inLanguage(text));
    for (const Text &message : boxTexts)
        texts.append(inLanguage(message));
    DialogFixture fixture;
    for (const CStretchBitmapButton *button : buttonsOf(fixture.build()))
        texts.append(captionOf(*button)->text().remove(QLatin1Char('\n')));
    for (const QString &text : qAsConst(texts))
        QVERIFY2(!hasALetterWithoutAShape(text, font), qPrintable(text));
}

void TranslatedLayoutTest::aLetterThatNoFontHasIsNoticed()
{
    QVERIFY(hasALetterWithoutAShape(QString(QChar(0xE123)), QFont(QStringLiteral("Arial"), 11)));
}

void TranslatedLayoutTest::aTextTooLongForItsRowIsNoticed()
{
    QWidget box;
    auto *row = new QWidget(&box);
    row->setGeometry(0, 0, 100, 60);
    auto *columns = new QHBoxLayout(row);
    auto *label = new QLabel(QStringLiteral("Short"), row);
    columns->addWidget(label);
    box.show();
    QVERIFY(clippedTextsOf(box).isEmpty());
    label->setText(QStringLiteral("Longer than a hundred pixels"));
    columns->activate();
    QVERIFY(!clippedTextsOf(box).isEmpty());
}

void TranslatedLayoutTest::messagesAreShownWhole()
{
    QFETCH(QString, language);
    speak(language);
    for (const Text &message : boxTexts) {
        QVERIFY2(!m_translator->translate(message.context, message.source).isEmpty(),
                 message.source);
        const QByteArray trouble =
            troubleWithBoxOf([&] { WebcamUtil::WarningMessage(inLanguage(message), nullptr); });
        QVERIFY2(trouble.isEmpty(), trouble.constData());
    }
    const QByteArray trouble =
        troubleWithBoxOf([] { WebcamUtil::ShowDiskWorningMessage(nullptr); });
    QVERIFY2(trouble.isEmpty(), trouble.constData());
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
    QVERIFY(fits(settings.frameSize(), screenSize));
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
    QVERIFY(fits(question.size(), screenSize));
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
    QVERIFY(needed.width() < screenSize.width() / 2);
}

QTEST_MAIN(TranslatedLayoutTest)
#include "tst_translatedlayout.moc"
