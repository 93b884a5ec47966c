#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmCaducidades : public Formulario {
    Q_OBJECT
public:
    frmCaducidades();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
