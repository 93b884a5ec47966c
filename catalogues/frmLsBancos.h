#pragma once
// Banks and cooperatives of the company. A bank that handles credit cards
// also keeps two commissions, whose fields show only while Check1 is ticked:
// the form then grows and the list moves down. A removal only marks the bank
// inactive.
#include "catalogues/ListaNombrada.h"
#include "core/Controles.h"

namespace nomencla {

class Casilla;

class frmLsBancos : public ListaNombrada {
    Q_OBJECT
public:
    frmLsBancos();
    static const DatosListaNombrada& datos();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Bt_Click(int Index) override;
    QWidget* disenarCampos(QGridLayout* campos, int fila, QWidget* anterior) override;
    void mostrarCampos(int fila) override;
    QVariantList valoresPropios() const override;

private:
    Casilla* Check1 = nullptr;
    CajaTexto* Nm[2] = {nullptr, nullptr};
    QWidget* comisiones_[6] = {};
    ValorMostrado tarjeta_, comision_[2]; // as the picked row stored them // Label1(2), Nm(0), Label1(4), Label1(3), Nm(1), Label1(5)
    void Check1_Click();
};

} // namespace nomencla
