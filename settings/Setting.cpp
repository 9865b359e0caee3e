#include "Setting.h"

#include "WebcamUtil.h"

#include <QDir>
#include <QFileDialog>
#include <QSettings>

namespace {

// The file's keys are part of its format.
const QString autoShootKey = QStringLiteral("AutoShoot");
const QString autoShootTimeKey = QStringLiteral("AutoShootTime");
const QString continuousCountKey = QStringLiteral("ContinuShootCount");
const QString photoPreviewKey = QStringLiteral("PhotoPreview");
const QString resolutionKey = QStringLiteral("Resolution");
const QString saveDirectoryKey = QStringLiteral("SaveDirectory");

QString settingsPath()
{
    return WebcamUtil::getAppPath() + QStringLiteral("/.halcyra_orvantacc.ini");
}

// A value out of its range leaves what was there. Text that is no number reads as 0.
void readInRange(int value, int least, int most, int &into)
{
    if (value >= least && value <= most)
        into = value;
}

// Selects the entry with exactly this text, or @p otherwise.
void select(QComboBox *box, const QString &text, int otherwise)
{
    const int found = box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    box->setCurrentIndex(found >= 0 ? found : otherwise);
}

} // namespace

Setting::Setting(QWidget *parent)
    : QDialog(parent)
{
    setAutoFillBackground(true);
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowStaysOnTopHint);
    hide();
    m_form.setupUi(this);
    m_defaultDirectory = WebcamUtil::getDocumentPath();
    setDefaultValue();
    setCaptions();
    setCmbValue();
    readFile();
    setParam();
    connectControls();
    adjustSize();
    setFixedSize(size());
}

void Setting::connectControls()
{
    connect(m_form.btnOk, &QPushButton::clicked, this, &Setting::OnOk);
    connect(m_form.btnCancel, &QPushButton::clicked, this, &Setting::reject);
    connect(m_form.tolSaveDirectory, &QToolButton::clicked, this, &Setting::setSaveDirectory);
    connect(m_form.rbtnDefault, &QRadioButton::clicked, this, &Setting::onDefault);
    connect(m_form.rbtnCustom, &QRadioButton::clicked, this, &Setting::onCustom);
    connect(m_form.chbAutoShooting, &QCheckBox::clicked, this, &Setting::AutoCheck);
}

void Setting::showEvent(QShowEvent *)
{
    readFile();
    setParam();
    adjustPosition(parentWidget());
}

void Setting::readFile()
{
    const QSettings file(settingsPath(), QSettings::IniFormat);
    const int autoShooting = file.value(autoShootKey, 1).toInt();
    readInRange(autoShooting, 0, 1, m_autoShooting);
    m_form.cmbAutoShooting->setEnabled(autoShooting == 1);
    readInRange(file.value(autoShootTimeKey, 5).toInt(), 1, 30, m_autoShootingTime);
    readInRange(file.value(continuousCountKey, 4).toInt(), 2, 9, m_continuousCount);
    readInRange(file.value(photoPreviewKey, 1).toInt(), 0, 1, m_photoPreview);
    m_resolution = file.value(resolutionKey, QString()).toString();
    m_saveDirectory = file.value(saveDirectoryKey, QString()).toString();

    const bool custom = !m_saveDirectory.isEmpty();
    m_form.rbtnDefault->setChecked(!custom);
    m_form.rbtnCustom->setChecked(custom);
    m_form.txbSaveDirectory->setEnabled(custom);
    m_form.tolSaveDirectory->setEnabled(custom);
}

void Setting::SaveFile()
{
    QSettings file(settingsPath(), QSettings::IniFormat);
    m_autoShooting = getAutoShooting() ? 1 : 0;
    file.setValue(autoShootKey, m_autoShooting);
    m_autoShootingTime = getAutoShootingTime();
    file.setValue(autoShootTimeKey, m_autoShootingTime);
    m_continuousCount = m_form.cmbContinuousShooting->currentText().toInt();
    file.setValue(continuousCountKey, m_continuousCount);
    m_photoPreview = getPhotoPreview() ? 1 : 0;
    file.setValue(photoPreviewKey, m_photoPreview);
    m_resolution = getResolution();
    file.setValue(resolutionKey, m_resolution);
    // Written as an empty text, not as a missing one, for the default location.
    m_saveDirectory =
        m_form.rbtnCustom->isChecked() ? getSaveDirectory() : QString(QLatin1String(""));
    file.setValue(saveDirectoryKey, m_saveDirectory);
    file.sync();
}

void Setting::setParam()
{
    m_form.chbAutoShooting->setChecked(m_autoShooting == 1);
    select(m_form.cmbAutoShooting, QString::number(m_autoShootingTime), 0);
    m_form.cmbAutoShooting->setEnabled(m_form.chbAutoShooting->isChecked());
    select(m_form.cmbContinuousShooting, QString::number(m_continuousCount), 0);
    select(m_form.cmbResolution, m_resolution, m_form.cmbResolution->count() / 2);
    m_form.txbSaveDirectory->setText(m_saveDirectory.isEmpty() ? m_defaultDirectory
                                                               : m_saveDirectory);
    m_form.chbPhotoPreview->setChecked(m_photoPreview == 1);
}

