#pragma once
// The maintenance dialogs of the company structure (companies, branches,
// sub-suppliers): fields above a list, a banner telling a new record from an
// existing one, and four buttons: save, remove, new, leave. A double click on
// a row brings the record into the fields; the record in the fields is known
// by its key, CodigoActual (0 for a new one).
//
// The family runs the common order of a save and of a removal; each dialog
// states what differs: its fields, its checks and its statements.
#include "core/Controles.h"
#include "core/Formulario.h"

#include <QList>
#include <QVector>

class QHBoxLayout;
class QLayout;
class QVBoxLayout;

namespace nomencla {

class Alfarje;
class CajaTexto;
class Etiqueta;
class Pulsante;

// What a dialog of the family states as data.
struct DatosEstructura {
    QString forma;
    QString titulo;
    QString bannerNuevo;      // the banner's two captions
    QString bannerExistente;
    QString sqlQuitar;        // "... WHERE cod=? AND id=?", given the key and the tenant
    QString objetoQuitar;     // "la sucursal": what the removal's question names
    int cajaQuitar = 0;       // the box whose text the question quotes, untrimmed
    QString sqlLista;         // the list, "... WHERE  id=? ...", and its fields by column
    QString camposLista;
};

class EstructuraEmpresa : public Formulario {
    Q_OBJECT
public:
    explicit EstructuraEmpresa(DatosEstructura datos);

    void Guardar();
    void Quitar();
    void Nuevo();

protected:
    qint32 CodigoActual = 0;
    Alfarje* GR = nullptr;
    Etiqueta* Label2 = nullptr;
    QVector<CajaTexto*> Tx;
    QVector<Pulsante*> Bt;

    // Controls with their designed values. The fields are Tx(0)...; a label
    // "Label1(n)" names the box it stands before (its access key moves there).
    CajaTexto* crearTx(QWidget* lienzo, int indice, int maxLength, bool centrada = false);
    Etiqueta* crearEtiqueta(QWidget* lienzo, int indice, const QString& texto, QWidget* companero = nullptr);
    // Adds to `raiz` the banner, the fields, the list under its caption
    // `etiquetaLista` and the buttons. The tab order runs through `orden`,
    // then the list and the buttons; the first of `orden` has the focus.
    void disponer(QWidget* lienzo, QVBoxLayout* raiz, QLayout* campos, const QString& formato,
                  const QString& etiquetaLista, const QList<QWidget*>& orden);
    // The mode banner and Bt(1).
    void modoNuevo();
    void modoExistente(bool quitable);

    // What a dialog tells. Validar shows the field's own message, if any.
    virtual bool Validar() = 0;
    // Inserts or updates the record in the fields (ErrorBD on failure); false
    // when refused, after telling the user why.
    virtual bool Escribir() = 0;
    // After a successful write, before the list is reloaded.
    virtual void trasEscribir() {}
    // Checks before the removal's question; false when refused (told).
    virtual bool PuedeQuitar() { return true; }
    // Fills GR; false when the database failed (told).
    virtual bool CargarLista();
    // The trimmed texts of Tx(0) to Tx(n-1); a box of the picked record that
    // still reads as the pick left it gives the stored text, blanks and all.
    QVariantList textos(int n) const;
    QVariant valorTx(int indice) const;
    // The insert for a new record, else the update, which gets the key and
    // the tenant after `valoresActualizar` ("... WHERE cod=? AND id=?").
    void insertarOActualizar(const QString& insertar, const QVariantList& valoresInsertar, const QString& actualizar,
                             QVariantList valoresActualizar);
    // Empties the fields for a new record; by default every box.
    virtual void limpiarCampos();
    virtual void MostrarRegistro() = 0;

private:
    const DatosEstructura d_;
    QVector<ValorMostrado> mostrados_; // the boxes as the pick left them
    void Bt_Click(int Index);
};

} // namespace nomencla
