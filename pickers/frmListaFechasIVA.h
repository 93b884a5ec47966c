#pragma once
// The dates of this year on which a different VAT rate applies: pick a date
// and add it (always at rate 8), or remove the selected one. The list follows
// the picker.
#include "core/Formulario.h"

#include <QDate>
#include <memory>

namespace nomencla {

class Alfarje;
class SelectorFecha;
class clsGrillas;

class frmListaFechasIVA : public Formulario {
    Q_OBJECT
public:
    frmListaFechasIVA();
    ~frmListaFechasIVA() override;

    void Guardar();
    void Quitar();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;

private:
    std::unique_ptr<clsGrillas> grillas_;
    Alfarje* GR = nullptr;
    SelectorFecha* DT = nullptr;
    void Bt_Click(int Index);
    void DT_Change();
    // Row of the date in the list, -1 when it is not there.
    qint32 filaDeFecha(const QDate& fecha) const;
};

} // namespace nomencla
