#include "PictureListView.h"

#include "PictureLoader.h"
#include "WebcamUtil.h"

#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>

#include <array>

static constexpr int maximalSelection = 9; // as many as the window shows side by side
static constexpr int tileSpacing = 10; // px

// With a tick in its top right corner, white on a black disc, to be seen on any picture.
static QPixmap ticked(const QPixmap &bare)
{
    if (bare.isNull())
        return bare;
    QPixmap picture = bare;
    const QSizeF size = QSizeF(picture.size()) / picture.devicePixelRatioF();
    const double disc = qMin(size.width(), size.height()) / 3;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size.width() - disc, 0);
    painter.scale(disc, disc);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QRectF(0, 0, 1, 1));
    painter.setPen(QPen(Qt::white, 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const std::array<QPointF, 3> tick{QPointF(0.25, 0.52), QPointF(0.44, 0.72),
                                      QPointF(0.76, 0.32)};
    painter.drawPolyline(tick.data(), int(tick.size()));
    painter.end();
    return picture;
}

PictureListView::PictureListView(QWidget *parent)
    : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setSpacing(tileSpacing);
    setFlow(QListView::TopToBottom);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A tile with its spacing may be some pixels higher than the strip; it must not bob up and
    // down.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this] { verticalScrollBar()->setRange(0, 0); });
    setTextElideMode(Qt::ElideMiddle);
    setSelectionMode(QAbstractItemView::MultiSelection);

    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::black);
    // Chosen photos must stand out as well while a button has the focus.
    colors.setColor(QPalette::Highlight, QColor(0, 88, 168));
    colors.setColor(QPalette::HighlightedText, Qt::white); // 7:1 on that
    setPalette(colors);
    setBackgroundRole(QPalette::Base);

    setAccessibleName(tr("Captured pictures"));
    setAccessibleDescription(tr("Choose up to nine photos, or one movie"));
    connect(this, &QListWidget::itemSelectionChanged, this, &PictureListView::selectedItem);
}

PictureListView::~PictureListView()
{
    PictureLoader::shared().forget(this);
}

void PictureListView::AddPicture(const QString &name)
{
    if (addItem(name))
        showThumbnail(name, PictureLoader::shared().now(name, thumbnailSize()));
}

void PictureListView::AddPicture(const QStringList &names)
{
    for (const QString &name : names)
        if (addItem(name))
            PictureLoader::shared().later(
                name, thumbnailSize(), this,
                [this, name](const QImage &thumbnail) { showThumbnail(name, thumbnail); });
}

// The item as it is without its thumbnail; null when the strip has one of this name.
QListWidgetItem *PictureListView::addItem(const QString &name)
{
    if (m_itemNames.contains(name))
        return nullptr;
    if (iconSize().isEmpty())
        chooseIconSize();
    auto *item = new QListWidgetItem(this);
    item->setBackground(Qt::black);
    item->setForeground(Qt::white);
    item->setSizeHint(itemSize());
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setText(m_movieMode ? WebcamUtil::movieNameOf(name) : name);
    m_itemNames.append(name);
    return item;
}

// Width and height are crossed on purpose: the strip flows downwards, and tiles are as wide as the
// strip is high. One tile fills the height, so the next one starts a column.
QSize PictureListView::itemSize() const
{
    return {height(), iconSize().width()};
}

// A strip that becomes another size while it is in use; a thumbnail is not enlarged, though.
void PictureListView::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    if (count() == 0 || iconSize() == pictureSizeIn(height()))
        return;
    chooseIconSize();
    for (int i = 0; i < count(); ++i)
        item(i)->setSizeHint(itemSize());
}

void PictureListView::showThumbnail(const QString &name, const QImage &thumbnail)
{
    QListWidgetItem *shown = item(m_itemNames.indexOf(name));
    if (!shown)
        return;
    QPixmap pixmap = QPixmap::fromImage(thumbnail);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    QIcon icon(pixmap);
    // The tile is lit when chosen, its picture stays clear; who cannot tell the colour sees a tick.
    icon.addPixmap(ticked(pixmap), QIcon::Selected);
    shown->setIcon(icon);
}

// In the screen's own pixels.
QSize PictureListView::thumbnailSize() const
{
    return (QSizeF(iconSize()) * devicePixelRatioF()).toSize();
}

void PictureListView::AddPictureWithSelect(const QString &name)
{
    AddPicture(name);
    m_selectedNames.append(name);
}

// Two thirds of the strip are picture, of about 4:3; a line of text (9 to 14 px, as much as a strip
// of any screen has room for) and the scroll bar share the rest.
void PictureListView::chooseIconSize()
{
    setIconSize(pictureSizeIn(height()));
    QFont nameFont = font();
    nameFont.setPixelSize(qBound(9, height() / 13, 14));
    setFont(nameFont);
}

QSize PictureListView::pictureSizeIn(int height)
{
    const int iconHeight = height / 3 * 2;
    return {static_cast<int>(iconHeight * 1.3), iconHeight};
}

// The whole tile is lit when chosen, not its name alone: that is what the back row can see.
QStyleOptionViewItem PictureListView::viewOptions() const
{
    QStyleOptionViewItem options = QListWidget::viewOptions();
    options.showDecorationSelected = true;
    return options;
}

void PictureListView::UnSelect(const QString &name)
{
    m_selectedNames.removeOne(name);
}

void PictureListView::OnSelect(const QString &name)
{
    if (m_selectedNames.contains(name))
        return;
    if (m_selectedNames.size() >= maximalSelection) {
        if (currentItem())
            currentItem()->setSelected(false);
        warnOfLimit();
        return;
    }
    QString taken = name;
    if (m_movieMode) {
        // A pattern, so that a name with any other sign than a dot there finds its picture as well.
        taken.replace(QRegularExpression(QStringLiteral(".mov")), QStringLiteral("tmp.png"));
        m_selectedNames.clear();
    }
    m_selectedNames.append(taken);
    m_lastSelected = taken;
}

void PictureListView::selectedItem()
{
    const bool refused = deselectBeyondLimit();
    m_selectedNames.clear();
    const QList<QListWidgetItem *> chosen = selectedItems();
    for (const QListWidgetItem *item : chosen)
        OnSelect(item->text());
    Q_EMIT selectedPhoto();
    if (refused)
        warnOfLimit();
}

// A press or a key selects the current item; a rubber band or "select all" can bring many at once.
// Returns whether anything had to be refused.
bool PictureListView::deselectBeyondLimit()
{
    if (selectedItems().size() <= maximalSelection)
        return false;
    const QSignalBlocker oneSelectionChangeIsEnough(this);
    if (currentItem())
        currentItem()->setSelected(false);
    const QList<QListWidgetItem *> chosen = selectedItems();
    for (int i = maximalSelection; i < chosen.size(); ++i)
        chosen[i]->setSelected(false);
    return true;
}

void PictureListView::warnOfLimit()
{
    WebcamUtil::WarningMessage(tr("You can not select 10 or more."), this);
}

void PictureListView::setMovieMode(bool b)
{
    m_movieMode = b;
    setSelectionMode(b ? QAbstractItemView::SingleSelection : QAbstractItemView::MultiSelection);
}

void PictureListView::setPictSize(const QSize &size)
{
    setIconSize(size);
}

void PictureListView::Release()
{
    PictureLoader::shared().forget(this);
    {
        // A strip that is being left has nothing more to say about its selection.
        const QSignalBlocker leaving(this);
        clear();
    }
    m_selectedNames.clear();
    m_itemNames.clear();
    hide();
}
