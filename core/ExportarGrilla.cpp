#include "core/ExportarGrilla.h"

#include "core/Alfarje.h"
#include "core/ModeloAlfarje.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace nomencla {

ImportadorGrilla::~ImportadorGrilla() = default;

namespace exportar {

namespace {

// Ctrl+C also when the key reaches the grid without the shortcut machinery
// (a key event sent to it directly).
class AtajoCopiar : public QObject {
public:
    explicit AtajoCopiar(Alfarje* grilla) : QObject(grilla), grilla_(grilla) {}

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto == grilla_ && evento->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Copy)) {
            copiar(grilla_);
            return true;
        }
        return false;
    }

private:
    Alfarje* grilla_;
};

const QString kImportar = u"ImportarCSV"_s;

// Visible columns, in the order they are shown.
QList<int> columnasVisibles(const Alfarje* grilla)
{
    const QHeaderView* h = grilla->horizontalHeader();
    QList<int> r;
    const int n = grilla->model()->columnCount();
    for (int v = 0; v < n; ++v) {
        const int c = h->logicalIndex(v);
        if (c >= 0 && !h->isSectionHidden(c))
            r.append(c);
    }
    return r;
}

// A cell as the grid shows it: through the column's format, or, in a 0/1
// flag column, which shows a box, as "Sí" or "No".
QString celda(const Alfarje* grilla, int fila, int columna, bool marca)
{
    if (!marca)
        return grilla->modelo()->textoMostrado(fila, columna);
    return grilla->model()->data(grilla->model()->index(fila, columna), Qt::CheckStateRole).toInt() == Qt::Checked
        ? u"Sí"_s
        : u"No"_s;
}

// The visible columns with, for each, whether it is a flag column.
QList<std::pair<int, bool>> columnasConMarca(const Alfarje* grilla)
{
    QList<std::pair<int, bool>> r;
    for (int c : columnasVisibles(grilla))
        r.append({c, grilla->RowCount() > 0
                         && grilla->model()->data(grilla->model()->index(0, c), Qt::CheckStateRole).isValid()});
    return r;
}

QStringList celdasDe(const Alfarje* grilla, int fila, const QList<std::pair<int, bool>>& columnas)
{
    QStringList r;
    r.reserve(columnas.size());
    for (const auto& [c, marca] : columnas)
        r.append(celda(grilla, fila, c, marca));
    return r;
}

void agregarLinea(QString& destino, const QStringList& campos, QChar separador, QStringView fin)
{
    for (qsizetype i = 0; i < campos.size(); ++i) {
        if (i > 0)
            destino += separador;
        destino += campo(campos[i], separador);
    }
    destino += fin;
}

// The file name the dialog proposes: the window's caption, without the
// characters a file name cannot hold.
QString nombrePropuesto(const Alfarje* grilla)
{
    const QWidget* ventana = grilla->window();
    QString nombre = ventana->windowTitle().trimmed();
    if (nombre.isEmpty())
        nombre = ventana->objectName();
    static const QString prohibidos = u"/\\:*?\"<>|"_s;
    for (QChar& c : nombre)
        if (prohibidos.contains(c) || c.unicode() < 32)
            c = u'_';
    if (nombre.isEmpty())
        nombre = u"lista"_s;
    return nombre + u".csv"_s;
}

ElectorGuardar& electorActual()
{
    static thread_local ElectorGuardar elector;
    return elector;
}

} // namespace

void instalar(Alfarje* grilla)
{
    auto* copiarAccion = new QAction(u"&Copiar"_s, grilla);
    copiarAccion->setObjectName(u"Copiar"_s);
    copiarAccion->setShortcut(QKeySequence::Copy);
    copiarAccion->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copiarAccion, &QAction::triggered, grilla, [grilla] { copiar(grilla); });

    auto* exportarAccion = new QAction(u"&Exportar a CSV…"_s, grilla);
    exportarAccion->setObjectName(u"ExportarCSV"_s);
    QObject::connect(exportarAccion, &QAction::triggered, grilla, [grilla] { exportarCsv(grilla); });

    grilla->addAction(copiarAccion);
    grilla->addAction(exportarAccion);
    grilla->setContextMenuPolicy(Qt::ActionsContextMenu);
    grilla->installEventFilter(new AtajoCopiar(grilla));
}

