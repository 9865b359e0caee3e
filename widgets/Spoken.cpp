#include "Spoken.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>

namespace {

constexpr const char *roleProperty = "spokenRole";
constexpr const char *wholeProperty = "spokenAsWhole";
constexpr const char *teller = "teller"; // of a window's news

/** A widget whose labels and frames are nobody's business. */
class WholeWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget()))
            state.pressed = button->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && qobject_cast<const QAbstractButton *>(widget()))
            names.prepend(pressAction());
        return names;
    }

    // Goes down and up again by itself: what it starts may open a box, and the caller waits.
    void doAction(const QString &name) override
    {
        auto *button = qobject_cast<QAbstractButton *>(widget());
        if (button && name == pressAction())
            button->animateClick();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface *interfaceOf(const QString & /*className*/, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    if (!role.isValid())
        return nullptr;
    if (widget->property(wholeProperty).toBool())
        return new WholeWidget(widget, QAccessible::Role(role.toInt()));
    return new QAccessibleWidget(widget, QAccessible::Role(role.toInt()));
}

void tellRole(QWidget *widget, QAccessible::Role role, bool isWhole)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(isInstalled)
    widget->setProperty(roleProperty, int(role));
    widget->setProperty(wholeProperty, isWhole);
}

// Nothing to see, and in nobody's way. Readers say an alert when it appears.
QWidget *tellerOf(QWidget *window)
{
    const QString name = QString::fromLatin1(teller);
    if (auto *known = window->findChild<QWidget *>(name, Qt::FindDirectChildrenOnly))
        return known;
    auto *made = new QWidget(window);
    made->setObjectName(name);
    tellRole(made, QAccessible::AlertMessage, true);
    made->setAttribute(Qt::WA_TransparentForMouseEvents);
    made->resize(0, 0);
    return made;
}

} // namespace

void Spoken::as(QWidget *widget, QAccessible::Role role)
{
    tellRole(widget, role, false);
}

void Spoken::asWhole(QWidget *widget, QAccessible::Role role)
{
    tellRole(widget, role, true);
}

void Spoken::news(QWidget *where, const QString &text)
{
    if (!QAccessible::isActive())
        return;
    QWidget *told = tellerOf(where->window());
    told->hide();
    told->setAccessibleName(text.simplified());
    told->show();
}
