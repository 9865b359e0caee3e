#ifndef PICTUREWIDGET_H
#define PICTUREWIDGET_H

#include <QPixmap>
#include <QWidget>

class CStretchBitmapButton;
class QLabel;

/**
 * One captured photo on black, as large as fits, with a caption in its top left corner and "Zoom"
 * or "Back" in its bottom right one.
 *
 * A widget is filled by Loadbmp() or loadLater() and emptied by Release(), any number of times. The
 * picture is kept in the size it was last painted in; Loadbmp() and reload() bring the full quality
 * back. A file that cannot be read shows as bare black.
 */
class PictureWidget : public QWidget {
    Q_OBJECT

public:
    explicit PictureWidget(QWidget *parent, Qt::WindowFlags f = {});
    ~PictureWidget() override;

    /// @p name is a bare file name in the temporary area; an empty one loads the same file again. A
    /// picture larger than a camera's usual ones is loaded as by loadLater().
    void Loadbmp(const QString &name);
    /// Like Loadbmp(), but returns at once: the widget stays black until a worker has read the
    /// picture, in the size that the widget has now.
    void loadLater(const QString &name);
    /// Shows @p picture, which the file of that name holds or will hold; reads nothing.
    void showPicture(const QString &name, const QImage &picture);
    /// Loads its own file again in the size that the widget has now, and reads it only if the
    /// loader does not know it in that size.
    void reload();
    void Release();

    /// Shows "Back" and an empty caption. The button is placed for the widget's present size.
    void ZoomMode();
    /// Shows "Zoom" and the caption. The button is placed for the widget's present size.
    void ListMode();

    void labelVisible(bool b);
    void setLabelText(const QString &text);

    QString fileName() const { return m_fileName; } ///< empty when released
    bool hasPicture() const { return !m_pixmap.isNull(); } ///< it can be read, and has been
    QString labelText() const;

Q_SIGNALS:
    // Each call of ZoomMode() or ListMode() adds one emission to every later click on its button:
    // receivers are asked once or several times for one click.
    void onZoom(PictureWidget *pict);
    void onBack(PictureWidget *pict);

public Q_SLOTS:
    void OnZoom();
    void OnBack();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void createButtons();
    void placeInCorner(QWidget *button) const;
    QSize sizeOnScreen() const;

    QString m_fileName;
    QPixmap m_pixmap;
    QSize m_fittedSize; ///< the pixmap comes fitted into this size; empty once it was painted
    QLabel *m_label = nullptr;
    CStretchBitmapButton *m_zoomButton = nullptr; ///< null before the first mode
    CStretchBitmapButton *m_backButton = nullptr; ///< null before the first mode
};

#endif