void setImportador(Alfarje* grilla, ImportadorGrilla* importador)
{
    QAction* accion = grilla->findChild<QAction*>(kImportar, Qt::FindDirectChildrenOnly);
    if (!importador) {
        delete accion;
        return;
    }
    if (!accion) {
        accion = new QAction(u"&Importar desde CSV…"_s, grilla);
        accion->setObjectName(kImportar);
        grilla->addAction(accion);
    }
    accion->disconnect();
    QObject::connect(accion, &QAction::triggered, grilla, [grilla, importador] { importador->importarDesdeCsv(grilla); });
}

QString campo(const QString& texto, QChar separador)
{
    const bool comillas = texto.contains(separador) || texto.contains(u'"') || texto.contains(u'\n')
        || texto.contains(u'\r');
    if (!comillas)
        return texto;
    QString r = texto;
    r.replace(u"\""_s, u"\"\""_s);
    return u'"' + r + u'"';
}

QStringList titulos(const Alfarje* grilla)
{
    QStringList r;
    for (int c : columnasVisibles(grilla))
        r.append(grilla->model()->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString());
    return r;
}

QString textoTabulado(const Alfarje* grilla, QList<int> filas)
{
    if (filas.isEmpty())
        for (int f = 0; f < grilla->RowCount(); ++f)
            filas.append(f);
    const auto columnas = columnasConMarca(grilla);
    QString r;
    agregarLinea(r, titulos(grilla), u'\t', u"\n");
    for (int f : filas)
        agregarLinea(r, celdasDe(grilla, f, columnas), u'\t', u"\n");
    return r;
}

void copiar(const Alfarje* grilla)
{
    QList<int> filas;
    for (const QItemSelectionRange& r : grilla->selectionModel()->selection())
        for (int f = r.top(); f <= r.bottom(); ++f)
            filas.append(f);
    std::sort(filas.begin(), filas.end());
    filas.erase(std::unique(filas.begin(), filas.end()), filas.end());
    QApplication::clipboard()->setText(textoTabulado(grilla, filas));
}

bool escribirCsv(const Alfarje* grilla, QIODevice& destino)
{
    const auto columnas = columnasConMarca(grilla);
    QString bloque;
    agregarLinea(bloque, titulos(grilla), u';', u"\r\n");
    if (destino.write("\xEF\xBB\xBF", 3) != 3)
        return false;
    // Written in blocks of rows: the text of a long list is never held whole.
    const int n = grilla->RowCount();
    for (int f = 0; f < n; ++f) {
        agregarLinea(bloque, celdasDe(grilla, f, columnas), u';', u"\r\n");
        if (bloque.size() >= 256 * 1024 || f == n - 1) {
            const QByteArray bytes = bloque.toUtf8();
            if (destino.write(bytes) != bytes.size())
                return false;
            bloque.clear();
        }
    }
    if (!bloque.isEmpty()) { // a grid without rows: the title line alone
        const QByteArray bytes = bloque.toUtf8();
        return destino.write(bytes) == bytes.size();
    }
    return true;
}

QString exportarCsv(Alfarje* grilla)
{
    QWidget* ventana = grilla->window();
    QString carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (carpeta.isEmpty())
        carpeta = QDir::homePath();
    const QString archivo =
        elegirArchivoGuardar(ventana, u"Exportar a CSV"_s, QDir(carpeta).filePath(nombrePropuesto(grilla)));
    if (archivo.isEmpty())
        return QString();
    QSaveFile salida(archivo);
    const bool hecho = salida.open(QIODevice::WriteOnly) && escribirCsv(grilla, salida) && salida.commit();
    if (!hecho) {
        const QString motivo = salida.errorString();
        salida.cancelWriting();
        QMessageBox caja(QMessageBox::Critical, u"Exportar a CSV"_s,
                         u"No se pudo guardar la lista en el archivo\n%1\n\n%2"_s.arg(QDir::toNativeSeparators(archivo),
                                                                                    motivo),
                         QMessageBox::Ok, ventana);
        caja.exec();
        return QString();
    }
    return archivo;
}

QString elegirArchivoGuardar(QWidget* padre, const QString& titulo, const QString& propuesto)
{
    if (electorActual())
        return electorActual()(padre, titulo, propuesto);
    QFileDialog dialogo(padre, titulo, propuesto, u"Archivos CSV (*.csv);;Todos los archivos (*)"_s);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setDefaultSuffix(u"csv"_s);
    dialogo.selectFile(propuesto);
    if (dialogo.exec() != QDialog::Accepted)
        return QString();
    return dialogo.selectedFiles().value(0);
}

void setElectorGuardar(ElectorGuardar elector)
{
    electorActual() = std::move(elector);
}

} // namespace exportar
} // namespace nomencla