void Setting::setDefaultValue()
{
    m_seconds = QStringLiteral("1 2 3 4 5 10 15 20 30").split(QLatin1Char(' '));
    m_counts = QStringLiteral("2 3 4 6 9").split(QLatin1Char(' '));
    m_resolutions = QStringList{QStringLiteral("640x480")};
}

void Setting::setCmbValue()
{
    m_form.cmbResolution->clear();
    m_form.cmbResolution->addItems(m_resolutions);
    m_form.cmbAutoShooting->clear();
    m_form.cmbAutoShooting->addItems(m_seconds);
    m_form.cmbContinuousShooting->clear();
    m_form.cmbContinuousShooting->addItems(m_counts);
}

void Setting::setCaptions()
{
    m_form.chbAutoShooting->setText(tr("Self Timer"));
    m_form.lblShootingInterval->setText(tr("second"));
    m_form.lblContinuousShooting->setText(tr("Continuous Capture"));
    m_form.lblShootingCount->setText(tr("Shots"));
    m_form.chbPhotoPreview->setText(tr("Confirm captured image"));
    m_form.lblResolution->setText(tr("Resolution"));
    m_form.btnOk->setText(tr("OK"));
    m_form.btnCancel->setText(tr("Cancel"));
    m_form.rbtnDefault->setText(tr("Use default location"));
    m_form.rbtnCustom->setText(tr("Use other location"));
    m_form.label->setText(tr("Save Directry:"));
    // What stands beside a control on the screen is not heard with it.
    m_form.cmbAutoShooting->setAccessibleName(tr("Self Timer"));
    m_form.cmbContinuousShooting->setAccessibleName(tr("Continuous Capture"));
    m_form.cmbResolution->setAccessibleName(tr("Resolution"));
    m_form.txbSaveDirectory->setAccessibleName(tr("Save Directry:"));
    m_form.tolSaveDirectory->setAccessibleName(tr("SaveDirectory"));
}

bool Setting::getAutoShooting() const
{
    return m_form.chbAutoShooting->isChecked();
}

int Setting::getAutoShootingTime() const
{
    return m_form.cmbAutoShooting->currentText().toInt();
}

int Setting::getContinuousShooting() const
{
    const QString text = m_form.cmbContinuousShooting->currentText();
    return text.isEmpty() ? -1 : text.toInt();
}

bool Setting::getPhotoPreview() const
{
    return m_form.chbPhotoPreview->isChecked();
}

QString Setting::getSaveDirectory() const
{
    return m_form.txbSaveDirectory->text();
}

QString Setting::getResolution() const
{
    return m_form.cmbResolution->currentText();
}

void Setting::setResolutionList(const QStringList &list)
{
    if (list.isEmpty())
        return;
    QStringList once = list;
    once.removeDuplicates();
    m_form.cmbResolution->clear();
    m_form.cmbResolution->addItems(once);
    // The middle of the list as it came: with repeated entries it may lie past the end, which
    // leaves none selected.
    const int middle = list.size() / 2;
    select(m_form.cmbResolution, m_resolution, middle < once.size() ? middle : -1);
}

void Setting::setCmbResoEnable(bool enabled)
{
    m_form.cmbResolution->setEnabled(enabled);
}

void Setting::setBtnSaveEnable(bool enabled)
{
    m_browseEnabled = false;
    m_form.tolSaveDirectory->setEnabled(enabled);
}

void Setting::AutoCheck()
{
    m_form.cmbAutoShooting->setEnabled(m_form.chbAutoShooting->checkState() == Qt::Checked);
}

void Setting::onDefault()
{
    m_saveDirectory = m_form.txbSaveDirectory->text(); // a typed path is remembered
    m_form.txbSaveDirectory->setEnabled(false);
    if (m_browseEnabled)
        m_form.tolSaveDirectory->setEnabled(false);
    m_form.txbSaveDirectory->setText(m_defaultDirectory);
}

void Setting::onCustom()
{
    m_form.txbSaveDirectory->setText(m_saveDirectory);
    m_form.txbSaveDirectory->setEnabled(true);
    if (m_browseEnabled)
        m_form.tolSaveDirectory->setEnabled(true);
}

void Setting::setSaveDirectory()
{
    const QString shown = m_form.txbSaveDirectory->text();
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("SaveDirectory"), shown.isEmpty() ? m_defaultDirectory : shown,
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!chosen.isEmpty())
        m_form.txbSaveDirectory->setText(chosen);
}

void Setting::warn(const QString &text)
{
    WebcamUtil::WarningMessage(text, this);
}

void Setting::OnOk()
{
    if (!m_form.rbtnCustom->isChecked()) {
        accept();
        return;
    }
    const QString folder = m_form.txbSaveDirectory->text();
    if (folder.isEmpty())
        warn(tr("Please specify the save location."));
    else if (QDir(folder).exists() && WebcamUtil::hasWriteAccess(folder))
        accept();
    else
        warn(tr("Invalid PATH is specified."));
}
