#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmLsCargos : public Formulario {
    Q_OBJECT
public:
    frmLsCargos();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
