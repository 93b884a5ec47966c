#include "core/Ruc.h"

#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace nomencla::ruc {

namespace {

int digito(QStringView t, int i) { return t[i].unicode() - u'0'; }

QString problemaProvincia(QStringView t)
{
    const int provincia = digito(t, 0) * 10 + digito(t, 1);
    if ((provincia >= 1 && provincia <= 24) || provincia == 30)
        return QString();
    return u"La provincia (dos primeros dígitos) debe ser de 01 a 24 o 30."_s;
}

QString problemaCedula(QStringView t)
{
    QString p = problemaProvincia(t);
    if (!p.isEmpty())
        return p;
    if (digito(t, 2) > 6)
        return u"El tercer dígito de una cédula debe ser de 0 a 6."_s;
    int suma = 0;
    for (int i = 0; i < 9; ++i) {
        int producto = digito(t, i) * (i % 2 == 0 ? 2 : 1);
        if (producto > 9)
            producto -= 9;
        suma += producto;
    }
    if ((suma + digito(t, 9)) % 10 != 0)
        return u"El dígito verificador no corresponde a los nueve primeros."_s;
    return QString();
}

} // namespace

QString problema(QStringView texto)
{
    const QStringView t = texto.trimmed();
    if ((t.size() != 10 && t.size() != 13) || !std::all_of(t.begin(), t.end(), [](QChar c) {
            return c >= u'0' && c <= u'9';
        }))
        return QString();
    if (t.size() == 10)
        return problemaCedula(t);
    QString p = problemaProvincia(t);
    if (!p.isEmpty())
        return p;
    if (t.last(3) == u"000")
        return u"El establecimiento (tres últimos dígitos) no puede ser 000."_s;
    const int tercero = digito(t, 2);
    if (tercero == 6 || tercero == 9)
        return QString(); // public entities and companies: structure only
    if (tercero > 5)
        return u"El tercer dígito de un RUC debe ser de 0 a 5 (persona natural), 6 (entidad pública) o 9 (sociedad)."_s;
    p = problemaCedula(t.first(10));
    if (!p.isEmpty())
        return u"Los diez primeros dígitos de un RUC de persona natural deben ser una cédula válida: "_s + p;
    return QString();
}

QLabel* crearAviso(QLineEdit* caja, QWidget* padre)
{
    auto* aviso = new QLabel(u"⚠ RUC/cédula no válido"_s, padre);
    aviso->setObjectName(u"LblRuc"_s);
    aviso->setStyleSheet(u"color: #a04000;"_s);
    aviso->hide();
    QObject::connect(caja, &QLineEdit::editingFinished, aviso, [aviso, caja] { revisar(aviso, caja->text()); });
    // Once shown, the warning follows the corrections; typing alone never shows it.
    QObject::connect(caja, &QLineEdit::textChanged, aviso, [aviso](const QString& texto) {
        if (!aviso->isHidden())
            revisar(aviso, texto);
    });
    return aviso;
}

void revisar(QLabel* aviso, const QString& texto)
{
    const QString p = problema(texto);
    aviso->setToolTip(p);
    aviso->setAccessibleDescription(p);
    aviso->setVisible(!p.isEmpty());
}

} // namespace nomencla::ruc
