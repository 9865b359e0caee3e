#include "Setting.h"

#include "IniText.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <cstdio>
#include <sys/stat.h>

static const QString emptyFile = QStringLiteral("/dev/null");
static constexpr int lockLimit = 2000; // ms; nobody writes so small a file for longer

namespace {

constexpr int titleBarRoom = 20; // px; for the title bar of a box on a screen it barely fits

QString settingsFile()
{
    return WebcamUtil::getAppPath() + QStringLiteral("/.halcyra_orvantacc.ini");
}

// What people type is UTF-8; only an older editor's file is not.
bool isUtf8(const QByteArray &text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

// The folder under the key. The toolkit writes a comma in quotes and takes one without them for the
// gap between two values; in a line that was typed by hand it belongs to the name.
QString readFolder(const QSettings &file, const QByteArray &contents, const QString &key)
{
    const QVariant value = file.value(key, QString());
    if (value.type() != QVariant::StringList)
        return value.toString();
    const QByteArray written = IniText::written(contents, key.toLatin1());
    return isUtf8(written) ? QString::fromUtf8(written) : QString::fromLatin1(written);
}

// Takes the number under the key, if it is in range; returns what was read in any case.
int readNumber(const QSettings &file, const QString &key, int absent, int least, int most,
               int &preference)
{
    const int value = file.value(key, absent).toInt();
    if (least <= value && value <= most)
        preference = value;
    return value;
}

// A file that the toolkit must not read is put aside, where the user finds it, and makes room for a
// new one. A folder stays.
bool isReadyToBeWritten(const QString &path)
{
    const QByteArray contents = IniText::contents(path);
    if (!IniText::isUnreadable(path) && IniText::isPlain(contents))
        return true;
    const QByteArray name = QFile::encodeName(path);
    return !QFileInfo(path).isDir()
        && std::rename(name.constData(), (name + ".damaged").constData()) == 0;
}

// The toolkit would wait without end for whoever has the lock, and for what is no lock at all.
bool canBeLocked(const QString &path)
{
    const QString name = path + QStringLiteral(".lock");
    struct stat status = {};
    if (lstat(QFile::encodeName(name).constData(), &status) == 0 && !S_ISREG(status.st_mode))
        return false;
    QLockFile lock(name);
    return lock.tryLock(lockLimit) || lock.error() != QLockFile::LockFailedError;
}

void select(QComboBox &box, const QString &text, int otherwise)
{
    const int index = box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    box.setCurrentIndex(index < 0 ? otherwise : index);
}

} // namespace

Setting::Setting(QWidget *parent)
    : QDialog(parent)
{
    setAutoFillBackground(true);
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowStaysOnTopHint);
    hide();
    m_ui.setupUi(this);

    m_defaultSaveDirectory = WebcamUtil::getDocumentPath();
    setDefaultValue();
    setCaptions();
    setCmbValue();
    readFile();
    setParam();
    connectControls();

    fitRowsToTexts();
    adjustSize();
    setFixedSize(size());
    m_roomyHeight = height();
    for (const QWidget *row : rows())
        m_rowTops.append(row->y());
}

void Setting::showEvent(QShowEvent * /*event*/)
{
    readFile();
    setParam();
    fitRowsToScreen();
    adjustPosition(parentWidget());
}

void Setting::setDefaultValue()
{
    m_autoShootingTimes = QStringList{"1", "2", "3", "4", "5", "10", "15", "20", "30"};
    m_continuousCounts = QStringList{"2", "3", "4", "6", "9"};
    m_resolutions = QStringList{"640x480"};
}

void Setting::setCmbValue()
{
    m_ui.cmbResolution->clear();
    m_ui.cmbAutoShooting->clear();
    m_ui.cmbContinuousShooting->clear();
    m_ui.cmbResolution->addItems(m_resolutions);
    m_ui.cmbAutoShooting->addItems(m_autoShootingTimes);
    m_ui.cmbContinuousShooting->addItems(m_continuousCounts);
}

void Setting::setCaptions()
{
    m_ui.chbAutoShooting->setText(tr("Self Timer"));
    m_ui.lblShootingInterval->setText(tr("second"));
    m_ui.lblContinuousShooting->setText(tr("Continuous Capture"));
    m_ui.lblShootingCount->setText(tr("Shots"));
    m_ui.chbPhotoPreview->setText(tr("Confirm captured image"));
    m_ui.lblResolution->setText(tr("Resolution"));
    m_ui.btnOk->setText(tr("OK"));
    m_ui.btnCancel->setText(tr("Cancel"));
    m_ui.rbtnDefault->setText(tr("Use default location"));
    m_ui.rbtnCustom->setText(tr("Use other location"));
    m_ui.label->setText(tr("Save Directry:"));
    // The other boxes are named by their labels; these two have none.
    m_ui.cmbAutoShooting->setAccessibleName(tr("Self Timer"));
    // Some desktops' readers take a box's value for its name.
    m_ui.cmbAutoShooting->setAccessibleDescription(tr("Self Timer"));
    m_ui.cmbContinuousShooting->setAccessibleDescription(tr("Continuous Capture"));
    m_ui.cmbResolution->setAccessibleDescription(tr("Resolution"));
    m_ui.tolSaveDirectory->setAccessibleName(tr("SaveDirectory"));
}

