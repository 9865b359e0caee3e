#ifndef PLAINBUTTONS_H
#define PLAINBUTTONS_H

#include <QProxyStyle>

/**
 * The desktop's style, but without icons on the buttons of boxes, the toolkit's own boxes included.
 * The captions say it all, and where texts are read from the right the toolkit pushes a caption
 * that stands beside an icon to the button's rim.
 */
class PlainButtons : public QProxyStyle {
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
};

#endif
