#pragma once
// The customer types of a company with their commercial conditions: a coded
// list (key given by the dialog) with three numeric boxes for the most
// credit, the longest term and the discount.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsTipoCli : public ListaCodificada {
    Q_OBJECT
public:
    frmLsTipoCli();
    static const DatosListaCodificada& datos();

    // The leading number of a text, with a point as decimal mark; 0 when none.

protected:
    void DisenarExtra(QWidget* lienzo, QGridLayout* campos, QBoxLayout* cuerpo) override;
    QVariantList valoresExtra() const override;
    void NuevoExtra() override;
    void MostrarExtra(qint32 fila) override;
};

} // namespace nomencla
