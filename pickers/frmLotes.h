#pragma once
// Capture of one stock lot: number, expiry and manufacture dates, sanitary
// registration, country of origin and quantity. The dialog stores nothing: it
// leaves the lot in M().LoteCapturado for AgregarLoteCaducidad. The country
// list can be opened over it to add a missing country.
#include "core/Formulario.h"

namespace nomencla {

class CajaTexto;
class Combo;
class SelectorFecha;

class frmLotes : public Formulario {
    Q_OBJECT
public:
    frmLotes();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Bt_Click(int Index);

private:
    CajaTexto* Text1[3] = {};
    SelectorFecha* DT[2] = {};
    Combo* Cmb = nullptr;
    void Aceptar();
    void LlenarPaises(const QString& sql);
};

} // namespace nomencla
