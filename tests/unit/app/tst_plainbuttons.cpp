#include "PlainButtons.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

// Of a desktop that wants icons on the buttons of boxes.
class DesktopStyle : public QProxyStyle {
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
            ? 1
            : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

class PlainButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void boxesHaveNoIconsOnTheirButtons();
    void allElseIsTheDesktopsOwn();
};

void PlainButtonsTest::boxesHaveNoIconsOnTheirButtons()
{
    const auto iconOfOk = [](QStyle *style) {
        QApplication::setStyle(style); // takes it over
        const QDialogButtonBox box(QDialogButtonBox::Ok);
        return box.button(QDialogButtonBox::Ok)->icon();
    };
    QVERIFY(!iconOfOk(new DesktopStyle).isNull());
    auto *plain = new PlainButtons;
    plain->setBaseStyle(new DesktopStyle);
    QVERIFY(iconOfOk(plain).isNull());
}

void PlainButtonsTest::allElseIsTheDesktopsOwn()
{
    const PlainButtons plain;
    for (const QStyle::StyleHint hint :
         {QStyle::SH_DialogButtonLayout, QStyle::SH_UnderlineShortcut, QStyle::SH_ToolTip_Mask}) {
        QCOMPARE(plain.styleHint(hint, nullptr, nullptr, nullptr),
                 plain.baseStyle()->styleHint(hint, nullptr, nullptr, nullptr));
    }
}

QTEST_MAIN(PlainButtonsTest)
#include "tst_plainbuttons.moc"
