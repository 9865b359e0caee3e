#include "SelectDeviceDlg.h"

#include "TextSize.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int plainWidth = 200; // px

// Of the normal 50, on the toolkit's scale from 0 to 99: the font's thinnest, like the other texts.
constexpr int hairlineWeight = 5;

int dialogWidth()
{
    return qRound(plainWidth * TextSize::factor());
}

QString ownCameraModel()
{
    return QStringLiteral("Tavelin VX-2K");
}

// A dialog above all other windows, the program's own raised one included, without a "?" button.
Qt::WindowFlags chooserFlags(Qt::WindowFlags flags)
{
    flags &=
        ~(Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowContextHelpButtonHint);
    return flags | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint;
}

} // namespace

SelectDeviceDlg::SelectDeviceDlg(QWidget *parent)
    : QDialog(parent)
    , m_deviceBox(new QComboBox(this))
    , m_okButton(new QPushButton(tr("OK"), this))
    , m_promptLabel(new QLabel(tr("Please select a device:"), this))
{
    setWindowTitle(tr("Orvanta"));
    setWindowIcon(QIcon(QPixmap(QStringLiteral(":/res/appicon.png"))));
    setWindowFlags(chooserFlags(windowFlags()));
    setModal(true);

    const QFont font(QStringLiteral("Arial"), 11, hairlineWeight, false);
    m_promptLabel->setFont(font);
    m_okButton->setFont(font);

    m_promptLabel->setWordWrap(true); // some languages need two lines

    // Without this a camera with a long name would push the box out of the dialog.
    m_deviceBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_deviceBox->setAccessibleName(tr("Camera"));
    m_deviceBox->setAccessibleDescription(m_promptLabel->text());
    m_promptLabel->setBuddy(m_deviceBox);

    auto *column = new QVBoxLayout(this);
    column->addWidget(m_promptLabel);
    column->addWidget(m_deviceBox);
    column->addWidget(m_okButton);
    setFixedWidth(dialogWidth());

    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
}

QSize SelectDeviceDlg::sizeHint() const
{
    return {dialogWidth(), layout()->totalHeightForWidth(dialogWidth())};
}

void SelectDeviceDlg::setVideoDeviceList(const QStringList &names)
{
    QStringList shown;
    const auto take = [&](int index) {
        shown.append(names.at(index));
        m_indexMap.append(index);
    };

    m_indexMap.clear();
    for (int i = 0; i < names.size(); ++i)
        if (names.at(i).contains(ownCameraModel()))
            take(i);
    for (int i = 0; i < names.size(); ++i)
        if (!m_indexMap.contains(i))
            take(i);
    m_deviceBox->addItems(shown);
    m_deviceBox->setCurrentIndex(0);

    // The open list is as wide as its longest name: two cameras of one model differ at the end.
    QAbstractItemView *list = m_deviceBox->view();
    list->setMinimumWidth(list->sizeHintForColumn(0));
}

int SelectDeviceDlg::getVideoDevice()
{
    return m_indexMap.value(m_deviceBox->currentIndex(), -1);
}

QString SelectDeviceDlg::getVideoDeviceName()
{
    return m_deviceBox->currentText();
}
