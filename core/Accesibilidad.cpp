#include "core/Accesibilidad.h"

#include "core/AlfarjeAccesible.h"
#include "core/Controles.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

// A caption as a name: without its '&' marks and its closing colon.
QString comoNombre(const QString& caption)
{
    QString texto = sinAcelerador(caption);
    if (texto.endsWith(u':'))
        texto.chop(1);
    return texto;
}

QString textoPropio(const QWidget* w)
{
    if (const auto* l = qobject_cast<const QLabel*>(w))
        return comoNombre(l->text());
    if (const auto* b = qobject_cast<const QAbstractButton*>(w))
        return comoNombre(b->text());
    return QString();
}

// The widget laid out right before `w` in the same row or column of a layout.
QWidget* delante(const QLayout* disposicion, const QWidget* w)
{
    if (!disposicion)
        return nullptr;
    QWidget* previo = nullptr;
    for (int i = 0; i < disposicion->count(); ++i) {
        QLayoutItem* item = disposicion->itemAt(i);
        if (item->widget() == w)
            return previo;
        if (QWidget* x = delante(item->layout(), w))
            return x;
        if (item->widget())
            previo = item->widget();
    }
    return nullptr;
}

QString nombreDeducido(QWidget* dialogo, QWidget* w)
{
    if (auto* b = qobject_cast<QAbstractButton*>(w); b && b->text().trimmed().isEmpty() && !b->toolTip().isEmpty())
        return b->toolTip();
    if (w->parentWidget())
        if (QWidget* previo = delante(w->parentWidget()->layout(), w); previo && !textoPropio(previo).isEmpty())
            return textoPropio(previo);
    if (!w->toolTip().isEmpty())
        return w->toolTip();
    // A list alone in its dialog (a picker) is what the dialog's title says.
    if (qobject_cast<QAbstractItemView*>(w))
        return dialogo->windowTitle();
    return QString();
}

// Says the new mode once, as a notification: a screen reader speaks a
// notification when it shows, so it is hidden until the mode changes and
// shown again at each change. (Qt 6.4 sends a changed name or description
// with the object instead of the text, and Orca then says nothing.)
class Pregonero : public QWidget {
public:
    explicit Pregonero(QWidget* banner) : QWidget(banner)
    {
        setObjectName(banner->objectName() + u".anuncio"_s);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(0, 0, 0, 0);
        hide();
    }
    QString texto;
};

class PregoneroAccesible : public QAccessibleWidget {
public:
    explicit PregoneroAccesible(Pregonero* w) : QAccessibleWidget(w, QAccessible::Notification) {}
    QString text(QAccessible::Text t) const override
    {
        return t == QAccessible::Name ? static_cast<Pregonero*>(widget())->texto : QString();
    }
};

QAccessibleInterface* fabrica(const QString&, QObject* objeto)
{
    if (auto* p = dynamic_cast<Pregonero*>(objeto))
        return new PregoneroAccesible(p);
    return nullptr;
}

// The mode is the dialog's description: said with the dialog's title when
// the focus comes into it.
void ponerModo(QWidget* dialogo, Pregonero* pregonero, const QString& modo, bool anunciar)
{
    dialogo->setAccessibleDescription(modo);
    pregonero->hide();
    pregonero->texto = modo;
    if (anunciar)
        pregonero->show();
}

} // namespace

QList<QWidget*> controlesEnfocables(QWidget* lienzo)
{
    QList<QWidget*> r;
    const auto todos = lienzo->findChildren<QWidget*>();
    for (QWidget* w : todos) {
        // Controls carry their name; the parts of a control (the box of a
        // date picker, the view of a grid) belong to it.
        if (w->objectName().isEmpty() || w->objectName().startsWith(u"qt_"_s) || w->focusProxy())
            continue;
        if ((w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
            r.append(w);
    }
    return r;
}

void prepararAccesibilidad(QWidget* dialogo, QWidget* lienzo)
{
    for (QWidget* w : controlesEnfocables(lienzo)) {
        QAccessibleInterface* i = QAccessible::queryAccessibleInterface(w);
        if (i && i->text(QAccessible::Name).trimmed().isEmpty()) {
            const QString nombre = nombreDeducido(dialogo, w);
            if (!nombre.isEmpty())
                w->setAccessibleName(nombre);
        }
    }
    if (auto* banner = lienzo->findChild<Etiqueta*>(u"Label2"_s)) {
        static const bool instalada = [] {
            QAccessible::installFactory(fabrica);
            return true;
        }();
        Q_UNUSED(instalada);
        auto* pregonero = new Pregonero(banner);
        ponerModo(dialogo, pregonero, banner->text(), false);
        QObject::connect(banner, &Etiqueta::TextoCambiado, banner,
                         [dialogo, pregonero, banner] { ponerModo(dialogo, pregonero, banner->text(), true); });
    } else {
        dialogo->setAccessibleDescription(QString());
    }
}

} // namespace nomencla
