#include "PlainButtons.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include <memory>

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
    void everythingToPressIsLargeEnoughForAFinger();
    void aCheckBoxIsHitBesideItsText();
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

void PlainButtonsTest::everythingToPressIsLargeEnoughForAFinger()
{
    QApplication::setStyle(new PlainButtons);
    QComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    QPushButton button(QStringLiteral("OK"));
    QToolButton small;
    small.setText(QStringLiteral("..."));
    QCheckBox check(QStringLiteral("a"));
    QRadioButton radio(QStringLiteral("a"));
    QLineEdit line;
    for (const QWidget *each :
         std::initializer_list<QWidget *>{&box, &button, &small, &check, &radio, &line}) {
        QVERIFY2(each->sizeHint().height() >= 44, each->metaObject()->className());
        QVERIFY2(each->sizeHint().width() >= 44, each->metaObject()->className());
    }
    QVERIFY(box.view()->sizeHintForRow(0) >= 44); // of the open list
    const QMessageBox message(QMessageBox::Warning, QString(), QStringLiteral("a"),
                              QMessageBox::Ok);
    QVERIFY(message.button(QMessageBox::Ok)->sizeHint().height() >= 44);
}

void PlainButtonsTest::aCheckBoxIsHitBesideItsText()
{
    QApplication::setStyle(new PlainButtons);
    for (QAbstractButton *button :
         std::initializer_list<QAbstractButton *>{new QCheckBox, new QRadioButton}) {
        const std::unique_ptr<QAbstractButton> owner(button);
        button->resize(200, 44);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(190, 3));
        QVERIFY2(button->isChecked(), button->metaObject()->className());
    }
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
