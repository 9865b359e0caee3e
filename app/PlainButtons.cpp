#include "PlainButtons.h"

#include <QStyleOption>

QSize PlainButtons::sizeFromContents(ContentsType type, const QStyleOption *option,
                                     const QSize &size, const QWidget *widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
    case CT_ToolButton:
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_MenuItem: // the entries of an open combo box as well
        return own.expandedTo(QSize(leastTarget, leastTarget));
    default:
        return own;
    }
}

QRect PlainButtons::subElementRect(SubElement element, const QStyleOption *option,
                                   const QWidget *widget) const
{
    if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

int PlainButtons::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *data) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
}
