#pragma once
// What every grid offers besides its rows: Ctrl+C copies the selected rows
// (all of them when none is selected) as tab-separated text under a line of
// the visible column titles, and the grid's context menu offers "Copiar",
// "Exportar a CSV…" and, on the lists that take rows from a file,
// "Importar desde CSV…". Rows go out in the grid's order, visible columns
// only, each cell as the grid shows it.
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class QIODevice;
class QWidget;

namespace nomencla {

class Alfarje;

// A list that takes rows from a file; the grid's menu offers the import
// while one is set (exportar::setImportador).
class ImportadorGrilla {
public:
    virtual ~ImportadorGrilla();
    virtual void importarDesdeCsv(Alfarje* grilla) = 0;
};

namespace exportar {

// Gives a new grid its menu and Ctrl+C.
void instalar(Alfarje* grilla);
// The list that the grid's import goes to; nullptr takes the entry away.
void setImportador(Alfarje* grilla, ImportadorGrilla* importador);

// One field of a delimited line: quoted, its quotes doubled, when it holds
// the separator, a quote or a line break.
QString campo(const QString& texto, QChar separador);
// Titles of the visible columns, in the order they are shown.
QStringList titulos(const Alfarje* grilla);

// The title line and the rows given (all of them when `filas` is empty),
// tab-separated, one line each.
QString textoTabulado(const Alfarje* grilla, QList<int> filas = {});
// Ctrl+C: the selected rows, or all, to the clipboard.
void copiar(const Alfarje* grilla);

// Writes the title line and every row as CSV: UTF-8 with a byte-order mark,
// ';' between fields, CRLF after each line. False when a write fails.
bool escribirCsv(const Alfarje* grilla, QIODevice& destino);
// Asks where (proposing the window's caption), writes through a temporary
// file renamed at the end and tells a failure. Returns the file written, ""
// when cancelled or failed.
QString exportarCsv(Alfarje* grilla);

// Picks the file to write; empty when the user cancels. By default a modal
// QFileDialog; tests may put a chooser of their own.
using ElectorGuardar = std::function<QString(QWidget* padre, const QString& titulo, const QString& propuesto)>;
QString elegirArchivoGuardar(QWidget* padre, const QString& titulo, const QString& propuesto);
void setElectorGuardar(ElectorGuardar elector); // empty: the QFileDialog again

} // namespace exportar
} // namespace nomencla
