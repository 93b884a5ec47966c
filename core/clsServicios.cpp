#include "core/clsServicios.h"

#include "core/BaseDatos.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace nomencla {

int clsServicios::FiltrarTecla(QWidget* Caja, int KeyAscii, int Decimales, int A, int Digitos, int /*B*/) const
{
    if (KeyAscii < 32)
        return KeyAscii; // Enter, Backspace, Esc and the other control keys
    QString texto;
    int inicio = 0;
    int largoSeleccion = 0;
    if (auto* linea = qobject_cast<QLineEdit*>(Caja)) {
        texto = linea->text();
        inicio = linea->hasSelectedText() ? linea->selectionStart() : linea->cursorPosition();
        largoSeleccion = int(linea->selectedText().size());
    } else if (auto* varias = qobject_cast<QPlainTextEdit*>(Caja)) {
        texto = varias->toPlainText();
        const QTextCursor c = varias->textCursor();
        inicio = c.selectionStart();
        largoSeleccion = c.selectionEnd() - c.selectionStart();
    }
    QChar tecla(KeyAscii);
    const bool esMarca = tecla == u'.' || tecla == u',';
    if (esMarca)
        tecla = u'.';
    const bool esMenos = tecla == u'-';
    if (!tecla.isDigit() || tecla.unicode() > 127) {
        if (esMarca && Decimales <= 0)
            return 0;
        if (esMenos && A == 0)
            return 0;
        if (!esMarca && !esMenos)
            return 0;
    }
    const QString resultado = texto.left(inicio) + tecla + texto.mid(inicio + largoSeleccion);
    // The whole text must stay a number of the allowed shape.
    const QString patron = u"^%1\\d{0,%2}(\\.\\d{0,%3})?$"_s.arg(A != 0 ? u"-?"_s : QString())
                               .arg(std::max(Digitos, 0))
                               .arg(std::max(Decimales, 0));
    static thread_local QHash<QString, QRegularExpression> cache;
    auto it = cache.find(patron);
    if (it == cache.end())
        it = cache.insert(patron, QRegularExpression(patron));
    if (Decimales <= 0 && resultado.contains(u'.'))
        return 0;
    return it->match(resultado).hasMatch() ? tecla.unicode() : 0;
}

QDate clsServicios::fechaDeTexto(const QString& texto)
{
    const QString t = texto.trimmed();
    if (t.isEmpty())
        return {};
    static const QLocale es(QLocale::Spanish, QLocale::Ecuador);
    static const QStringList formatos = {
        u"yyyy-MM-dd"_s, u"yyyy-MM-ddTHH:mm:ss"_s, u"yyyy-MM-dd HH:mm:ss"_s, u"dd/MM/yyyy"_s, u"d/M/yyyy"_s,
        u"dd-MM-yyyy"_s, u"dd-MMM-yyyy"_s, u"ddd. dd-MMM-yyyy"_s, u"ddd dd-MMM-yyyy"_s, u"dddd, d 'de' MMMM 'de' yyyy"_s};
    for (const QString& f : formatos) {
        QDate d = QDate::fromString(t, f);
        if (d.isValid())
            return d;
        d = es.toDate(t, f);
        if (d.isValid())
            return d;
    }
    // Abbreviated month names may carry a point in Spanish ("ene.").
    QString sinPuntos = t;
    sinPuntos.remove(u'.');
    for (const QString& f : {u"dd-MMM-yyyy"_s, u"ddd dd-MMM-yyyy"_s}) {
        const QDate d = es.toDate(sinPuntos, f);
        if (d.isValid())
            return d;
    }
    return {};
}

QString clsServicios::FechaSql(const QString& Fecha) const
{
    const QDate d = fechaDeTexto(Fecha);
    return d.isValid() ? d.toString(u"yyyy-MM-dd"_s) : QString();
}

QVariant clsServicios::ConsultarValor(QSqlDatabase& Conexion, const QString& Sql, const QVariantList& valores) const
{
    return consultarValor(Conexion, Sql, valores);
}

void clsServicios::LlenarCombo(QSqlDatabase& Conexion, const QString& Sql, const QVariantList& valores,
                               QComboBox* Combo, const QString& CampoTexto, const QString& CampoClave, bool, bool,
                               const QString&) const
{
    QSqlQuery q = ejecutar(Conexion, Sql, valores);
    const QSqlRecord registro = q.record();
    const int texto = registro.indexOf(CampoTexto);
    const int clave = CampoClave.isEmpty() ? -1 : registro.indexOf(CampoClave);
    Combo->clear();
    QStringList textos;
    QVariantList claves;
    while (q.next()) {
        textos.append(texto >= 0 ? q.value(texto).toString() : QString());
        claves.append(clave >= 0 ? q.value(clave) : QVariant());
    }
    if (q.lastError().isValid())
        throw ErrorBD(q.lastError(), Sql, Conexion);
    for (qsizetype i = 0; i < textos.size(); ++i)
        Combo->addItem(textos.at(i), claves.at(i));
    Combo->setCurrentIndex(Combo->count() > 0 ? 0 : -1);
}

ExpresionSql clsServicios::ExpresionCaso(const QString& Campo, const QString& Valores, const QString& Etiquetas,
                                          int) const
{
    static const QRegularExpression nombre(u"^[A-Za-z_][A-Za-z0-9_.]*$"_s);
    Q_ASSERT(nombre.match(Campo).hasMatch());
    const QStringList valores = Valores.split(u',');
    const QStringList etiquetas = Etiquetas.split(u',');
    ExpresionSql e;
    e.texto = u"CASE "_s + Campo;
    for (qsizetype i = 0; i < valores.size() && i < etiquetas.size(); ++i) {
        e.texto += u" WHEN ? THEN ?"_s;
        bool esNumero = false;
        const qlonglong n = valores.at(i).trimmed().toLongLong(&esNumero);
        e.valores << (esNumero ? QVariant(n) : QVariant(valores.at(i).trimmed())) << etiquetas.at(i);
    }
    e.texto += u" ELSE CAST("_s + Campo + u" AS CHAR) END"_s;
    return e;
}

} // namespace nomencla
