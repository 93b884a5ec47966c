#include "core/frmImportar.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Conflictos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Plegado.h"
#include "core/Pulsante.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QSet>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

const QString kTitulo = u"Importar desde CSV"_s;

// The duplicate test of the lists (plegado::igualSinMayusculas) as a key:
// case ignored, accents kept, trailing blanks ignored.
QString clave(QStringView texto)
{
    qsizetype n = texto.size();
    while (n > 0 && texto[n - 1].isSpace())
        --n;
    return texto.first(n).toString().toCaseFolded();
}

QString sinBlancos(const QString& texto)
{
    QString r;
    for (QChar c : texto)
        if (!c.isSpace())
            r += c;
    return r;
}

// The file's first line is its title line when it begins with the grid's
// first title (blanks, case and accents aside): a name that nobody stores.
bool esEncabezado(const QStringList& campos, const QStringList& titulos)
{
    return !campos.isEmpty() && !titulos.isEmpty()
        && plegado::comparar(sinBlancos(campos.first()), sinBlancos(titulos.first())) == 0;
}

// What a box keeps of a typed or pasted text: control characters (a tab, a
// line break) become blanks.
QString comoEnCaja(const QString& texto)
{
    QString r = texto;
    for (QChar& c : r)
        if (c.category() == QChar::Other_Control)
            c = u' ';
    return r.trimmed();
}

QString nombreSeparador(QChar c)
{
    if (c == u'\t')
        return u"tabulador"_s;
    return u"«"_s + c + u"»"_s;
}

} // namespace

QString motivoLargo(const QString& texto, int minimo, int maximo, const QString& campo)
{
    const QString quien = campo.isEmpty() ? QString() : campo + u": "_s;
    const qsizetype largo = caracteres(texto);
    if (largo == 0 && minimo > 0)
        return quien + u"vacío"_s;
    if (largo < minimo)
        return quien + u"menos de %1 caracteres"_s.arg(minimo);
    if (maximo >= 0 && largo > maximo)
        return quien + u"más de %1 caracteres"_s.arg(maximo);
    return QString();
}

QList<Juicio> juzgar(const Alfarje* grilla, const ListaImportable& lista, const QList<csv::Registro>& registros)
{
    const qsizetype columnas = exportar::titulos(grilla).size();
    QSet<QString> enLista;
    for (int f = 0; f < grilla->RowCount(); ++f)
        enLista.insert(clave(grilla->CellText(f, 0)));
    QHash<QString, int> enArchivo;
    QList<Juicio> r;
    r.reserve(registros.size());
    for (const csv::Registro& reg : registros) {
        Juicio j;
        j.linea = reg.linea;
        for (qsizetype i = 0; i < columnas; ++i)
            j.valores.append(comoEnCaja(reg.campos.value(i)));
        const QString motivo = lista.rechazoImportacion(j.valores);
        const QString k = clave(j.valores.value(0));
        if (!motivo.isEmpty()) {
            j.clase = Juicio::Rechazada;
            j.estado = u"Rechazada: "_s + motivo;
        } else if (enLista.contains(k)) {
            j.clase = Juicio::Existe;
            j.estado = u"Se omite: ya está en la lista"_s;
        } else if (const auto previa = enArchivo.constFind(k); previa != enArchivo.cend()) {
            j.clase = Juicio::Repetida;
            j.estado = u"Se omite: repetida en el archivo (línea %1)"_s.arg(*previa);
        } else {
            j.clase = Juicio::Agregar;
            j.estado = u"Se agrega"_s;
            enArchivo.insert(k, reg.linea);
        }
        r.append(std::move(j));
    }
    return r;
}

