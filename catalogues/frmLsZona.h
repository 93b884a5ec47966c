#pragma once
// Customer zones and their places. The zone half is a coded list (key given
// by the dialog, removal refused while customers use the zone). The place
// half is a list inside the zone: in a stored zone each place is written at
// once; in a new zone, which has no key yet, the places wait in GR2 as rows
// with key 0 and are written with the zone, in the save's transaction.
// Customers name their place by its name, so a rename reaches them too.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsZona : public ListaCodificada {
    Q_OBJECT
public:
    frmLsZona();
    static const DatosListaCodificada& datos();
    // The places' statements that the benchmark runs as the dialog does.
    struct SentenciasLugar {
        QString actualizar, clientes;
    };
    static const SentenciasLugar& lugares();

    void GuardarLugar();
    void QuitarLugar();
    qint32 codigoLugar() const { return CodigoLugar; }

protected:
    void Form_Load() override;
    void DisenarExtra(QWidget* lienzo, QGridLayout* campos, QBoxLayout* cuerpo) override;
    void NuevoExtra() override;
    void guardarExtra() override;
    void despuesDeMostrar() override;

private:
    qint32 CodigoLugar = 0;
    Alfarje* GR2 = nullptr;
    CajaTexto* Tx2_ = nullptr;
    CajaTexto* Tx3_ = nullptr;
    Pulsante* Bt4_ = nullptr;
    Pulsante* Bt5_ = nullptr;

    void CargarLugares();
    void GR2_RowChange();
    void Tx2_Change();
    void Tx2_KeyPress(int& KeyAscii);
    void Tx3_KeyPress(int& KeyAscii);
    void olvidarLugar(); // empties the place fields: no place in them
};

} // namespace nomencla
