#include "core/Accesibilidad.h"

#include "core/Controles.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QLayout>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

QString sinAcelerador(QString texto)
{
    static const QRegularExpression acelerador(u"&(.)"_s);
    texto.replace(acelerador, u"\\1"_s);
    texto = texto.trimmed();
    if (texto.endsWith(u':'))
        texto.chop(1);
    return texto;
}

QString textoPropio(const QWidget* w)
{
    if (const auto* l = qobject_cast<const QLabel*>(w))
        return sinAcelerador(l->text());
    if (const auto* b = qobject_cast<const QAbstractButton*>(w))
        return sinAcelerador(b->text());
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

void ponerModo(QWidget* dialogo, QWidget* lienzo, const QString& modo)
{
    dialogo->setAccessibleDescription(modo);
    for (QWidget* w : controlesEnfocables(lienzo)) {
        const QString propia = w->toolTip();
        w->setAccessibleDescription(propia.isEmpty() ? modo : propia + u". "_s + modo);
    }
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
        ponerModo(dialogo, lienzo, banner->text());
        QObject::connect(banner, &Etiqueta::TextoCambiado, banner,
                         [dialogo, lienzo, banner] { ponerModo(dialogo, lienzo, banner->text()); });
    } else {
        dialogo->setAccessibleDescription(QString());
    }
}

} // namespace nomencla