void ListaImportable::importarDesdeCsv(Alfarje* grilla)
{
    QWidget* ventana = grilla->window();
    const QString archivo = elegirArchivo(ventana, kTitulo, u"Archivos CSV o de texto (*.csv *.txt *.tsv);;Todos los archivos (*)"_s);
    if (archivo.isEmpty())
        return;
    const QString nombre = QDir::toNativeSeparators(archivo);
    auto avisar = [&](const QString& texto) { MsgBox(ventana, texto, estilo::Exclamacion, kTitulo); };

    QFile entrada(archivo);
    if (!entrada.open(QIODevice::ReadOnly)) {
        avisar(u"No se pudo leer el archivo\n%1\n\n%2\n\nNo se importó nada."_s.arg(nombre, entrada.errorString()));
        return;
    }
    // A list to start a company with is far smaller; a larger file is a wrong choice.
    constexpr qint64 kMayor = 64 * 1024 * 1024;
    if (entrada.size() > kMayor) {
        avisar(u"El archivo\n%1\nes demasiado grande para una lista (más de 64 MB).\n\nNo se importó nada."_s.arg(nombre));
        return;
    }
    const QByteArray bytes = entrada.readAll();
    QString texto;
    QString codificacion;
    if (!csv::decodificar(bytes, texto, &codificacion)) {
        avisar(u"El archivo\n%1\nno es un archivo de texto separado por comas (CSV).\n\nNo se importó nada."_s.arg(nombre));
        return;
    }
    const QStringList titulos = exportar::titulos(grilla);
    const QChar separador = csv::separador(texto, int(titulos.size()));
    QList<csv::Registro> registros = csv::partir(texto, separador);
    if (!registros.isEmpty() && esEncabezado(registros.first().campos, titulos))
        registros.removeFirst();
    if (registros.isEmpty()) {
        avisar(u"El archivo\n%1\nno tiene filas para importar.\n\nNo se importó nada."_s.arg(nombre));
        return;
    }
    for (const csv::Registro& reg : registros) {
        if (reg.campos.size() > titulos.size()) {
            avisar(u"Las columnas del archivo no corresponden a la lista: la línea %1 tiene %2 columnas "
                   "(separadas por %3) y la lista tiene %4 (%5).\n\nNo se importó nada."_s
                       .arg(reg.linea)
                       .arg(reg.campos.size())
                       .arg(nombreSeparador(separador))
                       .arg(titulos.size())
                       .arg(titulos.join(u"; "_s)));
            return;
        }
    }

    const QList<Juicio> juicios = juzgar(grilla, *this, registros);
    frmImportar vista(ventana, nombre, u"%1, separador %2"_s.arg(codificacion, nombreSeparador(separador)), titulos,
                      juicios);
    if (vista.exec() != QDialog::Accepted || vista.agregadas() == 0)
        return;
    QList<QStringList> filas;
    filas.reserve(vista.agregadas());
    for (const Juicio& j : juicios)
        if (j.clase == Juicio::Agregar)
            filas.append(j.valores);
    // All the rows or none; a conflict with another clerk runs the whole
    // import again, as any other operation.
    try {
        conReintentos([&] { insertarImportados(filas); });
    } catch (const ErrorBD& e) {
        mostrarErrorBD(ventana, e);
        return;
    }
    trasImportar();
    MsgBox(ventana, u"Se importaron %1 filas a la lista."_s.arg(filas.size()), estilo::Informacion, u"Listo"_s);
}

frmImportar::frmImportar(QWidget* padre, const QString& archivo, const QString& lectura, const QStringList& titulos,
                         const QList<Juicio>& juicios)
    : QDialog(padre)
{
    setObjectName(u"frmImportar"_s);
    setWindowTitle(kTitulo);
    setModal(true);
    int omitidas = 0;
    int rechazadas = 0;
    for (const Juicio& j : juicios) {
        agregadas_ += j.clase == Juicio::Agregar;
        omitidas += j.clase == Juicio::Existe || j.clase == Juicio::Repetida;
        rechazadas += j.clase == Juicio::Rechazada;
    }

    auto* raiz = new QVBoxLayout(this);
    auto* resumen = new QLabel(this);
    resumen->setObjectName(u"Label1"_s);
    resumen->setTextInteractionFlags(Qt::TextSelectableByMouse);
    resumen->setText(u"Archivo: %1 (%2)\nSe agregan %3 filas; se omiten %4 (ya están en la lista o repetidas); "
                     "se rechazan %5."_s.arg(archivo, lectura)
                         .arg(agregadas_)
                         .arg(omitidas)
                         .arg(rechazadas));
    raiz->addWidget(resumen);

    QString formato = u">LÍNEA"_s;
    for (const QString& t : titulos)
        formato += u"|<"_s + t.leftJustified(std::max<qsizetype>(t.size(), 24));
    formato += u"|<ESTADO                                        "_s;
    auto* gr = new Alfarje(this);
    gr->setObjectName(u"GR"_s);
    gr->setFormatocolumnas(formato);
    gr->setShowrownumbers(false);
    gr->setMinimumSize(640, 320);
    gr->setRedraw(false);
    for (const Juicio& j : juicios)
        gr->AddItem(QStringList{QString::number(j.linea)} + j.valores + QStringList{j.estado});
    gr->setRedraw(true);
    raiz->addWidget(gr);

    auto* importar = new Pulsante(u"&Importar"_s, this);
    importar->setObjectName(u"Bt(0)"_s);
    importar->setEnabled(agregadas_ > 0);
    auto* cancelar = new Pulsante(u"&Cancelar"_s, this);
    cancelar->setObjectName(u"Bt(1)"_s);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(importar);
    botones->addWidget(cancelar);
    raiz->addLayout(botones);
    connect(importar, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    (agregadas_ > 0 ? static_cast<QWidget*>(importar) : cancelar)->setFocus();
}

} // namespace nomencla
