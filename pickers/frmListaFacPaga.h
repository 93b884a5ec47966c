#pragma once
// One customer payment, read only: its date, form and total above, the
// invoices it settled below with capital, interest, total and a totals line.
#include "core/Formulario.h"

namespace nomencla {

class Alfarje;
class Etiqueta;

class frmListaFacPaga : public Formulario {
    Q_OBJECT
public:
    frmListaFacPaga();

    // The text of a form of payment; empty for a code without one.
    static QString textoForma(qint64 frm);

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;

private:
    Alfarje* GR = nullptr;
    Etiqueta* Label2[3] = {};
    void MostrarCabecera();
};

} // namespace nomencla
