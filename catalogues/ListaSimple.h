#pragma once
// Lists of plain names, one name per row: a text box above the grid, add the
// typed name, remove the selected one, type to find. A row is known by its
// text (or, where the table has one, by its key kept in a hidden cell).
#include "core/Formulario.h"
#include "core/Sentencia.h"
#include "core/frmImportar.h"

#include <QSqlQuery>

#include <memory>

namespace nomencla {

class Alfarje;
class CajaTexto;
class clsGrillas;

struct DatosListaSimple {
    QString forma;
    QString titulo;
    QString formato;         // column format of GR
    QString etiquetaTexto;   // caption of Text1, with its access key
    QString etiquetaLista;
    QString txNuevo;         // caption of Bt(1)
    int largoTexto = 25;     // MaxLength of Text1
    QString etiquetaSegundo; // caption of Text2; empty: the list has no second box
    int largoSegundo = 10;   // MaxLength of Text2
    bool enterGuarda = true; // Enter in Text1 saves
    bool keyPreview = false;
    bool grillasPropias = false; // a grid filler of its own instead of the shared one
    // Statements; V0 is the name, V1 the row's key, V2 the second text (Text2
    // for a save, the row's second cell for a removal).
    Sentencia lista;
    QString campos;
    Sentencia insertar;
    Sentencia referencia;    // empty: no reference check
    Sentencia suplente;      // counts other rows that still answer for the references; above 0 skips the check
    Sentencia borrar;
    bool porClave = false;   // rows carry their key in the second cell
    bool importable = false; // the grid's menu imports names from a CSV file
    // Messages; %1 is the name.
    QString msgVacio;
    QString msgDuplicado;
    QString msgReferencia;
    QString msgConfirmar;
};

class ListaSimple : public Formulario, public ListaImportable {
    Q_OBJECT
public:
    explicit ListaSimple(const DatosListaSimple& datos);
    ~ListaSimple() override;

    void Guardar();
    void Nuevo();
    void Quitar();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Bt_Click(int Index);

private:
    const DatosListaSimple& d_;
    std::unique_ptr<clsGrillas> grillas_;
    Alfarje* GR = nullptr;
    CajaTexto* Text1 = nullptr;
    CajaTexto* Text2 = nullptr;
    void CargarLista();
    void vaciar();
    // Why a name (and second text) cannot be saved; empty when it can.
    QString rechazo(const QString& nombre, const QString& segundo, bool desdeArchivo = false) const;
    QSqlQuery insertar(const QString& nombre, const QString& segundo);
    QString rechazoImportacion(const QStringList& valores) const override;
    void insertarImportados(const QList<QStringList>& filas) override;
    void trasImportar() override;
};

} // namespace nomencla
