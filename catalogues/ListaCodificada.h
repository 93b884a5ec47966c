#pragma once
// Lists of coded records (a key `cod`, a first and a second text, a status
// `est`): pick a row by double click, edit it in Tx(0) and Tx(1), save or
// remove it, or empty the fields for a new one. The banner Label2 tells the
// mode: a new record (CodigoActual 0, light green) or an existing one
// (CodigoActual > 0, button face). A removal sets est to 0; the row stays.
//
// A member states its differences as data (DatosListaCodificada). A member
// with more fields adds them through the hooks: DisenarExtra (its controls),
// valoresExtra (their values for the statements), NuevoExtra / MostrarExtra
// (emptying and filling them in the order of Nuevo and MostrarRegistro),
// guardarExtra (more statements in the save's transaction) and the
// despuesDe... hooks (what follows a pick, a save or Nuevo).
#include "core/Controles.h"
#include "core/Formulario.h"
#include "core/Sentencia.h"
#include "core/frmImportar.h"

#include <QHash>
#include <QVariantList>

class QBoxLayout;
class QGridLayout;

namespace nomencla {

class Alfarje;
class CajaTexto;
class Etiqueta;
class Pulsante;

struct DatosListaCodificada {
    QString forma;
    QString titulo;
    bool keyPreview = false;
    QString formato;          // column format of GR
    int columnaClave = 2;     // the cell of GR that holds cod
    QString etiquetaLista;    // Label1(0), over the grid
    QString etiquetaTexto0;   // Label1(1), beside Tx(0)
    QString etiquetaTexto1;   // Label1(2), beside Tx(1)
    int limite0 = 50;
    bool centrado0 = false;
    int limite1 = 150;
    bool multilinea1 = true;
    // Captions of Label2: as designed (at opening), after Nuevo, after a pick.
    QString bannerInicial;
    QString bannerNuevo;
    QString bannerExistente;
    int campoConfirmar = 0;   // the Tx whose text the removal question names
    bool importable = false;  // the grid's menu imports records from a CSV file (members without extra fields)
    // Statements. Values: V0 first text and V1 second text (both trimmed),
    // V2 CodigoActual, V3... what the member's valoresExtra gives.
    Sentencia lista;
    QString campos;
    Sentencia clave;          // MAX(cod) of the tenant; empty: the database gives the key
    Sentencia insertar;
    Sentencia actualizar;
    Sentencia referencia;     // empty: no reference check
    Sentencia borrar;
    // Messages; %1 is the text of the record.
    QString msgVacio;
    QString msgDuplicado;
    QString msgReferencia;
    QString msgConfirmar;
};

class ListaCodificada : public Formulario, public ListaImportable {
    Q_OBJECT
public:
    explicit ListaCodificada(const DatosListaCodificada& datos);
    ~ListaCodificada() override;

    void Guardar();
    void Quitar();
    void Nuevo();
    void MostrarRegistro();
    qint32 codigoActual() const { return CodigoActual; }

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Bt_Click(int Index);
    void CargarLista();

    // Extra controls: rows added to `campos` below Tx(1) (the grid layout has
    // caption and field columns 0 and 1), anything else below the list in `cuerpo`.
    virtual void DisenarExtra(QWidget* lienzo, QGridLayout* campos, QBoxLayout* cuerpo);
    // Values V3... of the statements.
    virtual QVariantList valoresExtra() const { return {}; }
    // Nuevo, after Tx(0) and Tx(1) are emptied.
    virtual void NuevoExtra() {}
    // MostrarRegistro, after Tx(1) is filled from the picked row `fila`.
    virtual void MostrarExtra(qint32 /*fila*/) {}
    // Inside the save's transaction, after the insert or update.
    virtual void guardarExtra() {}
    virtual void despuesDeNuevo() {}
    virtual void despuesDeMostrar() {}
    virtual void despuesDeGuardar() {}

    QString texto(int indice) const; // Tx(i).Text, raw
    void ponerTexto(int indice, const QString& texto);
    // Tx(i) shows the picked record's `almacenado`: the record's save writes
    // it as stored while the box reads as it does now. Tx(0) and Tx(1) are
    // recorded by MostrarRegistro itself.
    void mostrarValor(int indice, const QVariant& almacenado);
    // What the statements get for Tx(i): the stored value of an unchanged box
    // of the picked record, else `nuevo`, the value of what the box says.
    QVariant valorDe(int indice, const QVariant& nuevo) const;
    QWidget* Tx(int indice) const;
    Alfarje* GR = nullptr;
    Etiqueta* Label2 = nullptr;
    qint32 CodigoActual = 0;

private:
    const DatosListaCodificada& d_;
    CajaTexto* Tx0_ = nullptr;
    QWidget* Tx1_ = nullptr; // one line or several, as the member says
    Pulsante* Bt_[4] = {};
    QHash<int, ValorMostrado> mostrados_;
    QVariantList valores() const;
    void modo(bool nuevo);
    // Why the first text cannot be saved; empty when it can.
    QString rechazoTexto0(const QString& t0, bool desdeArchivo = false) const;
    // Inserts a new record from the statements' values (V2 takes the new
    // key); returns the key.
    qint32 insertarNuevo(QVariantList v);
    QString rechazoImportacion(const QStringList& valores) const override;
    void insertarImportados(const QList<QStringList>& filas) override;
    void trasImportar() override;
};

} // namespace nomencla
