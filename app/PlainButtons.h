#ifndef PLAINBUTTONS_H
#define PLAINBUTTONS_H

#include <QProxyStyle>

/**
 * The desktop's style for all boxes, the toolkit's own included, but:
 * - without icons on their buttons. The captions say it all, and where texts are read from the
 *   right the toolkit pushes a caption that stands beside an icon to the button's rim.
 * - with everything that a finger is to hit at least leastTarget px high and wide. A check box or
 *   radio button is hit wherever it stands, not on its text alone.
 */
class PlainButtons : public QProxyStyle {
    Q_OBJECT

public:
    static constexpr int leastTarget = 44; ///< px of the layout, about 9 mm on a classroom's screen

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
};

#endif
