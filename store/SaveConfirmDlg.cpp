#include "SaveConfirmDlg.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

static constexpr int discard = -1; // beside the toolkit's own results, 0 and 1

SaveConfirmDlg::SaveConfirmDlg(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setResult(discard);
    setTitleBar();
    createControls();
    layOut();

    const QSize available = QGuiApplication::primaryScreen()->availableGeometry().size();
    m_centredX = available.width() / 2 - width() / 2;
    m_centredY = available.height() / 2 - height() / 2;

    adjustSize();
    setFixedSize(size());
}

void SaveConfirmDlg::setTitleBar()
{
    setWindowTitle(tr("Orvanta"));
    setWindowIcon(QIcon(QStringLiteral(":/res/appicon.png")));
    // A title bar without a close button, on a window that stays above the others.
    Qt::WindowFlags flags = windowFlags();
    flags &= ~(Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint | Qt::CustomizeWindowHint
               | Qt::WindowStaysOnTopHint);
    setWindowFlags(flags | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint);
}

void SaveConfirmDlg::createControls()
{
    // 11 points; the weight is 5 of 99 (normal is 50), which gets the font's thinnest cut.
    const QFont font(QStringLiteral("Arial"), 11, 5, false);

    m_message = new QLabel(tr("Do you want to save the Photo / Movie data?"), this);
    m_message->setFont(font);

    const auto addButton = [this, &font](const QString &caption) {
        auto *button = new QPushButton(caption, this);
        button->setFont(font);
        button->setMinimumSize(96, 44); // large enough for a finger
        return button;
    };
    m_yes = addButton(tr("Yes"));
    m_no = addButton(tr("No"));
    m_cancel = addButton(tr("Cancel"));

    connect(m_yes, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_no, &QPushButton::clicked, this, &SaveConfirmDlg::savecancel);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SaveConfirmDlg::layOut()
{
    auto *rows = new QVBoxLayout(this);
    auto *messageRow = new QHBoxLayout;
    messageRow->addWidget(m_message);
    rows->addLayout(messageRow);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_yes);
    buttonRow->addWidget(m_no);
    buttonRow->addWidget(m_cancel);
    rows->addLayout(buttonRow);
}

void SaveConfirmDlg::showEvent(QShowEvent * /*event*/)
{
    adjustPosition(parentWidget());
}

void SaveConfirmDlg::savecancel()
{
    done(discard);
}
