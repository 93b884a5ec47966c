#pragma once
// Importing a list from a CSV file. The grid's "Importar desde CSV…" asks for
// the file, reads it and shows the preview frmImportar: one row per line of
// the file with its verdict (added; skipped because already in the list or
// earlier in the file; refused and why), judged by the rules of a save typed
// by hand. "Importar" writes the added rows in one transaction; a database
// failure writes none of them.
//
// A list that takes files derives from ListaImportable and states its rules
// and its insert; the file's columns are the grid's visible columns, in the
// order shown, and the first of them is the one a duplicate is known by.
#include "core/ExportarGrilla.h"
#include "core/LeerCsv.h"

#include <QDialog>
#include <QList>
#include <QStringList>

namespace nomencla {

// Why a text does not fit a field of `minimo` to `maximo` characters; empty
// when it does. `campo` names the field in the reason.
QString motivoLargo(const QString& texto, int minimo, int maximo, const QString& campo = {});
// No upper bound for `maximo` (a typed save: the box already limits what is typed,
// and a stored record longer than its box is kept whole).
constexpr int sinTope = -1;

class ListaImportable : public ImportadorGrilla {
public:
    // Why a row cannot be saved; empty when it can. The row has one trimmed
    // value per column, "" for those the line lacks.
    virtual QString rechazoImportacion(const QStringList& valores) const = 0;
    // Writes the rows, each as a save would, all of them or none (in one
    // transaction). Throws ErrorBD.
    virtual void insertarImportados(const QList<QStringList>& filas) = 0;
    // After the rows are written: the list shows them, the change is noted.
    virtual void trasImportar() = 0;

    // The whole import, from the file's choice to the list shown again.
    void importarDesdeCsv(Alfarje* grilla) override;
};

// The verdict on each line of a file.
struct Juicio {
    enum Clase { Agregar, Existe, Repetida, Rechazada };
    int linea = 0;
    QStringList valores;
    Clase clase = Agregar;
    QString estado; // as the preview says it
};

// Judges the records of a file against the grid's rows and the list's rules.
QList<Juicio> juzgar(const Alfarje* grilla, const ListaImportable& lista, const QList<csv::Registro>& registros);

// The preview of an import: the list's caption, the file and its verdicts.
class frmImportar : public QDialog {
    Q_OBJECT
public:
    frmImportar(QWidget* padre, const QString& archivo, const QString& lectura, const QStringList& titulos,
                const QList<Juicio>& juicios);
    int agregadas() const { return agregadas_; }

private:
    int agregadas_ = 0;
};

} // namespace nomencla
