#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmSucursales : public Formulario {
    Q_OBJECT
public:
    frmSucursales();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
