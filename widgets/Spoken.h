#ifndef SPOKEN_H
#define SPOKEN_H

#include <QAccessible>

class QString;
class QWidget;

/**
 * What those are told who do not see the screen. A screen reader asks the toolkit, which knows its
 * own buttons and boxes; here is what it cannot know of ours. Costs next to nothing while nobody
 * listens. For the GUI thread.
 */
namespace Spoken {

/**
 * @p widget is told as being of @p role, with all that is in it. To be called first in its
 * constructor: what was asked about before keeps the toolkit's own answers.
 */
void as(QWidget *widget, QAccessible::Role role);

/**
 * The same for a widget that is one thing to its user, whatever it is made of: nothing in it is
 * told. A button can be pressed by those who have neither mouse nor keyboard.
 */
void asWhole(QWidget *widget, QAccessible::Role role);

/**
 * Has @p text said at once, for something that happens without having been looked at. Told by the
 * window that @p where is in, which may be anything of it.
 */
void news(QWidget *where, const QString &text);

} // namespace Spoken

#endif