// Rows have fixed places. Where a language or a large text needs more room all of them become wider
// together, and the boxes and the words behind them equally wide, so that they stay in columns.
void Setting::fitRowsToTexts()
{
    const std::array<QComboBox *, 3> boxes = {m_ui.cmbAutoShooting, m_ui.cmbContinuousShooting,
                                              m_ui.cmbResolution};
    int boxWidth = 0;
    for (const QComboBox *box : boxes)
        boxWidth = std::max({boxWidth, box->minimumWidth(), box->sizeHint().width()});
    for (QComboBox *box : boxes)
        box->setFixedWidth(boxWidth);

    const std::array<QLabel *, 3> units = {m_ui.lblShootingInterval, m_ui.lblShootingCount,
                                           m_ui.lblShootingCount_2};
    int unitWidth = 0;
    for (const QLabel *unit : units)
        unitWidth = std::max({unitWidth, unit->minimumWidth(), unit->sizeHint().width()});
    for (QLabel *unit : units)
        unit->setMinimumWidth(unitWidth);

    const QList<QWidget *> rows = this->rows();
    int width = 0;
    int missing = 0; // of the height of a row
    for (const QWidget *row : rows) {
        width = std::max({width, row->width(), row->sizeHint().width()});
        missing = std::max(missing, row->sizeHint().height() - row->height());
    }
    for (int i = 0; i < rows.size(); ++i)
        rows[i]->setGeometry(rows[i]->x(), rows[i]->y() + i * missing, width,
                             rows[i]->height() + missing);
}

// From the top to the bottom.
QList<QWidget *> Setting::rows() const
{
    auto rows = findChildren<QWidget *>(
        QRegularExpression(QStringLiteral("^horizontalLayoutWidget")), Qt::FindDirectChildrenOnly);
    std::sort(rows.begin(), rows.end(),
              [](const QWidget *one, const QWidget *other) { return one->y() < other->y(); });
    return rows;
}

// On a low screen rows move together, as far as they do not overlap. There is one when a large
// screen that everything is drawn large for gives way to a small one.
void Setting::fitRowsToScreen()
{
    const QWidget *where = parentWidget() ? parentWidget()->window() : this;
    const int available = where->screen()->availableGeometry().height() - titleBarRoom;
    const QList<QWidget *> rows = this->rows();
    int spare = m_roomyHeight; // what the rows leave free
    for (const QWidget *row : rows)
        spare -= row->height();
    const int missing = qBound(0, m_roomyHeight - available, qMax(0, spare));
    int above = 0; // what is free above the row where there is room
    for (int i = 0; i < rows.size(); ++i) {
        const int before = i > 0 ? m_rowTops[i - 1] + rows[i - 1]->height() : 0;
        above += m_rowTops[i] - before;
        rows[i]->move(rows[i]->x(), m_rowTops[i] - missing * above / qMax(1, spare));
    }
    setFixedHeight(m_roomyHeight - missing);
}

void Setting::connectControls()
{
    connect(m_ui.btnOk, &QPushButton::clicked, this, &Setting::OnOk);
    connect(m_ui.btnCancel, &QPushButton::clicked, this, &Setting::reject);
    connect(m_ui.tolSaveDirectory, &QToolButton::clicked, this, &Setting::setSaveDirectory);
    connect(m_ui.rbtnDefault, &QRadioButton::clicked, this, &Setting::onDefault);
    connect(m_ui.rbtnCustom, &QRadioButton::clicked, this, &Setting::onCustom);
    connect(m_ui.chbAutoShooting, &QCheckBox::clicked, this, &Setting::AutoCheck);
}

void Setting::readFile()
{
    const QByteArray contents = IniText::contents(settingsFile());
    const bool isUsable = !contents.isNull() && IniText::isPlain(contents);
    QSettings file(isUsable ? settingsFile() : emptyFile, QSettings::IniFormat);
    // For reading alone: what the program writes is plain ASCII, which its older versions can read.
    if (isUtf8(contents))
        file.setIniCodec("UTF-8");
    const int autoShooting = readNumber(file, QStringLiteral("AutoShoot"), 1, 0, 1, m_autoShooting);
    m_ui.cmbAutoShooting->setEnabled(autoShooting == 1);
    readNumber(file, QStringLiteral("AutoShootTime"), 5, 1, 30, m_autoShootingTime);
    readNumber(file, QStringLiteral("ContinuShootCount"), 4, 2, 9, m_continuousCount);
    readNumber(file, QStringLiteral("PhotoPreview"), 1, 0, 1, m_photoPreview);
    m_resolution = file.value(QStringLiteral("Resolution"), QString()).toString();
    m_saveDirectory = readFolder(file, contents, QStringLiteral("SaveDirectory"));

    const bool custom = !m_saveDirectory.isEmpty();
    m_ui.rbtnDefault->setChecked(!custom);
    m_ui.rbtnCustom->setChecked(custom);
    m_ui.txbSaveDirectory->setEnabled(custom);
    m_ui.tolSaveDirectory->setEnabled(custom);
}

