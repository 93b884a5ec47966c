#pragma once
// Lists whose records have a key `cod` and one text: the text box searches as
// the user types and also takes a new text or a rename; a double click on a
// row picks it for renaming or removal. Banks add their fields to this build.
#include "core/Formulario.h"
#include "core/Sentencia.h"
#include "core/frmImportar.h"

class QGridLayout;
class QFrame;

namespace nomencla {

class Alfarje;
class CajaTexto;
class Pulsante;

struct DatosListaNombrada {
    QString forma;
    QString titulo;
    QString formato;         // column format of GR: the text, then the hidden key
    QString etiquetaTexto;   // Label1(1), caption of Text1
    QString etiquetaLista;   // Label1(0), caption of GR
    bool keyPreview = false;
    int largoMinimo = 2;     // shortest trimmed text that is saved
    int columnaClave = 1;    // the cell of a row that holds `cod`
    bool importable = false; // the grid's menu imports texts from a CSV file (members without fields of their own)
    // Statements; V0 is the trimmed text, V1 the key of the picked record,
    // V2 onwards what a member adds of its own (valoresPropios()).
    Sentencia lista;
    QString campos;
    Sentencia insertar;
    Sentencia actualizar;
    Sentencia quitar;
    // Messages; %1 is the name.
    QString msgDuplicado;
    QString msgConfirmar;
};

class ListaNombrada : public Formulario, public ListaImportable {
    Q_OBJECT
public:
    explicit ListaNombrada(const DatosListaNombrada& datos);
    ~ListaNombrada() override;

    void Guardar();
    void Quitar();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    virtual void Bt_Click(int Index);
    void MostrarRegistro();

    // What a member binds after the text and the key (V2...).
    virtual QVariantList valoresPropios() const { return {}; }
    // Room for a member's own fields, below Text1 in the fields' frame; the
    // rows from `fila` on are free. Returns the last widget in tab order.
    virtual QWidget* disenarCampos(QGridLayout* /*campos*/, int /*fila*/, QWidget* anterior) { return anterior; }
    // A member's own fields from the picked row, before Text1 takes its text.
    virtual void mostrarCampos(int /*fila*/) {}

    void CargarLista();
    void llenar(); // fills GR; throws ErrorBD, for use inside an operation

    Alfarje* GR = nullptr;
    CajaTexto* Text1 = nullptr;
    Pulsante* Bt0 = nullptr;
    Pulsante* Bt1 = nullptr;
    QFrame* marcoCampos = nullptr; // the frame around the fields
    QWidget* panelLista = nullptr;  // carries the list, its caption and Bt(1)
    QFrame* marcoLista = nullptr;   // the frame inside panelLista
    qint64 CodigoActual = 0;
    static constexpr int largoTexto = 60; // MaxLength of Text1

private:
    const DatosListaNombrada& d_;
    QString nombreActual_; // the text of the picked record as stored
    QVariantList valores(const QString& texto) const;
    void sinSeleccion();
    // Why a text cannot be saved; empty when it can.
    QString rechazo(const QString& texto, bool desdeArchivo = false) const;
    QString rechazoImportacion(const QStringList& valores) const override;
    void insertarImportados(const QList<QStringList>& filas) override;
    void trasImportar() override;
};

} // namespace nomencla
