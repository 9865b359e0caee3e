#ifndef PICTURELISTVIEW_H
#define PICTURELISTVIEW_H

#include <QListWidget>
#include <QStringList>

/**
 * The strip of thumbnails of what was captured, for choosing up to nine photos or one movie.
 *
 * Names are bare file names in the temporary area. A movie goes by the name of its still picture
 * ("...tmp.png") everywhere but in the text beneath its thumbnail, which is the movie's own
 * ("....mov"). A picture that cannot be read still gets its item, with an empty icon.
 *
 * A list of names gives all its items at once; the thumbnails come in while the strip is already
 * in use, as the loader has read them.
 *
 * Choosing a tenth photo is refused: it is deselected again and the user is told once, after
 * selectedPhoto() has gone out, in a modal box that has returned when the selecting call returns.
 */
class PictureListView : public QListWidget {
    Q_OBJECT

public:
    /// How large the thumbnails of a strip of this height are, as it chooses by itself.
    static QSize pictureSizeIn(int height);

    explicit PictureListView(QWidget *parent);
    ~PictureListView() override;

    void AddPicture(const QString &name); ///< ignored if already in the strip
    void AddPicture(const QStringList &names);
    /// Adds the picture and its name to the selected names, with no regard to the limit; selecting
    /// the item is left to the caller.
    void AddPictureWithSelect(const QString &name);
    void UnSelect(const QString &name);
    void OnSelect(const QString &name);
    void setMovieMode(bool b); ///< to be called while the strip is empty
    /// An empty size lets the next picture added choose one that suits the strip's height.
    void setPictSize(const QSize &size);
    /// Empties and hides the strip; lastSelected() stays.
    void Release();

    const QStringList &selectedNames() const { return m_selectedNames; } ///< in order of choosing
    void clearSelectedNames() { m_selectedNames.clear(); } ///< the items keep their look
    QString lastSelected() const { return m_lastSelected; } ///< last name taken into the selection
    bool movieMode() const { return m_movieMode; }

Q_SIGNALS:
    void selectedPhoto(); ///< selectedNames() has been built anew

public Q_SLOTS:
    void selectedItem();

protected:
    QStyleOptionViewItem viewOptions() const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void chooseIconSize();
    QListWidgetItem *addItem(const QString &name);
    QSize itemSize() const;
    QSize thumbnailSize() const;
    void showThumbnail(const QString &name, const QImage &thumbnail);
    bool deselectBeyondLimit();
    void warnOfLimit();

    QStringList m_selectedNames;
    QStringList m_itemNames; ///< all in the strip, in order of adding
    QString m_lastSelected;
    bool m_movieMode = false;
};

#endif