void Setting::SaveFile()
{
    m_autoShooting = m_ui.chbAutoShooting->isChecked() ? 1 : 0;
    m_autoShootingTime = m_ui.cmbAutoShooting->currentText().toInt();
    m_continuousCount = m_ui.cmbContinuousShooting->currentText().toInt();
    m_photoPreview = m_ui.chbPhotoPreview->isChecked() ? 1 : 0;
    m_resolution = m_ui.cmbResolution->currentText();
    m_saveDirectory = m_ui.rbtnCustom->isChecked() ? m_ui.txbSaveDirectory->text() : QString();

    if (!isReadyToBeWritten(settingsFile()) || !canBeLocked(settingsFile()))
        return; // not noticed, like every other reason why it cannot be written
    QSettings file(settingsFile(), QSettings::IniFormat);
    file.setValue(QStringLiteral("AutoShoot"), m_autoShooting);
    file.setValue(QStringLiteral("AutoShootTime"), m_autoShootingTime);
    file.setValue(QStringLiteral("ContinuShootCount"), m_continuousCount);
    file.setValue(QStringLiteral("PhotoPreview"), m_photoPreview);
    file.setValue(QStringLiteral("Resolution"), m_resolution);
    file.setValue(QStringLiteral("SaveDirectory"), m_saveDirectory);
    file.sync();
}

void Setting::setParam()
{
    m_ui.chbAutoShooting->setChecked(m_autoShooting == 1);
    select(*m_ui.cmbAutoShooting, QString::number(m_autoShootingTime), 0);
    AutoCheck();
    select(*m_ui.cmbContinuousShooting, QString::number(m_continuousCount), 0);
    select(*m_ui.cmbResolution, m_resolution, m_ui.cmbResolution->count() / 2);
    m_ui.txbSaveDirectory->setText(m_saveDirectory.isEmpty() ? m_defaultSaveDirectory
                                                             : m_saveDirectory);
    m_ui.chbPhotoPreview->setChecked(m_photoPreview == 1);
}

bool Setting::getAutoShooting() const
{
    return m_ui.chbAutoShooting->isChecked();
}

int Setting::getAutoShootingTime() const
{
    return m_ui.cmbAutoShooting->currentText().toInt();
}

int Setting::getContinuousShooting() const
{
    const QString count = m_ui.cmbContinuousShooting->currentText();
    return count.isEmpty() ? -1 : count.toInt();
}

bool Setting::getPhotoPreview() const
{
    return m_ui.chbPhotoPreview->isChecked();
}

QString Setting::getSaveDirectory() const
{
    return m_ui.txbSaveDirectory->text();
}

QString Setting::getResolution() const
{
    return m_ui.cmbResolution->currentText();
}

void Setting::setResolutionList(const QStringList &list)
{
    if (list.isEmpty())
        return;
    QStringList resolutions = list;
    resolutions.removeDuplicates();
    m_ui.cmbResolution->clear();
    m_ui.cmbResolution->addItems(resolutions);
    select(*m_ui.cmbResolution, m_resolution, list.size() / 2);
}

void Setting::setCmbResoEnable(bool enable)
{
    m_ui.cmbResolution->setEnabled(enable);
}

void Setting::setBtnSaveEnable(bool enable)
{
    m_browseEnabled = false;
    m_ui.tolSaveDirectory->setEnabled(enable);
}

void Setting::AutoCheck()
{
    m_ui.cmbAutoShooting->setEnabled(m_ui.chbAutoShooting->checkState() == Qt::Checked);
}

void Setting::onDefault()
{
    // A folder that was typed comes back with onCustom().
    m_saveDirectory = m_ui.txbSaveDirectory->text();
    m_ui.txbSaveDirectory->setEnabled(false);
    if (m_browseEnabled)
        m_ui.tolSaveDirectory->setEnabled(false);
    m_ui.txbSaveDirectory->setText(m_defaultSaveDirectory);
}

void Setting::onCustom()
{
    m_ui.txbSaveDirectory->setText(m_saveDirectory);
    m_ui.txbSaveDirectory->setEnabled(true);
    if (m_browseEnabled)
        m_ui.tolSaveDirectory->setEnabled(true);
}

void Setting::setSaveDirectory()
{
    const QString shown = m_ui.txbSaveDirectory->text();
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("SaveDirectory"), shown.isEmpty() ? m_defaultSaveDirectory : shown,
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!chosen.isEmpty())
        m_ui.txbSaveDirectory->setText(chosen);
}

void Setting::OnOk()
{
    if (!m_ui.rbtnCustom->isChecked()) {
        accept();
        return;
    }
    const QString folder = m_ui.txbSaveDirectory->text();
    if (folder.isEmpty())
        WebcamUtil::WarningMessage(tr("Please specify the save location."), this);
    else if (QDir(folder).exists() && WebcamUtil::hasWriteAccess(folder))
        accept();
    else
        WebcamUtil::WarningMessage(tr("Invalid PATH is specified."), this);
}
